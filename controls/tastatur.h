#pragma once

#include <QKeyEvent>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>

/// Sets the focus policy of the buttons of a window: Tab reaches them while assistive technology is
/// active. Space presses the focused button, see Bild.
void ErlaubeTab(QWidget *fenster);

/// The keyboard of the main window, for players who use assistive technology. Tab and Shift+Tab
/// change between three areas: buttons, board and panel. The arrow keys move within an area. On the
/// board, Z and S read the numbers of the row and of the column.
class Tastatur {
 public:
  using Bereiche = std::array<QWidget *, 3>;

  /// @param bereiche   the parents of the buttons, of the cells and of the panel rows.
  /// @param zahlen    returns the numbers of a line, from the left or from the top. Lines: 1 to 10.
  Tastatur(const Bereiche &bereiche, std::function<QString(bool spalte, int linie)> zahlen);

  /// Moves the focus to the next or the previous area. Qt also calls this when the focused control
  /// is hidden; then the focus goes to the first element of the same area.
  /// @return false without assistive technology.
  bool WechsleBereich(bool vorwaerts);
  /// @return false if the key was not handled.
  bool Druecke(const QKeyEvent &taste);

 private:
  enum Bereich { kKnoepfe, kFeld, kPanel, kAnzahl };

  QList<QWidget *> Elemente() const;
  void Bewege(int schritt);
  void LiesZahlen(bool spalte) const;
  QWidget *Aktuelles() const;

  Bereiche bereiche_;
  std::function<QString(bool, int)> zahlen_;
  int bereich_ = kPanel;                     ///< The first Tab moves to the buttons.
  std::array<qsizetype, kAnzahl> stelle_{};  ///< Index of the current element of each area.
};
