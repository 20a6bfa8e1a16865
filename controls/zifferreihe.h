/// @file
/// A row of digit pictures: the rows of the panel and of the best list.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "controls/masse.h"
#include "core/ansicht.h"

class Zifferreihe : public QWidget {
  Q_OBJECT

 public:
  /// @param ecke   left and top of the leftmost place in twips, @param stellen how many places.
  /// @param ansage what a screen reader says before the digits, @param rot before red digits.
  Zifferreihe(QWidget *eltern, const Twips &ecke, int stellen, const QString &ansage,
              const QString &rot = "");

  /// Lets a place show a digit from 0 to 9, or `kLeereZiffer`; place 0 is the rightmost.
  void SetzeZiffer(int stelle, Ziffernfarbe farbe, int ziffer);

  /// Shows the digits of a text right aligned, in green, and blanks the other places.
  void ZeigeText(const QString &ziffern);

  /// The digits that are shown; empty if every place is blank.
  QString Gezeigt() const;
  QString Ansage() const;

 protected:
  void paintEvent(QPaintEvent *ereignis) override;

 private:
  struct Ziffer {
    Ziffernfarbe farbe = Ziffernfarbe::Gruen;
    int wert = kLeereZiffer;

    bool operator==(const Ziffer &) const = default;
  };

  QString ansage_;
  QString rot_;
  std::vector<Ziffer> ziffern_;  ///< From place 0.
};
