#include "shell/menue.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <optional>
#include <vector>

#include "core/befehle.h"
#include "platform/mod_MySound.h"
#include "shell/frmSpielfeld.h"

namespace {

struct Menueeintrag {
  const char *name;
  const char *text = "";  ///< Empty for a separator.
  std::function<void(frmSpielfeld &)> tat = nullptr;
  QKeySequence tasten = QKeySequence::UnknownKey;
  std::optional<Bedienung> knopf = std::nullopt;
};

struct Kopf {
  const char *name;
  const char *text;
  std::vector<Menueeintrag> eintraege;
};

constexpr const char *kSound = "mnuSound";  ///< The entry with the submenu.

std::vector<Kopf> Tabelle() {
  using Fenster = frmSpielfeld;
  // Trailing blanks put space between the titles of the menus.
  return {
      {"mnuMenue1",
       "&Spiel                     ",
       {{"mnuSpiel1", "Neues Spiel", imgNeuesSpiel_Click, Qt::CTRL | Qt::Key_N},
        {"mnuSpiel2", "Spielstand laden...", &Fenster::imgOeffnen_Click, Qt::CTRL | Qt::Key_O,
         Bedienung::imgOeffnen},
        {"mnuSpiel3", "Spielstand speichern unter...", &Fenster::imgSpeichern_Click,
         Qt::CTRL | Qt::Key_S, Bedienung::imgSpeichern},
        {"mnuSpiel4"},
        {"mnuSpiel5", "b&eenden", imgEnde_Click}}},
      {"mnuMenue2",
       "&Optionen             ",
       {{kSound, "Sound"},
        {"mnuOptionen4"},
        {"mnuEinstellungen", "Einstellungen...", &Fenster::imgEinstellungen_Click}}},
      {"mnuMenue3",
       "&Information",
       {{"mnuInfo1", "&Spielanleitung", &Fenster::lblAnleitung_Click, Qt::Key_F1},
        {"mnuInfo2", "&zu dieser Anwendung...", &Fenster::lblInfo_Click},
        {"mnuInfo3"},
        {"mnuInfo4", "&Beste Spieler...", &Fenster::mnuInfo4_Click}}},
  };
}

/// The submenu with `mnusoundan1` (on) and `mnusoundan2` (off).
QAction *BaueSoundmenue(QMenu *menue) {
  QMenu *untermenue = menue->addMenu("Sound");
  QAction *mnuSound = untermenue->menuAction();
  auto *mnusoundan = new QActionGroup(menue->window());
  for (const char *text : {"an", "aus"}) {
    QAction *wahl = mnusoundan->addAction(untermenue->addAction(text));
    wahl->setObjectName("mnusoundan" + QString::number(mnusoundan->actions().size()));
    wahl->setCheckable(true);
  }
  QAction *an = mnusoundan->actions().constFirst();
  an->setChecked(true);
  QObject::connect(mnusoundan, &QActionGroup::triggered, menue,
                   [an](const QAction *wahl) { spiel.SoundAn = wahl == an; });

  const auto Erlaube = [mnuSound] { mnuSound->setEnabled(DasSoundgeraet().SoundGeraetDa()); };
  QObject::connect(&DasSoundgeraet(), &Soundgeraet::Gewechselt, menue, Erlaube);
  QObject::connect(menue, &QMenu::aboutToShow, mnuSound, Erlaube);
  Erlaube();
  return mnuSound;
}

}  // namespace

std::map<Bedienung, QAction *> BaueMenue(frmSpielfeld &fenster) {
  std::map<Bedienung, QAction *> mitKnopf;
  auto *eintraege = new QActionGroup(&fenster);
  eintraege->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
  for (const Kopf &kopf : Tabelle()) {
    QMenu *menue = fenster.menuBar()->addMenu(kopf.text);
    menue->setObjectName(kopf.name);
    for (const Menueeintrag &eintrag : kopf.eintraege) {
      QAction *aktion =
          eintrag.name == kSound ? BaueSoundmenue(menue) : menue->addAction(eintrag.text);
      aktion->setObjectName(eintrag.name);
      aktion->setSeparator(*eintrag.text == '\0');
      aktion->setShortcut(eintrag.tasten);
      if (!eintrag.tat)
        continue;
      eintraege->addAction(aktion);
      if (eintrag.knopf)
        mitKnopf[*eintrag.knopf] = aktion;
      QObject::connect(aktion, &QAction::triggered, &fenster,
                       [&fenster, tat = eintrag.tat] { tat(fenster); });
    }
  }
  return mitKnopf;
}
