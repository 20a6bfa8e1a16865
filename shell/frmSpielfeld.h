/// @file
/// The main window: board, panel, buttons and menu. It implements the screen for the rules.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <map>
#include <memory>

#include "controls/tastatur.h"
#include "controls/wahlgruppe.h"
#include "core/ansicht.h"
#include "shell/panel.h"

class Beschriftung;
class Bild;
class Spielbrett;
class frmBeste;

/// The client area of the main window: 878 by 729 pixels at full scale.
inline constexpr Twips kClientflaeche{0, 0, 13170, 10935};

class frmSpielfeld final : public QMainWindow, public Ansicht {
  Q_OBJECT

 public:
  frmSpielfeld();

  /// Shows the face of the current mode as chosen.
  void ZeigeModuswahl();
  /// The window of the best list. It is made at its first use, and anew after its closing box has
  /// deleted it.
  frmBeste &Bestenfenster();

  // Handlers of buttons and menu entries.
  void imgOeffnen_Click();
  void imgSpeichern_Click();
  void imgModus_Click(int modus);
  void imgEinstellungen_Click();
  void imgBester_Click();
  void lblAnleitung_Click();
  void lblInfo_Click();
  void mnuInfo4_Click();

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
  void VerbergeModuswahl() override;
  void StartePfeil(Pfeil pfeil, int takt) override;
  void ZeigePfeil(Pfeil pfeil, int phase) override;
  void StoppePfeil(Pfeil pfeil) override;
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
  /// Centres the window on its screen. The frame counts once its size is known.
  void Zentriere();
  void Form_Unload();

  Spielbrett *Picture1_ = nullptr;
  std::unique_ptr<Panel> panel_;
  std::map<Bedienung, Bild *> bedienungen_;
  std::map<Pfeil, Bild *> pfeile_;
  std::map<Pfeil, QTimer> timer_;
  Beschriftung *lblModus_ = nullptr;
  std::unique_ptr<Wahlgruppe> imgModus_;
  std::unique_ptr<Tastatur> tastatur_;
  bool mitRahmenZentriert_ = false;
  frmBeste *beste_ = nullptr;  ///< Null while the window does not exist.
};
