#include "shell/frmSpielfeld.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>

#include "dialogs/bilder.h"
#include "dialogs/frmHintergrund.h"
#include "tests/fensterprobe.h"

namespace {

class Spielfeld : public Fensterprobe {
 protected:
  QAction *Eintrag(const QString &text) {
    for (QAction *aktion : spielfeld->findChildren<QAction *>()) {
      if (aktion->text() == text)
        return aktion;
    }
    ADD_FAILURE() << text.toStdString();
    return nullptr;
  }
};

TEST_F(Spielfeld, steht_auf_den_pixel_vor_einem_schirmfuellenden_hintergrund) {
  EXPECT_EQ(Finde(*spielfeld, "frmSpielfeld")->size(), QSize(878, 729));
  ErwarteLagen(*spielfeld, {{"Picture1", {222, 14, 643, 647}},
                            {"imgSar1", {158, 158, 47, 47}},
                            {"imgSar10", {581, 158, 47, 47}},
                            {"imgSar100", {581, 581, 47, 47}},
                            {"imgDiggi1", {168, 120, 29, 31}},
                            {"imgDiggi5", {168, 8, 29, 31}},
                            {"imgDiggi50", {591, 8, 29, 31}},
                            {"imgDiggi51", {120, 164, 29, 31}},
                            {"imgDiggi55", {27, 164, 29, 31}},
                            {"imgDiggi100", {27, 587, 29, 31}},
                            {"imgOeffnen", {106, 20, 32, 32}},
                            {"imgSpeichern", {144, 20, 32, 32}},
                            {"imgNextLevel", {82, 670, 191, 42}},
                            {"cmdWiederholen", {80, 670, 191, 42}},
                            {"imgModus2", {476, 692, 145, 32}},
                            {"imgModusWahl3", {630, 692, 145, 32}},
                            {"imgZeigeStart", {182, 620, 24, 33}},
                            {"imgBester", {676, 664, 191, 42}}});
  int hintergruende = 0;
  for (const QWidget *fenster : QApplication::topLevelWidgets()) {
    if (qobject_cast<const frmHintergrund *>(fenster) && fenster->isVisible()) {
      ++hintergruende;
      EXPECT_EQ(fenster->geometry(), spielfeld->screen()->geometry());
    }
  }
  EXPECT_EQ(hintergruende, 1);
}

TEST_F(Spielfeld, hat_sein_menue) {
  QStringList koepfe;
  for (const QAction *kopf : spielfeld->menuBar()->actions())
    koepfe << kopf->text();
  EXPECT_EQ(koepfe.join('|'), "&Spiel                     |&Optionen             |&Information");
  const std::pair<const char *, const char *> kuerzel[] = {
      {"Neues Spiel", "Ctrl+N"},
      {"Spielstand laden...", "Ctrl+O"},
      {"Spielstand speichern unter...", "Ctrl+S"},
      {"&Spielanleitung", "F1"}};
  for (const auto &[text, taste] : kuerzel) {
    EXPECT_EQ(Eintrag(text)->shortcut().toString(), taste);
    EXPECT_EQ(Eintrag(text)->isEnabled(), !QString(text).startsWith("Spielstand")) << text;
  }
  for (const QString text : {"aus", "aus", "an"}) {
    Eintrag(text)->trigger();
    EXPECT_EQ(Eintrag("an")->isChecked(), text == "an");
    EXPECT_EQ(Eintrag("aus")->isChecked(), text == "aus");
    EXPECT_EQ(spiel.SoundAn, text == "an");
  }
}

TEST_F(Spielfeld, entziffert_beim_spielen_kein_bild) {
  Klick("imgNeuesSpiel");
  const int geladen = GeladeneBilder();
  for (int n = 1; n <= kZellen; ++n)
    Klick("imgSar" + QString::number(n));
  ASSERT_TRUE(spielfeld->IstSichtbar(Bedienung::cmdWiederholen));
  Klick("cmdWiederholen");
  EXPECT_EQ(spiel.Punkte, 400);
  EXPECT_EQ(GeladeneBilder(), geladen);
}

}  // namespace
