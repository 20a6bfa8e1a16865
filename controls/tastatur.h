/// @file
/// Keyboard operation for players who use assistive technology. Without it, no key acts here.
///
/// Main window: Tab and Shift+Tab change between buttons, field and panel. The arrow keys move
/// within these areas. Z and S read the numbers of the row and of the column. Other windows: Tab
/// moves between the buttons. Space presses the focused control, see Bild.
#pragma once

#include <QKeyEvent>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

/// Lets Tab reach the buttons of a window while assistive technology is active.
void ErlaubeTab(QWidget *fenster);

/// The keyboard of the main window.
class Tastatur {
 public:
  /// @param flaeche   parent of the buttons and of the panel rows, @param zellen row by row.
  /// @param zahlen    returns the numbers of a line, from the left or from the top. Lines: 1 to 10.
  Tastatur(QWidget *flaeche, std::vector<QWidget *> zellen,
           std::function<QString(bool spalte, int linie)> zahlen);

  /// Moves the focus to the next or the previous area. Qt also calls this when the focused control
  /// is hidden; then the focus goes to the first element of its area. @return false without
  /// assistive technology.
  bool WechsleBereich(bool vorwaerts);
  /// @return false if the key has no meaning here.
  bool Druecke(const QKeyEvent &taste);

 private:
  enum Bereich { kKnoepfe, kFeld, kPanel, kBereiche };

  std::vector<QWidget *> Elemente(int bereich) const;
  void Bewege(int schritt);
  void LiesZahlen(bool spalte) const;
  QWidget *Aktuelles() const;

  QWidget *flaeche_;
  std::vector<QWidget *> zellen_;
  std::function<QString(bool, int)> zahlen_;
  int bereich_ = kPanel;                         ///< The first Tab leads to the buttons.
  std::array<std::size_t, kBereiche> stelle_{};  ///< Index of the current element of each area.
};
