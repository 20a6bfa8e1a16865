#include "dialogs/zifferreihe.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>

#include "core/ansicht.h"
#include "dialogs/bild.h"
#include "dialogs/bilder.h"

namespace {

constexpr Twips kZiffer{0, 0, 210, 420};

std::size_t Platz(int stelle) {
  return static_cast<std::size_t>(stelle);
}

}  // namespace

Zifferreihe::Zifferreihe(QWidget *eltern, const Twips &ecke, int stellen, const QString &ansage)
    : QWidget(eltern),
      ansage_(ansage),
      ziffern_(Platz(stellen), &frmDigital::imgDiggi(kLeereZiffer)) {
  setGeometry(Rechteck({ecke.left, ecke.top, stellen * kZiffer.width, kZiffer.height}));
}

void Zifferreihe::SetzeZiffer(int stelle, const QPixmap *bild) {
  if (ziffern_.at(Platz(stelle)) == bild)
    return;
  ziffern_.at(Platz(stelle)) = bild;
  update();
  if (QAccessible::isActive()) {
    QAccessibleEvent ereignis(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&ereignis);
  }
}

const QPixmap *Zifferreihe::Ziffer(int stelle) const {
  return ziffern_.at(Platz(stelle));
}

void Zifferreihe::ZeigeText(const QString &ziffern) {
  for (int stelle = 0; stelle < static_cast<int>(ziffern_.size()); ++stelle) {
    const auto ort = ziffern.size() - 1 - stelle;
    const int ziffer = ort >= 0 ? ziffern.at(ort).digitValue() : -1;
    SetzeZiffer(stelle, &frmDigital::imgDiggi(ziffer >= 0 ? ziffer : kLeereZiffer));
  }
}

QString Zifferreihe::Gezeigt() const {
  QString text;
  for (const QPixmap *bild : ziffern_) {
    for (int ziffer = 0; ziffer < kLeereZiffer; ++ziffer) {
      if (bild == &frmDigital::imgDiggi(ziffer) || bild == &frmDigital::imgRot(ziffer))
        text.prepend(QString::number(ziffer));
    }
  }
  return text;
}

QString Zifferreihe::Ansage() const {
  const QString gezeigt = Gezeigt();
  return ansage_ + ": " + (gezeigt.isEmpty() ? "leer" : gezeigt);
}

void Zifferreihe::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  QPainter maler(this);
  int links = width();
  for (const QPixmap *bild : ziffern_) {
    links -= Pixel(kZiffer.width);
    ZeichneGenau(maler, QPointF(links, 0), *bild);
  }
}
