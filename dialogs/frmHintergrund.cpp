#include "dialogs/frmHintergrund.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "dialogs/bild.h"
#include "dialogs/bilder.h"
#include "dialogs/ersterblick.h"
#include "platform/taskleiste.h"

frmHintergrund::frmHintergrund(QWidget *hauptfenster)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), hauptfenster_(hauptfenster) {
  const QScreen *schirm = hauptfenster->screen();
  setGeometry(schirm->geometry());
  setFixedSize(size());
  setAttribute(Qt::WA_OpaquePaintEvent);
  setUpdatesEnabled(false);
  // Filling a whole screen takes a while; the first look at the main window shall not wait for it.
  NachErstemBlick(hauptfenster, [this] { SpanneBild(); });
  winId();  // The window must exist before its entry in the task bar can be refused.
  OhneTaskleiste(windowHandle());
}

void frmHintergrund::SpanneBild() {
  const QPixmap &stein = Bilddatei("schreibtisch");
  Image1 = stein.scaled((QSizeF(size()) * stein.devicePixelRatio()).toSize(), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
  setUpdatesEnabled(true);
  repaint();  // Now, since the question for a sound device may take its time.
}

void frmHintergrund::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  QPainter maler(this);
  ZeichneGenau(maler, {0, 0}, Image1);
}

bool frmHintergrund::event(QEvent *ereignis) {
  if (ereignis->type() == QEvent::WindowActivate || ereignis->type() == QEvent::MouseButtonPress) {
    hauptfenster_->raise();
    hauptfenster_->activateWindow();
  }
  return QWidget::event(ereignis);
}
