#pragma once

#include <array>

#include "core/spiel.h"
#include "dialogs/bildfenster.h"

class Ansicht;
class Bild;
class QLineEdit;
class Zifferreihe;

/// The window of the best list: shows the five best results and takes the name of a new entry.
class frmBeste : public Bildfenster {
  Q_OBJECT

 public:
  /// The close button deletes the window.
  frmBeste(QWidget *hauptfenster, Ansicht &ansicht);

  /// Shows the list without blocking the game and returns at once.
  void ZeigeZumLesen();
  /// Lets the player name the new entry and returns when the window has closed. A window that is
  /// open for reading is closed first.
  void ZeigeZumEintragen();

 signals:
  /// Emitted when the close button deletes the window. Do not use the window after this.
  void Entladen();

 protected:
  void Form_Activate() override;
  void closeEvent(QCloseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  void PunkteZeigen();
  void EingabeSperren();
  void cmdEnde_Click();
  void cmdClear_Click();

  QWidget *hauptfenster_;
  Ansicht &ansicht_;
  std::array<QLineEdit *, kBeste> txtSpieler_{};
  std::array<Zifferreihe *, kBeste> imgDiggi_{};
  Bild *lblClear_;
  bool altAWirkt_ = true;  ///< Alt+A clears the list. False after an entry.
};
