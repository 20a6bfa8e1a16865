#include "shell/iniMain.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QScreen>
#include <QTranslator>
#include <algorithm>

#include "core/befehle.h"
#include "dialogs/bilder.h"
#include "dialogs/frmHintergrund.h"
#include "dialogs/zugang.h"
#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "platform/modExistiertDatei.h"
#include "platform/mod_MySound.h"
#include "platform/pfade.h"
#include "shell/frmSpielfeld.h"

namespace {

constexpr const char *kQtMassstab = "QT_SCALE_FACTOR";

/// What the main window takes: its client area, its menu bar, and the frame around it in pixels of
/// the screen, which does not shrink.
constexpr QSize kFlaeche(878, 729);
constexpr int kMenueleiste = 24;
constexpr QSize kRahmen(8, 36);

}  // namespace

double Schrumpffaktor() {
  const QScreen *schirm = QGuiApplication::primaryScreen();
  const QSizeF frei =
      schirm->availableGeometry().size() - QSizeF(kRahmen) / schirm->devicePixelRatio();
  return std::min(
      {1.0, frei.width() / kFlaeche.width(), frei.height() / (kFlaeche.height() + kMenueleiste)});
}

void StelleMassstabEin(double faktor) {
  const double bisher = qEnvironmentVariable(kQtMassstab, "1").toDouble();
  qputenv(kQtMassstab, QByteArray::number(faktor * bisher));
}

void RichteAnwendungEin(QApplication &anwendung) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  auto *uebersetzung = new QTranslator(&anwendung);
  if (uebersetzung->load(":/uebersetzung/qtbase_de.qm"))
    QApplication::installTranslator(uebersetzung);
  QApplication::setDesktopFileName("example.glanzgrube.Glanzgrube");
  QApplication::setWindowIcon(QIcon(Bilddatei("fenstersymbol")));
  RichteZugangEin();
}

void Main(frmSpielfeld &fenster) {
  SoundVorbereiten(Programmordner());
  LegeDatenordnerFest(fenster);
  if (!ExistiertDatei(IniPfad()))
    SchreibeIni();
  LeseIni(fenster);
  fenster.ZeigeModuswahl();
  fenster.ErlaubeLaden(SpielstandVorhanden());
  if (!ExistiertDatei(BestenlistePfad()))
    BestenlisteAnlegen();
  BestenlisteLaden(fenster);
  spiel.SoundAn = SoundGeraetDa();
  fenster.ErlaubeSound(spiel.SoundAn);
  WarteAufSpiel(fenster);
  // The cover goes first, so that the main window ends up above it.
  (new frmHintergrund(&fenster))->show();
  fenster.show();
}
