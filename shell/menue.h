// The menu bar of the main window.
#pragma once

class frmSpielfeld;

/// Fills the menu bar. Each entry is a `QAction` with an object name such as `mnuSpiel2`. The
/// entries with a handler are in a `QActionGroup`, which is disabled while a modal window is open.
void BaueMenue(frmSpielfeld &fenster);
