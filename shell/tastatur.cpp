#include "shell/tastatur.h"

#include <QAccessible>
#include <algorithm>
#include <map>

#include "controls/bild.h"
#include "core/zahlen.h"
#include "dialogs/zugang.h"
#include "shell/spielbrett.h"

Tastatur::Tastatur(QWidget *knoepfe, Spielbrett *brett, QWidget *panel)
    : brett_(brett), bereiche_{knoepfe, brett, panel} {}

QList<QWidget *> Tastatur::Ziele() const {
  const QWidget *bereich = Element(bereiche_, bereich_);
  QList<QWidget *> ziele = bereich->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
  ziele.removeIf([](const QWidget *ziel) {
    const auto *bild = qobject_cast<const Bild *>(ziel);
    return ziel->isHidden() || (bild && !bild->IstBedienbar());
  });
  std::ranges::sort(ziele, {}, [](const QWidget *e) { return std::pair(e->y(), e->x()); });
  return ziele;
}

QWidget *Tastatur::Aktuelles() const {
  const auto ziele = Ziele();
  return ziele.at(std::min(Element(stelle_, bereich_), ziele.size() - 1));
}

bool Tastatur::WechsleBereich(bool vorwaerts) {
  if (!QAccessible::isActive())
    return false;
  Aktuelles()->setAccessibleDescription({});
  const QWidget *fokus = Aktuelles()->window()->focusWidget();
  if (fokus && fokus->isHidden())
    Element(stelle_, bereich_) = 0;
  else
    bereich_ = (bereich_ + (vorwaerts ? 1 : kAnzahl - 1)) % kAnzahl;
  Aktuelles()->setFocus();
  return true;
}

void Tastatur::Bewege(int schritt) {
  const qsizetype anzahl = Ziele().size();
  qsizetype &stelle = Element(stelle_, bereich_);
  const qsizetype ziel = std::min(stelle, anzahl - 1) + schritt;
  const bool andereZeile =
      bereich_ == kFeld && std::abs(schritt) == 1 && ziel / kLinie != stelle / kLinie;
  if (ziel < 0 || ziel >= anzahl || andereZeile)
    return;
  stelle = ziel;
  Aktuelles()->setFocus();
}

void Tastatur::LiesZahlen(bool spalte) const {
  const int zelle = static_cast<int>(stelle_.at(kFeld)) + 1;
  const int linie = spalte ? SpalteVon(zelle) : ZeileVon(zelle);
  Aktuelles()->setAccessibleDescription(brett_->Linientext(spalte, linie));
  SageAn(Aktuelles(), Aktuelles()->accessibleDescription());
}

bool Tastatur::Druecke(const QKeyEvent &taste) {
  const QWidget *flaeche = bereiche_.front()->parentWidget();
  if (!QAccessible::isActive() || !flaeche->isAncestorOf(flaeche->window()->focusWidget()))
    return false;
  Aktuelles()->setAccessibleDescription({});  // Removes the numbers that were read last.
  if (taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
    return false;
  const int abwaerts = bereich_ == kFeld ? kLinie : 1;
  const std::map<int, int> schritte{
      {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -abwaerts}, {Qt::Key_Down, abwaerts}};
  const auto schritt = schritte.find(taste.key());
  if (schritt != schritte.end()) {
    Bewege(schritt->second);
    return true;
  }
  if ((taste.key() == Qt::Key_Z || taste.key() == Qt::Key_S) && bereich_ == kFeld) {
    LiesZahlen(taste.key() == Qt::Key_S);
    return true;
  }
  return false;
}
