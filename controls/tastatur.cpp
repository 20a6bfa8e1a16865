#include "controls/tastatur.h"

#include <QAccessible>
#include <algorithm>
#include <map>

#include "controls/bild.h"
#include "controls/zifferreihe.h"
#include "core/spiel.h"

void ErlaubeTab(QWidget *fenster) {
  for (Bild *bild : fenster->findChildren<Bild *>()) {
    if (bild->IstBedienbar())
      bild->setFocusPolicy(QAccessible::isActive() ? Qt::TabFocus : Qt::NoFocus);
  }
}

Tastatur::Tastatur(QWidget *flaeche, std::vector<QWidget *> zellen,
                   std::function<QString(bool, int)> zahlen)
    : flaeche_(flaeche), zellen_(std::move(zellen)), zahlen_(std::move(zahlen)) {}

std::vector<QWidget *> Tastatur::Elemente(int bereich) const {
  if (bereich == kFeld)
    return zellen_;
  std::vector<QWidget *> elemente;
  for (QWidget *element : flaeche_->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
    const auto *bild = qobject_cast<Bild *>(element);
    const bool passt = bereich == kKnoepfe ? bild && bild->IstBedienbar()
                                           : qobject_cast<Zifferreihe *>(element) != nullptr;
    if (passt && !element->isHidden())
      elemente.push_back(element);
  }
  const auto lage = [](const QWidget *e) { return std::pair(e->y(), e->x()); };
  std::sort(elemente.begin(), elemente.end(),
            [lage](const QWidget *a, const QWidget *b) { return lage(a) < lage(b); });
  return elemente;
}

QWidget *Tastatur::Aktuelles() const {
  const auto elemente = Elemente(bereich_);
  return elemente.at(std::min(stelle_.at(static_cast<std::size_t>(bereich_)), elemente.size() - 1));
}

bool Tastatur::WechsleBereich(bool vorwaerts) {
  if (!QAccessible::isActive())
    return false;
  Aktuelles()->setAccessibleDescription({});
  const QWidget *fokus = flaeche_->window()->focusWidget();
  if (fokus && fokus->isHidden())
    stelle_.at(static_cast<std::size_t>(bereich_)) = 0;
  else
    bereich_ = (bereich_ + (vorwaerts ? 1 : kBereiche - 1)) % kBereiche;
  Aktuelles()->setFocus();
  return true;
}

void Tastatur::Bewege(int schritt) {
  const auto elemente = Elemente(bereich_);
  std::size_t &stelle = stelle_.at(static_cast<std::size_t>(bereich_));
  const auto ziel = static_cast<int>(std::min(stelle, elemente.size() - 1)) + schritt;
  const bool zeilenende = bereich_ == kFeld && std::abs(schritt) == 1 &&
                          ziel / kLinie != static_cast<int>(stelle) / kLinie;
  if (ziel < 0 || ziel >= static_cast<int>(elemente.size()) || zeilenende)
    return;
  stelle = static_cast<std::size_t>(ziel);
  Aktuelles()->setFocus();
}

void Tastatur::LiesZahlen(bool spalte) const {
  const int zelle = static_cast<int>(stelle_.at(kFeld));
  const int linie = (spalte ? zelle % kLinie : zelle / kLinie) + 1;
  Aktuelles()->setAccessibleDescription(zahlen_(spalte, linie));
}

bool Tastatur::Druecke(const QKeyEvent &taste) {
  if (!QAccessible::isActive() || !flaeche_->isAncestorOf(flaeche_->window()->focusWidget()))
    return false;
  Aktuelles()->setAccessibleDescription({});  // The numbers read last.
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
