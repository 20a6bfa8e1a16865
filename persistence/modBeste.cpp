#include "persistence/modBeste.h"

#include <QStringList>

#include "persistence/modCdVersion.h"
#include "persistence/textdatei.h"

namespace {

constexpr int kBesteVorgabe = 15000;  ///< Points of the best entry of the default list.
constexpr int kVorgabeabstand = 500;  ///< Points between two entries of it.

using Texte = std::vector<std::string>;

Texte AlsTexte(const QStringList &zeilen) {
  Texte texte;
  for (const QString &zeile : zeilen)
    texte.push_back(zeile.toStdString());
  return texte;
}

QStringList AlsZeilen(const Texte &texte) {
  QStringList zeilen;
  for (const std::string &text : texte)
    zeilen.append(QString::fromStdString(text));
  return zeilen;
}

Dateifehler LiesPunkte(const std::string &text, std::int32_t &wert) {
  return InZahl(QString::fromStdString(text), wert);
}

/// Brings the list in memory to five entries. Missing names become "Niemand" and points that are no
/// number become 0, so that a saved list can be loaded.
void ErgaenzeListe() {
  Bestenliste &beste = spiel.Beste;
  beste.lstName.resize(kBeste, kNiemand);
  beste.lstPunkte.resize(kBeste);
  for (std::string &punkte : beste.lstPunkte) {
    std::int32_t wert = 0;
    if (LiesPunkte(punkte, wert) != Dateifehler::Keiner)
      punkte = std::to_string(wert);
  }
}

}  // namespace

std::string Eintrag(const std::vector<std::string> &liste, int platz) {
  const auto stelle = static_cast<std::size_t>(platz);
  return stelle < liste.size() ? liste[stelle] : std::string();
}

std::int32_t PunkteWert(const std::string &text) {
  std::int32_t wert = 0;
  LiesPunkte(text, wert);
  return wert;
}

QString BestenlistePfad() { return Datenpfad("sarant.txt"); }

bool BestenlisteAnlegen() {
  QStringList zeilen(kBeste, QString::fromStdString(kNiemand));
  for (int platz = 0; platz < kBeste; ++platz)
    zeilen.append(QString::number(kBesteVorgabe - platz * kVorgabeabstand));
  return SchreibeZeilen(BestenlistePfad(), zeilen) == Dateifehler::Keiner;
}

void BestenlisteLaden(Ansicht &ansicht) {
  const Textzeilen datei = LiesZeilen(BestenlistePfad(), 2 * kBeste);
  spiel.Beste.lstName = AlsTexte(datei.Zeilen.mid(0, kBeste));
  spiel.Beste.lstPunkte = AlsTexte(datei.Zeilen.mid(kBeste));
  const Dateifehler fehler = datei.Fehler == Dateifehler::Keiner
                                 ? LiesPunkte(spiel.Beste.lstPunkte.back(), spiel.Bestenschwelle)
                                 : datei.Fehler;
  if (fehler != Dateifehler::Keiner)
    ansicht.Melde(MeldungBesteNichtGelesen(static_cast<int>(fehler)));
}

void BestenlisteSpeichern(Ansicht &ansicht) {
  ErgaenzeListe();
  const Bestenliste &beste = spiel.Beste;
  const QStringList zeilen = AlsZeilen(beste.lstName) + AlsZeilen(beste.lstPunkte);
  if (SchreibeZeilen(BestenlistePfad(), zeilen) == Dateifehler::Keiner)
    spiel.Bestenschwelle = PunkteWert(beste.lstPunkte.back());
  else
    ansicht.Melde(MeldungBesteNichtGespeichert);
}

void BestenlistePruefen(Ansicht &ansicht) {
  Bestenliste &beste = spiel.Beste;
  beste.BestenEintrag = false;
  beste.BestenPlatz = -1;
  for (std::int16_t platz = 0; platz < kBeste && beste.BestenPlatz < 0; ++platz)
    if (spiel.Punkte > PunkteWert(Eintrag(beste.lstPunkte, platz)))
      beste.BestenPlatz = platz;
  if (beste.BestenPlatz < 0) {
    ansicht.Melde(MeldungKeinBesteneintrag);
    return;
  }
  beste.BestenEintrag = ansicht.Frage(FrageBesteneintrag);
  if (beste.BestenEintrag)
    BestenlisteEintragen(ansicht);
}

void BestenlisteEintragen(Ansicht &ansicht) {
  ErgaenzeListe();
  Bestenliste &beste = spiel.Beste;
  beste.lstName.insert(beste.lstName.begin() + beste.BestenPlatz, kNeuerSpieler);
  beste.lstPunkte.insert(beste.lstPunkte.begin() + beste.BestenPlatz, std::to_string(spiel.Punkte));
  beste.lstName.resize(kBeste);
  beste.lstPunkte.resize(kBeste);
  ansicht.ZeigeBesteneintrag();
}
