#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "controls/masse.h"
#include "core/ansicht.h"

inline constexpr Twips kZifferngroesse{0, 0, 210, 420};

/// A row of digit pictures with some pixels around it, as in the panel and in the best list.
class Zifferreihe : public QWidget {
  Q_OBJECT

 public:
  /// @param ecke   left and top of the row, @param stellen number of digits.
  /// @param ansage   what a screen reader says before the digits, @param rot and before red ones.
  Zifferreihe(QWidget *eltern, const Twips &ecke, int stellen, const QString &ansage,
              const QString &rot = "");

  /// @param stelle   0 is the rightmost, @param ziffer 0 to 9, or `kLeereZiffer`.
  void SetzeZiffer(int stelle, Ziffernfarbe farbe, int ziffer);

  /// Shows the digits of a text, right aligned and green.
  void ZeigeText(const QString &ziffern);

  /// The digits that are shown, without the blank places.
  QString Gezeigt() const;

 protected:
  void paintEvent(QPaintEvent *ereignis) override;

 private:
  void AktualisiereName();

  struct Ziffer {
    Ziffernfarbe farbe = Ziffernfarbe::Gruen;
    int wert = kLeereZiffer;

    bool operator==(const Ziffer &) const = default;
  };

  QString ansage_;
  QString rot_;
  std::vector<Ziffer> ziffern_;  ///< From place 0.
};
