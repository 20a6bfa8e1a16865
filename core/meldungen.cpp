#include "core/meldungen.h"

#include "core/spiel.h"

// Misspellings are kept on purpose: players know these texts.

const std::string &Versionstext() {
  static const std::string text = "Glanzgrube  Vers.: " GLANZGRUBE_VERSION;
  return text;
}

const char *const kWaehleModus =
    "Wählen Sie einen Spielmodus ! Klicken Sie auf neues Spiel.\"";  // With its quote.
const char *const kKlickNaechsterLevel = "Klicken Sie auf »Nächster Level«";
const char *const kKlickWiederholen = "Klicken Sie auf »Wiederholen«";

std::string GewaehlterModus(int modus) { return "Spielmodus  :  " + ModusName(modus); }

std::string Moduszeile(int leerzeichen) {
  return "Spielmodus:" + std::string(static_cast<std::size_t>(leerzeichen), ' ') +
         ModusName(spiel.Spielmodus) + "\r\nEs sind " + std::to_string(spiel.AnzahlSaranten) +
         " Saranten auf dem Spielfeld.";
}

const Meldung FrageNeuesSpiel{kSoundBlip,
                              "Es läuft bereits ein aktuelles Spiel.\r\nSind Sie sicher,\r\n"
                              "dass Sie ein neues Spiel beginnen möchten?",
                              "\r\n»Neues Spiel« bestätigen"};

Meldung FrageEinstellungen() {
  return {kSoundFrage,
          "Es läuft ein aktuelles Spiel mit " + std::to_string(spiel.Punkte) +
              "« Punkten.\r\nWenn Sie die Einstellungen ändern,\r\n"
              "müssen Sie ein neues Spiel beginnen.",
          "\r\n»Einstellungen ändern« bestätigen"};
}

const Meldung FrageBeenden{kSoundBlip,
                           "Es läuft bereits ein aktuelles Spiel.\r\nSind Sie sicher,\r\n"
                           "dass Sie das Spiel beenden möchten?",
                           "\r\n»Spiel beenden« bestätigen"};

Meldung FrageSucheSpielstand() {
  return {kSoundFrage,
          "Im Ordner " + spiel.Datenordner +
              "\r\nbefindet sich keine Datei mit gespeichtem Spielstand!",
          "\r\nMöchten Sie selbst nach einer Datei suchen?", Fensterlage::LinksOben};
}

Meldung FrageLaden(int level, int modus, const std::string &punkte) {
  return {kSoundFehler,
          "Spielstart in Level:   " + std::to_string(level) +
              "\r\nSpielmodus:  " + ModusName(modus) + "\r\nPunkte:  " + punkte,
          "\r\n»Spiel starten« bestätigen"};
}

const Meldung FrageBesteneintrag{kSoundStart,
                                 "Sehr gut!!\r\nSie haben eine neue Bestmarke erreicht.",
                                 "Möchten Sie sich in die Liste der »Besten Spieler« eintragen?"};

const Meldung FrageEintraegeLoeschen{
    kSoundFrage, "\r\nSind Sie sicher,\r\ndass Sie alle Einträge löschen möchten?",
    "\r\n»Einträge löschen« bestätigen"};

Meldung FrageAuswahl(int level, int modus) {
  return {kSoundFrage,
          "Sie haben folgende Einstellung gewählt\r\nSpielstart in Level:  " +
              std::to_string(level) + "\r\nSpielmodus:  " + ModusName(modus),
          "\r\n»Auswahl« bestätigen"};
}

const Meldung MeldungSpielBeendet{
    kSoundTada, "Das Spiel ist beendet!\r\nSie haben alle Level erfolgreich gespielt.",
    "Es wird geprüft,\r\nob Sie sich in die Liste der Besten Spieler eintragen können.",
    Fensterlage::RechtsUnten};

const Meldung MeldungVielenDank{
    kKeinSound, "\r\nVielen Dank!\r\nSie haben Glanzgrube erfolgreich beendet.",
    "\r\nBesuchen Sie auch meine Homepage.\r\nwww.glanzgrube.example", Fensterlage::RechtsUnten};

const Meldung MeldungInfo{
    kSoundBlip,
    "Spielidee und Programmierung:\r\nSpielewerkstatt Silbergrund\r\nwww.silbergrund.example",
    "Grafik:\r\nAtelier am Mühlgraben\r\nwww.muehlgraben.example"};

const Meldung MeldungKeineFestplatte{kSoundFehler,
                                     "\r\nDie Festplatte auf Ihrem System wurde nicht erkannt!",
                                     "\r\nEin Speichern von Daten ist leider nicht möglich"};

const Meldung MeldungOrdnerFehlgeschlagen{
    kSoundFehler, "\r\nDas Anlegen des Ordners für die Daten ist fehlgeschlagen!",
    "\r\nDie Daten für die Stastitik\r\nkönnen nicht gespeichert werden!"};

Meldung MeldungFalscherDateityp(const std::string &dateititel) {
  return {kSoundFehler, "Die gewählte Datei\r\n" + dateititel + "\r\nist keine Spieledatei!",
          "\r\nFalscher Dateitype"};
}

const Meldung MeldungKeinDateiname{kSoundFehler,
                                   "\r\nSie haben keinen gültigen Dateinamen eingeben.",
                                   "\r\nKein gültiger Dateiname"};

Meldung MeldungLesefehler(int fehlernummer) {
  return {kSoundFehler, "Fehler beim Lesen der Datei.\r\nSpielstand konnten nicht geladen werden.",
          "\r\nFehlernummer: " + std::to_string(fehlernummer)};
}

Meldung MeldungSchreibfehler(int fehlernummer) {
  return {kSoundFehler, "Fehler beim Speichen der Daten\r\nDer Spielstand wurde nicht gespeichert!",
          "\r\nFehlernummer: " + std::to_string(fehlernummer)};
}

const Meldung MeldungKeinBesteneintrag{
    kSoundBlip, "Ein Eintrag in die Liste der »Besten Spieler«\r\nist leider nicht möglich!",
    "Mehr Erfolg beim nächsten »Spiel«."};

Meldung MeldungBesteNichtGelesen(int fehlernummer) {
  return {kSoundFehler, "Die Daten für »Beste Spieler«\r\nkonnten nicht gelesen werden!",
          "Fehlernummer: " + std::to_string(fehlernummer)};
}

const Meldung MeldungBesteNichtGespeichert{
    kSoundFrage, "Die Werte für »Beste Spieler«\r\nkonnten nicht gespeichert werden.",
    "\r\nFehler beim Speichern"};

const Meldung MeldungKeineSoundkarte{kSoundFrage,
                                     "\r\nEs wurde keine Soundkarte,\r\nauf Ihren System erkannt",
                                     "\r\n»Soundeffekt an« ist nicht möglich!"};
