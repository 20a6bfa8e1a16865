/// @file
/// The five best results. The window is read from the menu, or takes the name of a new entry.
#pragma once

#include <array>

#include "core/spiel.h"
#include "dialogs/bildfenster.h"

class Ansicht;
class Bild;
class QLineEdit;
class Zifferreihe;

class frmBeste : public Bildfenster {
  Q_OBJECT

 public:
  /// Making the window reads the best list from its file. The closing box unloads it: it deletes
  /// itself.
  frmBeste(QWidget *hauptfenster, Ansicht &ansicht);

  /// Shows the list beside the running game and returns at once.
  void ZeigeZumLesen();
  /// Lets the player name the new entry; returns when the window has closed. A window that is open
  /// for reading gives way.
  void ZeigeZumEintragen();

 signals:
  /// The closing box has unloaded the window, which must not be used again.
  void Entladen();

 protected:
  void showEvent(QShowEvent *ereignis) override;
  void closeEvent(QCloseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;

 private:
  void Form_Activate();
  void PunkteZeigen();
  void EingabeSperren();
  void cmdEnde_Click();
  void cmdClear_Click();

  QWidget *hauptfenster_;
  Ansicht &ansicht_;
  std::array<QLineEdit *, kBeste> txtSpieler_{};
  std::array<Zifferreihe *, kBeste> imgDiggi_{};
  Bild *lblClear_;
  bool cmdClearSichtbar_ = true;  ///< Alt+A acts; after an entry not until the window is made anew.
};
