// The system that shows windows.
#pragma once

class QWindow;

/// What a player reads if Qt finds no screen.
extern const char *const kOhneBildschirm;

/// True under Wayland: the compositor alone orders the windows, and no program learns which part of
/// the screen is free of panels.
bool IstWayland();

/// Keeps a window out of the task bar and the pager. Call it before each show, when the system's
/// window exists: a window manager forgets it for a hidden window. On Windows, a window with
/// Qt::WindowDoesNotAcceptFocus is also never activated.
/// Source for X servers: Extended Window Manager Hints, `_NET_WM_STATE`.
void OhneTaskleiste(QWindow *fenster);
