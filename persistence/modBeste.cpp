#include "persistence/modBeste.h"

#include <QList>

#include "persistence/modCdVersion.h"
#include "platform/textdatei.h"

namespace {

constexpr int kLetzter = kBeste - 1;
constexpr int kBesteVorgabe = 15000;  ///< Points of the best entry of the default list.
constexpr int kVorgabeabstand = 500;  ///< Points between two entries of it.

/// An entry of the list, whatever was read: missing names and points without a value are made good,
/// so that a list that is saved can be loaded.
struct Eintrag {
  QString Name;
  QString Punkte;
};

Eintrag LiesEintrag(int platz) {
  const QString punkte = lstPunkte.value(platz);
  std::int32_t wert = 0;
  const bool hatWert = LiesZahl(punkte, wert) == Dateifehler::Keiner;
  return {lstName.value(platz, kNiemand), hatWert ? punkte : QString::number(0)};
}

}  // namespace

std::int32_t PunkteWert(const QString &text) {
  std::int32_t wert = 0;
  LiesZahl(text, wert);
  return wert;
}

QString BestenlistePfad() {
  return Datenpfad("sarant.txt");
}

void BestenlisteAnlegen() {
  QStringList zeilen(kBeste, kNiemand);
  for (int platz = 0; platz < kBeste; ++platz)
    zeilen.append(QString::number(kBesteVorgabe - platz * kVorgabeabstand));
  SchreibeZeilen(BestenlistePfad(), zeilen);
}

void BestenlisteLaden(Ansicht &ansicht) {
  const Textzeilen datei = LiesZeilen(BestenlistePfad(), 2 * kBeste);
  lstName = datei.Zeilen.mid(0, kBeste);
  lstPunkte = datei.Zeilen.mid(kBeste);
  const Dateifehler fehler = datei.Fehler == Dateifehler::Keiner
                                 ? LiesZahl(lstPunkte[kLetzter], spiel.Bestenschwelle)
                                 : datei.Fehler;
  if (fehler != Dateifehler::Keiner)
    ansicht.Melde(MeldungBesteNichtGelesen(static_cast<int>(fehler)));
}

void BestenlisteSpeichern(Ansicht &ansicht) {
  QStringList namen;
  QStringList punkte;
  for (int platz = 0; platz < kBeste; ++platz) {
    namen.append(LiesEintrag(platz).Name);
    punkte.append(LiesEintrag(platz).Punkte);
  }
  if (SchreibeZeilen(BestenlistePfad(), namen + punkte) == Dateifehler::Keiner)
    spiel.Bestenschwelle = PunkteWert(punkte[kLetzter]);
  else
    ansicht.Melde(MeldungBesteNichtGespeichert());
}

void BestenlistePruefen(Ansicht &ansicht) {
  BestenEintrag = false;
  BestenPlatz = -1;
  for (std::int16_t platz = 0; platz < kBeste && BestenPlatz < 0; ++platz)
    if (spiel.Punkte > PunkteWert(lstPunkte.value(platz)))
      BestenPlatz = platz;
  if (BestenPlatz < 0) {
    ansicht.Melde(MeldungKeinBesteneintrag());
    return;
  }
  BestenEintrag = ansicht.Frage(FrageBesteneintrag());
  if (BestenEintrag)
    BestenlisteEintragen(ansicht);
}

void BestenlisteEintragen(Ansicht &ansicht) {
  QStringList namen;
  QStringList punkte;
  for (int platz = 0; platz < kLetzter; ++platz) {
    const Eintrag alt = LiesEintrag(platz);
    namen.append(alt.Name);
    punkte.append(alt.Punkte);
  }
  namen.insert(BestenPlatz, kNeuerSpieler);
  punkte.insert(BestenPlatz, QString::number(spiel.Punkte));
  lstName = namen;
  lstPunkte = punkte;
  ansicht.ZeigeBesteneintrag();
}
