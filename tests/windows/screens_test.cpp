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

/// What a player sees and hears of a control, apart from its pixels, in the columns of the table.
QString Describe(QWidget &element) {
  auto &access = *QAccessible::queryAccessibleInterface(&element);
  const auto Colour = [&](auto role) { return element.palette().color(role).name(); };
  QString text;
  QDebug out(&text);
  out.noquote() << element.objectName() << "|" << element.geometry() << "|" << access.role()
                << access.text(QAccessible::Name).replace('\n', '/') << "|" << element.toolTip()
                << (element.isHidden() ? "| hidden" : "|")
                << (access.state().checked ? "chosen" : "")
                << (access.state().focusable ? "operable |" : "|");
  if (auto *picture = qobject_cast<Bild *>(&element)) {
    out << picture->Bildname() << access.actionInterface()->actionNames().join("+")
        << (picture->cursor().shape() == Qt::BitmapCursor ? "hand" : "");
  } else {
    out << element.font().pixelSize() << (element.font().bold() ? "bold" : "")
        << Colour(QPalette::WindowText)
        << (element.autoFillBackground() ? "on " + Colour(QPalette::Window) : "")
        << (element.property("alignment").toInt() & Qt::AlignHCenter ? "centred" : "");
  }
  static const QRegularExpression place("QRect\\((\\S+) (\\S+)\\)"), blanks("\\s+"),
      role("QAccessible::");
  return text.replace(place, "\\1 \\2").remove(role).replace(blanks, " ").trimmed();
}

TEST_F(Screens, AllStandsAsTheInventoryTells) {
  QStringList lines;
  EachWindow({FrageBeenden}, [&](QWidget &window) {
    window.grab();
    const int loaded = GeladeneBilder();
    window.grab();
    EXPECT_EQ(GeladeneBilder(), loaded) << "a picture that is missing is looked for again";
    lines << ""
          << "»" + window.window()->windowTitle() + "«"
          << "name | place, size | role, name told | tool tip | state | picture, actions or text"
          << Describe(window);
    for (QWidget *element : window.findChildren<QWidget *>()) {
      static const QRegularExpression many("^img(Sar|Diggi|Licht)(\\d*)$");
      const auto number = many.match(element->objectName());
      if (!number.hasMatch() || number.captured(2).toInt() % 33 == 1)  // Four stand for all.
        lines << Describe(*element);
    }
    for (const QAction *entry : window.window()->findChildren<QAction *>())
      lines << QString("»%1« %2 %3 %4")
                   .arg(entry->text(), entry->objectName(), entry->shortcut().toString(),
                        entry->isChecked()     ? "chosen"
                        : entry->isSeparator() ? "line"
                                               : "")
                   .trimmed();
  });
  lines << ""
        << "sound | place | text | title";
  for (const Meldung &message : Messages()) {
    static constexpr std::array kSounds{"none", "", "question", "error", "blip", "start", "tada"};
    static constexpr std::array kPlaces{"centre", "right below", "left above"};
    lines << QString("%1 | %2 | ")
                     .arg(Element(kSounds, message.sound), Element(kPlaces, message.lage)) +
                 QString::fromStdString(message.lblMeldung + " | " + message.lblTitel)
                     .replace("\r\n", "/");
  }
  told << lines.join('\n').replace(folder.path(), "FOLDER") << "\n";
}

TEST_F(Screens, EveryTextFitsAtEachScale) {
  for (const double scale : {0.55, 0.85, 2.45}) {
    StelleMassstab(scale);
    EachWindow(Messages(), [scale](QWidget &window) {
      for (const QWidget *element : window.findChildren<QWidget *>()) {
        const auto *text = qobject_cast<const QLabel *>(element);
        EXPECT_TRUE(element->parentWidget()->rect().contains(element->geometry()));
        EXPECT_FALSE(text && text->text().contains("…")) << scale << text->text();
        EXPECT_TRUE(!qobject_cast<const QLineEdit *>(element) ||
                    element->fontMetrics().height() <= element->height());
      }
    });
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

TEST_F(WindowFixture, KeepsItsSizeOnADenserScreen) {
  EXPECT_EQ(Streckbild("schreibtisch", {1286, 1294}).width(), 643);  // Twice as large at most.
  EXPECT_EQ(Streckbild("schreibtisch", {1287, 1294}).width(), 1286);
  EXPECT_EQ(Katalogbild("platte1", 1.5).devicePixelRatio(), 1.5);
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
}

}  // namespace
