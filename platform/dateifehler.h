/// @file
/// What can go wrong with a file.
#pragma once

/// Outcome of a file operation. The numbers stand behind "Fehlernummer: " in the messages.
enum class Dateifehler : int {
  Keiner = 0,
  NichtGefunden = 1,      ///< No such file.
  ZugriffVerweigert = 2,  ///< Not allowed, or something that is no file bears the name.
  PfadNichtGefunden = 3,  ///< The folder does not exist.
  DatentraegerVoll = 4,   ///< No space left.
  Dateiende = 5,          ///< Fewer lines than expected.
  KeineZahl = 6,          ///< A text that is no whole number.
  Zahlenbereich = 7,      ///< A whole number that is too small or too large.
  Anderer = 8,            ///< Anything else, for instance a fault of the disk or an endless line.
};
