// Sound effects by number. No failure of sound is ever reported.
#pragma once

/// Starts an effect and returns at once. An effect that is still playing is cut off. One whose file
/// is missing is silent. Playing needs a running event loop.
/// @param n   1 to 6; any other number is silent.
void SpieleSound(int n);
