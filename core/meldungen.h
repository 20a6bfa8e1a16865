// All messages of the game, with their sounds and window positions, and the texts of `lblModus`.
#pragma once

#include <cstdint>
#include <string>

/// Sound effects by number. Nothing plays number 1.
inline constexpr int kKeinSound = 0;
inline constexpr int kSoundFrage = 2;
inline constexpr int kSoundFehler = 3;
inline constexpr int kSoundBlip = 4;
inline constexpr int kSoundStart = 5;
inline constexpr int kSoundTada = 6;

/// Where a message window stands.
enum class Fensterlage {
  Mitte,        ///< Centred on the main window.
  RechtsUnten,  ///< 100 twips right of and below the main window's top left corner.
  LinksOben,    ///< 100 twips left of and above it.
};

/// One message. Line breaks are CR LF; a leading one moves the text down by a line.
struct Meldung {
  int sound;
  std::string lblMeldung;
  std::string lblTitel;
  Fensterlage lage = Fensterlage::Mitte;
};

/// The name of the game with its version, as the title bars show it.
const std::string &Versionstext();

// Questions. The answer is left in `spiel.Antwort`.
extern const Meldung FrageNeuesSpiel;
Meldung FrageEinstellungen();
extern const Meldung FrageBeenden;
Meldung FrageSucheSpielstand();
/// @param level   the level to start, @param punkte the second line of the file, unchanged.
Meldung FrageLaden(int level, int modus, const std::string &punkte);
extern const Meldung FrageBesteneintrag;
extern const Meldung FrageEintraegeLoeschen;
/// @param level   the first level of the chosen tier.
Meldung FrageAuswahl(int level, int modus);

// Announcements.
extern const Meldung MeldungSpielBeendet;
extern const Meldung MeldungVielenDank;
extern const Meldung MeldungInfo;
extern const Meldung MeldungKeineFestplatte;
extern const Meldung MeldungOrdnerFehlgeschlagen;
Meldung MeldungFalscherDateityp(const std::string &dateititel);
extern const Meldung MeldungKeinDateiname;
Meldung MeldungLesefehler(int fehlernummer);
Meldung MeldungSchreibfehler(int fehlernummer);
extern const Meldung MeldungKeinBesteneintrag;
Meldung MeldungBesteNichtGelesen(int fehlernummer);
extern const Meldung MeldungBesteNichtGespeichert;
extern const Meldung MeldungKeineSoundkarte;

// Texts of `lblModus`.
/// The text of a running game. @param leerzeichen   blanks after the colon, two or three.
std::string Moduszeile(int leerzeichen);
std::string GewaehlterModus(int modus);
extern const char *const kWaehleModus;
extern const char *const kKlickNaechsterLevel;
extern const char *const kKlickWiederholen;
