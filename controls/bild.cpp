#include "controls/bild.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "controls/beschriftung.h"
#include "controls/bilder.h"

namespace {

quint64 losgelassen = 0;  ///< When the last release of a key came to a picture, in ms.

bool IstWiederholung(const QKeyEvent &taste) {
  // An X server tells each repeat as a release and a press of the same instant, and Qt recognises
  // them only if it has read both by then.
  return taste.isAutoRepeat() || (losgelassen != 0 && taste.timestamp() == losgelassen);
}

}  // namespace

void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild) {
  // Undoing the painter's scale leaves a mere translation, for which Qt copies pixel by pixel.
  const double geraetepixel = bild.devicePixelRatio();
  const QTransform vorher = maler.worldTransform();
  maler.translate(ort);
  maler.scale(1 / geraetepixel, 1 / geraetepixel);
  const QRectF ziel(QPointF(0, 0), QSizeF(bild.size()));
  maler.drawPixmap(ziel, bild, ziel);
  maler.setWorldTransform(vorher);
}

void MeldeNeuenNamen(QWidget *element) {
  if (QAccessible::isActive()) {
    QAccessibleEvent ereignis(element, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&ereignis);
  }
}

Bild::Bild(QWidget *eltern, const Bildeintrag &eintrag)
    : QWidget(eltern),
      bild_(eintrag.bild),
      gedruecktesBild_(eintrag.gedrueckt),
      rolle_(eintrag.rolle) {
  setObjectName(eintrag.name);
  setGeometry(Rechteck(eintrag.lage));
  setToolTip(eintrag.tooltip);
  setAccessibleName(eintrag.ansage);
}

void Bild::SetzeBild(const QString &name) {
  if (bild_ == name)
    return;
  bild_ = name;
  update();
}

QString Bild::Bildname() const {
  return gedrueckt_ ? gedruecktesBild_ : bild_;
}

void Bild::LadeVor() const {
  for (const QString &name : {bild_, gedruecktesBild_})
    Katalogbild(name, devicePixelRatioF());
}

void Bild::SetzeKlick(std::function<void()> klick) {
  klick_ = std::move(klick);
  setCursor(Handzeiger());
}

void Bild::SetzeDruck(std::function<void(Qt::MouseButton)> druck) {
  druck_ = std::move(druck);
}

void Bild::Bediene(Qt::MouseButton taste) {
  if (!IstErreichbar())
    return;
  Druecke(taste);
  LasseLos(taste, true);
}

bool Bild::IstErreichbar() const {
  const QWidget *modal = QApplication::activeModalWidget();
  return isVisible() && isEnabled() && (!modal || modal == window()) &&
         !QApplication::activePopupWidget();
}

void Bild::Druecke(Qt::MouseButton taste) {
  ZeigeGedrueckt(!gedruecktesBild_.isEmpty());
  if (druck_)
    druck_(taste);
}

void Bild::LasseLos(Qt::MouseButton taste, bool darueber) {
  ZeigeGedrueckt(false);
  if (klick_ && taste == Qt::LeftButton && darueber)
    klick_();
}

void Bild::ZeigeGedrueckt(bool gedrueckt) {
  if (gedrueckt_ != gedrueckt) {
    gedrueckt_ = gedrueckt;
    update();
  }
}

void Bild::Aktualisiere() {
  update();
  MeldeNeuenNamen(this);
}

void Bild::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  QPainter maler(this);
  ZeichneGenau(maler, {0, 0}, Katalogbild(Bildname(), devicePixelRatioF()));
  if (hasFocus()) {  // Only the keyboard of assistive technology brings the focus here.
    maler.setPen(QPen(QColor(kBlau), 3));
    maler.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
  }
}

void Bild::mousePressEvent(QMouseEvent *ereignis) {
  ereignis->setAccepted(IstBedienbar());
  Druecke(ereignis->button());
}

void Bild::mouseReleaseEvent(QMouseEvent *ereignis) {
  ereignis->setAccepted(IstBedienbar());
  LasseLos(ereignis->button(), rect().contains(ereignis->pos()));
}

void Bild::keyPressEvent(QKeyEvent *ereignis) {
  if (ereignis->key() != Qt::Key_Space) {
    ereignis->ignore();
    return;
  }
  const bool markieren = ereignis->modifiers().testFlag(Qt::ShiftModifier);
  if (!IstWiederholung(*ereignis))  // What has the focus now may have come under the key meanwhile.
    Bediene(markieren ? Qt::RightButton : Qt::LeftButton);
}

void Bild::keyReleaseEvent(QKeyEvent *ereignis) {
  losgelassen = ereignis->timestamp();
  ereignis->ignore();
}

bool Bild::event(QEvent *ereignis) {
  // A window or a menu that opened meanwhile takes the release, which then never comes here.
  const auto verloren = {QEvent::WindowBlocked, QEvent::WindowDeactivate, QEvent::Leave};
  if (std::ranges::find(verloren, ereignis->type()) != verloren.end())
    ZeigeGedrueckt(false);
  return QWidget::event(ereignis);
}
