#include "controls/zifferreihe.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "controls/bild.h"
#include "controls/bilder.h"

namespace {

constexpr int kRand = 60;  // Twips around the digits, for the focus ring.

}  // namespace

Zifferreihe::Zifferreihe(QWidget *eltern, const Twips &ecke, int stellen, const QString &ansage,
                         const QString &rot)
    : QWidget(eltern), ansage_(ansage), rot_(rot), ziffern_(static_cast<std::size_t>(stellen)) {
  const int rechts = Pixel(ecke.left + stellen * kZifferngroesse.width);
  const QSize ziffer = Rechteck(kZifferngroesse).size();
  const QRect ziffern(rechts - stellen * ziffer.width(), Pixel(ecke.top), stellen * ziffer.width(),
                      ziffer.height());
  setGeometry(ziffern.adjusted(-Pixel(kRand), -Pixel(kRand), Pixel(kRand), Pixel(kRand)));
  AktualisiereName();
}

void Zifferreihe::SetzeZiffer(int stelle, Ziffernfarbe farbe, int ziffer) {
  Ziffer &platz = Element(ziffern_, stelle);
  const Ziffer neu{farbe, ziffer};
  if (platz == neu)
    return;
  platz = neu;
  update();
  AktualisiereName();
}

void Zifferreihe::ZeigeText(const QString &ziffern) {
  for (int stelle = 0; stelle < static_cast<int>(ziffern_.size()); ++stelle) {
    const auto ort = ziffern.size() - 1 - stelle;
    const int ziffer = ort >= 0 ? ziffern.at(ort).digitValue() : -1;
    SetzeZiffer(stelle, Ziffernfarbe::Gruen, ziffer >= 0 ? ziffer : kLeereZiffer);
  }
}

QString Zifferreihe::Gezeigt() const {
  QString text;
  for (const Ziffer &ziffer : ziffern_) {
    if (ziffer.wert != kLeereZiffer)
      text.prepend(QString::number(ziffer.wert));
  }
  return text;
}

void Zifferreihe::AktualisiereName() {
  const QString gezeigt = Gezeigt();
  const bool istRot = ziffern_.front().farbe == Ziffernfarbe::Rot;
  setAccessibleName(ansage_ + ": " + (gezeigt.isEmpty() ? "leer" : (istRot ? rot_ : "") + gezeigt));
}

void Zifferreihe::paintEvent(QPaintEvent *) {
  QPainter maler(this);
  int links = width() - Pixel(kRand);
  for (const auto &[farbe, wert] : ziffern_) {
    links -= Pixel(kZifferngroesse.width);
    const QString bild =
        farbe == Ziffernfarbe::Rot ? frmDigital::imgRot(wert) : frmDigital::imgDiggi(wert);
    ZeichneGenau(maler, QPointF(links, Pixel(kRand)), Katalogbild(bild, devicePixelRatioF()));
  }
  if (hasFocus())
    ZeichneRing(maler, Rundform(*this), 2.5);
}
