/// @file
/// The grey cover of the desktop behind the game.
#pragma once

#include <QPixmap>
#include <QWidget>

class frmHintergrund : public QWidget {
  Q_OBJECT

 public:
  /// Covers the screen of the main window, which it brings to the front whenever it is activated.
  explicit frmHintergrund(QWidget *hauptfenster);

 protected:
  void paintEvent(QPaintEvent *ereignis) override;
  bool event(QEvent *ereignis) override;
  bool eventFilter(QObject *hauptfenster, QEvent *ereignis) override;

 private:
  QWidget *hauptfenster_;
  QPixmap Image1;  ///< The stone, which is stretched to the size of the screen.
};
