/// @file
/// The keyboard for players who use assistive technology. While none is active no key does anything
/// here.
///
/// Tab and Shift+Tab go round the areas: buttons, field, panel. The arrow keys move within an area,
/// Z and S read the numbers of the row and of the column. What has the focus answers Space itself.
#pragma once

#include <QKeyEvent>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

class Tastatur {
 public:
  /// @param flaeche   holds the buttons and the rows of the panel as direct children.
  /// @param zellen    the cells, row by row.
  /// @param zahlen    gives the numbers of a line as a player reads them; lines count from 1.
  Tastatur(QWidget *flaeche, std::vector<QWidget *> zellen,
           std::function<QString(bool spalte, int linie)> zahlen);

  /// Moves the focus to the next or the previous area; false if the keyboard is not in use. Qt asks
  /// for this also when the control that has the focus vanishes: then to the area's first element.
  bool WechsleBereich(bool vorwaerts);
  /// Acts on a key; false if it means nothing.
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
  std::array<std::size_t, kBereiche> stelle_{};  ///< Where the focus stands in each area.
};
