/// @file
/// A row of digit pictures: the rows of the panel and of the best list.
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>
#include <vector>

#include "dialogs/masse.h"

class Zifferreihe : public QWidget {
  Q_OBJECT

 public:
  /// @param ecke   left and top of the leftmost place in twips, @param stellen how many places.
  /// @param ansage what a screen reader says before the digits.
  Zifferreihe(QWidget *eltern, const Twips &ecke, int stellen, const QString &ansage);

  /// Lets a place show a digit picture; place 0 is the rightmost.
  void SetzeZiffer(int stelle, const QPixmap *bild);
  const QPixmap *Ziffer(int stelle) const;

  /// Shows the digits of a text right aligned, in green, and blanks the other places.
  void ZeigeText(const QString &ziffern);

  /// The digits that are shown, read from their pictures; empty if every place is blank.
  QString Gezeigt() const;
  QString Ansage() const;

 protected:
  void paintEvent(QPaintEvent *ereignis) override;

 private:
  QString ansage_;
  std::vector<const QPixmap *> ziffern_;
};
