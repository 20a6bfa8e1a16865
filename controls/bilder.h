// The picture catalogue. It decodes a picture at the first request for a device pixel ratio and
// then keeps it.
#pragma once

#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <QString>

#include "core/spiel.h"

/// A picture in exact device pixels, scaled by Massstab().
/// @param geraetepixel   device pixel ratio. @return null if the name is empty.
QPixmap Katalogbild(const QString &name, double geraetepixel);

/// Decodes the pictures of tiles, numbers, digits, arrows and glints before the first move needs
/// them.
void LadeSpielbilder(double geraetepixel);

/// The number of pictures decoded since the start of the process.
int GeladeneBilder();

/// A background picture for stretching: the smallest rendering that is enlarged at most twice, or
/// else the largest. Decoded at each call and not kept. @param ziel   size in device pixels.
QImage Streckbild(const QString &name, const QSizeF &ziel);

/// The mouse pointer of clickable pictures.
QCursor Handzeiger();

// Names of the pictures that change during a game.
QString Kachelbild(Kachel kachel);
namespace frmBilder {
QString imgPfeil(int phase);      ///< Points left. 0 yellow, 1 red, `kKeinPfeil` no picture.
QString imgPfeilhoch(int phase);  ///< Points up, same phases.
}  // namespace frmBilder
namespace frmZahlen {
QString imgZahl(int zahl);  ///< A clue number, 0 (empty) to 10.
}
namespace frmDigital {
QString imgDiggi(int ziffer);  ///< A green digit, or `kLeereZiffer`.
QString imgRot(int ziffer);    ///< A red digit, or `kLeereZiffer`.
}  // namespace frmDigital
