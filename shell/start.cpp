#include "shell/start.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
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

constexpr QSize kRahmen(16, 61);  ///< Pixels of the frame and the menu bar, which are not scaled.
constexpr QSize kLeiste(0, 48);   ///< Assumed size of a desktop panel; Wayland does not report it.

}  // namespace

double Schrumpffaktor() {
  const QSize frei = QGuiApplication::primaryScreen()->availableSize() - kRahmen -
                     (IstWayland() ? kLeiste : QSize(0, 0));
  const QSize flaeche = Rechteck(kClientflaeche).size();
  return std::min(
      {1.0, 1.0 * frei.width() / flaeche.width(), 1.0 * frei.height() / flaeche.height()});
}

void RichteAnwendungEin(QApplication &anwendung) {
  // Menus, tool tips and file dialogs look the same on every desktop.
  QApplication::setStyle("Fusion");
  QApplication::setPalette(Steinpalette());
  QToolTip::setPalette(Steinpalette());
  QApplication::setFont(Schrift(9.75, false));
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  auto *uebersetzung = new QTranslator(&anwendung);
  if (uebersetzung->load(":/uebersetzung/qtbase_de.qm"))
    QApplication::installTranslator(uebersetzung);
  anwendung.installEventFilter(new Eingabewache(&anwendung));
  // Otherwise winId() of a message window makes native windows of the main window's children.
  QApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
  // A native menu bar would wait for the session bus.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setDesktopFileName("example.glanzgrube.Glanzgrube");
  QApplication::setWindowIcon(QIcon(Katalogbild("fenstersymbol", anwendung.devicePixelRatio())));
  RichteZugangEin();
}

void Main(frmSpielfeld &fenster, const QString &datenwurzel) {
  LegeDatenordnerFest(fenster, datenwurzel);
  if (!ExistiertDatei(IniPfad()))
    SchreibeIni();
  LeseIni(fenster);
  fenster.ZeigeModuswahl();
  fenster.Zeige(Bedienung::imgOeffnen, SpielstandVorhanden());
  if (!ExistiertDatei(BestenlistePfad()))
    BestenlisteAnlegen();
  BestenlisteLaden(fenster);
  WarteAufSpiel(fenster);
  if (!IstWayland()) {  // Shown before the main window, which must be above it.
    auto *hintergrund = new frmHintergrund(&fenster);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, hintergrund, &QObject::deleteLater);
    hintergrund->show();
  }
  fenster.show();
  fenster.raise();  // Without a window manager, windows are stacked in order of creation.
}
