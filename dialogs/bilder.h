/// @file
/// The catalogue of pictures. Each picture is loaded once, at the exact size in device pixels, and
/// shared by reference; two controls show the same picture if they refer to the same address.
#pragma once

#include <QCursor>
#include <QPixmap>
#include <QString>

/// A picture of the program by its file name. The reference stays valid and keeps its address for
/// the life of the process. The picture is loaded at its first use, but at the start of the program
/// it is empty until LadeGemerkteBilder().
const QPixmap &Bilddatei(const QString &name);

/// Begins in a thread of its own what takes longest at the start: to look up the fonts of the
/// system, then to read a picture. Who needs either waits for it, and the picture must be used.
void BeginneVorarbeit(const QString &bild);

/// Loads the pictures that were asked for so far, and ends the start: until then they are only
/// noted, so that the windows are on their way to the screen first.
void LadeGemerkteBilder();

/// Brings all loaded pictures to another ratio of device pixels, in place.
void StelleBilderAuf(double geraetepixel);

/// How many pictures have been decoded since the process began.
int GeladeneBilder();

/// The hand that every clickable picture shares as its mouse pointer.
QCursor Handzeiger();

/// Tiles, arrows and the faces of the two info buttons.
namespace frmBilder {
const QPixmap &imgPlatte(int index);  ///< 0 wrong cell, 1 covered, 2 marked.
const QPixmap &imgSarant();
const QPixmap *imgPfeil(int phase);      ///< 0 yellow, 1 red, 2 no picture at all.
const QPixmap *imgPfeilhoch(int phase);  ///< As above, pointing upward.
}  // namespace frmBilder

/// Clue numbers.
namespace frmZahlen {
const QPixmap &imgZahl(int zahl);  ///< 0 (an empty plate) to 10.
}

/// Digits of the panel; index 10 is the place with all segments unlit.
namespace frmDigital {
const QPixmap &imgDiggi(int ziffer);  ///< Green, 0 to 10.
const QPixmap &imgRot(int ziffer);    ///< Red, 0 to 10.
}  // namespace frmDigital
