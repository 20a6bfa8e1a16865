/// @file
/// The digits of the panel.
#pragma once

#include "core/ansicht.h"

/// Recounts `SarantenRest` and refreshes the panel. The row of the level points becomes blank.
/// Points below 0 or above 99999 leave the units place of their row unchanged and the rest blank.
void ZeigeStatus(Ansicht &ansicht);

/// Blanks the row of the level points.
void LeereLevelpunkte(Ansicht &ansicht);

/// @param betrag   0 to 999.
void ZeigeLevelpunkte(Ansicht &ansicht, int betrag, Ziffernfarbe farbe);

/// Shows the bonus of a won level, and the points without it; 0 and what the row cannot show are
/// blank.
void ZeigeLevelwertung(Ansicht &ansicht);

/// Blanks the points and the errors, as before the first refresh.
void LeerePanel(Ansicht &ansicht);
