#include "dialogs/frmHintergrund.h"

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
  // Decoding the picture takes 11 ms; do it after the first paint of the main window.
  constexpr int kAufschub = 100;  // milliseconds
  QTimer::singleShot(kAufschub, this, [this] {
    Image1 = Streckbild("schreibtisch", size() * devicePixelRatioF());
    update();
  });
}

void frmHintergrund::paintEvent(QPaintEvent *) {
  constexpr QRgb kGrundfarbe = 0xff666f7b;  // The mean colour of the picture.
  QPainter maler(this);
  maler.setRenderHint(QPainter::SmoothPixmapTransform);
  if (Image1.isNull())
    maler.fillRect(rect(), QColor(kGrundfarbe));
  else
    maler.drawPixmap(rect(), Image1);
}

void frmHintergrund::mousePressEvent(QMouseEvent *) {
  hauptfenster_->setWindowState(hauptfenster_->windowState() & ~Qt::WindowMinimized);
  QList<QWidget *> fenster{hauptfenster_};
  for (QWidget *anderes : hauptfenster_->findChildren<QWidget *>()) {
    if (anderes->windowType() == Qt::Dialog && !anderes->isHidden())
      fenster.append(anderes);
  }
  for (QWidget *eines : fenster) {
    eines->raise();
    eines->activateWindow();  // Some window managers raise a window only when it is activated.
  }
}
