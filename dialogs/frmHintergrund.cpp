#include "dialogs/frmHintergrund.h"

#include <QDialog>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "controls/bilder.h"
#include "platform/fenstersystem.h"

frmHintergrund::frmHintergrund(QWidget *hauptfenster) : hauptfenster_(hauptfenster) {
  setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
  setScreen(hauptfenster->screen());
  setGeometry(screen()->geometry());
  setMinimumSize(size());
  setMaximumSize(size());
  create();
  OhneTaskleiste(this);
}

void frmHintergrund::Zeichne(QPainter &maler) const {
  const QImage Image1 = Streckbild("schreibtisch", size() * devicePixelRatio());
  maler.setRenderHint(QPainter::SmoothPixmapTransform);
  maler.drawImage(QRect({}, size()), Image1);
}

void frmHintergrund::exposeEvent(QExposeEvent *) {
  QTimer::singleShot(std::exchange(aufschub_, 0), this, &frmHintergrund::Male);
}

void frmHintergrund::Male() {
  if (!isExposed())
    return;
  const QRect alles({}, size());
  if (!pixel_) {
    pixel_ = std::make_unique<QBackingStore>(this);
    pixel_->resize(size());
    pixel_->beginPaint(alles);
    QPainter maler(pixel_->paintDevice());
    Zeichne(maler);
    maler.end();
    pixel_->endPaint();
    constexpr int kFrist = 300;  // milliseconds
    QTimer::singleShot(kFrist, this, [this] { pixel_.reset(); });
  }
  pixel_->flush(alles);
}

void frmHintergrund::mousePressEvent(QMouseEvent *) {
  hauptfenster_->setWindowState(hauptfenster_->windowState() & ~Qt::WindowMinimized);
  hauptfenster_->raise();
  for (QDialog *fenster : hauptfenster_->findChildren<QDialog *>())
    fenster->raise();
  // xfwm4 gives the focus to what was raised, a moment later; i3 raises only what is activated. The
  // main window passes the focus on to a modal one.
  constexpr int kPause = 100;  // milliseconds
  QTimer::singleShot(kPause, hauptfenster_, &QWidget::activateWindow);
}
