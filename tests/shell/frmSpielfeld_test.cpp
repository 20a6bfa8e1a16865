#include "shell/frmSpielfeld.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>

#include "dialogs/bilder.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/zifferreihe.h"
#include "tests/fensterprobe.h"

namespace {

class Spielfeld : public Fensterprobe {
 protected:
  /// The rows of the panel from top to bottom, as they are shown.
  QString Panel() {
    QStringList zeilen;
    for (const char *name : {"Punkte", "Levelpunkte", "Fehlversuche", "noch offen", "Level"}) {
      for (const Zifferreihe *reihe : spielfeld->findChildren<Zifferreihe *>()) {
        if (reihe->Ansage().startsWith(QString(name) + ":"))
          zeilen << reihe->Gezeigt();
      }
    }
    return zeilen.join(" ");
  }

  QAction *Eintrag(const QString &text) {
    for (QAction *aktion : spielfeld->findChildren<QAction *>()) {
      if (aktion->text() == text)
        return aktion;
    }
    ADD_FAILURE() << text.toStdString();
    return nullptr;
  }

  /// Types a name into the file dialog that opens next; an empty one cancels.
  void DannWaehleDatei(const QString &name) {
    Dann<QFileDialog>([name](QFileDialog &dialog) {
      EXPECT_EQ(dialog.nameFilters(), QStringList("Spieldateien (*.sar)"));
      if (name.isEmpty()) {
        dialog.reject();
        return;
      }
      dialog.findChild<QLineEdit *>()->setText(name);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
  }

  int Zaehle(Kachel kachel) const {
    int anzahl = 0;
    for (int n = 1; n <= kZellen; ++n)
      anzahl += spielfeld->LiesKachel(n) == kachel ? 1 : 0;
    return anzahl;
  }
};

TEST_F(Spielfeld, steht_auf_den_pixel) {
  Starte();
  EXPECT_EQ(Finde(*spielfeld, "frmSpielfeld")->size(), QSize(878, 729));
  const std::pair<const char *, QRect> lagen[] = {
      {"Picture1", {222, 14, 643, 647}},     {"imgSar1", {158, 158, 47, 47}},
      {"imgSar10", {581, 158, 47, 47}},      {"imgSar100", {581, 581, 47, 47}},
      {"imgDiggi1", {168, 120, 29, 31}},     {"imgDiggi5", {168, 8, 29, 31}},
      {"imgDiggi50", {591, 8, 29, 31}},      {"imgDiggi51", {120, 164, 29, 31}},
      {"imgDiggi55", {27, 164, 29, 31}},     {"imgDiggi100", {27, 587, 29, 31}},
      {"imgOeffnen", {106, 20, 32, 32}},     {"imgSpeichern", {144, 20, 32, 32}},
      {"imgNextLevel", {82, 670, 191, 42}},  {"cmdWiederholen", {80, 670, 191, 42}},
      {"imgModus2", {476, 692, 145, 32}},    {"imgModusWahl3", {630, 692, 145, 32}},
      {"imgZeigeStart", {182, 620, 24, 33}}, {"imgBester", {676, 664, 191, 42}}};
  for (const auto &[name, lage] : lagen)
    EXPECT_EQ(Finde(*spielfeld, name)->geometry(), lage) << name;
  EXPECT_EQ(spielfeld->windowTitle(), "Glanzgrube  Vers.: 3.2.0");
  EXPECT_EQ(Text(*spielfeld, "lblModus"),
            "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\"");
  EXPECT_EQ(Panel(), "0  0 0 0");
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen);
}

TEST_F(Spielfeld, die_einstellungen_bestimmen_den_ersten_modus_und_bleiben_unberuehrt) {
  const std::pair<QByteArray, int> faelle[] = {{"3\r\n", 3}, {"1", 1}, {"-1", 2},  {"0", 2},
                                               {"4", 2},     {"", 2},  {"abc", 2}, {"99999", 2}};
  for (const auto &[inhalt, modus] : faelle) {
    Schreibe(Datei("sarant.ini"), inhalt);
    Starte();
    EXPECT_EQ(spiel.Spielmodus, modus) << inhalt.toStdString();
    for (int i = 1; i <= kModi; ++i) {
      EXPECT_EQ(Finde(*spielfeld, QString("imgModusWahl%1").arg(i))->isHidden(), i != modus);
      EXPECT_EQ(Finde(*spielfeld, QString("imgModus%1").arg(i))->isHidden(), i == modus);
    }
    EXPECT_EQ(Inhalt(Datei("sarant.ini")), inhalt);
  }
  Klick("imgModus1");
  EXPECT_EQ(Inhalt(Datei("sarant.ini")), "1\r\n");
  EXPECT_EQ(Text(*spielfeld, "lblModus"), "Spielmodus  :  Einfach");
}

TEST_F(Spielfeld, ein_level_wird_mit_der_maus_verloren_wiederholt_und_gewonnen) {
  Starte();
  Klick(Zelle(1));  // Before the first game a cell does nothing.
  EXPECT_EQ(Zaehle(Kachel::Verdeckt), kZellen);
  Klick("imgNeuesSpiel");
  EXPECT_EQ(Panel(), "500  0 69 1");
  EXPECT_EQ(Zaehle(Kachel::Markiert), 2);
  EXPECT_EQ(Text(*spielfeld, "lblModus"),
            "Spielmodus:   Normal\nEs sind 75 Saranten auf dem Spielfeld.");
  const int geladen = GeladeneBilder();
  VerliereLevel();
  EXPECT_EQ(Panel(), "500 100 2 69 1");
  EXPECT_EQ(Text(*spielfeld, "lblModus"), "Klicken Sie auf »Wiederholen«");
  const auto brett = spiel.lstWiederHolen;
  Klick("cmdWiederholen");
  EXPECT_EQ(Panel(), "400  0 69 1");
  EXPECT_EQ(spiel.lstWiederHolen, brett);
  int n = 1;
  while (spielfeld->LiesKachel(n) != Kachel::Verdeckt)
    ++n;
  Klick(Zelle(n), Qt::RightButton);
  EXPECT_EQ(spielfeld->LiesKachel(n), Kachel::Markiert);
  Klick(Zelle(n), Qt::MiddleButton);
  EXPECT_EQ(spielfeld->LiesKachel(n), Kachel::Verdeckt);
  GewinneLevel();
  EXPECT_EQ(Panel(), "400 450 0 0 1");
  Klick("imgNextLevel");
  EXPECT_EQ(Panel(), "850  0 68 2");
  EXPECT_EQ(GeladeneBilder(), geladen);  // Playing decodes no picture.
}

TEST_F(Spielfeld, das_menue_folgt_den_phasen) {
  Starte();
  QStringList koepfe;
  for (const QAction *kopf : spielfeld->menuBar()->actions())
    koepfe << kopf->text();
  EXPECT_EQ(koepfe,
            (QStringList{"&Spiel                     ", "&Optionen             ", "&Information"}));
  const std::pair<const char *, const char *> kuerzel[] = {
      {"Neues Spiel", "Ctrl+N"},
      {"Spielstand laden...", "Ctrl+O"},
      {"Spielstand speichern unter...", "Ctrl+S"},
      {"&Spielanleitung", "F1"}};
  for (const auto &[text, taste] : kuerzel)
    EXPECT_EQ(Eintrag(text)->shortcut().toString(), taste);
  EXPECT_FALSE(Eintrag("Spielstand laden...")->isEnabled());
  EXPECT_FALSE(Eintrag("Spielstand speichern unter...")->isEnabled());
  EXPECT_TRUE(Eintrag("an")->isChecked());
  EXPECT_EQ(Eintrag("Sound")->isEnabled(), spiel.SoundAn);
  for (const char *text : {"aus", "aus", "an"}) {
    Eintrag(text)->trigger();
    EXPECT_EQ(Eintrag("an")->isChecked(), QString(text) == "an");
    EXPECT_NE(Eintrag("an")->isChecked(), Eintrag("aus")->isChecked());
    EXPECT_EQ(spiel.SoundAn, QString(text) == "an");
  }
  ASSERT_TRUE(QTest::qWaitForWindowActive(spielfeld.get()));
  QTest::keyClick(spielfeld.get(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(spiel.Level, 1);
  GewinneLevel();
  EXPECT_TRUE(Eintrag("Spielstand speichern unter...")->isEnabled());
  Klick("imgNextLevel");
  EXPECT_FALSE(Eintrag("Spielstand speichern unter...")->isEnabled());
  Eintrag("&Beste Spieler...")->trigger();
  EXPECT_FALSE(frmBeste::Fenster(spielfeld.get(), *spielfeld).isHidden());
  Klick(Zelle(1));
  Dann<frmMsgOk>([](frmMsgOk &fenster) { fenster.close(); });
  Eintrag("&zu dieser Anwendung...")->trigger();
  EXPECT_EQ(gesehen, 1);
}

TEST_F(Spielfeld, ein_gespeichertes_spiel_geht_in_jeder_phase_weiter) {
  Starte();
  Klick("imgNeuesSpiel");
  GewinneLevel();
  DannWaehleDatei("");
  Dann<frmMsgOk>([](frmMsgOk &fenster) {
    EXPECT_EQ(Text(fenster, "lblTitel"), "\nKein gültiger Dateiname");
    fenster.close();
  });
  Klick("imgSpeichern");
  DannWaehleDatei("mein spiel");
  Klick("imgSpeichern");
  EXPECT_EQ(Inhalt(Datei("mein spiel.sar")), "1\r\n950\r\n2\r\n");

  const std::function<void()> phasen[] = {[this] { Starte(); }, [] {}, [this] { VerliereLevel(); },
                                          [this] { GewinneLevel(); }};
  for (const auto &phase : phasen) {
    if (&phase != &phasen[0] && spiel.Level != 1) {
      DannAntworte(Qt::Key_J);
      Klick("imgNeuesSpiel");
    }
    phase();
    DannWaehleDatei("mein spiel.sar");
    Dann<frmMsgJa>([](frmMsgJa &frage) {
      EXPECT_EQ(Text(frage, "lblMeldung"),
                "Spielstart in Level:   2\nSpielmodus:  Normal\nPunkte:  950");
      QTest::keyClick(&frage, Qt::Key_J);
    });
    Klick("imgOeffnen");
    EXPECT_EQ(Panel(), "950  0 68 2");
    for (const Bedienung b :
         {Bedienung::imgNextLevel, Bedienung::cmdWiederholen, Bedienung::imgSpeichern})
      EXPECT_FALSE(spielfeld->IstSichtbar(b));
    EXPECT_EQ(Zaehle(Kachel::Sarant), 6);
  }
}

TEST_F(Spielfeld, spricht_zu_hilfsmitteln_nur_von_dem_was_zu_sehen_ist) {
  Starte();
  Klick("imgNeuesSpiel");
  QAccessibleInterface *feld = QAccessible::queryAccessibleInterface(Finde(*spielfeld, "Picture1"));
  int sichtbar = 0;
  for (int n = 1; n <= kZahlfelder; ++n)
    sichtbar += Finde(*spielfeld, "imgDiggi" + QString::number(n))->isHidden() ? 0 : 1;
  EXPECT_EQ(feld->childCount(), kZellen + sichtbar);
  Bild *zelle = Zelle(23);
  QAccessibleInterface *zugang = QAccessible::queryAccessibleInterface(zelle);
  EXPECT_EQ(zugang->role(), QAccessible::Button);
  EXPECT_TRUE(zugang->text(QAccessible::Name).startsWith("Zeile 3, Spalte 3: "));
  spielfeld->SetzeKachel(23, Kachel::Verdeckt);
  zugang->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return zugang->text(QAccessible::Name) == "Zeile 3, Spalte 3: markiert"; }, 1000));
  const auto *panel = spielfeld->findChild<Zifferreihe *>();
  EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<Zifferreihe *>(panel))
                ->text(QAccessible::Name),
            "Punkte: 500");
}

TEST_F(Spielfeld, der_hintergrund_deckt_den_schirm) {
  Starte();
  for (QWidget *fenster : QApplication::topLevelWidgets()) {
    if (auto *hintergrund = qobject_cast<frmHintergrund *>(fenster)) {
      EXPECT_TRUE(hintergrund->isVisible());
      EXPECT_EQ(hintergrund->geometry(), spielfeld->screen()->geometry());
      return;
    }
  }
  ADD_FAILURE() << "no background window";
}

}  // namespace
