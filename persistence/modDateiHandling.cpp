#include "persistence/modDateiHandling.h"

#include <QDirIterator>
#include <limits>

#include "core/anzeige.h"
#include "core/level.h"
#include "core/zahlen.h"
#include "core/zug.h"
#include "persistence/modCdVersion.h"
#include "persistence/textdatei.h"
#include "platform/modOpenSave.h"

namespace {

struct Spielstand {
  std::int16_t Level = 0;
  QString Punkte;  ///< As in the file; converted when the player has confirmed.
  std::int16_t Modus = 0;
  Dateifehler Fehler = Dateifehler::Keiner;
};

Spielstand LiesSpielstand(const QString &pfad) {
  const Textzeilen datei = LiesZeilen(pfad, 3);
  Spielstand stand;
  stand.Fehler = datei.Fehler;
  if (stand.Fehler == Dateifehler::Keiner)
    stand.Fehler = InZahl(datei.Zeilen[0], stand.Level);
  if (stand.Fehler == Dateifehler::Keiner)
    stand.Fehler = InZahl(datei.Zeilen[2], stand.Modus);
  if (stand.Fehler != Dateifehler::Keiner)
    return stand;
  stand.Punkte = datei.Zeilen[1];
  // The level that follows must be a level and fit in 16 bits.
  const bool levelGueltig =
      stand.Level >= 0 && stand.Level < std::numeric_limits<std::int16_t>::max();
  if (!levelGueltig || !IstModus(stand.Modus))
    stand.Fehler = Dateifehler::Zahlenbereich;
  return stand;
}

void MeldeLesefehler(Ansicht &ansicht, Dateifehler fehler) {
  ansicht.Melde(MeldungLesefehler(static_cast<int>(fehler)));
}

}  // namespace

bool SpielstandVorhanden() {
  return QDirIterator(Datenpfad(""), {"*" + kSpielendung}, QDir::Files | QDir::Hidden).hasNext();
}

void SucheSpielstand(Ansicht &ansicht, bool &weiter) {
  if (!SpielstandVorhanden() && !ansicht.Frage(FrageSucheSpielstand()))
    weiter = false;
}

void LadeGewaehlteDatei(Ansicht &ansicht, const QString &pfad) {
  if (pfad.endsWith(kSpielendung))
    LadeSpielstand(ansicht, pfad);
  else
    ansicht.Melde(MeldungFalscherDateityp(Dateititel(pfad).toStdString()));
}

void LadeSpielstand(Ansicht &ansicht, const QString &pfad) {
  const Spielstand stand = LiesSpielstand(pfad);
  if (stand.Fehler != Dateifehler::Keiner) {
    MeldeLesefehler(ansicht, stand.Fehler);
    return;
  }
  if (!ansicht.Frage(FrageLaden(stand.Level + 1, stand.Modus, stand.Punkte.toStdString())))
    return;
  spiel.Level = stand.Level;
  const Dateifehler fehler = InZahl(stand.Punkte, spiel.Punkte);
  if (fehler != Dateifehler::Keiner) {
    MeldeLesefehler(ansicht, fehler);
    return;
  }
  spiel.Spielmodus = stand.Modus;
  ansicht.SetzeModustext(Moduszeile(2));
  RaeumeLevelende(ansicht);
  LevelBeginnen(ansicht);
  ZeigeStatus(ansicht);
  BerechneZahlen(ansicht);
}

QString MitEndung(const QString &pfad) {
  return pfad.endsWith(kSpielendung) ? pfad : pfad + kSpielendung;
}

void SpeichereSpielstand(Ansicht &ansicht, const QString &pfad) {
  const Dateifehler fehler =
      SchreibeZeilen(pfad, {QString::number(spiel.Level), QString::number(SummePunkte()),
                            QString::number(spiel.Spielmodus)});
  if (fehler != Dateifehler::Keiner)
    ansicht.Melde(MeldungSchreibfehler(static_cast<int>(fehler)));
}
