/// @file
/// The board: the hundred cells, and the clue places above and beside them.
#pragma once

#include <array>
#include <vector>

#include "controls/bild.h"
#include "core/ansicht.h"

/// A cell. The tile that it shows is the only record of what has happened to it.
class Zellenbild : public Bild {
  Q_OBJECT

 public:
  /// @param nummer   1 to 100.
  Zellenbild(QWidget *eltern, int nummer);

  Kachel LiesKachel() const { return kachel_; }
  void SetzeKachel(Kachel kachel);

  QString Bildname() const override;
  QString Ansage() const override;

 private:
  int nummer_;
  Kachel kachel_ = Kachel::Verdeckt;
};

/// A clue place.
class Zahlenbild : public Bild {
  Q_OBJECT

 public:
  /// @param platz   1 to 100: five to each column from the left, then five to each row from the
  /// top.
  Zahlenbild(QWidget *eltern, int platz);

  int LiesZahl() const { return zahl_; }
  /// @param zahl   0 (empty) to 10.
  void SetzeZahl(int zahl);

  QString Bildname() const override;
  QString Ansage() const override;

 private:
  int platz_;
  int zahl_ = 0;
};

/// Holds the cells and the clue places, and hands every press on a cell to the rules.
class Spielbrett : public Bild {
  Q_OBJECT

 public:
  /// @param ansicht   the screen that the rules act on.
  Spielbrett(QWidget *eltern, Ansicht &ansicht);

  /// @param nummer   1 to 100.
  Zellenbild &Zelle(int nummer) const { return *imgSar_.at(static_cast<std::size_t>(nummer)); }
  /// @param nummer   1 to 100.
  Zahlenbild &Platz(int nummer) const { return *imgDiggi_.at(static_cast<std::size_t>(nummer)); }

  /// The cells, row by row.
  std::vector<QWidget *> Zellen() const { return {imgSar_.begin() + 1, imgSar_.end()}; }
  /// The visible numbers of a line, from the left or from the top, for a screen reader.
  /// @param linie   1 to 10.
  QString Linientext(bool spalte, int linie) const;

 private:
  std::array<Zellenbild *, kZellen + 1> imgSar_{};        ///< Index 0 is unused.
  std::array<Zahlenbild *, kZahlfelder + 1> imgDiggi_{};  ///< Index 0 is unused.
};
