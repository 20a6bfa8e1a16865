#pragma once

#include <QWidget>

/// The window behind the game that covers the desktop. It never takes the focus. A click on it
/// raises the windows of the game and restores them if they are minimised.
class frmHintergrund : public QWidget {
  Q_OBJECT

 public:
  /// Covers the screen of the main window.
  explicit frmHintergrund(QWidget *hauptfenster);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  void mousePressEvent(QMouseEvent *ereignis) override;

 private:
  QWidget *hauptfenster_;
};
