/// @file
/// The start of the program.
#pragma once

class QApplication;
class QString;
class frmSpielfeld;

/// The scale of all windows at which the main window fits on the primary screen; at most 1. Needs
/// Massstab() to be 1.
double Schrumpffaktor();

/// Sets language, style, palette, font, icon, key filter and accessibility of the application, so
/// that they depend neither on the desktop nor on its language.
void RichteAnwendungEin(QApplication &anwendung);

/// Settles the data folder, reads settings and best list, and shows the windows in the waiting
/// state.
/// @param datenwurzel   the parent of the data folder; empty if the system has none.
void Main(frmSpielfeld &fenster, const QString &datenwurzel);
