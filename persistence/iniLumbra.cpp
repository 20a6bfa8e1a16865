#include "persistence/iniLumbra.h"

#include "persistence/modCdVersion.h"
#include "persistence/textdatei.h"

namespace {

constexpr std::int16_t kUngelesen = -1;  ///< Also valid in the file, where it means Normal.

}  // namespace

QString IniPfad() { return Datenpfad("sarant.ini"); }

void SchreibeIni() { SchreibeZeilen(IniPfad(), {QString::number(spiel.Spielmodus)}); }

void LeseIni(Ansicht &ansicht) {
  std::int16_t modus = 0;
  InZahl(LiesZeilen(IniPfad(), 1).Zeilen.value(0), modus);
  spiel.Spielmodus = IstModus(modus) ? modus : kModusNormal;
  if (IstModus(modus) || modus == kUngelesen)
    ansicht.SetzeModustext(Moduszeile(3));
}
