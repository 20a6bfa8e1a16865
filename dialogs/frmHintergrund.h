/// @file
/// The grey cover of the desktop behind the game.
#pragma once

#include <QPixmap>
#include <QWidget>

class frmHintergrund : public QWidget {
  Q_OBJECT

 public:
  /// Covers the screen of the main window. A click brings the game's windows to the front, also if
  /// they were minimised. The cover never takes the focus.
  explicit frmHintergrund(QWidget *hauptfenster);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  void mousePressEvent(QMouseEvent *ereignis) override;

 private:
  QWidget *hauptfenster_;
  QPixmap Image1;  ///< Stretched to the size of the screen; null until it is decoded.
};
