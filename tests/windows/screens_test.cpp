// How the windows look at other scales and on other screens.
#include <QLineEdit>
#include <QMetaEnum>
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
#include "shell/iniMain.h"
#include "tests/window_fixture.h"

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

class Bildschirme : public WindowFixture {
 protected:
  Bildschirme() { spiel.Punkte = 99999; }
  ~Bildschirme() override { StelleMassstab(1); }

  /// Makes each window once.
  static void JedesFenster(const std::function<void(QWidget &)> &tue) {
    frmSpielfeld hauptfenster;
    for (const auto &satz : {Moduszeile(3), std::string("Klicken Sie auf »Nächster Level«")}) {
      hauptfenster.SetzeModustext(satz);
      tue(*hauptfenster.centralWidget());
    }
    WarteAufSpiel(hauptfenster);
    tue(*hauptfenster.centralWidget());
    frmOptionen optionen(&hauptfenster, hauptfenster);
    tue(optionen);
    tue(hauptfenster.Bestenfenster());
    for (const Meldung &meldung : Fragen())
      tue(*std::make_unique<frmMsgJa>(meldung));
    for (const Meldung &meldung : Ansagen())
      tue(*std::make_unique<frmMsgOk>(meldung));
  }
  static std::vector<Meldung> Fragen() {
    return {FrageNeuesSpiel(),
            FrageEinstellungen(),
            FrageBeenden(),
            FrageSucheSpielstand(),
            FrageLaden(40, 3, "2147483647"),
            FrageBesteneintrag(),
            FrageEintraegeLoeschen(),
            FrageAuswahl(26, 3)};
  }
  static std::vector<Meldung> Ansagen() {
    return {MeldungSpielBeendet(),
            MeldungVielenDank(),
            MeldungInfo(),
            MeldungKeineFestplatte(),
            MeldungOrdnerFehlgeschlagen(),
            MeldungFalscherDateityp("stand.txt"),
            MeldungKeinDateiname(),
            MeldungLesefehler(8),
            MeldungSchreibfehler(8),
            MeldungKeinBesteneintrag(),
            MeldungBesteNichtGelesen(8),
            MeldungBesteNichtGespeichert(),
            MeldungKeineSoundkarte()};
  }
};

/// Name and size of a picture.
QString Groesse(const QString &bild) {
  const QSize groesse = Katalogbild(bild, 1).size();
  return QString("%1 %2x%3").arg(bild).arg(groesse.width()).arg(groesse.height());
}

/// What a player sees and hears of a control, apart from its pixels.
QString Beschreibung(QWidget &element) {
  auto &zugang = *QAccessible::queryAccessibleInterface(&element);
  const auto Farbe = [&](auto rolle) { return element.palette().color(rolle).name(); };
  QString text;
  QDebug aus(&text);
  aus.noquote() << element.objectName() << element.geometry() << zugang.role()
                << zugang.text(QAccessible::Name).replace('\n', "\\n") << element.toolTip()
                << (element.isHidden() ? "verborgen" : "")
                << (zugang.state().checked ? "gewählt" : "");
  if (auto *bild = qobject_cast<Bild *>(&element)) {
    aus << Groesse(bild->Bildname()) << zugang.actionInterface()->actionNames()
        << (bild->cursor().shape() == Qt::BitmapCursor ? "Hand" : "");
    QMouseEvent druck(QEvent::MouseButtonPress, {}, {}, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(bild, &druck);
    aus << bild->Bildname();
  } else {
    aus << element.font().pixelSize() << element.font().bold() << Farbe(QPalette::WindowText)
        << (element.autoFillBackground() ? Farbe(QPalette::Window) : "")
        << element.property("alignment").toInt();
  }
  return text.trimmed();
}

TEST_F(Bildschirme, AllesStehtWieEsImInventarSteht) {
  QStringList zeilen;
  const auto Verzeichne = [&](QWidget &fenster) {
    fenster.grab();
    const int geladen = GeladeneBilder();
    fenster.grab();
    EXPECT_EQ(GeladeneBilder(), geladen) << "a picture that is missing is looked for again";
    zeilen << ""
           << "»" + fenster.window()->windowTitle() + "« " + Beschreibung(fenster);
    for (QWidget *element : fenster.findChildren<QWidget *>()) {
      static const QRegularExpression ort("^img(Sar|Diggi)(\\d+)$");
      const auto nummer = ort.match(element->objectName());
      if (!nummer.hasMatch() || nummer.captured(2).toInt() % 11 == 1)  // A diagonal stands for all.
        zeilen << Beschreibung(*element);
    }
  };
  frmSpielfeld hauptfenster;
  Verzeichne(*hauptfenster.centralWidget());
  for (const QAction *eintrag : hauptfenster.findChildren<QAction *>())
    zeilen << QString("»%1« %2").arg(eintrag->text(), eintrag->shortcut().toString()).trimmed();
  frmOptionen optionen(&hauptfenster, hauptfenster);
  frmMsgJa frage(FrageBeenden());
  frmMsgOk ansage(MeldungInfo());
  for (QWidget *fenster :
       QList<QWidget *>{&optionen, &hauptfenster.Bestenfenster(), &frage, &ansage})
    Verzeichne(*fenster);
  zeilen << "";
  for (int k = 0; k <= kLeereZiffer; ++k)
    zeilen << QStringList{Groesse(frmZahlen::imgZahl(k)),
                          Groesse(frmDigital::imgDiggi(k)),
                          Groesse(frmDigital::imgRot(k)),
                          Groesse(frmBilder::imgPlatte(k % 3)),
                          Groesse(frmBilder::imgPfeil(k % 2)),
                          Groesse(frmBilder::imgPfeilhoch(k % 2)),
                          Groesse(frmBilder::imgSarant())}
                  .join(" | ");
  for (const auto &meldungen : {Fragen(), Ansagen()})
    for (const Meldung &meldung : meldungen)
      zeilen << QString("%1 | %2 | %3 | %4")
                    .arg(meldung.Klang)
                    .arg(static_cast<int>(meldung.lage))
                    .arg(meldung.lblMeldung.c_str(), meldung.lblTitel.c_str())
                    .replace("\r\n", "\\n");
  const QString neu = QCoreApplication::applicationDirPath() + "/inventory.txt";
  WriteFile(neu, zeilen.join('\n').replace(folder.path(), "ORDNER").toUtf8() + '\n');
  EXPECT_TRUE(ReadFile(neu) == ReadFile(INVENTORY)) << "diff " INVENTORY " " << qPrintable(neu);
}

TEST_F(Bildschirme, DasHauptfensterFuelltDenSchirmHoechstens) {
  StelleMassstab(Schrumpffaktor());
  const frmSpielfeld fenster;
  const QSize frei = fenster.screen()->availableSize() - QSize(16, 40);  // For the frame.
  EXPECT_EQ(fenster.size().boundedTo(frei), fenster.size());
  EXPECT_TRUE(Massstab() == 1 || frei.height() - fenster.height() < 8);
}

TEST_F(Bildschirme, InJedemMassstabPasstAlles) {
  for (int prozent = 55; prozent <= 300; prozent += 5) {
    SCOPED_TRACE(prozent);
    StelleMassstab(prozent / 100.0);
    JedesFenster(ErwarteAllesIstDrin);
  }
}

TEST_F(WindowFixture, AufEinemDichterenSchirmWerdenDieBilderScharf) {
  const auto Mitte = [](const QPixmap &bild) {  // Where no corner lets the background through.
    return bild.toImage().convertToFormat(QImage::Format_RGB32).copy(20, 20, 54, 54);
  };
  EXPECT_EQ(Streckbild("schreibtisch", {1286, 1294}).width(), 643);  // Twice as large at most.
  EXPECT_EQ(Streckbild("schreibtisch", {1287, 1294}).width(), 1286);
  board->grab();
  board->move(QGuiApplication::screens().at(1)->geometry().topLeft());
  EXPECT_EQ(board->grab().size(), board->size() * 2);
  EXPECT_EQ(Mitte(Find(*board, "imgSar1")->grab()), Mitte(Katalogbild("platte1", 2)));
}

TEST_F(WindowFixture, EineMeldungBrichtEinenLangenPfadUmUndKuerztEinenZuLangen) {
  for (const auto &[length, pattern] : {std::pair(90, "x{90}"), {900, "x+…x+"}}) {
    spiel.Datenordner = "/heim/" + std::string(static_cast<std::size_t>(length), 'x') + "/kammern";
    Then<frmMsgJa>([pattern = pattern](frmMsgJa &fenster) {
      const QRegularExpression shown(
          QString("^ImOrdner/heim/%1/kammernbefindet.*Spielstand!$").arg(pattern));
      const QString text = Text(fenster, "lblMeldung").remove(QRegularExpression("\\s"));
      EXPECT_TRUE(shown.match(text).hasMatch()) << text.toStdString();
      fenster.close();
    });
    board->Frage(FrageSucheSpielstand());
  }
}

}  // namespace
