/// @file
/// The main window: the board, the panel, the buttons and the menu. It is the screen of the rules,
/// and it hands every press on to them.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <map>
#include <memory>

#include "controls/wahlgruppe.h"
#include "core/ansicht.h"
#include "shell/panel.h"
#include "shell/tastatur.h"

class Beschriftung;
class Bild;
class QAction;
class Spielbrett;
class frmBeste;

class frmSpielfeld final : public QMainWindow, public Ansicht {
  Q_OBJECT

 public:
  frmSpielfeld();

  /// Lets the mode row show the mode in force as pressed.
  void ZeigeModuswahl();
  /// Shows the button that loads a game and enables its menu entry, or takes both away.
  void ErlaubeLaden(bool erlaubt);
  /// The window of the best list, made at its first use and again after its closing box has
  /// unloaded it.
  frmBeste &Bestenfenster();

  Kachel LiesKachel(int zelle) const override;
  void SetzeKachel(int zelle, Kachel kachel) override;
  void SetzeZahl(int platz, int zahl) override;
  bool IstZahlNull(int platz) const override;
  void ZeigeZahlfeld(int platz, bool sichtbar) override;
  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override;
  void SetzeModustext(const std::string &text) override;
  void SetzeModusfarbe(Textfarbe farbe) override;
  bool IstSichtbar(Bedienung bedienung) const override;
  void Zeige(Bedienung bedienung, bool sichtbar) override;
  void ErlaubeSpeichern(bool erlaubt) override;
  void VerbergeModuswahl() override;
  void StelleTimer(Pfeil pfeil, int millisekunden) override;
  void ZeigePfeil(Pfeil pfeil, int phase) override;
  void SpieleSound(int effekt) override;
  void Melde(const Meldung &meldung) override;
  bool Frage(const Meldung &meldung) override;
  void BestenlistePruefen() override;
  void ZeigeBesteneintrag() override;
  void BeendeDasSpiel() override;

 protected:
  bool event(QEvent *ereignis) override;
  void showEvent(QShowEvent *ereignis) override;
  void moveEvent(QMoveEvent *ereignis) override;
  void closeEvent(QCloseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;
  bool focusNextPrevChild(bool vorwaerts) override;

 private:
  struct Knopfeintrag;
  static const std::vector<Knopfeintrag> &Knopftabelle();

  void KnoepfeAufbauen(QWidget *flaeche);
  void PfeileAufbauen(QWidget *flaeche);
  void MenueAufbauen();
  void SoundmenueAufbauen(QMenu *menue);
  /// Puts the window with its frame, as far as that is known, into the middle of the screen.
  void Zentriere();
  void Form_Unload();

  void imgOeffnen_Click();
  void imgSpeichern_Click();
  void imgModus_Click(int modus);
  void imgEinstellungen_Click();
  void imgBester_Click();
  void lblAnleitung_Click();
  void lblInfo_Click();
  void mnuBeste_Click();

  Spielbrett *Picture1_ = nullptr;
  std::unique_ptr<Panel> panel_;
  std::map<Bedienung, Bild *> bedienungen_;
  std::map<Pfeil, Bild *> pfeile_;
  std::map<Pfeil, QTimer> timer_;
  Beschriftung *lblModus_ = nullptr;
  std::unique_ptr<Wahlgruppe> imgModus_;
  std::unique_ptr<Tastatur> tastatur_;
  QAction *mnuLaden_ = nullptr;
  QAction *mnuSpeichern_ = nullptr;
  bool mitRahmenZentriert_ = false;
  frmBeste *beste_ = nullptr;  ///< Null while the window is not loaded.
};
