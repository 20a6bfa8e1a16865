#include <QDir>
#include <QLineEdit>

#include "controls/zifferreihe.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmOptionen.h"
#include "tests/window_fixture.h"

namespace {

using Meldungen = WindowFixture;

TEST_F(Meldungen, SchliessenNurDurchEineAntwort) {
  const std::pair<const char *, std::int16_t> faelle[] = {
      {"lblJa", kJa}, {"lblNein", kNein}, {"Image1", kAbgebrochen}, {"", kAbgebrochen}};
  for (const auto &[knopf, antwort] : faelle) {
    Then<frmMsgJa>([name = knopf](frmMsgJa &fenster) {
      for (const char *taste : {"Return", "Enter", "F1", "Space", "Ctrl+J", "Alt+N", "Meta+Esc"})
        Press(fenster, taste);
      QTest::mousePress(Find(fenster, "lblJa"), Qt::LeftButton);
      QTest::mouseRelease(Find(fenster, "lblJa"), Qt::LeftButton, {}, QPoint(-50, 0));
      ASSERT_TRUE(fenster.isVisible());
      if (*name)
        Click(Find(fenster, name));
      else
        fenster.close();  // As the desktop does it.
    });
    spiel.Antwort = kJa;
    EXPECT_EQ(board->Frage(FrageBeenden()), antwort == kJa) << knopf;
    EXPECT_EQ(spiel.Antwort, antwort) << knopf;
  }
}

TEST_F(Meldungen, DieTasteZaehltAnIhremPlatzWoDasAlphabetKeinJUndNHat) {
  for (const auto &[platz, antwort] : {std::pair(0x24U, kJa), {0x31U, kNein}}) {
    Then<frmMsgJa>([platz = platz](frmMsgJa &fenster) {
      for (const int taste : {0x58, 0x41E}) {  // A Latin letter, which is taken as it is, and not.
        EXPECT_TRUE(fenster.isVisible());
        QKeyEvent druck(QEvent::KeyPress, taste, {}, platz + KEY_OFFSET, 0, 0);
        QApplication::sendEvent(&fenster, &druck);
      }
      fenster.close();
    });
    board->Frage(FrageBeenden());
    EXPECT_EQ(spiel.Antwort, antwort);
  }
}

TEST_F(Meldungen, StehenAnIhremOrtUndLassenDenPfeilBlinken) {
  const QRect haupt = board->frameGeometry();
  Then<frmMsgJa>([&](frmMsgJa &fenster) {
    EXPECT_EQ(fenster.pos(),
              haupt.topLeft() + QPoint((haupt.width() - 392) / 2, (haupt.height() - 236) / 2));
    const Bild *pfeil = Find(*board, "imgZeigeStart");
    const QString vorher = pfeil->Bildname();
    EXPECT_TRUE(QTest::qWaitFor([&] { return pfeil->Bildname() != vorher; }, 2000));
    fenster.close();
  });
  board->Frage(FrageNeuesSpiel());
  Then<frmMsgOk>([&](frmMsgOk &fenster) {
    EXPECT_EQ(fenster.geometry(), QRect(haupt.topLeft() + QPoint(7, 7), QSize(387, 228)));
    fenster.close();
  });
  board->Melde(MeldungVielenDank());
  Click("imgNeuesSpiel");
  Verliere();
  const Bild *pfeil = Find(*board, "imgWeiter");
  EXPECT_TRUE(QTest::qWaitFor([&] { return pfeil->Bildname() == "pfeil0"; }, 2000));
}

TEST_F(Meldungen, DerZweiteDruckEinesDoppelklicksGiltNurWoDerErsteGalt) {
  Click("imgNeuesSpiel");
  const auto Send = [&](const QByteArray &name, Qt::MouseButton button, QEvent::Type press,
                        int time) {
    for (const auto type : {press, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, {5, 5}, {5, 5}, button, button, {});
      event.setTimestamp(static_cast<quint64>(time));
      QApplication::sendEvent(Find(*board, name), &event);
    }
  };
  int cell = 1;
  while (board->LiesKachel(cell) != Kachel::Verdeckt)
    ++cell;
  const QByteArray name = "imgSar" + QByteArray::number(cell);
  Send(name, Qt::RightButton, QEvent::MouseButtonDblClick, 100'000);
  EXPECT_EQ(board->LiesKachel(cell), Kachel::Verdeckt);
  Send(name, Qt::RightButton, QEvent::MouseButtonPress, 200'000);
  EXPECT_EQ(board->LiesKachel(cell), Kachel::Markiert);
  Send(name, Qt::RightButton, QEvent::MouseButtonDblClick, 200'100);
  EXPECT_EQ(board->LiesKachel(cell), Kachel::Verdeckt);
  // A question would fail the test.
  Send("imgNeuesSpiel", Qt::LeftButton, QEvent::MouseButtonDblClick, 300'000);
  Send("imgNeuesSpiel", Qt::LeftButton, QEvent::MouseButtonRelease, 300'010);
}

TEST_F(Meldungen, EineGehalteneTasteGiltNichtImNaechstenFenster) {
  const auto Send = [](QEvent::Type type, quint64 time, QWidget *target) {
    QKeyEvent event(type, Qt::Key_J, {}, "j");
    event.setTimestamp(time);
    QApplication::sendEvent(target, &event);
  };
  spiel.Punkte = 20000;
  Then<frmMsgJa>([&](frmMsgJa &window) { Send(QEvent::KeyPress, 1000, &window); });
  Then<frmBeste>([&](frmBeste &window) {
    auto *name = window.findChild<QLineEdit *>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const quint64 time : {1030U, 1060U}) {  // As an X server reports a repeat.
      Send(QEvent::KeyRelease, time, name);
      Send(QEvent::KeyPress, time, name);
    }
    EXPECT_EQ(name->text(), "Spieler");
    Send(QEvent::KeyRelease, 1090, name);
    Send(QEvent::KeyPress, 1200, name);
    EXPECT_EQ(name->text(), "j");
    Press(*name, "Alt+A");
    EXPECT_EQ(name->text(), "j");
    name->clear();
    QTest::keyClicks(name, QString::fromUtf8("Łu\u0308€"));
    EXPECT_EQ(name->text(), "ü€");
    window.close();
  });
  board->BestenlistePruefen();
}

using Optionen = WindowFixture;

TEST_F(Optionen, JedeStufeInJedemModusBeginntIhrSpiel) {
  constexpr int kPunkte[][6] = {{500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1500, 3000, 4500, 6000, 7500},
                                {500, 1750, 3500, 5250, 7000, 8750}};
  for (int modus = 1; modus <= kModi; ++modus) {
    for (int stufe = 0; stufe < 6; ++stufe) {
      const bool neu = modus != spiel.Spielmodus;
      WriteFile(DataFile("sarant.ini"), "fremd");
      for (const char *antwort : {"N", "J"}) {
        spiel.Punkte = 0;
        Then<frmOptionen>([&](frmOptionen &fenster) {
          if (stufe != 0)  // The first tier is chosen already, and its face takes no clicks.
            Click(Find(fenster, "imgLevel" + QString::number(stufe)));
          if (neu)
            Click(Find(fenster, "imgModus" + QString::number(modus)));
          ThenAnswer(antwort);
          Click(Find(fenster, "cmdNehmen"));
          EXPECT_FALSE(fenster.isVisible());
        });
        Click("imgEinstellungen");
        EXPECT_EQ(spiel.Punkte, *antwort == 'J' ? kPunkte[modus - 1][stufe] : 0);
      }
      EXPECT_EQ(Find(*board, "imgZeigeStart")->Bildname(), "");
      EXPECT_EQ(spiel.Level, 5 * stufe + 1);
      EXPECT_EQ(spiel.Spielmodus, modus);
      // A mode that stays as it was is not written.
      EXPECT_EQ(ReadFile(DataFile("sarant.ini")),
                neu ? QByteArray::number(modus) + "\r\n" : "fremd");
    }
  }
}

class Bestenfenster : public WindowFixture {
 protected:
  frmBeste &Fenster() { return board->Bestenfenster(); }
  /// Enters the list with some points, and does something with the open window.
  void TrageEin(std::int32_t punkte, const std::function<void(frmBeste &)> &action) {
    spiel.Punkte = punkte;
    ThenAnswer("J");
    Then<frmBeste>(action);
    board->BestenlistePruefen();
  }
  QStringList Zeilen() {
    return QString::fromLatin1(ReadFile(DataFile("sarant.txt"))).split("\r\n");
  }
  static QString Gezeigt(frmBeste &fenster, int zeile) {
    return fenster.findChildren<Zifferreihe *>().at(zeile)->Gezeigt();
  }
  static QLineEdit *Name(frmBeste &fenster, int zeile) {
    return fenster.findChildren<QLineEdit *>().at(zeile);
  }
  static void Ok(frmBeste &fenster) { Click(Find(fenster, "cmdEnde")); }
};

TEST_F(Bestenfenster, EinEintragStehtAnSeinemPlatzUndGleichstandDarunter) {
  constexpr int kFaelle[][2] = {{13001, 4}, {14500, 2}, {99999, 0}, {99998, 1}, {15001, 2}};
  for (const auto &[punkte, platz] : kFaelle) {
    TrageEin(punkte, [this, p = platz, wert = punkte](frmBeste &fenster) {
      EXPECT_EQ(Name(fenster, p)->selectedText(), "Spieler");
      EXPECT_EQ(Gezeigt(fenster, p), QString::number(wert));
      EXPECT_TRUE(Find(fenster, "lblClear")->isHidden());
      Name(fenster, p)->insert("Käthe €");  // As an input method would; it replaces the selection.
      board->showMinimized();
      board->showNormal();
      for (const char *taste : {"Return", "Esc", "Alt+A"})
        Press(fenster, taste);
      ASSERT_TRUE(fenster.isVisible());
      Ok(fenster);
    });
    EXPECT_EQ(Zeilen().at(platz), QString::fromLatin1("K\xe4the \x80"));
    EXPECT_EQ(Zeilen().at(platz + 5), QString::number(punkte));
  }
  EXPECT_EQ(spiel.Bestenschwelle, 14500);
  EXPECT_EQ(Zeilen().size(), 11);
}

TEST_F(Bestenfenster, DasSchliessfeldVerliertDenEintragUndEinLeererNameHeisstSpieler) {
  const QByteArray vorher = ReadFile(DataFile("sarant.txt"));
  TrageEin(20000, [](frmBeste &fenster) { fenster.close(); });
  EXPECT_EQ(ReadFile(DataFile("sarant.txt")), vorher);
  TrageEin(20000, [](frmBeste &fenster) {
    EXPECT_EQ(Gezeigt(fenster, 1), "15000");
    Name(fenster, 0)->clear();
    Ok(fenster);
  });
  EXPECT_EQ(Zeilen().first(), "Spieler");
}

TEST_F(Bestenfenster, LesendBleibtAllesGesperrtBisEinEintragDasFensterUebernimmt) {
  WriteFile(DataFile("sarant.txt"), "A\r\nB\r\nC\r\nD\r\nE\r\n1234567\r\n 42\r\nabc\r\n0\r\n7\r\n");
  Fenster().ZeigeZumLesen();
  const char *gezeigt[] = {"1234567", "42", "", "", "7"};
  for (int zeile = 0; zeile < kBeste; ++zeile)
    EXPECT_EQ(Gezeigt(Fenster(), zeile), gezeigt[zeile]);
  EXPECT_EQ(Fenster().pos(), board->frameGeometry().topLeft() - QPoint(7, 7));
  QTest::keyClicks(Name(Fenster(), 0), "x");
  EXPECT_EQ(Name(Fenster(), 0)->text(), "A");
  TrageEin(40, Ok);
  EXPECT_TRUE(Fenster().isHidden());
  EXPECT_EQ(Zeilen().at(2), "Spieler");
}

TEST_F(Bestenfenster, EineKurzeListeIstNachOkVollUndWasNichtGeloeschtWurdeWirdGemeldet) {
  const auto DannMelde = [this](const Meldung &meldung) {
    Then<frmMsgOk>([meldung](frmMsgOk &fenster) {
      const QString text = QString::fromStdString(meldung.lblMeldung).remove('\r');
      EXPECT_EQ(Text(fenster, "lblMeldung"), text);
      fenster.close();
    });
  };
  WriteFile(DataFile("sarant.txt"), "");
  DannMelde(MeldungBesteNichtGelesen(5));
  Fenster().ZeigeZumLesen();
  EXPECT_TRUE(Find(Fenster(), "lblClear")->isHidden());
  Ok(Fenster());
  Fenster().ZeigeZumLesen();
  QFile::remove(DataFile("sarant.txt"));
  QDir().mkdir(DataFile("sarant.txt"));
  ThenAnswer("J");
  DannMelde(MeldungBesteNichtGespeichert());
  DannMelde(MeldungBesteNichtGelesen(2));
  ASSERT_FALSE(Find(Fenster(), "lblClear")->isHidden());
  Click(Find(Fenster(), "lblClear"));
}

TEST_F(Bestenfenster, WirdNurMitJaGeloescht) {
  TrageEin(16000, Ok);
  Fenster().close();  // Unloading brings the access key back.
  for (const char *antwort : {"N", "J"}) {
    const bool ja = *antwort == 'J';
    Fenster().ZeigeZumLesen();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
    ThenAnswer(antwort);
    Press(Fenster(), "Alt+A");
    EXPECT_EQ(Zeilen().first(), ja ? "Niemand" : "Spieler");
    EXPECT_EQ(spiel.Bestenschwelle, ja ? 13000 : 13500);
    EXPECT_TRUE(Fenster().isHidden());
  }
  Fenster().ZeigeZumLesen();  // A list of defaults is not cleared.
  EXPECT_TRUE(Find(Fenster(), "lblClear")->isHidden());
}

}  // namespace
