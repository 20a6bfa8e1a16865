/// @file
/// The panel: which digit each of its places shows.
#pragma once

#include "core/ansicht.h"

/// Brings the panel up to date and recounts `SarantenRest`. Afterwards the rows of points, errors,
/// rest and level show the record's values and the row of the level points is blank. Points that
/// the row cannot show (below 0 or above 99999) leave its units place as it was.
void ZeigeStatus(Ansicht &ansicht);

/// Blanks the row of the level points.
void LeereLevelpunkte(Ansicht &ansicht);

/// Shows the result of a level in its row, the units in place 0.
/// @param betrag   0 to 999.
void ZeigeLevelpunkte(Ansicht &ansicht, int betrag, Ziffernfarbe farbe);

/// Shows the bonus of a won level beside the points without it, which stay blank if the row cannot
/// show them or if they are 0.
void ZeigeLevelwertung(Ansicht &ansicht);

/// Shows the dark panel that is seen before the first refresh.
void LeerePanel(Ansicht &ansicht);
