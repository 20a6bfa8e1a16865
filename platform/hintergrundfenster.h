/// @file
/// What a window that covers the desktop behind the others asks of the system.
#pragma once

class QWindow;

/// True if a program can put its windows one above the other. Wayland leaves that to the desktop.
bool StapeltFenster();

/// Asks the desktop to leave a window out of its task bar and pager. The window must have been
/// created and not been shown. On Windows it is not activated by a click either, since it would
/// come to lie above the others for good.
/// Source for X servers: Extended Window Manager Hints, `_NET_WM_STATE`.
void OhneTaskleiste(QWindow *fenster);
