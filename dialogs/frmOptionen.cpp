#include "dialogs/frmOptionen.h"

#include <QLabel>

#include "controls/beschriftung.h"
#include "controls/bild.h"
#include "core/ansicht.h"
#include "core/befehle.h"
#include "persistence/iniLumbra.h"
#include "platform/mod_MySound.h"

namespace {

constexpr int kLevelJeStufe = 5;

const Texteintrag kUeberschriften[] = {
    {"Label1", {3030, 150, 2175, 585}, 15.75, true, kBlau, "Spielstart", Qt::AlignLeft},
    {"Label2", {1620, 3120, 4335, 435}, 15.75, true, kDunkelgruen, "Spielmodus"},
};

const Wahlart kStufen{"imgLevel", "level", 0, "", ""};
const std::vector<Wahlgruppe::Wahleintrag> kStufeneintraege{
    {{1650, 840, 2175, 480}, "Level 1"},   {{1650, 1440, 2175, 480}, "Level 6"},
    {{1650, 2040, 2175, 480}, "Level 11"}, {{4150, 840, 2175, 480}, "Level 16"},
    {{4150, 1440, 2175, 480}, "Level 21"}, {{4150, 2040, 2175, 480}, "Level 26"}};

const std::vector<Wahlgruppe::Wahleintrag> kModuseintraege{{{1650, 3640, 2175, 480}, "Einfach"},
                                                           {{4150, 3640, 2175, 480}, "Normal"},
                                                           {{2850, 4230, 2175, 480}, "Experte"}};

constexpr Twips kTrennlinie{1680, 4920, 5100, 0};

// clang-format off
const Bildeintrag kSound[] = {
    {"imgSound0", {2250, 5100, 2865, 630}, "sound0",
     "Soundeffekt einschalten", "Soundeffekt", QAccessible::CheckBox},
    {"imgSound1", {2250, 5100, 2865, 630}, "sound1",
     "Soundeffekt ausschalten", "Soundeffekt", QAccessible::CheckBox},
};
const Bildeintrag kSchliessen{"cmdEnde", {1470, 5940, 2865, 630}, "knopfSchliessen",
                              "Fenster schließen ohne die Einstellungen zu übernehmen", "Schließen"};
const Bildeintrag kNehmen{"cmdNehmen", {4380, 5940, 2865, 630}, "knopfUebernehmen",
                          "Einstellungen übernehmen", "Übernehmen"};
// clang-format on

}  // namespace

frmOptionen::frmOptionen(QWidget *hauptfenster, Ansicht &ansicht)
    : Bildfenster(hauptfenster, Qt::Dialog | kFesterRahmen, "optionen", {0, 0, 7260, 6720}),
      ansicht_(ansicht),
      imgLevel_(this, kStufen, kStufeneintraege, [this](int stufe) { imgLevel_Click(stufe); }),
      imgModus_(this, kModuswahl, kModuseintraege, [this](int modus) { imgModus_Click(modus); }),
      ModusWahl_(spiel.Spielmodus),
      SoundWahl_(spiel.SoundAn),
      ModusVorher_(spiel.Spielmodus) {
  setWindowTitle("Form1");  // Kept on purpose.
  for (const Texteintrag &eintrag : kUeberschriften)
    new Beschriftung(this, eintrag);
  NeueLinie(this, kTrennlinie, 2, kBlau);
  for (const bool an : {false, true}) {
    auto *bild = new Bild(this, kSound[an ? 1 : 0]);
    bild->SetzeKlick([this, an] { imgSound_Click(!an); });
    bild->SetzeGewaehlt(an);
    imgSound_.at(an ? 1 : 0) = bild;
  }
  (new Bild(this, kSchliessen))->SetzeKlick([this] { close(); });
  (new Bild(this, kNehmen))->SetzeKlick([this] { cmdNehmen_Click(); });

  ZeigeSound();
  connect(&DasSoundgeraet(), &Soundgeraet::Gewechselt, this, &frmOptionen::ZeigeSound);
  imgModus_.Waehle(ModusWahl_);
  imgLevel_.Waehle(LevelWahl_);
}

void frmOptionen::imgLevel_Click(int stufe) {
  imgLevel_.Waehle(stufe);
  LevelWahl_ = stufe;
}

void frmOptionen::imgModus_Click(int modus) {
  imgModus_.Waehle(modus);
  ModusWahl_ = modus;
}

void frmOptionen::imgSound_Click(bool an) {
  if (an && !DasSoundgeraet().SoundGeraetDa()) {
    ansicht_.Melde(MeldungKeineSoundkarte);
    return;
  }
  SoundWahl_ = an;
  ZeigeSound();
}

void frmOptionen::cmdNehmen_Click() {
  spiel.SoundAn = SoundWahl_;  // Needs no confirmation.
  const int uebersprungen = kLevelJeStufe * LevelWahl_;
  if (ansicht_.Frage(FrageAuswahl(uebersprungen + 1, ModusWahl_))) {
    SpielAbLevelBeginnen(ansicht_, uebersprungen, ModusWahl_);
    if (ModusVorher_ != ModusWahl_)
      SchreibeIni();
  }
  close();
}

void frmOptionen::ZeigeSound() {
  const bool an = SoundWahl_ && DasSoundgeraet().SoundGeraetDa();
  imgSound_.at(an ? 1 : 0)->Ersetze(imgSound_.at(an ? 0 : 1));
}
