/// @file
/// What a screen reader sees of the game's own controls.
#pragma once

/// Lets Qt present pictures, digit rows and windows of the game to assistive technology. Hidden
/// controls are not presented at all.
void RichteZugangEin();
