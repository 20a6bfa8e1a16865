// What a window shows besides pictures: texts, their font and colours, and straight lines.
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

/// The colours of menus, text boxes and file dialogs, which the game does not paint itself.
QPalette Steinpalette();

/// The font of the game, independent of the desktop's settings.
/// @param punkt   points at 96 dpi and scale factor 1.
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
  bool umbruch = false;  ///< Long lines are wrapped.
};

/// A transparent label whose plain text always fits into it. Font hinting changes text widths with
/// the scale factor, so a text that is too large gets a font up to 15 % smaller. A text that is
/// still too large, such as a long path, gets "…" in the middle of its lines.
class Beschriftung : public QLabel {
  Q_OBJECT

 public:
  Beschriftung(QWidget *eltern, const Texteintrag &eintrag);

  /// Shows a text whose lines end in CR LF or LF.
  /// @param freieZeilen   lines below the label that a long text may use.
  void ZeigeText(const std::string &text, int freieZeilen = 0);
  void SetzeFarbe(QRgb farbe);

 private:
  bool Passt(const QString &text) const;
  /// Adds line breaks in words that are wider than the label. QLabel wraps only between words.
  QString Umbrochen(const QString &text) const;
  /// Replaces the middle of each line that is too wide by "…". @param breite   pixels.
  QString Gekuerzt(const QString &text, int breite) const;

  QFont schrift_;  ///< At full size.
};

/// Makes a straight line. @param lage   width or height is 0. @param dicke   pixels.
void NeueLinie(QWidget *eltern, const Twips &lage, int dicke, QRgb farbe);
