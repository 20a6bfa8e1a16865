// The digits of the panel.
#pragma once

#include "core/ansicht.h"

/// Recounts `SarantenRest` and refreshes the panel. Blanks the row of the level points. If the
/// points are below 0 or above 99999, their units place keeps its digit and the others are blank.
void ZeigeStatus(Ansicht &ansicht);

/// Blanks the row of the level points.
void LeereLevelpunkte(Ansicht &ansicht);

/// @param betrag   0 to 999.
void ZeigeLevelpunkte(Ansicht &ansicht, int betrag, Ziffernfarbe farbe);

/// Shows the bonus of a won level, and the points without it. The row of the points is blank for 0
/// and for values that do not fit.
void ZeigeLevelwertung(Ansicht &ansicht);

/// Blanks the points and the errors, as before the first refresh.
void LeerePanel(Ansicht &ansicht);
