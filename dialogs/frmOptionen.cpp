#include "dialogs/frmOptionen.h"

#include <QLabel>

#include "core/ansicht.h"
#include "core/befehle.h"
#include "dialogs/bild.h"
#include "persistence/iniLumbra.h"
#include "platform/mod_MySound.h"

namespace {

constexpr int kLevelJeStufe = 5;

const Textzeile kTexte[] = {
    {"Label1", {3030, 150, 2175, 585}, 15.75, true, kBlau, "Spielstart"},
    {"Label2", {1620, 3120, 4335, 435}, 15.75, true, kDunkelgruen, "Spielmodus"},
};

const Wahlart kStufen{"imgLevel", "level", 0, "", ""};
const std::vector<Wahlgruppe::Zeile> kStufenzeilen{
    {{1650, 840, 2175, 480}, "Level 1"},   {{1650, 1440, 2175, 480}, "Level 6"},
    {{1650, 2040, 2175, 480}, "Level 11"}, {{4150, 840, 2175, 480}, "Level 16"},
    {{4150, 1440, 2175, 480}, "Level 21"}, {{4150, 2040, 2175, 480}, "Level 26"}};

const std::vector<Wahlgruppe::Zeile> kModuszeilen{{{1650, 3640, 2175, 480}, "Einfach"},
                                                  {{4150, 3640, 2175, 480}, "Normal"},
                                                  {{2850, 4230, 2175, 480}, "Experte"}};

constexpr Twips kTrennlinie{1680, 4920, 5100, 0};

constexpr Twips kSoundlage{2250, 5100, 2865, 630};
const Bildzeile kSound[] = {
    {"imgSound0", kSoundlage, "sound0", "Soundeffekt einschalten", "Soundeffekt",
     QAccessible::CheckBox},
    {"imgSound1", kSoundlage, "sound1", "Soundeffekt ausschalten", "Soundeffekt",
     QAccessible::CheckBox},
};
const Bildzeile kEnde{"cmdEnde",
                      {1470, 5940, 2865, 630},
                      "knopfSchliessen",
                      "Fenster schließen ohne die Einstellungen zu übernehmen",
                      "Schließen"};
const Bildzeile kNehmen{"cmdNehmen",
                        {4380, 5940, 2865, 630},
                        "knopfUebernehmen",
                        "Einstellungen übernehmen",
                        "Übernehmen"};

}  // namespace

frmOptionen::frmOptionen(QWidget *hauptfenster, Ansicht &ansicht)
    : Bildfenster(hauptfenster, kFesterRahmen, "optionen", {0, 0, 7260, 6720}),
      ansicht_(ansicht),
      imgLevel_(this, kStufen, kStufenzeilen, [this](int stufe) { imgLevel_Click(stufe); }),
      imgModus_(this, kModuswahl, kModuszeilen, [this](int modus) { imgModus_Click(modus); }),
      ModusWahl(spiel.Spielmodus),
      SoundWahl(spiel.SoundAn),
      ModusVorher(spiel.Spielmodus) {
  setWindowTitle("Form1");
  for (const Textzeile &zeile : kTexte)
    NeueBeschriftung(this, zeile);
  NeueLinie(this, kTrennlinie, 2, kBlau);
  for (const bool an : {false, true}) {
    auto *bild = new Bild(this, kSound[an ? 1 : 0]);
    bild->SetzeKlick([this, an] { imgSound_Click(!an); });
    bild->SetzeGewaehlt(an);
    imgSound_.at(an ? 1 : 0) = bild;
  }
  (new Bild(this, kEnde))->SetzeKlick([this] { close(); });
  (new Bild(this, kNehmen))->SetzeKlick([this] { cmdNehmen_Click(); });

  ZeigeSound(spiel.SoundAn && SoundGeraetDa());
  imgModus_.Waehle(ModusWahl);
  imgLevel_.Waehle(LevelWahl);
}

void frmOptionen::imgLevel_Click(int stufe) {
  imgLevel_.Waehle(stufe);
  LevelWahl = stufe;
}

void frmOptionen::imgModus_Click(int modus) {
  imgModus_.Waehle(modus);
  ModusWahl = modus;
}

void frmOptionen::imgSound_Click(bool an) {
  if (an && !SoundGeraetDa()) {
    ansicht_.Melde(MeldungKeineSoundkarte());
    return;
  }
  ZeigeSound(an);
  SoundWahl = an;
}

void frmOptionen::cmdNehmen_Click() {
  spiel.SoundAn = SoundWahl;  // The one setting that applies before the confirmation.
  const int uebersprungen = kLevelJeStufe * LevelWahl;
  if (ansicht_.Frage(FrageAuswahl(uebersprungen + 1, ModusWahl))) {
    SpielAbLevelBeginnen(ansicht_, uebersprungen, ModusWahl);
    if (ModusVorher != ModusWahl)
      SchreibeIni();
  }
  close();
}

void frmOptionen::ZeigeSound(bool an) {
  imgSound_[0]->setVisible(!an);
  imgSound_[1]->setVisible(an);
}
