#include "dialogs/bild.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "dialogs/bilder.h"

void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild) {
  if (bild.isNull())  // A message shows before the main window does.
    LadeGemerkteBilder();
  // Undoing the painter's scale leaves a mere translation, for which Qt copies pixel by pixel.
  const double geraetepixel = bild.devicePixelRatio();
  const QTransform vorher = maler.worldTransform();
  maler.translate(ort);
  maler.scale(1 / geraetepixel, 1 / geraetepixel);
  QRectF ziel(QPointF(0, 0), QSizeF(bild.size()));
  maler.drawPixmap(ziel, bild, ziel);
  maler.setWorldTransform(vorher);
}

Bild::Bild(QWidget *eltern) : QWidget(eltern) {}

Bild::Bild(QWidget *eltern, const Bildzeile &zeile) : QWidget(eltern) {
  setObjectName(zeile.name);
  setGeometry(Rechteck(zeile.lage));
  setToolTip(zeile.tooltip);
  SetzeAnsage(zeile.ansage, zeile.rolle);  // Before anything is announced: the role is asked once.
  if (*zeile.bild != '\0')
    SetzeBild(&Bilddatei(zeile.bild));
}

void Bild::SetzeBild(const QPixmap *bild) {
  if (bild_ == bild)
    return;
  bild_ = bild;
  update();
  if (QAccessible::isActive()) {
    QAccessibleEvent ereignis(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&ereignis);
  }
}

void Bild::SetzeKlick(std::function<void()> klick) {
  klick_ = std::move(klick);
  setCursor(Handzeiger());
}

void Bild::SetzeDruck(std::function<void(Qt::MouseButton)> druck) {
  druck_ = std::move(druck);
}

void Bild::SetzeLoslassen(std::function<void(Qt::MouseButton)> loslassen) {
  loslassen_ = std::move(loslassen);
}

void Bild::SetzeAnsage(const QString &ansage, QAccessible::Role rolle) {
  rolle_ = rolle;
  setAccessibleName(ansage);
}

void Bild::Bediene(Qt::MouseButton taste) {
  if (druck_)
    druck_(taste);
  if (loslassen_)
    loslassen_(taste);
  if (klick_ && taste == Qt::LeftButton)
    klick_();
}

void Bild::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  QPainter maler(this);
  if (bild_)
    ZeichneGenau(maler, {0, 0}, *bild_);
  if (hasFocus()) {  // Only the keyboard of assistive technology brings the focus here.
    maler.setPen(QPen(QColor(kBlau), 3));
    maler.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
  }
}

void Bild::mousePressEvent(QMouseEvent *ereignis) {
  ereignis->setAccepted(IstBedienbar());
  if (druck_)
    druck_(ereignis->button());
}

void Bild::mouseReleaseEvent(QMouseEvent *ereignis) {
  ereignis->setAccepted(IstBedienbar());
  if (loslassen_)
    loslassen_(ereignis->button());
  if (klick_ && ereignis->button() == Qt::LeftButton && rect().contains(ereignis->pos()))
    klick_();
}
