/// @file
/// Measures: all positions in the tables of the windows are twips, 15 to the pixel.
#pragma once

#include <QFont>
#include <QLabel>
#include <QRect>
#include <QString>
#include <QWidget>
#include <string>

#include "core/meldungen.h"

/// A position in twips, relative to the parent's client area.
struct Twips {
  int left;
  int top;
  int width = 0;
  int height = 0;
};

/// The factor by which every window and picture is smaller than told; 1 at the start.
double Massstab();
/// Must be called before the first window or picture is made. @param faktor above 0, at most 1.
void StelleMassstab(double faktor);

/// The pixels of a length, rounded to the nearest.
int Pixel(int twips);
/// The rectangle of a position in pixels.
QRect Rechteck(const Twips &lage);

/// A font whose size does not depend on the screen. @param punkt   points at 96 dpi.
QFont Schrift(double punkt, bool fett);

/// Colours of the texts in the windows.
inline constexpr QRgb kBlau = 0xff0000ff;
inline constexpr QRgb kDunkelblau = 0xff0000c0;
inline constexpr QRgb kDunkelgruen = 0xff006400;
inline constexpr QRgb kHellgrau = 0xffd8dce4;
inline constexpr QRgb kMagenta = 0xffd000d0;
inline constexpr QRgb kPurpur = 0xffc000c0;

/// One row of a window's table of texts.
struct Textzeile {
  const char *name;
  Twips lage;
  double punkt;
  bool fett;
  QRgb farbe;
  const char *text = "";
  Qt::Alignment ausrichtung = Qt::AlignHCenter | Qt::AlignTop;
};
/// Makes the label of a row: transparent, wrapped, plain text.
QLabel *NeueBeschriftung(QWidget *eltern, const Textzeile &zeile);
/// Makes a straight rule.
/// @param lage   from its left or upper end; the other extent is 0. @param dicke in pixels.
QWidget *NeueLinie(QWidget *eltern, const Twips &lage, int dicke, QRgb farbe);
/// Shows a text whose lines end in CR LF or LF.
void SetzeText(QLabel *beschriftung, const std::string &text);

/// Moves a window to the place that belongs to it over the main window.
void Platziere(QWidget *fenster, const QWidget *hauptfenster, Lage lage);
