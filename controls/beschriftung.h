/// @file
/// What a window has besides pictures: texts, their font and colours, and straight rules.
#pragma once

#include <QFont>
#include <QLabel>
#include <QPalette>
#include <string>

#include "controls/masse.h"

/// Colours of the texts in the windows.
inline constexpr QRgb kBlau = 0xff0000ff;
inline constexpr QRgb kDunkelblau = 0xff0000c0;
inline constexpr QRgb kDunkelgruen = 0xff006400;
inline constexpr QRgb kHellgrau = 0xffd8dce4;
inline constexpr QRgb kMagenta = 0xffd000d0;
inline constexpr QRgb kPurpur = 0xffc000c0;

/// The colours of everything that the game does not paint itself: those of its stone.
QPalette Steinpalette();

/// A font of the game, whatever the desktop has chosen. @param punkt   points at 96 dpi and full
/// scale, see Massstab().
QFont Schrift(double punkt, bool fett);

/// One entry of a window's table of texts.
struct Texteintrag {
  const char *name;
  Twips lage;
  double punkt;
  bool fett;
  QRgb farbe;
  const char *text = "";
  Qt::Alignment ausrichtung = Qt::AlignHCenter | Qt::AlignTop;
  bool umbruch = false;  ///< Lines that are too long continue on the next one.
};

/// A transparent label of plain text that always fits its place. Font hinting changes text widths
/// with the scale factor, so a text that is too large gets a font up to 15 % smaller. A line that
/// is still too long, such as the path of a folder, loses its middle.
class Beschriftung : public QLabel {
  Q_OBJECT

 public:
  Beschriftung(QWidget *eltern, const Texteintrag &eintrag);

  /// Shows a text whose lines end in CR LF or LF.
  void ZeigeText(const std::string &text);
  void SetzeFarbe(QRgb farbe);

 private:
  bool Passt(const QString &text) const;
  /// The text with line breaks in words that are wider than the label; QLabel wraps between words.
  QString Umbrochen(const QString &text) const;
  /// The text with the middle of each line left out that is wider. @param breite   pixels.
  QString Gekuerzt(const QString &text, int breite) const;

  QFont schrift_;  ///< At its full size.
};

/// Makes a straight rule.
/// @param lage   from its left or upper end; the other extent is 0. @param dicke in pixels.
void NeueLinie(QWidget *eltern, const Twips &lage, int dicke, QRgb farbe);
