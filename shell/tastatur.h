#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <array>

class Spielbrett;

/// The keyboard of the main window, for players who use assistive technology. Tab and Shift+Tab
/// change between three areas: buttons, board and panel. The arrow keys move within an area. On the
/// board, Z and S read the numbers of the row and of the column.
class Tastatur {
 public:
  /// @param knoepfe   the parent of the buttons, @param panel the parent of the panel rows.
  Tastatur(QWidget *knoepfe, Spielbrett *brett, QWidget *panel);

  /// Moves the focus to the next or the previous area. Qt also calls this when the focused control
  /// is hidden; then the focus goes to the first element of the same area.
  /// @return false without assistive technology.
  bool WechsleBereich(bool vorwaerts);
  /// @return false if the key was not handled.
  bool Druecke(const QKeyEvent &taste);

 private:
  enum Bereich { kKnoepfe, kFeld, kPanel, kAnzahl };

  QList<QWidget *> Ziele() const;
  void Bewege(int schritt);
  void LiesZahlen(bool spalte) const;
  QWidget *Aktuelles() const;

  Spielbrett *brett_;
  std::array<QWidget *, kAnzahl> bereiche_;  ///< Their parents.
  int bereich_ = kPanel;                     ///< The first Tab moves to the buttons.
  std::array<qsizetype, kAnzahl> stelle_{};  ///< Index of the current control of each area.
};
