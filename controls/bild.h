/// @file
/// The picture control: buttons, tiles, clue places, arrows and, without a picture, hot spots.
#pragma once

#include <QAccessible>
#include <QPixmap>
#include <QWidget>
#include <functional>

#include "controls/masse.h"

class QPainter;

/// Draws a picture with its top left corner at a place in logical pixels: device pixels are copied,
/// never scaled.
void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild);

/// Draws the ring of the focus along the inner edge of a form at (0,0).
/// @param form a picture whose opaque part is the form, of the resolution of the device
/// @param breite of its blue part; a thin white line within keeps it visible on every ground
void ZeichneRing(QPainter &maler, const QPixmap &form, double breite);

/// Tells assistive technology that the name of a control has changed.
void MeldeNeuenNamen(QWidget *element);

/// One entry of a window's table of pictures.
struct Bildeintrag {
  const char *name;     ///< The control's name.
  Twips lage;           ///< Where it stands; a picture is never scaled to this size.
  const char *bild;     ///< Picture of the catalogue; empty for a hot spot.
  const char *tooltip;  ///< Empty for none.
  const char *ansage;   ///< What a screen reader says.
  QAccessible::Role rolle = QAccessible::Button;
  const char *gedrueckt = "";  ///< Picture while a mouse button is held on it, if another.
};

class Bild : public QWidget {
  Q_OBJECT

 public:
  Bild(QWidget *eltern, const Bildeintrag &eintrag);

  /// Shows a picture of the catalogue; an empty name shows nothing.
  void SetzeBild(const QString &name);
  /// The name of the picture that is shown.
  virtual QString Bildname() const;

  /// Decodes its pictures, so that their first look costs nothing.
  void LadeVor() const;

  /// What a left click does; gives the control the hand pointer.
  void SetzeKlick(std::function<void()> klick);
  /// What the press of any mouse button does.
  void SetzeDruck(std::function<void(Qt::MouseButton)> druck);

  virtual QString Ansage() const { return accessibleName(); }
  QAccessible::Role Rolle() const { return rolle_; }
  bool IstBedienbar() const { return klick_ || druck_; }
  /// The right mouse button has a meaning of its own.
  bool IstZweitastig() const { return static_cast<bool>(druck_); }
  bool IstGewaehlt() const { return gewaehlt_; }
  void SetzeGewaehlt(bool gewaehlt) { gewaehlt_ = gewaehlt; }

  /// Presses and releases a mouse button on the control, for those who have no mouse. Does nothing
  /// where a mouse could not: on a control that is hidden or behind a window that waits.
  void Bediene(Qt::MouseButton taste);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  void mousePressEvent(QMouseEvent *ereignis) override;
  /// The second press of a double click counts only on a control that takes presses, and only if
  /// the first press was on this control, too.
  void mouseDoubleClickEvent(QMouseEvent *ereignis) override;
  void mouseReleaseEvent(QMouseEvent *ereignis) override;
  /// Space presses the control that has the focus, Shift+Space with the right mouse button.
  void keyPressEvent(QKeyEvent *ereignis) override;
  bool event(QEvent *ereignis) override;

  /// Paints anew what has another value, and so another name.
  void Aktualisiere();

 private:
  bool IstErreichbar() const;
  void Druecke(Qt::MouseButton taste);
  void LasseLos(Qt::MouseButton taste, bool darueber);
  void SetzeGedrueckt(bool gedrueckt);

  QString bild_;
  QString gedruecktesBild_;  ///< Empty if a press does not show.
  bool gedrueckt_ = false;   ///< A mouse button went down here and is still held.
  quint64 gedruecktUm_ = 0;  ///< Time of the last press, in milliseconds.
  std::function<void()> klick_;
  std::function<void(Qt::MouseButton)> druck_;
  QAccessible::Role rolle_;
  bool gewaehlt_ = false;
};
