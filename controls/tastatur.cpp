#include "controls/tastatur.h"

#include <QAccessible>
#include <algorithm>
#include <map>

#include "controls/bild.h"
#include "controls/zugang.h"
#include "core/spiel.h"

void ErlaubeTab(QWidget *fenster) {
  for (Bild *bild : fenster->findChildren<Bild *>()) {
    if (bild->IstBedienbar())
      bild->setFocusPolicy(QAccessible::isActive() ? Qt::TabFocus : Qt::NoFocus);
  }
}

Tastatur::Tastatur(const Bereiche &bereiche, std::function<QString(bool, int)> zahlen)
    : bereiche_(bereiche), zahlen_(std::move(zahlen)) {}

QList<QWidget *> Tastatur::Elemente() const {
  const QWidget *bereich = Element(bereiche_, bereich_);
  QList<QWidget *> elemente = bereich->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
  elemente.removeIf([](const QWidget *element) {
    const auto *bild = qobject_cast<const Bild *>(element);
    return element->isHidden() || (bild && !bild->IstBedienbar());
  });
  std::ranges::sort(elemente, {}, [](const QWidget *e) { return std::pair(e->y(), e->x()); });
  return elemente;
}

QWidget *Tastatur::Aktuelles() const {
  const auto elemente = Elemente();
  return elemente.at(std::min(Element(stelle_, bereich_), elemente.size() - 1));
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
  const qsizetype anzahl = Elemente().size();
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
  const int zelle = static_cast<int>(stelle_.at(kFeld));
  const int linie = (spalte ? zelle % kLinie : zelle / kLinie) + 1;
  Aktuelles()->setAccessibleDescription(zahlen_(spalte, linie));
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
