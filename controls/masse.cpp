#include "controls/masse.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int kTwipsJePixel = 15;

double massstab = 1;

}  // namespace

double Massstab() { return massstab; }

void StelleMassstab(double faktor) { massstab = faktor; }

int Pixel(int twips) { return qRound(massstab * twips / kTwipsJePixel); }

QRect Rechteck(const Twips &lage) {
  return {Pixel(lage.left), Pixel(lage.top), Pixel(lage.width), Pixel(lage.height)};
}

void BehalteGroesse(QWidget *fenster) {
  fenster->winId();  // Creates the native window if there is none.
  QWindow *huelle = fenster->windowHandle();
  QObject::disconnect(huelle, &QWindow::screenChanged, fenster, nullptr);
  QObject::connect(
      huelle, &QWindow::screenChanged, fenster,
      [fenster, huelle] {
        const QSize groesse = fenster->minimumSize();
        huelle->setMinimumSize({0, 0});
        huelle->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
        huelle->setMinimumSize(groesse);
        huelle->setMaximumSize(groesse);
        huelle->resize(groesse);
      },
      Qt::QueuedConnection);
}
