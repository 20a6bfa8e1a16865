#include "dialogs/bilder.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <array>
#include <cmath>
#include <map>
#include <memory>

#include "core/ansicht.h"
#include "dialogs/masse.h"

namespace {

constexpr int kHoechsteAufloesung = 3;
constexpr QPoint kZeigerspitze(5, 0);

struct Katalog {
  std::map<QString, std::unique_ptr<QPixmap>> bilder;
  double geraetepixel = qGuiApp->devicePixelRatio();
  int geladen = 0;
};

Katalog &DerKatalog() {
  static Katalog katalog;
  return katalog;
}

QString Ressource(const QString &name, int aufloesung) {
  const QString stamm =
      ":/bilder/" + name + (aufloesung > 1 ? QString("@%1x").arg(aufloesung) : "");
  return QFile::exists(stamm + ".png") ? stamm + ".png" : stamm + ".jpg";
}

/// The picture in exact device pixels: taken as rendered, or scaled down once from the next larger
/// rendering if the ratio is a fraction.
QPixmap Lade(const QString &name, double geraetepixel) {
  const double vergroesserung = geraetepixel * Massstab();
  int aufloesung = std::clamp(static_cast<int>(std::ceil(vergroesserung)), 1, kHoechsteAufloesung);
  while (aufloesung > 1 && !QFile::exists(Ressource(name, aufloesung)))
    --aufloesung;
  QImage bild(Ressource(name, aufloesung));
  ++DerKatalog().geladen;
  const QSize ziel = (QSizeF(bild.size()) * vergroesserung / aufloesung).toSize();
  if (ziel != bild.size())
    bild = bild.scaled(ziel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPixmap fertig = QPixmap::fromImage(std::move(bild));
  fertig.setDevicePixelRatio(geraetepixel);
  return fertig;
}

template <std::size_t N>
using Bildreihe = std::array<const QPixmap *, N>;

/// The pictures of a family: the stem of the name, followed by the index.
template <std::size_t N>
Bildreihe<N> LadeReihe(const QString &stamm) {
  Bildreihe<N> reihe{};
  for (std::size_t i = 0; i < N; ++i)
    reihe.at(i) = &Bilddatei(stamm + QString::number(i));
  return reihe;
}

template <std::size_t N>
const QPixmap *Aus(const Bildreihe<N> &reihe, int index) {
  return reihe.at(static_cast<std::size_t>(index));
}

}  // namespace

const QPixmap &Bilddatei(const QString &name) {
  Katalog &katalog = DerKatalog();
  std::unique_ptr<QPixmap> &eintrag = katalog.bilder[name];
  if (!eintrag)
    eintrag = std::make_unique<QPixmap>(Lade(name, katalog.geraetepixel));
  return *eintrag;
}

void StelleBilderAuf(double geraetepixel) {
  Katalog &katalog = DerKatalog();
  if (qFuzzyCompare(katalog.geraetepixel, geraetepixel))
    return;
  katalog.geraetepixel = geraetepixel;
  for (auto &[name, bild] : katalog.bilder)
    *bild = Lade(name, geraetepixel);
}

int GeladeneBilder() {
  return DerKatalog().geladen;
}

QCursor Handzeiger() {
  static const QCursor zeiger(Bilddatei("handzeiger"), kZeigerspitze.x(), kZeigerspitze.y());
  return zeiger;
}

namespace frmBilder {

const QPixmap &imgPlatte(int index) {
  static const auto reihe = LadeReihe<3>("platte");
  return *Aus(reihe, index);
}

const QPixmap &imgSarant() {
  static const QPixmap &bild = Bilddatei("sarant");
  return bild;
}

const QPixmap *imgPfeil(int phase) {
  static const auto reihe = LadeReihe<2>("pfeil");
  return phase == kKeinPfeil ? nullptr : Aus(reihe, phase);
}

const QPixmap *imgPfeilhoch(int phase) {
  static const auto reihe = LadeReihe<2>("pfeilhoch");
  return phase == kKeinPfeil ? nullptr : Aus(reihe, phase);
}

}  // namespace frmBilder

const QPixmap &frmZahlen::imgZahl(int zahl) {
  static const auto reihe = LadeReihe<11>("zahl");
  return *Aus(reihe, zahl);
}

namespace frmDigital {

const QPixmap &imgDiggi(int ziffer) {
  static const auto reihe = LadeReihe<11>("gruen");
  return *Aus(reihe, ziffer);
}

const QPixmap &imgRot(int ziffer) {
  static const auto reihe = LadeReihe<11>("rot");
  return *Aus(reihe, ziffer);
}

}  // namespace frmDigital
