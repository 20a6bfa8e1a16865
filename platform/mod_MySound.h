/// @file
/// Sound effects by number. No failure of sound is ever reported.
#pragma once

/// Starts an effect and returns at once; the one that still plays is cut off. An effect whose file
/// does not lie in the program's own folder is silent. Needs an event loop to be heard.
/// @param n   1 to 6, any other number is silent.
void SpieleSound(int n);
