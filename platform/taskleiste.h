/// @file
/// Windows that have no entry in the task bar.
#pragma once

class QWindow;

/// Asks the desktop to leave a window out of its task bar and pager. The window must have been
/// created and not been shown. On Windows it is not activated by a click either, since it would
/// come to lie above the others for good.
/// Source for X servers: Extended Window Manager Hints, `_NET_WM_STATE`.
void OhneTaskleiste(QWindow *fenster);
