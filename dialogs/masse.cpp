#include "dialogs/masse.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>

namespace {

constexpr int kTwipsJePixel = 15;
constexpr int kVersatz = 100;  // twips

double massstab = 1;

}  // namespace

double Massstab() {
  return massstab;
}

void StelleMassstab(double faktor) {
  massstab = faktor;
}

int Pixel(int twips) {
  return qRound(massstab * twips / kTwipsJePixel);
}

QRect Rechteck(const Twips &lage) {
  return {Pixel(lage.left), Pixel(lage.top), Pixel(lage.width), Pixel(lage.height)};
}

QFont Schrift(double punkt, bool fett) {
  QFont schrift(QStringList{"Arial", "Liberation Sans"});  // Letters of the same widths.
  schrift.setPixelSize(qRound(massstab * punkt * 96 / 72));
  schrift.setBold(fett);
  return schrift;
}

QLabel *NeueBeschriftung(QWidget *eltern, const Textzeile &zeile) {
  auto *beschriftung = new QLabel(eltern);
  beschriftung->setObjectName(zeile.name);
  beschriftung->setGeometry(Rechteck(zeile.lage));
  beschriftung->setFont(Schrift(zeile.punkt, zeile.fett));
  beschriftung->setTextFormat(Qt::PlainText);
  beschriftung->setAlignment(zeile.ausrichtung);
  beschriftung->setWordWrap(true);
  beschriftung->setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette palette = beschriftung->palette();
  palette.setColor(QPalette::WindowText, QColor(zeile.farbe));
  beschriftung->setPalette(palette);
  SetzeText(beschriftung, zeile.text);
  return beschriftung;
}

QWidget *NeueLinie(QWidget *eltern, const Twips &lage, int dicke, QRgb farbe) {
  auto *linie = new QWidget(eltern);
  const QRect strecke = Rechteck(lage);
  linie->setGeometry({strecke.topLeft(), strecke.size().expandedTo({dicke, dicke})});
  linie->setPalette(QPalette(QColor(farbe)));
  linie->setAutoFillBackground(true);
  linie->setAttribute(Qt::WA_TransparentForMouseEvents);
  return linie;
}

void SetzeText(QLabel *beschriftung, const std::string &text) {
  beschriftung->setText(QString::fromStdString(text).remove('\r'));
}

void Platziere(QWidget *fenster, const QWidget *hauptfenster, Lage lage) {
  const QRect rahmen = hauptfenster ? hauptfenster->frameGeometry()
                                    : QGuiApplication::primaryScreen()->availableGeometry();
  const QPoint versatz(Pixel(kVersatz), Pixel(kVersatz));
  switch (lage) {
    case Lage::Mitte:
      fenster->move(rahmen.x() + (rahmen.width() - fenster->width()) / 2,
                    rahmen.y() + (rahmen.height() - fenster->height()) / 2);
      break;
    case Lage::RechtsUnten:
      fenster->move(rahmen.topLeft() + versatz);
      break;
    case Lage::LinksOben:
      fenster->move(rahmen.topLeft() - versatz);
      break;
  }
}
