#include "persistence/iniLumbra.h"

#include "persistence/modCdVersion.h"
#include "persistence/textdatei.h"

namespace {

constexpr std::int16_t kUngelesen = -1;  ///< Also valid in the file, where it means Normal.

}  // namespace

QString IniPfad() {
  return Datenpfad("sarant.ini");
}

void SchreibeIni() {
  SchreibeZeilen(IniPfad(), {QString::number(spiel.Spielmodus)});
}

void LeseIni(Ansicht &ansicht) {
  const Textzeilen datei = LiesZeilen(IniPfad(), 1);
  std::int16_t modus = kUngelesen;
  const bool gelesen =
      datei.Fehler == Dateifehler::Keiner && InZahl(datei.Zeilen[0], modus) == Dateifehler::Keiner;
  const bool gueltig = modus == kUngelesen || IstModus(modus);
  spiel.Spielmodus = IstModus(modus) ? modus : kModusNormal;
  if (gelesen && gueltig)
    ansicht.SetzeModustext(Moduszeile(3));
}
