// The start of the program.
#pragma once

class QApplication;
class QString;
class frmSpielfeld;

/// The scale factor at which the main window fits on the primary screen, at most 1. Call it while
/// Massstab() is 1.
double Schrumpffaktor();

/// Sets language, style, palette, font, icon, event filter and accessibility, independent of the
/// settings of the desktop.
void RichteAnwendungEin(QApplication &anwendung);

/// Sets the data folder, reads settings and best list, and shows the windows.
/// @param datenwurzel   the parent of the data folder; empty if the system has none.
void Main(frmSpielfeld &fenster, const QString &datenwurzel);
