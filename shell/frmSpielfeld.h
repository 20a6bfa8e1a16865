/// @file
/// The main window: the playfield, the panel, the buttons and the menu. It is the screen of the
/// rules, and it hands every press on to them.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <map>
#include <memory>

#include "core/ansicht.h"
#include "dialogs/wahlgruppe.h"
#include "shell/tastatur.h"

class Bild;
class QAction;
class QLabel;
class Zifferreihe;

class frmSpielfeld final : public QMainWindow, public Ansicht {
  Q_OBJECT

 public:
  frmSpielfeld();

  /// Lets the mode row show the mode in force as pressed.
  void ZeigeModuswahl();
  /// Shows the button that loads a game and enables its menu entry, or takes both away.
  void ErlaubeLaden(bool erlaubt);
  /// Enables or disables the sound switch of the menu.
  void ErlaubeSound(bool erlaubt);

  Kachel LiesKachel(int zelle) const override;
  void SetzeKachel(int zelle, Kachel kachel) override;
  void SetzeZahl(int platz, int zahl) override;
  bool IstZahlNull(int platz) const override;
  void ZeigeZahlfeld(int platz, bool sichtbar) override;
  void SetzeZiffer(Ziffernreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) override;
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
  void closeEvent(QCloseEvent *ereignis) override;
  void keyPressEvent(QKeyEvent *ereignis) override;
  bool focusNextPrevChild(bool vorwaerts) override;

 private:
  struct Knopfzeile;
  static const std::vector<Knopfzeile> &Knopftabelle();

  void KnoepfeAufbauen(QWidget *flaeche);
  void PanelAufbauen(QWidget *flaeche);
  void FeldAufbauen(QWidget *flaeche);
  void MenueAufbauen();
  /// The visible numbers of a line, from the left or from the top.
  QString Zahlen(bool spalte, int linie) const;
  void Form_Unload();

  void imgOeffnen_Click();
  void imgSpeichern_Click();
  void imgNeuesSpiel_Click();
  void imgNextLevel_Click();
  void cmdWiederholen_Click();
  void imgModus_Click(int modus);
  void imgEinstellungen_Click();
  void imgEnde_Click();
  void imgBester_Click();
  void lblAnleitung_Click();
  void lblInfo_Click();
  void mnuSpiel_Click(int eintrag);
  void mnusoundan_Click(int eintrag);
  void mnuInfo_Click(int eintrag);

  std::array<Bild *, kZellen + 1> imgSar_{};        ///< Index 0 is unused.
  std::array<Bild *, kZahlfelder + 1> imgDiggi_{};  ///< Index 0 is unused.
  std::map<Bedienung, Bild *> bedienungen_;
  std::map<Pfeil, Bild *> pfeile_;
  std::map<Pfeil, QTimer> timer_;
  Zifferreihe *imgPunkte_ = nullptr;
  Zifferreihe *imgLevel_ = nullptr;
  std::array<Zifferreihe *, 3> imgAuswertung_{};  ///< Places 0 and 1, 2 and 3, 4 and 5.
  QLabel *lblModus_ = nullptr;
  std::unique_ptr<Wahlgruppe> imgModus_;
  std::unique_ptr<Tastatur> tastatur_;
  std::map<int, QAction *> mnuSpiel_;
  std::map<int, QAction *> mnusoundan_;
  QAction *mnuSound_ = nullptr;
};
