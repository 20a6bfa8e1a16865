/// @file
/// Windows that have no entry in the task bar.
#pragma once

class QWindow;

/// Asks the desktop to leave a window out of its task bar and pager. The window must have been
/// created and not been shown.
/// Source for X servers: Extended Window Manager Hints, `_NET_WM_STATE`.
void OhneTaskleiste(QWindow *fenster);
