#include "shell/spielbrett.h"

#include <QStringList>

#include "controls/bilder.h"

namespace {

// The picture of the main window shows the board as well.
const Bildeintrag kPicture1{"Picture1",  {3330, 210, 9645, 9705}, "", "",
                            "Spielfeld", QAccessible::Grouping};

// The pattern of the cells and of the clue places; see Zellenlage and Platzlage.
constexpr Twips kZelle{2370, 2370, 705, 705};
constexpr Twips kSpaltenplatz{2520, 1800, 435, 465};
constexpr Twips kZeilenplatz{1800, 2460, 435, 465};
constexpr int kPlatzschrittHoch = 420;
constexpr int kPlatzschrittLinks = 350;

int ZeileVon(int zelle) {
  return (zelle - 1) / kLinie + 1;
}
int SpalteVon(int zelle) {
  return (zelle - 1) % kLinie + 1;
}

Twips Zellenlage(int zelle) {
  return {kZelle.left + kZelle.width * (SpalteVon(zelle) - 1),
          kZelle.top + kZelle.height * (ZeileVon(zelle) - 1), kZelle.width, kZelle.height};
}

/// A clue place as the player counts it.
struct Zahlfeld {
  bool spalte;
  int linie;  ///< From 1.
  int k;      ///< From 1, the place next to the board.
};

Zahlfeld ZahlfeldVon(int platz) {
  const int nummer = (platz - 1) % (kZahlfelder / 2);
  return {platz <= kZahlfelder / 2, nummer / kPlaetzeJeLinie + 1, nummer % kPlaetzeJeLinie + 1};
}

/// The places of a line grow away from the playfield.
Twips Platzlage(const Zahlfeld &feld) {
  Twips lage = feld.spalte ? kSpaltenplatz : kZeilenplatz;
  if (feld.spalte) {
    lage.left += kZelle.width * (feld.linie - 1);
    lage.top -= kPlatzschrittHoch * (feld.k - 1);
  } else {
    lage.left -= kPlatzschrittLinks * (feld.k - 1);
    lage.top += kZelle.height * (feld.linie - 1);
  }
  return lage;
}

const char *Linienart(bool spalte) {
  return spalte ? "Spalte" : "Zeile";
}

QByteArray Name(const char *stamm, int nummer) {
  return stamm + QByteArray::number(nummer);
}

std::size_t Index(int n) {
  return static_cast<std::size_t>(n);
}

}  // namespace

/// A cell. The tile that it shows is the one record of what has happened to it.
class Zellenbild : public Bild {
 public:
  Zellenbild(QWidget *eltern, int zelle)
      : Bild(eltern, {Name("imgSar", zelle), Zellenlage(zelle), "", "", ""}), zelle_(zelle) {}

  Kachel LiesKachel() const { return kachel_; }
  void SetzeKachel(Kachel kachel) {
    if (kachel_ == kachel)
      return;
    kachel_ = kachel;
    Aktualisiere();
  }

  QString Bildname() const override {
    switch (kachel_) {
      case Kachel::Verdeckt:
        return frmBilder::imgPlatte(1);
      case Kachel::Markiert:
        return frmBilder::imgPlatte(2);
      case Kachel::Fehler:
        return frmBilder::imgPlatte(0);
      case Kachel::Sarant:
        break;
    }
    return frmBilder::imgSarant();
  }

  QString Ansage() const override {
    constexpr std::array kWoerter{"verdeckt", "markiert", "Fehler", "Sarant"};
    return QString("Zeile %1, Spalte %2: %3")
        .arg(ZeileVon(zelle_))
        .arg(SpalteVon(zelle_))
        .arg(kWoerter.at(static_cast<std::size_t>(kachel_)));
  }

 private:
  int zelle_;
  Kachel kachel_ = Kachel::Verdeckt;
};

/// A clue place.
class Zahlenbild : public Bild {
 public:
  Zahlenbild(QWidget *eltern, int platz)
      : Bild(eltern, {Name("imgDiggi", platz), Platzlage(ZahlfeldVon(platz)), "", "", "",
                      QAccessible::StaticText}),
        feld_(ZahlfeldVon(platz)) {}

  int LiesZahl() const { return zahl_; }
  void SetzeZahl(int zahl) {
    zahl_ = zahl;
    Aktualisiere();
  }

  QString Bildname() const override { return frmZahlen::imgZahl(zahl_); }

  QString Ansage() const override {
    return QString("%1 %2, Zahl %3: %4")
        .arg(Linienart(feld_.spalte))
        .arg(feld_.linie)
        .arg(feld_.k)
        .arg(zahl_);
  }

 private:
  Zahlfeld feld_;
  int zahl_ = 0;
};

Spielbrett::Spielbrett(QWidget *eltern, const std::function<void(int, Qt::MouseButton)> &druck)
    : Bild(eltern, kPicture1) {
  for (int n = 1; n <= kZellen; ++n) {
    imgSar_.at(Index(n)) = new Zellenbild(this, n);
    imgSar_.at(Index(n))->SetzeDruck([druck, n](Qt::MouseButton taste) { druck(n, taste); });
  }
  for (int n = 1; n <= kZahlfelder; ++n)
    imgDiggi_.at(Index(n)) = new Zahlenbild(this, n);
}

Kachel Spielbrett::LiesKachel(int zelle) const {
  return imgSar_.at(Index(zelle))->LiesKachel();
}

void Spielbrett::SetzeKachel(int zelle, Kachel kachel) {
  imgSar_.at(Index(zelle))->SetzeKachel(kachel);
}

int Spielbrett::LiesZahl(int platz) const {
  return imgDiggi_.at(Index(platz))->LiesZahl();
}

void Spielbrett::SetzeZahl(int platz, int zahl) {
  imgDiggi_.at(Index(platz))->SetzeZahl(zahl);
}

void Spielbrett::ZeigeZahlfeld(int platz, bool sichtbar) {
  imgDiggi_.at(Index(platz))->setVisible(sichtbar);
}

std::vector<QWidget *> Spielbrett::Zellen() const {
  return {imgSar_.begin() + 1, imgSar_.end()};
}

QString Spielbrett::Linientext(bool spalte, int linie) const {
  QStringList zahlen;
  for (int platz = 1; platz <= kZahlfelder; ++platz) {
    const Zahlfeld feld = ZahlfeldVon(platz);
    if (feld.spalte == spalte && feld.linie == linie && !imgDiggi_.at(Index(platz))->isHidden())
      zahlen.prepend(QString::number(LiesZahl(platz)));
  }
  return QString("%1 %2: %3")
      .arg(Linienart(spalte))
      .arg(linie)
      .arg(zahlen.isEmpty() ? "leer" : zahlen.join(", "));
}
