#include "dialogs/frmOptionen.h"

#include "platform/mod_MySound.h"
#include "tests/fensterprobe.h"

namespace {

class Optionen : public Fensterprobe {
 protected:
  Optionen() { Starte(); }

  /// Opens the options, clicks the named controls, and answers the confirmation if one follows.
  void Waehle(const QStringList &klicks, Qt::Key antwort = Qt::Key_J) {
    if (spiel.Punkte != 0)
      DannAntworte(Qt::Key_J);
    Dann<frmOptionen>([this, klicks, antwort](frmOptionen &fenster) {
      for (const QString &name : klicks) {
        if (name == "cmdNehmen")
          DannAntworte(antwort);
        if (name == "close")
          fenster.close();
        else
          Klick(Finde(fenster, name));
      }
    });
    Klick("imgEinstellungen");
  }
};

TEST_F(Optionen, jede_stufe_in_jedem_modus_beginnt_ihr_spiel) {
  constexpr int kPunkte[][6] = {{500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1750, 3500, 5250, 7000, 8750}};
  for (int modus = 1; modus <= kModi; ++modus) {
    for (int stufe = 0; stufe < 6; ++stufe) {
      QStringList klicks;
      if (stufe != 0)  // The first tier is chosen already, and its face takes no clicks.
        klicks << "imgLevel" + QString::number(stufe);
      if (modus != spiel.Spielmodus)
        klicks << "imgModus" + QString::number(modus);
      Waehle(klicks << "cmdNehmen");
      EXPECT_EQ(spiel.Level, 5 * stufe + 1);
      EXPECT_EQ(spiel.Spielmodus, modus);
      EXPECT_EQ(spiel.Punkte, kPunkte[modus - 1][stufe]);
      EXPECT_EQ(Inhalt(Datei("sarant.ini")), QByteArray::number(modus) + "\r\n");
    }
  }
}

TEST_F(Optionen, wer_nicht_nimmt_oder_nicht_bestaetigt_aendert_nur_mit_nehmen_den_ton) {
  spiel.SoundAn = true;
  Klick("imgNeuesSpiel");
  const auto brett = spiel.lstWiederHolen;
  const auto Unveraendert = [&] {
    EXPECT_EQ(spiel.lstWiederHolen, brett);
    EXPECT_EQ(spiel.Spielmodus, kModusNormal);
    EXPECT_EQ(spiel.Punkte, 500);
    EXPECT_EQ(Inhalt(Datei("sarant.ini")), "2\r\n");
  };
  for (const char *ende : {"cmdEnde", "close"}) {
    Waehle({"imgLevel3", "imgModus1", ende});
    Unveraendert();
  }
  spiel.SoundAn = false;
  Waehle({"imgLevel3", "imgModus1", "cmdNehmen"}, Qt::Key_N);
  Unveraendert();
  EXPECT_FALSE(spiel.SoundAn);
}

TEST_F(Optionen, ohne_geraet_bleibt_der_ton_aus) {
  if (SoundGeraetDa())
    GTEST_SKIP() << "this machine can play sound";
  Dann<frmOptionen>([this](frmOptionen &fenster) {
    EXPECT_TRUE(Finde(fenster, "imgSound1")->isHidden());
    Dann<frmMsgOk>([](frmMsgOk &meldung) {
      EXPECT_EQ(Text(meldung, "lblMeldung"),
                "\nEs wurde keine Soundkarte,\nauf Ihren System erkannt");
      meldung.close();
    });
    Klick(Finde(fenster, "imgSound0"));
    EXPECT_TRUE(Finde(fenster, "imgSound1")->isHidden());
    fenster.close();
  });
  Klick("imgEinstellungen");
  EXPECT_EQ(gesehen, 2);
}

TEST_F(Optionen, ein_unveraenderter_modus_laesst_die_datei_allein) {
  Schreibe(Datei("sarant.ini"), "fremd");
  Waehle({"cmdNehmen"});
  EXPECT_EQ(spiel.Level, 1);
  EXPECT_EQ(Inhalt(Datei("sarant.ini")), "fremd");
  Waehle({"imgModus3", "cmdNehmen"});
  EXPECT_EQ(Inhalt(Datei("sarant.ini")), "3\r\n");
}

TEST_F(Optionen, stehen_auf_den_pixel) {
  frmOptionen fenster(spielfeld.get(), *spielfeld);
  EXPECT_EQ(fenster.size(), QSize(484, 448));
  const std::pair<const char *, QRect> lagen[] = {
      {"imgLevel0", {110, 56, 145, 32}},  {"imgLevelWahl2", {110, 136, 145, 32}},
      {"imgLevel3", {277, 56, 145, 32}},  {"imgModus1", {110, 243, 145, 32}},
      {"imgModus3", {190, 282, 145, 32}}, {"imgSound0", {150, 340, 191, 42}},
      {"cmdEnde", {98, 396, 191, 42}},    {"cmdNehmen", {292, 396, 191, 42}}};
  for (const auto &[name, lage] : lagen)
    EXPECT_EQ(Finde(fenster, name)->geometry(), lage) << name;
  EXPECT_EQ(Finde(fenster, "imgModusWahl2")->toolTip(), "Aktueller Spielmodus");
  EXPECT_TRUE(Finde(fenster, "imgModus2")->isHidden());
}

}  // namespace
