#include "shell/panel.h"

#include "controls/bild.h"
#include "controls/zifferreihe.h"

namespace {

struct Paneleintrag {
  Bildeintrag tafel;
  Twips ecke;
  int stellen;
  const char *rot = "";  ///< A screen reader says this before red digits.
};
constexpr auto kTafel = QAccessible::Graphic;
// clang-format off
const Paneleintrag kPanel[] = {  // In the order of `Panelreihe`, out of line on purpose.
    {{"Image1", {240, 3330, 2865, 630}, "tafelPunkte",
      "Punkte, die Sie in diesem Spiel haben", "Punkte", kTafel}, {1860, 3450}, 5},
    {{"Image6", {240, 4020, 2865, 630}, "tafelLevelpunkte",
      "Punkte, die der Level bringt oder kostet", "Levelpunkte", kTafel}, {2280, 4140}, 3, "minus "},
    {{"Image2", {240, 4710, 2865, 630}, "tafelFehlversuche",
      "Felder, die falsch geöffnet wurden", "Fehlversuche", kTafel}, {2460, 4830}, 2},
    {{"Image3", {210, 5460, 2865, 630}, "tafelOffen",
      "Saranten, die noch zu finden sind", "noch offen", kTafel}, {2430, 5580}, 2},
    {{"Image4", {270, 6180, 2865, 630}, "tafelLevel",
      "Level, der gespielt wird", "Level", kTafel}, {2460, 6300}, 2},
};
// clang-format on
const Bildeintrag kBereich{"", {0, 0, 3600, 10935}, "", "", "Anzeigetafel", QAccessible::Grouping};

}  // namespace

Panel::Panel(QWidget *flaeche) {
  auto *bereich = new Bild(flaeche, kBereich);
  for (std::size_t i = 0; i < reihen_.size(); ++i) {
    const auto &[tafel, ecke, stellen, rot] = kPanel[i];
    new Bild(bereich, tafel);
    reihen_.at(i) = new Zifferreihe(bereich, ecke, stellen, tafel.ansage, rot);
    reihen_.at(i)->setToolTip(tafel.tooltip);
  }
  bereich->setMask(bereich->childrenRegion());
}
