#include "dialogs/bilder.h"

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <array>
#include <cmath>
#include <future>
#include <map>
#include <memory>

#include "core/ansicht.h"
#include "dialogs/masse.h"

namespace {

constexpr int kHoechsteAufloesung = 3;
constexpr QPoint kZeigerspitze(5, 0);

struct Katalog {
  std::map<QString, std::unique_ptr<QPixmap>> bilder;
  std::map<QString, std::future<QImage>> vorgelesen;  ///< Each is used once.
  bool merktNur = true;
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

/// The picture in device pixels: taken as rendered, or scaled down once from the next larger
/// rendering if the enlargement is a fraction. Uses nothing of the catalogue: a thread may run it.
QImage Lies(const QString &name, double vergroesserung) {
  int aufloesung = std::clamp(static_cast<int>(std::ceil(vergroesserung)), 1, kHoechsteAufloesung);
  while (aufloesung > 1 && !QFile::exists(Ressource(name, aufloesung)))
    --aufloesung;
  QImage bild(Ressource(name, aufloesung));
  const QSize ziel = (QSizeF(bild.size()) * vergroesserung / aufloesung).toSize();
  if (ziel != bild.size())
    bild = bild.scaled(ziel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  return bild;
}

QPixmap Lade(const QString &name) {
  Katalog &katalog = DerKatalog();
  ++katalog.geladen;
  auto vorgelesen = katalog.vorgelesen.extract(name);
  QPixmap fertig = QPixmap::fromImage(vorgelesen ? vorgelesen.mapped().get()
                                                 : Lies(name, katalog.geraetepixel * Massstab()));
  fertig.setDevicePixelRatio(katalog.geraetepixel);
  return fertig;
}

void LadeAlle() {
  DerKatalog().merktNur = false;
  for (auto &[name, bild] : DerKatalog().bilder)
    *bild = Lade(name);
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
    eintrag = std::make_unique<QPixmap>(katalog.merktNur ? QPixmap() : Lade(name));
  return *eintrag;
}

void BeginneVorarbeit(const QString &bild) {
  Katalog &katalog = DerKatalog();
  const double vergroesserung = katalog.geraetepixel * Massstab();
  katalog.vorgelesen[bild] = std::async([bild, vergroesserung] {
    QFontDatabase::families();
    return Lies(bild, vergroesserung);
  });
}

void LadeGemerkteBilder() {
  if (DerKatalog().merktNur)
    LadeAlle();
}

void StelleBilderAuf(double geraetepixel) {
  Katalog &katalog = DerKatalog();
  if (qFuzzyCompare(katalog.geraetepixel, geraetepixel))
    return;
  katalog.geraetepixel = geraetepixel;
  katalog.vorgelesen.clear();
  LadeAlle();
}

int GeladeneBilder() {
  return DerKatalog().geladen;
}

QCursor Handzeiger() {
  static const QCursor zeiger(Lade("handzeiger"), kZeigerspitze.x(), kZeigerspitze.y());
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
