/// @file
/// The picture control: buttons, tiles, clue places, arrows and, without a picture, hot spots.
#pragma once

#include <QAccessible>
#include <QPixmap>
#include <QWidget>
#include <functional>

#include "dialogs/masse.h"

class QPainter;

/// Draws a picture with its top left corner at a place in logical pixels: device pixels are copied,
/// never scaled.
void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild);

/// One row of a window's table of pictures.
struct Bildzeile {
  const char *name;     ///< The control's name.
  Twips lage;           ///< Where it stands; a picture is never scaled to this size.
  const char *bild;     ///< Picture of the catalogue; empty for a hot spot.
  const char *tooltip;  ///< Empty for none.
  const char *ansage;   ///< What a screen reader says.
  QAccessible::Role rolle = QAccessible::Button;
};

class Bild : public QWidget {
  Q_OBJECT

 public:
  explicit Bild(QWidget *eltern);
  Bild(QWidget *eltern, const Bildzeile &zeile);

  /// Shows a shared picture, which must outlive the control; null shows nothing.
  void SetzeBild(const QPixmap *bild);
  const QPixmap *GezeigtesBild() const { return bild_; }

  /// What a left click does; gives the control the hand pointer.
  void SetzeKlick(std::function<void()> klick);
  /// What the press and the release of any mouse button do.
  void SetzeDruck(std::function<void(Qt::MouseButton)> druck);
  void SetzeLoslassen(std::function<void(Qt::MouseButton)> loslassen);

  /// What a screen reader says, and as what it presents the control.
  void SetzeAnsage(const QString &ansage, QAccessible::Role rolle);
  virtual QString Ansage() const { return accessibleName(); }
  QAccessible::Role Rolle() const { return rolle_; }
  bool IstBedienbar() const { return klick_ || druck_; }
  /// The right mouse button has a meaning of its own.
  bool IstZweitastig() const { return druck_ && !klick_; }
  bool IstGewaehlt() const { return gewaehlt_; }
  void SetzeGewaehlt(bool gewaehlt) { gewaehlt_ = gewaehlt; }
  /// Acts as if a mouse button had been pressed and released on the control.
  void Bediene(Qt::MouseButton taste);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  void mousePressEvent(QMouseEvent *ereignis) override;
  void mouseReleaseEvent(QMouseEvent *ereignis) override;

 private:
  const QPixmap *bild_ = nullptr;
  std::function<void()> klick_;
  std::function<void(Qt::MouseButton)> druck_;
  std::function<void(Qt::MouseButton)> loslassen_;
  QAccessible::Role rolle_ = QAccessible::Graphic;
  bool gewaehlt_ = false;
};
