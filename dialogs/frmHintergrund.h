#pragma once

#include <QBackingStore>
#include <QWindow>
#include <memory>

class QPainter;
class QWidget;

/// The window behind the game that covers the desktop. It never takes the focus. A click on it
/// raises the windows of the game and restores them if they are minimised.
class frmHintergrund : public QWindow {
  Q_OBJECT

 public:
  /// Covers the screen of the main window.
  explicit frmHintergrund(QWidget *hauptfenster);

  /// Draws the picture of the whole window.
  void Zeichne(QPainter &maler) const;

 protected:
  void exposeEvent(QExposeEvent *ereignis) override;
  void mousePressEvent(QMouseEvent *ereignis) override;

 private:
  void Male();

  QWidget *hauptfenster_;
  /// What is painted, 8 MB on a wide screen. Kept for a moment only: a window that is dragged over
  /// this one asks for it at each step.
  std::unique_ptr<QBackingStore> pixel_;
  int aufschub_ = 100;  ///< Milliseconds until the next painting: the main window comes first.
};
