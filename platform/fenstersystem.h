/// @file
/// What the game asks of the system that shows windows.
#pragma once

class QWindow;

/// What a player reads if the program finds no screen.
extern const char *const kOhneBildschirm;

/// True if a program can put its windows one above the other, and knows which part of the screen
/// the desktop leaves to them. Wayland keeps both to the desktop.
bool StapeltFenster();

/// Asks the desktop to leave a window out of its task bar and pager. The window must have been
/// created and not been shown. On Windows it is not activated by a click either, since it would
/// come to lie above the others for good.
/// Source for X servers: Extended Window Manager Hints, `_NET_WM_STATE`.
void OhneTaskleiste(QWindow *fenster);
