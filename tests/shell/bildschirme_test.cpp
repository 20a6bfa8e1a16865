// How the windows look at other scales and on other screens.
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>

#include "controls/beschriftung.h"
#include "controls/bilder.h"
#include "controls/masse.h"
#include "controls/zifferreihe.h"
#include "core/befehle.h"
#include "core/meldungen.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmOptionen.h"
#include "persistence/modBeste.h"
#include "tests/fensterprobe.h"

namespace {

/// Everything of a window lies within it, and every text within its place.
void ErwarteAllesIstDrin(const QWidget &fenster) {
  for (const QWidget *kind : fenster.findChildren<QWidget *>()) {
    SCOPED_TRACE(qPrintable(kind->objectName() + " of " + fenster.windowTitle()));
    EXPECT_TRUE(kind->parentWidget()->rect().contains(kind->geometry()));
    EXPECT_TRUE(!qobject_cast<const QLineEdit *>(kind) ||
                kind->fontMetrics().height() <= kind->height());
    const auto *text = qobject_cast<const QLabel *>(kind);
    if (!text)
      continue;
    EXPECT_LE(text->heightForWidth(text->width()), text->height()) << qPrintable(text->text());
    EXPECT_TRUE(text->wordWrap() || text->sizeHint().width() <= text->width());
    EXPECT_FALSE(text->text().contains("…")) << qPrintable(text->text());
  }
}

template <class Fenster, class... Meldungen>
void ErwarteMeldungen(const Meldungen &...meldungen) {
  (ErwarteAllesIstDrin(Fenster(meldungen)), ...);
}

class Bildschirme : public testing::Test {
 protected:
  Bildschirme() {
    spiel = {};
    spiel.DatenordnerAktiv = true;
    spiel.Datenordner = ordner.path().toStdString();
    BestenlisteAnlegen();
  }
  ~Bildschirme() override { StelleMassstab(1); }

  QTemporaryDir ordner;
};

TEST_F(Bildschirme, InJedemMassstabPasstAlles) {
  spiel.Punkte = 99999;
  for (int prozent = 70; prozent <= 300; prozent += 5) {
    SCOPED_TRACE(prozent);
    StelleMassstab(prozent / 100.0);
    frmSpielfeld hauptfenster;
    const auto &flaeche = *hauptfenster.findChild<Bild *>("frmSpielfeld");
    const auto &text = *hauptfenster.findChild<QLabel *>("lblModus");
    for (const auto &satz : {Moduszeile(3), std::string("Klicken Sie auf »Nächster Level«")}) {
      hauptfenster.SetzeModustext(satz);
      ErwarteAllesIstDrin(flaeche);
    }
    WarteAufSpiel(hauptfenster);
    ErwarteAllesIstDrin(flaeche);
    EXPECT_LE(text.y() + text.heightForWidth(text.width()),
              hauptfenster.findChild<Bild *>("imgModus1")->y());
    ErwarteAllesIstDrin(frmOptionen(&hauptfenster, hauptfenster));
    ErwarteAllesIstDrin(frmBeste(&hauptfenster, hauptfenster));
    ErwarteMeldungen<frmMsgJa>(FrageNeuesSpiel(), FrageEinstellungen(), FrageBeenden(),
                               FrageSucheSpielstand(), FrageLaden(40, 3, "2147483647"),
                               FrageBesteneintrag(), FrageEintraegeLoeschen(), FrageAuswahl(26, 3));
    ErwarteMeldungen<frmMsgOk>(
        MeldungSpielBeendet(), MeldungVielenDank(), MeldungInfo(), MeldungKeineFestplatte(),
        MeldungOrdnerFehlgeschlagen(), MeldungFalscherDateityp("stand.txt"), MeldungKeinDateiname(),
        MeldungLesefehler(8), MeldungSchreibfehler(8), MeldungKeinBesteneintrag(),
        MeldungBesteNichtGelesen(8), MeldungBesteNichtGespeichert(), MeldungKeineSoundkarte());
  }
}

TEST_F(Fensterprobe, AufEinemDichterenSchirmWerdenDieBilderScharf) {
  const auto Mitte = [](const QPixmap &bild) {  // Where no corner lets the background through.
    return bild.toImage().convertToFormat(QImage::Format_RGB32).copy(20, 20, 54, 54);
  };
  EXPECT_EQ(Streckbild("schreibtisch", {1286, 1294}).width(), 643);  // Twice as large at most.
  EXPECT_EQ(Streckbild("schreibtisch", {1287, 1294}).width(), 1286);
  spielfeld->grab();
  spielfeld->move(QGuiApplication::screens().at(1)->geometry().topLeft());
  EXPECT_EQ(spielfeld->grab().size(), spielfeld->size() * 2);
  EXPECT_EQ(Mitte(Finde(*spielfeld, "imgSar1")->grab()), Mitte(Katalogbild("platte1", 2)));
}

TEST_F(Fensterprobe, MeldungenKuerzenEinenLangenPfadUndWerdenNichtAmTextGegriffen) {
  spiel.Datenordner = "/heim/" + std::string(200, 'x') + "/nachtkammern";
  Dann<frmMsgJa>([](frmMsgJa &fenster) {
    const QRegularExpression gekuerzt(
        "^Im Ordner /heim/x+….*/nachtkammern\nbefindet .*Spielstand!$");
    EXPECT_TRUE(gekuerzt.match(Text(fenster, "lblMeldung")).hasMatch());
    QWidget *panel = Finde<QWidget>(fenster, "lblMeldung")->parentWidget();
    for (QWidget *element : {panel, panel->window()}) {
      QMouseEvent druck(QEvent::MouseButtonPress, {}, {}, Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(element, &druck);
      EXPECT_EQ(druck.isAccepted(), element == &fenster);
    }
    fenster.close();
  });
  spielfeld->Frage(FrageSucheSpielstand());
}

}  // namespace
