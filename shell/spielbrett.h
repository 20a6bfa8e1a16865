#pragma once

#include <array>

#include "controls/bild.h"
#include "core/ansicht.h"

/// A cell. It stores the tile that it shows.
class Zellenbild : public Bild {
  Q_OBJECT

 public:
  /// @param nummer   1 to 100.
  Zellenbild(QWidget *eltern, int nummer);

  Kachel LiesKachel() const { return kachel_; }
  void SetzeKachel(Kachel kachel);
  QString Ansage() const override;

 protected:
  void focusInEvent(QFocusEvent *ereignis) override;

 private:
  /// Only for the focused cell: Orca drops announcements while many events wait, and a new level
  /// changes most cells. Each cell that gets the focus needs it, for clients keep names.
  void MeldeNamen();

  int nummer_;
  Kachel kachel_ = Kachel::Verdeckt;
};

/// A clue place. A screen reader reads the numbers by lines, see Linientext().
class Zahlenbild : public Bild {
  Q_OBJECT

 public:
  /// For the other parameters see PlatzVon().
  Zahlenbild(QWidget *eltern, bool spalte, int linie, int k);

  int LiesZahl() const { return zahl_; }
  /// @param zahl   0 (empty) to 10.
  void SetzeZahl(int zahl);

 private:
  int zahl_ = 0;
};

class Spielbrett;

/// The light over the cells, which falls off towards the lower right. Mouse and screen reader do
/// not see it.
class Brettlicht : public Bild {
  Q_OBJECT

 public:
  /// While waiting, a great stone shows through the plates. On a won board all but the gems lies
  /// in shadow, and some gems glint.
  enum class Stand { Warten, Spiel, Gewonnen };

  explicit Brettlicht(Spielbrett *brett);

  void Setze(Stand stand);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;

 private:
  const Spielbrett &brett_;
  Stand stand_ = Stand::Spiel;
  QImage stein_;  ///< Null but while waiting.
};

/// The board: the cells and the clue places. Passes every press on a cell to the rules.
class Spielbrett : public Bild {
  Q_OBJECT

 public:
  /// @param ansicht   the screen that the rules act on.
  Spielbrett(QWidget *eltern, Ansicht &ansicht);

  /// @param nummer   1 to 100.
  Zellenbild &Zelle(int nummer) const { return *Element(imgSar_, nummer); }
  /// @param nummer   1 to 100.
  Zahlenbild &Platz(int nummer) const { return *Element(imgDiggi_, nummer); }

  Brettlicht &Licht() const { return *licht_; }
  /// Reads the visible numbers of a line to a screen reader, from the left or from the top.
  /// @param linie   1 to 10.
  QString Linientext(bool spalte, int linie) const;

 private:
  std::array<Zellenbild *, kZellen + 1> imgSar_{};        ///< Index 0 is unused.
  std::array<Zahlenbild *, kZahlfelder + 1> imgDiggi_{};  ///< Index 0 is unused.
  Brettlicht *licht_;
};
