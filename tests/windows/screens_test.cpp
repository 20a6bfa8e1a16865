// How the windows look at other scales and on other screens.
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QWindow>

#include "controls/beschriftung.h"
#include "controls/bilder.h"
#include "controls/masse.h"
#include "core/befehle.h"
#include "core/meldungen.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmOptionen.h"
#include "tests/window_fixture.h"

namespace {

// clang-format off
std::vector<Meldung> Messages() {
  return {FrageNeuesSpiel, FrageEinstellungen(), FrageBeenden, FrageSucheSpielstand(),
          FrageLaden(40, 3, "2147483647"), FrageBesteneintrag, FrageEintraegeLoeschen,
          FrageAuswahl(26, 3), MeldungSpielBeendet, MeldungVielenDank, MeldungInfo,
          MeldungKeineFestplatte, MeldungOrdnerFehlgeschlagen, MeldungFalscherDateityp("stand.txt"),
          MeldungKeinDateiname, MeldungLesefehler(8), MeldungSchreibfehler(8),
          MeldungKeinBesteneintrag, MeldungBesteNichtGelesen(8), MeldungBesteNichtGespeichert,
          MeldungKeineSoundkarte};
}
// clang-format on

/// Everything of a window lies within it, and every text within its place.
void ExpectAllFits(const QWidget &window) {
  for (const QWidget *child : window.findChildren<QWidget *>()) {
    SCOPED_TRACE(qPrintable(child->objectName() + " of " + window.windowTitle()));
    EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry()));
    EXPECT_TRUE(!qobject_cast<const QLineEdit *>(child) ||
                child->fontMetrics().height() <= child->height());
    if (const auto *text = qobject_cast<const QLabel *>(child)) {
      EXPECT_LE(text->heightForWidth(text->width()), text->height());
      EXPECT_TRUE(text->wordWrap() || text->sizeHint().width() <= text->width());
      EXPECT_FALSE(text->text().contains("…"));
    }
  }
}

class Screens : public WindowFixture {
 protected:
  Screens() { spiel.Punkte = 99999; }
  ~Screens() override { StelleMassstab(1); }

  /// Makes each window once, and both message windows for each of the messages.
  static void EachWindow(const std::vector<Meldung> &messages,
                         const std::function<void(QWidget &)> &action) {
    frmSpielfeld mainWindow;
    WarteAufSpiel(mainWindow);
    action(*mainWindow.centralWidget());
    action(*std::make_unique<frmOptionen>(&mainWindow, mainWindow));
    action(mainWindow.Bestenfenster());
    for (const Meldung &message : messages) {
      action(*std::make_unique<frmMsgJa>(&mainWindow, message));
      action(*std::make_unique<frmMsgOk>(&mainWindow, message));
    }
  }
};

/// Name and size of a picture.
QString Size(const QString &picture) {
  const QSize size = Katalogbild(picture, 1).size();
  return QString("%1 %2x%3").arg(picture).arg(size.width()).arg(size.height());
}

/// What a player sees and hears of a control, apart from its pixels.
QString Describe(QWidget &element) {
  auto &access = *QAccessible::queryAccessibleInterface(&element);
  const auto Colour = [&](auto role) { return element.palette().color(role).name(); };
  QString text;
  QDebug out(&text);
  out.noquote() << element.objectName() << element.geometry() << access.role()
                << access.text(QAccessible::Name).replace('\n', "\\n") << element.toolTip()
                << (element.isHidden() ? "verborgen" : "")
                << (access.state().checked ? "gewählt" : "")
                << (access.state().focusable ? "bedienbar" : "");
  if (auto *picture = qobject_cast<Bild *>(&element)) {
    out << Size(picture->Bildname()) << access.actionInterface()->actionNames()
        << (picture->cursor().shape() == Qt::BitmapCursor ? "Hand" : "");
    QMouseEvent press(QEvent::MouseButtonPress, {}, {}, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(picture, &press);
    out << picture->Bildname();
  } else {
    out << element.font().pixelSize() << element.font().bold() << Colour(QPalette::WindowText)
        << (element.autoFillBackground() ? Colour(QPalette::Window) : "")
        << element.property("alignment").toInt();
  }
  return text.trimmed();
}

TEST_F(Screens, AllStandsAsTheInventoryTells) {
  QStringList lines;
  EachWindow({FrageBeenden}, [&](QWidget &window) {
    window.grab();
    const int loaded = GeladeneBilder();
    window.grab();
    EXPECT_EQ(GeladeneBilder(), loaded) << "a picture that is missing is looked for again";
    lines << ""
          << "»" + window.window()->windowTitle() + "« " + Describe(window);
    for (QWidget *element : window.findChildren<QWidget *>()) {
      static const QRegularExpression many("^img(Sar|Diggi|Licht)(\\d*)$");
      const auto number = many.match(element->objectName());
      if (!number.hasMatch() || number.captured(2).toInt() % 33 == 1)  // Four stand for all.
        lines << Describe(*element);
    }
    for (const QAction *entry : window.window()->findChildren<QAction *>())
      lines << QString("»%1« %2 %3 %4")
                   .arg(entry->text(), entry->objectName(), entry->shortcut().toString(),
                        entry->isChecked()     ? "gewählt"
                        : entry->isSeparator() ? "Linie"
                                               : "")
                   .trimmed();
  });
  for (int k = 0; k <= kLeereZiffer; ++k) {
    lines << "";
    for (const QString &picture : {frmZahlen::imgZahl(k), frmDigital::imgDiggi(k),
                                   frmDigital::imgRot(k), Kachelbild(static_cast<Kachel>(k % 4)),
                                   frmBilder::imgPfeil(k % 2), frmBilder::imgPfeilhoch(k % 2)})
      lines.back() += " | " + Size(picture);
  }
  told << lines.join('\n').replace(folder.path(), "ORDNER") << "\n";
  for (const Meldung &message : Messages())
    told << message.sound << " | " << static_cast<int>(message.lage) << " | "
         << QString::fromStdString(message.lblMeldung + " | " + message.lblTitel)
                .replace("\r\n", "\\n")
                .replace(folder.path(), "ORDNER")
         << "\n";
}

TEST_F(Screens, TheMainWindowFillsTheScreenAtMost) {
  StelleMassstab(Schrumpffaktor());
  const frmSpielfeld window;
  const QSize free = window.screen()->availableSize() - QSize(16, 40);  // For the frame.
  EXPECT_EQ(window.size().boundedTo(free), window.size());
  EXPECT_TRUE(Massstab() == 1 || free.height() - window.height() < 8);
}

TEST_F(Screens, EverythingFitsAtEachScale) {
  for (const double scale : {0.55, 0.85, 2.45}) {
    SCOPED_TRACE(scale);
    StelleMassstab(scale);
    EachWindow(Messages(), ExpectAllFits);
  }
}

TEST_F(WindowFixture, AGreatStoneWaitsUnderThePlatesAndAWonBoardLiesInShadow) {
  const auto Middle = [&](int cell) {  // As it is seen under the light.
    const Bild &tile = *Find(*board, "imgSar" + QString::number(cell));
    return tile.parentWidget()->grab(tile.geometry()).toImage().pixelColor(30, 30);
  };
  EXPECT_GT(Middle(46).hslSaturation(), 60);
  for (const char *button : {"imgNeuesSpiel", "imgNextLevel"}) {
    Click(button);
    for (const int cell : {1, 46, 100})
      board->SetzeKachel(cell, Kachel::Verdeckt);
    EXPECT_LT(Middle(46).hslSaturation(), 40);
    EXPECT_GT(Middle(1).lightness(), Middle(100).lightness() + 20);
    EXPECT_GT(Middle(100).lightness(), 120);
    board->Zeige(Bedienung::imgNextLevel, true);
    EXPECT_LT(Middle(1).lightness(), 110);
  }
}

TEST_F(WindowFixture, OnADenserScreenPicturesAreSharpAndWindowsKeepTheirSize) {
  const auto Middle = [](const QPixmap &picture) {  // Where no corner lets the background through.
    return picture.toImage().convertToFormat(QImage::Format_RGB32).copy(20, 20, 54, 54);
  };
  EXPECT_EQ(Streckbild("schreibtisch", {1286, 1294}).width(), 643);  // Twice as large at most.
  EXPECT_EQ(Streckbild("schreibtisch", {1287, 1294}).width(), 1286);
  EXPECT_EQ(Katalogbild("platte1", 1.5).devicePixelRatio(), 1.5);
  board->grab();
  const QSize size = board->size();
  board->setScreen(QGuiApplication::screens().at(1));
  board->move(board->screen()->geometry().topLeft());
  // A desktop keeps the size in pixels, and Qt the limits that come with it.
  QWindow *window = board->windowHandle();
  window->setMinimumSize(size / 2);
  window->setMaximumSize(size / 2);
  window->resize(size / 2);
  emit window->screenChanged(window->screen());
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->size() == size; }));
  EXPECT_EQ(window->minimumSize(), size);
  EXPECT_EQ(Middle(Find(*board, "imgSar1")->grab()), Middle(Katalogbild("platte1", 2)));
}

TEST_F(WindowFixture, AMessageWrapsALongPathAndShortensOneThatIsTooLong) {
  for (const auto &[length, pattern] : {std::pair(90, "x{90}"), {900, "x+…x+"}}) {
    spiel.Datenordner = "/heim/" + std::string(static_cast<std::size_t>(length), 'x') + "/kammern";
    const frmMsgJa window(board.get(), FrageSucheSpielstand());
    const QString text =
        Find<QLabel>(window, "lblMeldung")->text().remove(QRegularExpression("\\s"));
    EXPECT_TRUE(text.contains(QRegularExpression(
        QString("^ImOrdner/heim/%1/kammernbefindet.*Spielstand!$").arg(pattern))))
        << qPrintable(text);
  }
}

}  // namespace
