#include "controls/bild.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "controls/beschriftung.h"
#include "controls/bilder.h"
#include "controls/wiederholung.h"

void ZeichneGenau(QPainter &maler, const QPointF &ort, const QPixmap &bild) {
  // Without the painter's scale Qt copies the pixels one to one.
  const double geraetepixel = bild.devicePixelRatio();
  const QTransform vorher = maler.worldTransform();
  maler.translate(ort);
  maler.scale(1 / geraetepixel, 1 / geraetepixel);
  const QRectF ziel(QPointF(0, 0), QSizeF(bild.size()));
  maler.drawPixmap(ziel, bild, ziel);
  maler.setWorldTransform(vorher);
}

void ZeichneRing(QPainter &maler, const QPixmap &form, double breite) {
  for (const auto &[farbe, dicke] : {std::pair{Qt::white, breite + 1}, {Qt::blue, breite}}) {
    QPixmap ring(form.size());
    ring.setDevicePixelRatio(form.devicePixelRatio());
    ring.fill(Qt::transparent);
    QPainter stift(&ring);
    const QRectF ganz(QPointF(0, 0), form.deviceIndependentSize());
    stift.drawPixmap(ganz, form, QRectF(form.rect()));
    stift.setCompositionMode(QPainter::CompositionMode_SourceIn);
    stift.fillRect(ganz, farbe);
    // Cutting the same shape, made smaller, out of the shape leaves a ring.
    stift.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    stift.setRenderHint(QPainter::SmoothPixmapTransform);
    stift.drawPixmap(ganz.adjusted(dicke, dicke, -dicke, -dicke), form, QRectF(form.rect()));
    stift.end();
    ZeichneGenau(maler, {0, 0}, ring);
  }
}

QPixmap Rundform(const QWidget &element) {
  QPixmap form(element.size() * element.devicePixelRatioF());
  form.setDevicePixelRatio(element.devicePixelRatioF());
  form.fill(Qt::transparent);
  QPainter maler(&form);
  maler.setRenderHint(QPainter::Antialiasing);
  maler.setBrush(Qt::gray);
  maler.drawRoundedRect(QRectF(element.rect()), 10, 10);
  return form;
}

Bild::Bild(QWidget *eltern, const Bildeintrag &eintrag)
    : QWidget(eltern),
      bildname_(eintrag.bild),
      gedrueckterName_(eintrag.gedrueckt),
      rolle_(eintrag.rolle) {
  setObjectName(eintrag.name);
  setGeometry(Rechteck(eintrag.lage));
  setToolTip(eintrag.tooltip);
  setAccessibleName(eintrag.ansage);
}

void Bild::SetzeBild(const QString &name) {
  if (bildname_ == name)
    return;
  bildname_ = name;
  update();
}

QString Bild::Bildname() const {
  return gedrueckt_ && !gedrueckterName_.isEmpty() ? gedrueckterName_ : bildname_;
}

void Bild::LadeVor() const {
  for (const QString &name : {bildname_, gedrueckterName_})
    Katalogbild(name, devicePixelRatioF());
}

void Bild::SetzeKlick(std::function<void()> klick) {
  klick_ = std::move(klick);
  setCursor(Handzeiger());
}

void Bild::Ersetze(Bild *anderes) {
  show();
  if (anderes->hasFocus())
    setFocus();
  anderes->hide();
}

void Bild::Klicke(Qt::MouseButton taste) {
  const QWidget *modal = QApplication::activeModalWidget();
  if (!isVisible() || !isEnabled() || (modal && modal != window()) ||
      QApplication::activePopupWidget())
    return;
  Druecke(taste);
  LasseLos(taste, true);
}

void Bild::Druecke(Qt::MouseButton taste) {
  SetzeGedrueckt(true);
  if (druck_)
    druck_(taste);
}

void Bild::LasseLos(Qt::MouseButton taste, bool darueber) {
  const bool gedrueckt = gedrueckt_;
  SetzeGedrueckt(false);
  if (klick_ && gedrueckt && taste == Qt::LeftButton && darueber)
    klick_();
}

void Bild::SetzeGedrueckt(bool gedrueckt) {
  if (gedrueckt_ != gedrueckt) {
    gedrueckt_ = gedrueckt;
    update();
  }
}

void Bild::paintEvent(QPaintEvent *) {
  QPainter maler(this);
  const QPixmap bild = Katalogbild(Bildname(), devicePixelRatioF());
  // Without a picture, the button is painted into the window's background.
  const QPixmap form = bild.isNull() && klick_ ? Rundform(*this) : bild;
  const bool gesenkt = gedrueckt_ && klick_ && gedrueckterName_.isEmpty();
  ZeichneGenau(maler, {0, gesenkt ? 1.0 : 0.0}, bild);
  if (hasFocus())
    ZeichneRing(maler, form, 2.5);
  if (gesenkt) {
    maler.setOpacity(0.4);
    maler.setCompositionMode(QPainter::CompositionMode_Multiply);
    ZeichneGenau(maler, {0, 1}, form);
  }
}

void Bild::mousePressEvent(QMouseEvent *ereignis) {
  ereignis->setAccepted(IstBedienbar());
  if (druck_ || ereignis->type() != QEvent::MouseButtonDblClick)
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
  if (!IstWiederholung(*ereignis))  // The focus may have moved here while the key was down.
    Klicke(markieren ? Qt::RightButton : Qt::LeftButton);
}

bool Bild::event(QEvent *ereignis) {
  // If a window or a menu opens during the press, the release is not delivered to this control.
  const auto verloren = {QEvent::WindowBlocked, QEvent::WindowDeactivate, QEvent::Leave};
  if (std::ranges::find(verloren, ereignis->type()) != verloren.end())
    SetzeGedrueckt(false);
  return QWidget::event(ereignis);
}
