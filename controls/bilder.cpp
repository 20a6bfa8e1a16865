#include "controls/bilder.h"

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <array>
#include <cmath>
#include <map>
#include <utility>

#include "controls/masse.h"
#include "core/ansicht.h"

namespace {

constexpr int kHoechsteAufloesung = 3;
constexpr double kStaerksteStreckung = 2;
constexpr QPoint kZeigerspitze(5, 0);

struct Katalog {
  std::map<std::pair<QString, double>, QPixmap> bilder;  ///< By name and device pixel ratio.
  int geladen = 0;
};
Katalog katalog;

QString Ressource(const QString &name, int aufloesung) {
  const QString stamm =
      ":/bilder/" + name + (aufloesung > 1 ? QString("@%1x").arg(aufloesung) : "");
  return QFile::exists(stamm + ".png") ? stamm + ".png" : stamm + ".jpg";
}

/// The lowest resolution that is at least the given one, or else the highest that exists.
int Aufloesung(const QString &name, double mindestens) {
  int aufloesung = std::clamp(static_cast<int>(std::ceil(mindestens)), 1, kHoechsteAufloesung);
  while (aufloesung > 1 && !QFile::exists(Ressource(name, aufloesung)))
    --aufloesung;
  return aufloesung;
}

/// Decodes the rendering of the next whole scale factor and scales it down if necessary.
QPixmap Lade(const QString &name, double geraetepixel) {
  ++katalog.geladen;
  const double vergroesserung = geraetepixel * Massstab();
  const int aufloesung = Aufloesung(name, vergroesserung);
  QImage bild(Ressource(name, aufloesung));
  const QSize ziel = (QSizeF(bild.size()) * vergroesserung / aufloesung).toSize();
  if (ziel != bild.size())
    bild = bild.scaled(ziel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPixmap fertig = QPixmap::fromImage(bild);
  fertig.setDevicePixelRatio(geraetepixel);
  return fertig;
}

QString Reihenbild(const char *stamm, int index) { return stamm + QString::number(index); }

}  // namespace

QPixmap Katalogbild(const QString &name, double geraetepixel) {
  QPixmap &bild = katalog.bilder[{name, geraetepixel}];
  if (bild.isNull() && !name.isEmpty())
    bild = Lade(name, geraetepixel);
  return bild;
}

void LadeSpielbilder(double geraetepixel) {
  constexpr std::pair<const char *, int> kReihen[] = {
      {"pfeil", 2}, {"pfeilhoch", 2}, {"zahl", 11}, {"gruen", 11}, {"rot", 11}, {"funke", 2}};
  for (const auto &[stamm, anzahl] : kReihen)
    for (int i = 0; i < anzahl; ++i)
      Katalogbild(Reihenbild(stamm, i), geraetepixel);
  for (const Kachel kachel : {Kachel::Verdeckt, Kachel::Markiert, Kachel::Fehler, Kachel::Sarant})
    Katalogbild(Kachelbild(kachel), geraetepixel);
}

int GeladeneBilder() { return katalog.geladen; }

QImage Streckbild(const QString &name, const QSizeF &ziel) {
  const QSize bild = QImageReader(Ressource(name, 1)).size();
  const double faktor = std::max(ziel.width() / bild.width(), ziel.height() / bild.height());
  return QImage(Ressource(name, Aufloesung(name, faktor / kStaerksteStreckung)));
}

QCursor Handzeiger() {
  return QCursor(Katalogbild("handzeiger", qGuiApp->devicePixelRatio()), kZeigerspitze.x(),
                 kZeigerspitze.y());
}

QString Kachelbild(Kachel kachel) {
  constexpr std::array kNamen{"platte1", "platte2", "platte0", "sarant"};  // In order of `Kachel`.
  return Element(kNamen, kachel);
}
QString frmBilder::imgPfeil(int phase) {
  return phase == kKeinPfeil ? QString() : Reihenbild("pfeil", phase);
}
QString frmBilder::imgPfeilhoch(int phase) {
  return phase == kKeinPfeil ? QString() : Reihenbild("pfeilhoch", phase);
}
QString frmZahlen::imgZahl(int zahl) { return Reihenbild("zahl", zahl); }
QString frmDigital::imgDiggi(int ziffer) { return Reihenbild("gruen", ziffer); }
QString frmDigital::imgRot(int ziffer) { return Reihenbild("rot", ziffer); }
