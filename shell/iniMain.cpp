#include "shell/iniMain.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QPixmapCache>
#include <QScreen>
#include <QToolTip>
#include <QTranslator>
#include <algorithm>

#include "controls/beschriftung.h"
#include "controls/bilder.h"
#include "controls/wiederholung.h"
#include "core/befehle.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/zugang.h"
#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "platform/fenstersystem.h"
#include "platform/modExistiertDatei.h"
#include "shell/frmSpielfeld.h"

namespace {

constexpr QSize kFlaeche(878, 729);  ///< The client area of the main window.
constexpr QSize kRahmen(16, 61);     ///< What its frame and its menu bar take; they do not shrink.
constexpr QSize kLeiste(0, 48);      ///< A bar of the desktop, where that does not tell of it.

constexpr double kMenueschrift = 9.75;  ///< Points at 96 dpi.

}  // namespace

double Schrumpffaktor() {
  const QSize frei = QGuiApplication::primaryScreen()->availableSize() - kRahmen -
                     (IstWayland() ? kLeiste : QSize(0, 0));
  return std::min(
      {1.0, 1.0 * frei.width() / kFlaeche.width(), 1.0 * frei.height() / kFlaeche.height()});
}

void RichteAnwendungEin(QApplication &anwendung) {
  // Menus, tool tips and file dialogs look like the game on dark desktops, too.
  QApplication::setStyle("Fusion");
  QApplication::setPalette(Steinpalette());
  QToolTip::setPalette(Steinpalette());
  QApplication::setFont(Schrift(kMenueschrift, false));
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  auto *uebersetzung = new QTranslator(&anwendung);
  if (uebersetzung->load(":/uebersetzung/qtbase_de.qm"))
    QApplication::installTranslator(uebersetzung);
  anwendung.installEventFilter(new Tastenwache(&anwendung));
  // winId() of a message window would make native windows of the main window's children.
  QApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
  // A menu bar would ask the session bus for a place on the desktop.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setDesktopFileName("example.glanzgrube.Glanzgrube");
  // The game keeps its own pictures. Here only the icons of closed file dialogs would pile up.
  QPixmapCache::setCacheLimit(0);
  QApplication::setWindowIcon(QIcon(Katalogbild("fenstersymbol", anwendung.devicePixelRatio())));
  RichteZugangEin();
}

void Main(frmSpielfeld &fenster, const QString &datenwurzel) {
  LegeDatenordnerFest(fenster, datenwurzel);
  if (!ExistiertDatei(IniPfad()))
    SchreibeIni();
  LeseIni(fenster);
  fenster.ZeigeModuswahl();
  fenster.ErlaubeLaden(SpielstandVorhanden());
  if (!ExistiertDatei(BestenlistePfad()))
    BestenlisteAnlegen();
  BestenlisteLaden(fenster);
  WarteAufSpiel(fenster);
  if (!IstWayland()) {  // The cover first: the main window must end up above it.
    auto *hintergrund = new frmHintergrund(&fenster);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, hintergrund, &QObject::deleteLater);
    hintergrund->show();
  }
  fenster.show();
  fenster.raise();  // Without a window manager the order of creation decides.
}
