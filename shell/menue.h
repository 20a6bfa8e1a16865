// The menu bar of the main window.
#pragma once

#include <map>

#include "core/ansicht.h"

class QAction;
class frmSpielfeld;

/// Fills the menu bar. Each entry is a `QAction` with an object name such as `mnuSpiel2`. The
/// entries with a handler are in a `QActionGroup`, which is disabled while a modal window is open.
/// @return the entries that are enabled while their button is visible.
std::map<Bedienung, QAction *> BaueMenue(frmSpielfeld &fenster);
