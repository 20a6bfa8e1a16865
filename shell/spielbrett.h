/// @file
/// The board: its hundred cells, and the clue places above and beside it.
#pragma once

#include <array>
#include <functional>

#include "controls/bild.h"
#include "core/spiel.h"

class Zellenbild;
class Zahlenbild;

class Spielbrett : public Bild {
  Q_OBJECT

 public:
  /// @param druck   is given the cell and the mouse button of each press.
  Spielbrett(QWidget *eltern, const std::function<void(int, Qt::MouseButton)> &druck);

  Kachel LiesKachel(int zelle) const;
  void SetzeKachel(int zelle, Kachel kachel);
  int LiesZahl(int platz) const;
  void SetzeZahl(int platz, int zahl);
  void ZeigeZahlfeld(int platz, bool sichtbar);

  /// The cells, row by row.
  std::vector<QWidget *> Zellen() const;
  /// What a screen reader says of the visible numbers of a line, from the left or from the top.
  /// @param linie   from 1.
  QString Linientext(bool spalte, int linie) const;

 private:
  std::array<Zellenbild *, kZellen + 1> imgSar_{};        ///< Index 0 is unused.
  std::array<Zahlenbild *, kZahlfelder + 1> imgDiggi_{};  ///< Index 0 is unused.
};
