#include "shell/spielbrett.h"

#include <QPainter>
#include <QStringList>

#include "controls/bilder.h"
#include "core/zahlen.h"
#include "core/zug.h"
#include "dialogs/zugang.h"
#include "palette.h"

namespace {

// Without a picture: the background of the main window shows the board.
const Bildeintrag kPicture1{"Picture1",  {3330, 210, 9645, 9705}, "", "",
                            "Spielfeld", QAccessible::Grouping};

// Positions of cell 1, of the lowest place of column 1, and of the rightmost place of row 1.
constexpr Twips kZelle{2370, 2370, 705, 705};
constexpr Twips kSpaltenplatz{2520, 1800, 435, 465};
constexpr Twips kZeilenplatz{1800, 2460, 435, 465};
constexpr Twips kZellenfeld{2370, 2370, 7050, 7050};
constexpr int kPlatzschrittHoch = 420;
constexpr int kPlatzschrittLinks = 350;

constexpr int kFunken = 9;

Twips Zellenlage(int zelle) {
  return {kZelle.left + kZelle.width * (SpalteVon(zelle) - 1),
          kZelle.top + kZelle.height * (ZeileVon(zelle) - 1), kZelle.width, kZelle.height};
}

/// Place 1 of a line is next to the cells, the others are further outside.
Twips Platzlage(bool spalte, int linie, int k) {
  Twips lage = spalte ? kSpaltenplatz : kZeilenplatz;
  if (spalte) {
    lage.left += kZelle.width * (linie - 1);
    lage.top -= kPlatzschrittHoch * (k - 1);
  } else {
    lage.left -= kPlatzschrittLinks * (k - 1);
    lage.top += kZelle.height * (linie - 1);
  }
  return lage;
}

QByteArray Name(const char *stamm, int nummer) { return stamm + QByteArray::number(nummer); }

}  // namespace

Zellenbild::Zellenbild(QWidget *eltern, int nummer)
    : Bild(eltern, {Name("imgSar", nummer), Zellenlage(nummer), "", "", ""}), nummer_(nummer) {
  SetzeBild(Kachelbild(kachel_));
}

void Zellenbild::SetzeKachel(Kachel kachel) {
  if (kachel_ == kachel)
    return;
  kachel_ = kachel;
  SetzeBild(Kachelbild(kachel_));
  if (hasFocus()) {
    MeldeNamen();
    SageAn(this, Ansage());
  }
}

QString Zellenbild::Ansage() const {
  constexpr std::array kWoerter{"verdeckt", "markiert", "Fehler", "Sarant"};
  return QString("Zeile %1, Spalte %2: %3")
      .arg(ZeileVon(nummer_))
      .arg(SpalteVon(nummer_))
      .arg(Element(kWoerter, kachel_));
}

void Zellenbild::focusInEvent(QFocusEvent *ereignis) {
  MeldeNamen();
  Bild::focusInEvent(ereignis);
}

void Zellenbild::MeldeNamen() {
  QAccessibleEvent name(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&name);
}

Zahlenbild::Zahlenbild(QWidget *eltern, bool spalte, int linie, int k)
    : Bild(eltern, {Name("imgDiggi", PlatzVon(spalte, linie, k)), Platzlage(spalte, linie, k), "",
                    "", "", QAccessible::Graphic}) {
  SetzeZahl(0);
}

void Zahlenbild::SetzeZahl(int zahl) {
  zahl_ = zahl;
  SetzeBild(frmZahlen::imgZahl(zahl_));
}

Brettlicht::Brettlicht(Spielbrett *brett)
    : Bild(brett, {"imgLicht", kZellenfeld, "", "", "", QAccessible::Graphic}), brett_(*brett) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Brettlicht::Setze(Stand stand) {
  stand_ = stand;
  stein_ = stand == Stand::Warten ? QImage(":/bilder/stein.png") : QImage();
  update();
}

void Brettlicht::paintEvent(QPaintEvent *) {
  QPainter maler(this);
  maler.setRenderHint(QPainter::SmoothPixmapTransform);
  if (stand_ == Stand::Warten)
    maler.drawImage(rect(), stein_);
  QLinearGradient abfall(rect().topLeft(), rect().bottomRight());
  abfall.setColorAt(0, Qt::transparent);
  abfall.setColorAt(1, QColor(kAbfall));
  maler.fillRect(rect(), abfall);
  int funken = 0;
  for (int k = 0; stand_ == Stand::Gewonnen && k < kZellen; ++k) {
    // Cells far from each other follow one another, so that the glints are scattered.
    const Zellenbild &zelle = brett_.Zelle(23 * k % kZellen + 1);
    const QRect ort = zelle.geometry().translated(-pos());
    if (zelle.LiesKachel() != Kachel::Sarant) {
      if (!zelle.hasFocus())  // The ring must stand out.
        maler.fillRect(ort, QColor(kGewinnschatten));
    } else if (funken++ < kFunken) {
      const QString bild = "funke" + QString::number(funken % 2);
      ZeichneGenau(maler, ort.topLeft(), Katalogbild(bild, devicePixelRatioF()));
    }
  }
}

Spielbrett::Spielbrett(QWidget *eltern, Ansicht &ansicht) : Bild(eltern, kPicture1) {
  for (int n = 1; n <= kZellen; ++n) {
    auto *zelle = new Zellenbild(this, n);
    zelle->SetzeDruck([&ansicht, n](Qt::MouseButton taste) {
      imgSar_MouseDown(ansicht, n, taste == Qt::LeftButton ? kLinkeTaste : kRechteTaste);
    });
    Element(imgSar_, n) = zelle;
  }
  for (const bool spalte : {true, false})
    for (int linie = 1; linie <= kLinie; ++linie)
      for (int k = 1; k <= kPlaetzeJeLinie; ++k)
        Element(imgDiggi_, PlatzVon(spalte, linie, k)) = new Zahlenbild(this, spalte, linie, k);
  licht_ = new Brettlicht(this);
}

QString Spielbrett::Linientext(bool spalte, int linie) const {
  QStringList zahlen;
  for (int k = kPlaetzeJeLinie; k >= 1; --k) {
    const Zahlenbild &platz = Platz(PlatzVon(spalte, linie, k));
    if (!platz.isHidden())
      zahlen.append(QString::number(platz.LiesZahl()));
  }
  return QString("%1 %2: %3")
      .arg(spalte ? "Spalte" : "Zeile")
      .arg(linie)
      .arg(zahlen.isEmpty() ? "leer" : zahlen.join(", "));
}
