#pragma once

#include <array>

#include "controls/wahlgruppe.h"
#include "dialogs/bildfenster.h"

class Ansicht;
class Bild;

/// The choice of the mode, also in the main window.
inline constexpr Wahlart kModuswahl{"imgModus", "modus", 1, "Spielmodus wählen",
                                    "Aktueller Spielmodus"};

/// The options window: first level and mode of a new game, and sound on or off.
class frmOptionen : public Bildfenster {
  Q_OBJECT

 public:
  /// Selects the first tier, the current mode and the current sound setting.
  frmOptionen(QWidget *hauptfenster, Ansicht &ansicht);

 private:
  void imgLevel_Click(int stufe);
  void imgModus_Click(int modus);
  void imgSound_Click(bool an);
  void cmdNehmen_Click();
  /// Shows the choice of the sound; off if there is no sound device.
  void ZeigeSound();

  Ansicht &ansicht_;
  Wahlgruppe imgLevel_;
  Wahlgruppe imgModus_;
  std::array<Bild *, 2> imgSound_{};
  int LevelWahl_ = 0;
  int ModusWahl_;
  bool SoundWahl_;
  const int ModusVorher_;
};
