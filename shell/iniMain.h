/// @file
/// The start of the program.
#pragma once

class QApplication;
class QString;
class frmSpielfeld;

/// By how much all windows must shrink so that the main window fits on the screen; at most 1.
double Schrumpffaktor();

/// Makes the application German in every word on a machine of any language, gives it the colours
/// and letters of the game on any desktop, and lets assistive technology see its controls.
void RichteAnwendungEin(QApplication &anwendung);

/// Finds the place for the data, reads them into a fresh record, and shows the main window in its
/// waiting state.
/// @param datenwurzel   the folder that holds the data folder; empty if the system has none.
void Main(frmSpielfeld &fenster, const QString &datenwurzel);
