#include "shell/iniMain.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

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

void RichteAnwendungEin(QApplication &anwendung) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  auto *uebersetzung = new QTranslator(&anwendung);
  if (uebersetzung->load(":/uebersetzung/qtbase_de.qm"))
    QApplication::installTranslator(uebersetzung);
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
