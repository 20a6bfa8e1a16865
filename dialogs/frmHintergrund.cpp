#include "dialogs/frmHintergrund.h"

#include <QDialog>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "controls/bilder.h"
#include "platform/fenstersystem.h"

frmHintergrund::frmHintergrund(QWidget *hauptfenster)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      hauptfenster_(hauptfenster) {
  setGeometry(hauptfenster->screen()->geometry());
  setFixedSize(size());
  setAttribute(Qt::WA_OpaquePaintEvent);
  create();
  OhneTaskleiste(windowHandle());
  // Decoding and painting the picture takes 20 ms; do it after the first paint of the main window.
  constexpr int kAufschub = 100;  // milliseconds
  setUpdatesEnabled(false);
  QTimer::singleShot(kAufschub, this, [this] { setUpdatesEnabled(true); });
}

void frmHintergrund::paintEvent(QPaintEvent *) {
  // Not kept: the window system holds what was painted, and the picture takes several megabytes.
  const QPixmap Image1 = Streckbild("schreibtisch", size() * devicePixelRatioF());
  QPainter maler(this);
  maler.setRenderHint(QPainter::SmoothPixmapTransform);
  maler.drawPixmap(rect(), Image1);
}

void frmHintergrund::mousePressEvent(QMouseEvent *) {
  const bool minimiert = hauptfenster_->isMinimized();
  hauptfenster_->setWindowState(hauptfenster_->windowState() & ~Qt::WindowMinimized);
  QList<QWidget *> fenster{hauptfenster_};
  for (QDialog *anderes : hauptfenster_->findChildren<QDialog *>()) {
    if (!anderes->isHidden())
      fenster.append(anderes);
  }
  for (QWidget *eines : fenster) {
    eines->raise();
    if (!minimiert)             // Else it would take the focus when it is shown again.
      eines->activateWindow();  // Some window managers raise a window only when it is activated.
  }
  (fenster.last()->isModal() ? fenster.last() : hauptfenster_)->activateWindow();
}
