/// @file
/// The catalogue of pictures. A picture is known by its name, and decoded when it is first asked
/// for at a ratio of device pixels; from then on it is shared.
#pragma once

#include <QCursor>
#include <QPixmap>
#include <QString>

/// A picture at the exact size in device pixels, Massstab() included. Empty if there is none of
/// this name.
QPixmap Katalogbild(const QString &name, double geraetepixel);

/// Decodes the pictures of tiles, numbers, digits and arrows, so that no move has to.
void LadeSpielbilder(double geraetepixel);

/// How many pictures have been decoded since the process began.
int GeladeneBilder();

/// A background that is to be stretched to a size in device pixels, in the smallest rendering that
/// is not enlarged more than twice by that, or else in the largest.
QPixmap Streckbild(const QString &name, const QSizeF &ziel);

/// The hand that every clickable picture shares as its mouse pointer.
QCursor Handzeiger();

/// Tiles and arrows, by name.
namespace frmBilder {
QString imgPlatte(int index);  ///< 0 wrong cell, 1 covered, 2 marked.
QString imgSarant();
QString imgPfeil(int phase);      ///< 0 yellow, 1 red, 2 no picture at all.
QString imgPfeilhoch(int phase);  ///< As above, pointing upward.
}  // namespace frmBilder

/// Clue numbers, by name.
namespace frmZahlen {
QString imgZahl(int zahl);  ///< 0 (an empty plate) to 10.
}

/// Digits of the panel, by name; index 10 is the place with all segments unlit.
namespace frmDigital {
QString imgDiggi(int ziffer);  ///< Green, 0 to 10.
QString imgRot(int ziffer);    ///< Red, 0 to 10.
}  // namespace frmDigital
