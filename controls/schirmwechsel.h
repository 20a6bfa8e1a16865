/// @file
/// Windows of a fixed size on several screens.
#pragma once

class QWidget;

/// Lets a window keep its size in logical pixels when it moves to a screen of another scale: an X
/// server knows only device pixels, and what Qt has told it once fixes the old number of them.
void BehalteGroesse(QWidget *fenster);
