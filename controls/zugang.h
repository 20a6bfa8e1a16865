// Accessibility of the game's own controls.
#pragma once

/// Makes pictures, digit rows and windows of the game accessible. Hidden controls of a window with
/// pictures do not appear in the accessibility tree.
void RichteZugangEin();
