#include "controls/masse.h"

namespace {

constexpr int kTwipsJePixel = 15;

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
