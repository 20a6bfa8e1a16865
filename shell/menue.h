/// @file
/// The menu bar of the main window.
#pragma once

class frmSpielfeld;

/// Fills the menu bar. Each entry is a `QAction` that bears its described name, such as
/// `mnuSpiel2`. All of them are disabled while a window that waits for an answer blocks the main
/// window.
void BaueMenue(frmSpielfeld &fenster);
