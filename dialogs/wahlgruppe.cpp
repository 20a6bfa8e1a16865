#include "dialogs/wahlgruppe.h"

#include "dialogs/bild.h"

Wahlgruppe::Wahlgruppe(QWidget *eltern, const Wahlart &art, const std::vector<Zeile> &zeilen,
                       const std::function<void(int)> &klick)
    : ersterIndex_(art.ersterIndex) {
  int index = art.ersterIndex;
  for (const Zeile &zeile : zeilen) {
    const auto NeuesBild = [&](const char *wahl, const char *tooltip) {
      const QByteArray zusatz = wahl + QByteArray::number(index);
      const QByteArray name = art.name + zusatz;
      const QByteArray bild = art.bild + zusatz;
      const QByteArray ansage = zeile.ansage.toUtf8();
      return new Bild(eltern, {name.constData(), zeile.lage, bild.constData(), tooltip,
                               ansage.constData(), QAccessible::RadioButton});
    };
    const Paar paar{NeuesBild("", art.tooltip), NeuesBild("Wahl", art.tooltipWahl)};
    paar.normal->SetzeKlick([klick, index] { klick(index); });
    paar.gewaehlt->SetzeGewaehlt(true);
    paare_.push_back(paar);
    ++index;
  }
}

void Wahlgruppe::Waehle(int index) {
  int i = ersterIndex_;
  for (const Paar &paar : paare_) {
    paar.normal->setVisible(i != index);
    paar.gewaehlt->setVisible(i == index);
    ++i;
  }
}

void Wahlgruppe::Verberge() {
  for (const Paar &paar : paare_) {
    paar.normal->hide();
    paar.gewaehlt->hide();
  }
}
