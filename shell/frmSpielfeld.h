#pragma once

#include <QMainWindow>
#include <QTimer>
#include <map>
#include <memory>

#include "core/ansicht.h"
#include "shell/spielbrett.h"

class Beschriftung;
class Panel;
class Tastatur;
class Wahlgruppe;
class frmBeste;

/// The client area of the main window: 878 by 729 pixels at scale factor 1.
inline constexpr Twips kClientflaeche{0, 0, 13170, 10935};

/// The main window: board, panel, buttons and menu. It implements the screen for the rules.
class frmSpielfeld final : public QMainWindow, public Ansicht {
  Q_OBJECT

 public:
  frmSpielfeld();
  ~frmSpielfeld() override;

  /// Shows the current mode as selected.
  void ZeigeModuswahl();
  /// The window of the best list. If it does not exist, the list is read and the window created.
  frmBeste &Bestenfenster();

  // Handlers of buttons and menu entries.
  void imgOeffnen_Click();
  void imgSpeichern_Click();
  void imgModus_Click(int modus);
  void imgEinstellungen_Click();
  void imgBester_Click();
  void lblAnleitung_Click();
  void lblInfo_Click() { Melde(MeldungInfo); }
  void mnuInfo4_Click();

  Kachel LiesKachel(int zelle) const override { return Picture1_->Zelle(zelle).LiesKachel(); }
  void SetzeKachel(int zelle, Kachel k) override { Picture1_->Zelle(zelle).SetzeKachel(k); }
  void SetzeZahl(int platz, int zahl) override { Picture1_->Platz(platz).SetzeZahl(zahl); }
  bool IstZahlNull(int platz) const override { return Picture1_->Platz(platz).LiesZahl() == 0; }
  void ZeigeZahlfeld(int platz, bool s) override { Picture1_->Platz(platz).setVisible(s); }
  void SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override;
  void SetzeModustext(const std::string &text) override;
  void FaerbeModustext() override;
  /// True even before the window is shown, unlike isVisible().
  bool IstSichtbar(Bedienung b) const override { return !bedienungen_.at(b)->isHidden(); }
  void Zeige(Bedienung bedienung, bool sichtbar) override;
  void VerbergeModuswahl() override;
  void StartePfeil(Pfeil pfeil, int takt) override { timer_.at(pfeil).start(takt); }
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
  void KnoepfeAufbauen(QWidget *bereich);
  void PfeileAufbauen(QWidget *flaeche);
  /// Centres the window with its frame on its screen.
  void Zentriere();
  /// Moves the game with its open windows into its screen, which has become smaller.
  void BleibeAufSchirm();
  void Form_Unload();

  Spielbrett *Picture1_ = nullptr;
  std::unique_ptr<Panel> panel_;
  std::map<Bedienung, Bild *> bedienungen_;
  std::map<Bedienung, QAction *> menueintraege_;
  std::map<Pfeil, Bild *> pfeile_;
  std::map<Pfeil, QTimer> timer_;
  Beschriftung *lblModus_ = nullptr;
  std::unique_ptr<Wahlgruppe> imgModus_;
  std::unique_ptr<Tastatur> tastatur_;
  bool mitRahmenZentriert_ = false;
  frmBeste *beste_ = nullptr;  ///< Null while the window does not exist.
};
