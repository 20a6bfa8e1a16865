/// @file
/// The picture catalogue. A picture is decoded when it is first asked for at a device pixel ratio,
/// and shared from then on.
#pragma once

#include <QCursor>
#include <QPixmap>
#include <QString>

#include "core/spiel.h"

/// A picture in exact device pixels, scaled by Massstab().
/// @param geraetepixel   device pixel ratio. @return null if the name is empty.
QPixmap Katalogbild(const QString &name, double geraetepixel);

/// Decodes the pictures of tiles, numbers, digits and arrows, so that no move decodes one.
void LadeSpielbilder(double geraetepixel);

/// The number of pictures decoded since the process began.
int GeladeneBilder();

/// A background that will be stretched. @param ziel   size in device pixels. @return the smallest
/// rendering that is enlarged at most twice, or else the largest.
QPixmap Streckbild(const QString &name, const QSizeF &ziel);

/// The mouse pointer of every clickable picture.
QCursor Handzeiger();

// Names of pictures that change in play.
QString Kachelbild(Kachel kachel);
namespace frmBilder {
QString imgPfeil(int phase);      ///< Points left. 0 yellow, 1 red, `kKeinPfeil` no picture.
QString imgPfeilhoch(int phase);  ///< The same, pointing up.
}  // namespace frmBilder
namespace frmZahlen {
QString imgZahl(int zahl);  ///< A clue number, 0 (empty) to 10.
}
namespace frmDigital {
QString imgDiggi(int ziffer);  ///< A green digit, or `kLeereZiffer`.
QString imgRot(int ziffer);    ///< The same in red.
}  // namespace frmDigital
