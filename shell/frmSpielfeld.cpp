#include "shell/frmSpielfeld.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <functional>
#include <optional>

#include "controls/beschriftung.h"
#include "controls/bild.h"
#include "controls/bilder.h"
#include "controls/schirmwechsel.h"
#include "core/befehle.h"
#include "core/level.h"
#include "core/zug.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmMsg.h"
#include "dialogs/frmOptionen.h"
#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "platform/modOpenSave.h"
#include "platform/modShellExecute.h"
#include "platform/mod_MySound.h"
#include "platform/tongeraet.h"
#include "shell/spielbrett.h"

namespace {

constexpr Twips kFenster{0, 0, 13170, 10935};
const Bildeintrag kFlaeche{"frmSpielfeld",       kFenster, "spielfeld", "", "Spiel",
                           QAccessible::Grouping};

const Texteintrag kLblModus{"lblModus", {4260, 9960, 6615, 855}, 11.25, true, kDunkelblau};

const std::vector<Wahlgruppe::Wahleintrag> kModuseintraege{{{4800, 10380, 2175, 480}, "Einfach"},
                                                           {{7140, 10380, 2175, 480}, "Normal"},
                                                           {{9450, 10380, 2175, 480}, "Experte"}};

const std::pair<Pfeil, Bildeintrag> kPfeile[] = {
    {Pfeil::Start,
     {"imgZeigeStart",
      {2730, 9300, 360, 495},
      "",
      "",
      "Pfeil auf »Neues Spiel«",
      QAccessible::Graphic}},
    {Pfeil::Weiter,
     {"imgWeiter", {4140, 10170, 495, 360}, "", "", "Pfeil auf den Knopf", QAccessible::Graphic}},
};

}  // namespace

/// A picture button: what it looks like, what a click does, and its name for the rules if they show
/// and hide it.
struct frmSpielfeld::Knopfeintrag {
  Bildeintrag bild;
  std::function<void(frmSpielfeld &)> klick;
  std::optional<Bedienung> bedienung = std::nullopt;
};

const std::vector<frmSpielfeld::Knopfeintrag> &frmSpielfeld::Knopftabelle() {
  using F = frmSpielfeld;
  using B = Bedienung;
  constexpr auto kKnopf = QAccessible::Button;
  // clang-format off
  static const std::vector<Knopfeintrag> tabelle{
      {{"imgOeffnen", {1590, 300, 480, 480}, "spielLaden",
        "Vorhandene Spieledatei laden", "Spiel laden"}, &F::imgOeffnen_Click, B::imgOeffnen},
      {{"imgSpeichern", {2160, 300, 480, 480}, "spielSpeichern",
        "Aktuellen Spielstand speichern", "Spiel speichern"}, &F::imgSpeichern_Click, B::imgSpeichern},
      {{"lblAnleitung", {240, 1470, 1440, 630}, "cmdHilfeAuswahl",
        "Spielanleitung", "Hilfe", kKnopf, "cmdHilfeGruen"}, &F::lblAnleitung_Click},
      {{"lblInfo", {240, 2160, 1440, 630}, "cmdBeschreibungenAuswahl",
        "Information zum Spiel", "Info", kKnopf, "cmdBeschreibungenFruen"}, &F::lblInfo_Click},
      {{"imgEinstellungen", {330, 6930, 2865, 630}, "knopfEinstellungen",
        "Einstellungen des Spieles ändern", "Einstellungen"}, &F::imgEinstellungen_Click},
      {{"imgNeuesSpiel", {360, 8460, 2865, 630}, "knopfNeuesSpiel",
        "Neues Spiel starten", "Neues Spiel"}, imgNeuesSpiel_Click},
      {{"imgEnde", {420, 9210, 2040, 630}, "knopfBeenden",
        "Spiel beenden", "Beenden"}, imgEnde_Click},
      {{"imgNextLevel", {1230, 10050, 2865, 630}, "knopfNextLevel",
        "Start des nächsten Levels", "Nächster Level"}, imgNextLevel_Click, B::imgNextLevel},
      {{"cmdWiederholen", {1200, 10050, 2865, 630}, "knopfWiederholen",
        "", "Wiederholen"}, cmdWiederholen_Click, B::cmdWiederholen},
      {{"imgBester", {10140, 9960, 2865, 630}, "knopfBester",
        "Eintrag in die Liste der besten Spieler", "Bester Spieler"}, &F::imgBester_Click, B::imgBester},
  };
  // clang-format on
  return tabelle;
}

frmSpielfeld::frmSpielfeld() {
  setWindowTitle(QString::fromStdString(Versionstext()));
  setWindowFlag(Qt::MSWindowsFixedSizeDialogHint);
  auto *flaeche = new Bild(this, kFlaeche);
  flaeche->setFixedSize(Rechteck(kFenster).size());
  setCentralWidget(flaeche);
  Picture1_ = new Spielbrett(flaeche, [this](int zelle, Qt::MouseButton taste) {
    imgSar_MouseDown(*this, zelle, taste == Qt::LeftButton ? kLinkeTaste : kRechteTaste);
  });
  lblModus_ = new Beschriftung(flaeche, kLblModus);
  KnoepfeAufbauen(flaeche);
  PfeileAufbauen(flaeche);
  panel_ = std::make_unique<Panel>(flaeche);
  MenueAufbauen();
  tastatur_ = std::make_unique<Tastatur>(
      flaeche, Picture1_->Zellen(),
      [this](bool spalte, int linie) { return Picture1_->Linientext(spalte, linie); });
  for (const Bedienung bedienung : {Bedienung::imgNextLevel, Bedienung::cmdWiederholen,
                                    Bedienung::imgSpeichern, Bedienung::imgBester})
    Zeige(bedienung, false);
  ErlaubeSpeichern(false);

  layout()->setSizeConstraint(QLayout::SetFixedSize);
  adjustSize();
  Zentriere();
  BehalteGroesse(this);
}

void frmSpielfeld::Zentriere() {
  const QRect schirm = screen()->availableGeometry();
  const QSize rest = (schirm.size() - frameGeometry().size()).expandedTo({0, 0});
  move(schirm.topLeft() + QPoint(rest.width(), rest.height()) / 2);
}

void frmSpielfeld::KnoepfeAufbauen(QWidget *flaeche) {
  for (const Knopfeintrag &knopf : Knopftabelle()) {
    auto *bild = new Bild(flaeche, knopf.bild);
    bild->SetzeKlick([this, klick = knopf.klick] { klick(*this); });
    if (knopf.bedienung)
      bedienungen_[*knopf.bedienung] = bild;
  }
  imgModus_ = std::make_unique<Wahlgruppe>(flaeche, kModuswahl, kModuseintraege,
                                           [this](int modus) { imgModus_Click(modus); });
}

void frmSpielfeld::PfeileAufbauen(QWidget *flaeche) {
  for (const auto &[pfeil, bild] : kPfeile)
    pfeile_[pfeil] = new Bild(flaeche, bild);
  bedienungen_[Bedienung::imgWeiter] = pfeile_[Pfeil::Weiter];
  connect(&timer_[Pfeil::Start], &QTimer::timeout, this, [this] { ZeigeStart(*this); });
  connect(&timer_[Pfeil::Weiter], &QTimer::timeout, this, [this] { NaechsterLevelBlinkt(*this); });
}

void frmSpielfeld::MenueAufbauen() {
  using F = frmSpielfeld;
  auto *eintraege = new QActionGroup(this);
  eintraege->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
  const auto Eintrag = [&](QMenu *menue, const char *text, auto tat,
                           const QKeySequence &tasten = {}) {
    return eintraege->addAction(
        menue->addAction(text, tasten, this, [this, tat] { std::invoke(tat, *this); }));
  };
  // The blanks behind the first two captions keep the heads of the menus apart.
  QMenu *mnuMenue1 = menuBar()->addMenu("&Spiel                     ");
  Eintrag(mnuMenue1, "Neues Spiel", imgNeuesSpiel_Click, Qt::CTRL | Qt::Key_N);
  mnuLaden_ = Eintrag(mnuMenue1, "Spielstand laden...", &F::imgOeffnen_Click, Qt::CTRL | Qt::Key_O);
  mnuSpeichern_ = Eintrag(mnuMenue1, "Spielstand speichern unter...", &F::imgSpeichern_Click,
                          Qt::CTRL | Qt::Key_S);
  mnuMenue1->addSeparator();
  Eintrag(mnuMenue1, "b&eenden", imgEnde_Click);

  QMenu *mnuMenue2 = menuBar()->addMenu("&Optionen             ");
  SoundmenueAufbauen(mnuMenue2->addMenu("Sound"));
  mnuMenue2->addSeparator();
  Eintrag(mnuMenue2, "Einstellungen...", &F::imgEinstellungen_Click);

  QMenu *mnuMenue3 = menuBar()->addMenu("&Information");
  Eintrag(mnuMenue3, "&Spielanleitung", &F::lblAnleitung_Click, Qt::Key_F1);
  Eintrag(mnuMenue3, "&zu dieser Anwendung...", &F::lblInfo_Click);
  mnuMenue3->addSeparator();
  Eintrag(mnuMenue3, "&Beste Spieler...", &F::mnuBeste_Click);
}

void frmSpielfeld::SoundmenueAufbauen(QMenu *menue) {
  auto *mnusoundan = new QActionGroup(this);
  QAction *an = mnusoundan->addAction(menue->addAction("an"));
  QAction *aus = mnusoundan->addAction(menue->addAction("aus"));
  for (QAction *aktion : {an, aus})
    aktion->setCheckable(true);
  an->setChecked(true);
  connect(mnusoundan, &QActionGroup::triggered, this,
          [an](const QAction *aktion) { spiel.SoundAn = aktion == an; });

  const auto Frage = [mnuSound = menue->menuAction()] { mnuSound->setEnabled(SoundGeraetDa()); };
  connect(&DerTonmelder(), &Tonmelder::Gewechselt, menue, Frage);
  connect(static_cast<QMenu *>(menue->parentWidget()), &QMenu::aboutToShow, menue, Frage);
  Frage();
}

void frmSpielfeld::ZeigeModuswahl() {
  imgModus_->Waehle(spiel.Spielmodus);
}

void frmSpielfeld::ErlaubeLaden(bool erlaubt) {
  Zeige(Bedienung::imgOeffnen, erlaubt);
  mnuLaden_->setEnabled(erlaubt);
}

frmBeste &frmSpielfeld::Bestenfenster() {
  if (!beste_) {
    beste_ = new frmBeste(this, *this);
    connect(beste_, &frmBeste::Entladen, this, [this] { beste_ = nullptr; });
  }
  return *beste_;
}

Kachel frmSpielfeld::LiesKachel(int zelle) const {
  return Picture1_->LiesKachel(zelle);
}

void frmSpielfeld::SetzeKachel(int zelle, Kachel kachel) {
  Picture1_->SetzeKachel(zelle, kachel);
}

void frmSpielfeld::SetzeZahl(int platz, int zahl) {
  Picture1_->SetzeZahl(platz, zahl);
}

bool frmSpielfeld::IstZahlNull(int platz) const {
  return Picture1_->LiesZahl(platz) == 0;
}

void frmSpielfeld::ZeigeZahlfeld(int platz, bool sichtbar) {
  Picture1_->ZeigeZahlfeld(platz, sichtbar);
}

void frmSpielfeld::SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) {
  panel_->SetzeZiffer(reihe, stelle, farbe, ziffer);
}

void frmSpielfeld::SetzeModustext(const std::string &text) {
  lblModus_->ZeigeText(text);
}

void frmSpielfeld::SetzeModusfarbe(Textfarbe farbe) {
  lblModus_->SetzeFarbe(farbe == Textfarbe::Blau ? kBlau : kDunkelblau);
}

bool frmSpielfeld::IstSichtbar(Bedienung bedienung) const {
  return !bedienungen_.at(bedienung)->isHidden();  // isVisible() is false before the window shows.
}

void frmSpielfeld::Zeige(Bedienung bedienung, bool sichtbar) {
  bedienungen_.at(bedienung)->setVisible(sichtbar);
}

void frmSpielfeld::ErlaubeSpeichern(bool erlaubt) {
  mnuSpeichern_->setEnabled(erlaubt);
}

void frmSpielfeld::VerbergeModuswahl() {
  imgModus_->Verberge();
}

void frmSpielfeld::StelleTimer(Pfeil pfeil, int millisekunden) {
  QTimer &timer = timer_.at(pfeil);
  timer.setInterval(millisekunden);
  if (millisekunden == 0)
    timer.stop();
  else
    timer.start();
}

void frmSpielfeld::ZeigePfeil(Pfeil pfeil, int phase) {
  pfeile_.at(pfeil)->SetzeBild(pfeil == Pfeil::Start ? frmBilder::imgPfeilhoch(phase)
                                                     : frmBilder::imgPfeil(phase));
}

void frmSpielfeld::SpieleSound(int effekt) {
  if (spiel.SoundAn)
    ::SpieleSound(effekt);
}

void frmSpielfeld::Melde(const Meldung &meldung) {
  if (meldung.Klang != kKeinKlang)
    SpieleSound(meldung.Klang);
  frmMsgOk(meldung).ZeigeUeber(this);
}

bool frmSpielfeld::Frage(const Meldung &meldung) {
  SpieleSound(meldung.Klang);
  frmMsgJa(meldung).ZeigeUeber(this);
  return spiel.Antwort == kJa;
}

void frmSpielfeld::BestenlistePruefen() {
  Bestenfenster();  // Its making reads the list anew.
  ::BestenlistePruefen(*this);
}

void frmSpielfeld::ZeigeBesteneintrag() {
  Bestenfenster().ZeigeZumEintragen();
}

void frmSpielfeld::BeendeDasSpiel() {
  spiel.Punkte = 0;
  Form_Unload();
}

bool frmSpielfeld::event(QEvent *ereignis) {
  const bool gesperrt = ereignis->type() == QEvent::WindowBlocked;
  QWidget *wartend = QApplication::activeModalWidget();
  if (ereignis->type() == QEvent::WindowActivate && wartend)
    wartend->activateWindow();  // The keys belong to it.
  // Assistive technology reaches the entries even while another window waits for an answer.
  if (gesperrt || ereignis->type() == QEvent::WindowUnblocked) {
    for (QActionGroup *eintraege : findChildren<QActionGroup *>())
      eintraege->setEnabled(!gesperrt);
  }
  return QMainWindow::event(ereignis);
}

void frmSpielfeld::showEvent(QShowEvent *ereignis) {
  QMainWindow::showEvent(ereignis);
  QTimer::singleShot(0, this, [this] {  // Meanwhile the desktop puts the frame around the window.
    LadeSpielbilder(devicePixelRatioF());
    std::ranges::for_each(findChildren<Bild *>(), &Bild::LadeVor);
  });
}

void frmSpielfeld::moveEvent(QMoveEvent *ereignis) {
  QMainWindow::moveEvent(ereignis);
  // How wide the frame is becomes known when the desktop has put it around the window.
  if (!mitRahmenZentriert_ && frameGeometry() != geometry()) {
    mitRahmenZentriert_ = true;
    Zentriere();
  }
}

void frmSpielfeld::closeEvent(QCloseEvent *ereignis) {
  ereignis->accept();
  Form_Unload();
}

void frmSpielfeld::keyPressEvent(QKeyEvent *ereignis) {
  if (!tastatur_->Druecke(*ereignis))
    QMainWindow::keyPressEvent(ereignis);
}

bool frmSpielfeld::focusNextPrevChild(bool vorwaerts) {
  return tastatur_->WechsleBereich(vorwaerts);
}

void frmSpielfeld::Form_Unload() {
  StelleTimer(Pfeil::Weiter, 0);
  QCoreApplication::exit(0);
}

void frmSpielfeld::imgOeffnen_Click() {
  bool weiter = true;
  SucheSpielstand(*this, weiter);
  const QString pfad = weiter ? DateiOeffnenDialog(this, Dialogordner()) : QString();
  if (!pfad.isEmpty())
    LadeGewaehlteDatei(*this, pfad);
}

void frmSpielfeld::imgSpeichern_Click() {
  const QString pfad = DateiSpeichernDialog(this, Dialogordner());
  if (pfad.isEmpty())
    Melde(MeldungKeinDateiname());
  else
    SpeichereSpielstand(*this, MitEndung(pfad));
}

void frmSpielfeld::imgModus_Click(int modus) {
  spiel.Spielmodus = static_cast<std::int16_t>(modus);
  ZeigeModuswahl();
  SetzeModustext("Spielmodus  :  " + ModusName(modus));
  SchreibeIni();
}

void frmSpielfeld::imgEinstellungen_Click() {
  if (spiel.Punkte != 0 && !Frage(FrageEinstellungen()))
    return;
  StoppePfeil(*this, Pfeil::Start);
  SpieleSound(kKlangBlip);
  frmOptionen optionen(this, *this);
  optionen.Platziere(this, Lage::LinksOben);
  optionen.exec();
  activateWindow();  // Some desktops lose the focus when two windows close one after the other.
}

void frmSpielfeld::imgBester_Click() {
  BestenlistePruefen();
  Zeige(Bedienung::imgBester, false);
}

void frmSpielfeld::lblAnleitung_Click() {
  OeffneHilfe("saranten.pdf");
}

void frmSpielfeld::lblInfo_Click() {
  Melde(MeldungInfo());
}

void frmSpielfeld::mnuBeste_Click() {
  SpieleSound(kKlangBlip);
  Bestenfenster().ZeigeZumLesen();
}
