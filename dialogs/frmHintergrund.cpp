#include "dialogs/frmHintergrund.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include "controls/bilder.h"
#include "platform/fenstersystem.h"

frmHintergrund::frmHintergrund(QWidget *hauptfenster)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), hauptfenster_(hauptfenster) {
  const QScreen *schirm = hauptfenster->screen();
  setGeometry(schirm->geometry());
  setFixedSize(size());
  setAttribute(Qt::WA_OpaquePaintEvent);
  winId();  // The window must exist before its entry in the task bar can be refused.
  OhneTaskleiste(windowHandle());
  // The game is not to wait for the picture behind it.
  setUpdatesEnabled(false);
  hauptfenster->installEventFilter(this);
}

bool frmHintergrund::eventFilter(QObject *hauptfenster, QEvent *ereignis) {
  if (ereignis->type() == QEvent::Paint) {
    hauptfenster->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] { setUpdatesEnabled(true); });
  }
  return false;
}

void frmHintergrund::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  if (Image1.isNull())
    Image1 = Streckbild("schreibtisch", size() * devicePixelRatioF());
  QPainter maler(this);
  maler.setRenderHint(QPainter::SmoothPixmapTransform);
  maler.drawPixmap(rect(), Image1);
}

bool frmHintergrund::event(QEvent *ereignis) {
  const bool klick = ereignis->type() == QEvent::MouseButtonPress;
  if (klick)  // Not on mere activation, which would undo the minimising of the game at once.
    hauptfenster_->setWindowState(hauptfenster_->windowState() & ~Qt::WindowMinimized);
  if (klick || ereignis->type() == QEvent::WindowActivate) {
    hauptfenster_->raise();
    hauptfenster_->activateWindow();
  }
  return QWidget::event(ereignis);
}
