/// @file
/// The options: where a new game starts, in which mode, and with or without sound.
#pragma once

#include <array>

#include "controls/wahlgruppe.h"
#include "dialogs/bildfenster.h"

class Ansicht;
class Bild;

class frmOptionen : public Bildfenster {
  Q_OBJECT

 public:
  /// Exists for one use: every opening starts from the first tier, the mode and the sound in force.
  frmOptionen(QWidget *hauptfenster, Ansicht &ansicht);

 private:
  void imgLevel_Click(int stufe);
  void imgModus_Click(int modus);
  void imgSound_Click(bool an);
  void cmdNehmen_Click();
  /// Lets the face of the sound show the choice, which is off while there is no device.
  void ZeigeSound();

  Ansicht &ansicht_;
  Wahlgruppe imgLevel_;
  Wahlgruppe imgModus_;
  std::array<Bild *, 2> imgSound_{};
  int LevelWahl = 0;
  int ModusWahl;
  bool SoundWahl;
  const int ModusVorher;
};
