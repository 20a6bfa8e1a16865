#include "controls/wahlgruppe.h"

#include "controls/bild.h"

Wahlgruppe::Wahlgruppe(QWidget *eltern, const Wahlart &art,
                       const std::vector<Wahleintrag> &eintraege,
                       const std::function<void(int)> &klick)
    : ersterIndex_(art.ersterIndex) {
  for (int index = art.ersterIndex; const Wahleintrag &eintrag : eintraege) {
    const auto NeuesBild = [&](const char *wahl, const char *tooltip) {
      const QByteArray zusatz = wahl + QByteArray::number(index);
      const QByteArray name = art.name + zusatz;
      const QByteArray bild = art.bild + zusatz;
      return new Bild(eltern, {name.constData(), eintrag.lage, bild.constData(), tooltip,
                               eintrag.ansage, QAccessible::RadioButton});
    };
    const Paar paar{NeuesBild("", art.tooltip), NeuesBild("Wahl", art.tooltipWahl)};
    paar.normal->SetzeKlick([klick, index] { klick(index); });
    paar.gewaehlt->SetzeGewaehlt(true);
    paare_.push_back(paar);
    ++index;
  }
}

void Wahlgruppe::Waehle(int index) {
  for (int i = ersterIndex_; const Paar &paar : paare_) {
    Bild *gezeigt = i++ == index ? paar.gewaehlt : paar.normal;
    gezeigt->Ersetze(gezeigt == paar.normal ? paar.gewaehlt : paar.normal);
  }
}

void Wahlgruppe::Verberge() {
  for (const Paar &paar : paare_) {
    paar.normal->hide();
    paar.gewaehlt->hide();
  }
}
