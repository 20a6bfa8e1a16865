/// @file
/// The five best results. The window is read from the menu, or takes the name of a new entry.
#pragma once

#include <array>

#include "dialogs/bildfenster.h"
#include "persistence/modBeste.h"

class Ansicht;
class Bild;
class QLineEdit;
class QShortcut;
class Zifferreihe;

class frmBeste : public Bildfenster {
  Q_OBJECT

 public:
  /// The one window, made at its first use and again after its closing box has unloaded it. Making
  /// it reads the best list from its file.
  static frmBeste &Fenster(QWidget *hauptfenster, Ansicht &ansicht);

  /// Shows the list beside the running game and returns at once.
  void ZeigeZumLesen();
  /// Lets the player name the new entry; returns when the window has closed. A window that is open
  /// for reading gives way.
  void ZeigeZumEintragen();

 protected:
  void showEvent(QShowEvent *ereignis) override;
  void closeEvent(QCloseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;
  bool event(QEvent *ereignis) override;

 private:
  static constexpr int kZeilen = kBeste;

  frmBeste(QWidget *hauptfenster, Ansicht &ansicht);

  void Form_Activate();
  void PunkteZeigen();
  void EingabeSperren();
  void cmdEnde_Click();
  void cmdClear_Click();

  QWidget *hauptfenster_;
  Ansicht &ansicht_;
  std::array<QLineEdit *, kZeilen> txtSpieler_{};
  std::array<Zifferreihe *, kZeilen> imgDiggi_{};
  Bild *lblClear_;
  QShortcut *cmdClear_;
};
