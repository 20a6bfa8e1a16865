#pragma once

#include <QAccessible>
#include <QPixmap>
#include <QWidget>
#include <functional>

#include "controls/masse.h"

class QPainter;

/// Draws a picture without scaling its device pixels. @param ort   top left corner, logical pixels.
void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild);

/// Draws the focus ring along the inner edge of a shape at (0,0).
/// @param form   a picture in device pixels; its opaque part is the shape.
/// @param breite of the blue part. A thin white line inside makes it visible on dark pictures.
void ZeichneRing(QPainter &maler, const QPixmap &form, double breite);

/// A rounded rectangle of the size of a control, in device pixels.
QPixmap Rundform(const QWidget &element);

/// One entry of a window's table of pictures.
struct Bildeintrag {
  const char *name;     ///< The control's name.
  Twips lage;           ///< The picture is not scaled to this size.
  const char *bild;     ///< Picture of the catalogue; empty for a clickable area.
  const char *tooltip;  ///< Empty for none.
  const char *ansage;   ///< What a screen reader says.
  QAccessible::Role rolle = QAccessible::Button;
  const char *gedrueckt = "";  ///< Picture while held down; empty: `bild`, lower and darker.
};

/// A control that shows a picture: button, tile, clue place, arrow or label. Without a picture it
/// is a clickable area of the background.
class Bild : public QWidget {
  Q_OBJECT

 public:
  Bild(QWidget *eltern, const Bildeintrag &eintrag);

  /// Shows a picture of the catalogue; an empty name shows nothing.
  void SetzeBild(const QString &name);
  /// The name of the picture that is shown.
  QString Bildname() const;

  /// Decodes the pictures of the control before they are needed.
  void LadeVor() const;

  /// Sets the handler of a left click and the hand pointer.
  void SetzeKlick(std::function<void()> klick);
  /// Sets the handler for the press of any mouse button.
  void SetzeDruck(std::function<void(Qt::MouseButton)> druck) { druck_ = std::move(druck); }

  QAccessible::Role Rolle() const { return rolle_; }
  /// What a screen reader says of the control.
  virtual QString Ansage() const { return accessibleName(); }
  bool IstBedienbar() const { return klick_ || druck_; }
  /// True if the right mouse button acts, too.
  bool IstZweitastig() const { return static_cast<bool>(druck_); }
  bool IstGewaehlt() const { return gewaehlt_; }
  void SetzeGewaehlt(bool gewaehlt) { gewaehlt_ = gewaehlt; }

  /// Shows the control in place of another one, from which it takes the focus.
  void Ersetze(Bild *anderes);

  /// Presses and releases a mouse button on the control, for keyboard and assistive technology.
  /// Does nothing if a mouse could not: the control is hidden or disabled, or a modal window or a
  /// menu is open.
  void Klicke(Qt::MouseButton taste);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  /// Also the second press of a double click, which counts only if the control takes presses.
  void mousePressEvent(QMouseEvent *ereignis) override;
  void mouseReleaseEvent(QMouseEvent *ereignis) override;
  /// Space acts as the left mouse button on the focused control, Shift+Space as the right one.
  void keyPressEvent(QKeyEvent *ereignis) override;
  bool event(QEvent *ereignis) override;

 private:
  void Druecke(Qt::MouseButton taste);
  void LasseLos(Qt::MouseButton taste, bool darueber);
  void SetzeGedrueckt(bool gedrueckt);

  QString bildname_;
  QString gedrueckterName_;  ///< Empty: the same, on a button lower and darker.
  bool gedrueckt_ = false;   ///< A mouse button was pressed here and is still down.
  std::function<void()> klick_;
  std::function<void(Qt::MouseButton)> druck_;
  QAccessible::Role rolle_;
  bool gewaehlt_ = false;
};
