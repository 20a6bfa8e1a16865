#include "shell/frmSpielfeld.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <functional>
#include <optional>

#include "controls/beschriftung.h"
#include "controls/bilder.h"
#include "controls/wahlgruppe.h"
#include "controls/zifferreihe.h"
#include "core/befehle.h"
#include "core/level.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmMsg.h"
#include "dialogs/frmOptionen.h"
#include "dialogs/zugang.h"
#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modCdVersion.h"
#include "persistence/modDateiHandling.h"
#include "platform/modOpenSave.h"
#include "platform/modShellExecute.h"
#include "platform/mod_MySound.h"
#include "shell/menue.h"
#include "shell/panel.h"
#include "shell/tastatur.h"

namespace {

const Bildeintrag kFlaeche{"frmSpielfeld",     kClientflaeche, "spielfeld", "", "",
                           QAccessible::Client};
const Bildeintrag kKnopfbereich{"", kClientflaeche, "", "", "Knöpfe", QAccessible::Grouping};

const Texteintrag kLblModus{"lblModus", {4260, 9960, 6615, 855}, 11.25, true, kDunkelblau};

const std::vector<Wahlgruppe::Wahleintrag> kModuseintraege{{{4800, 10380, 2175, 480}, "Einfach"},
                                                           {{7140, 10380, 2175, 480}, "Normal"},
                                                           {{9450, 10380, 2175, 480}, "Experte"}};

/// A picture button with its handler, and its name in `Ansicht` if that shows and hides it.
struct Knopfeintrag {
  Bildeintrag bild;
  std::function<void(frmSpielfeld &)> klick;
  std::optional<Bedienung> bedienung = std::nullopt;
};
using F = frmSpielfeld;
using B = Bedienung;
constexpr auto kKnopf = QAccessible::Button;

// clang-format off
const std::pair<Pfeil, Bildeintrag> kPfeile[] = {
    {Pfeil::Start, {"imgZeigeStart", {2730, 9300, 360, 495}, "", "",
                    "", QAccessible::Graphic}},
    {Pfeil::Weiter, {"imgWeiter", {4140, 10170, 495, 360}, "", "",
                     "", QAccessible::Graphic}},
};

const std::vector<Knopfeintrag> kKnoepfe{  // imgNextLevel and cmdWiederholen: apart on purpose.
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

}  // namespace

frmSpielfeld::frmSpielfeld() {
  setWindowTitle(QString::fromStdString(Versionstext()));
  setWindowFlags(Qt::Window | kFesterRahmen | Qt::WindowMinimizeButtonHint);
  auto *flaeche = new Bild(this, kFlaeche);
  flaeche->setFixedSize(Rechteck(kClientflaeche).size());
  setCentralWidget(flaeche);
  Picture1_ = new Spielbrett(flaeche, *this);
  lblModus_ = new Beschriftung(flaeche, kLblModus);
  auto *knoepfe = new Bild(flaeche, kKnopfbereich);
  KnoepfeAufbauen(knoepfe);
  PfeileAufbauen(flaeche);
  panel_ = std::make_unique<Panel>(flaeche);
  menueintraege_ = BaueMenue(*this);
  tastatur_ = std::make_unique<Tastatur>(knoepfe, Picture1_,
                                         panel_->Reihe(Panelreihe::Punkte).parentWidget());
  for (const B bedienung : {B::imgNextLevel, B::cmdWiederholen, B::imgSpeichern, B::imgBester})
    Zeige(bedienung, false);
  Picture1_->Licht().Setze(Brettlicht::Stand::Warten);

  layout()->setSizeConstraint(QLayout::SetFixedSize);
  adjustSize();
  Zentriere();
  BehalteGroesse(this);
  for (const QScreen *schirm : QGuiApplication::screens())
    connect(schirm, &QScreen::availableGeometryChanged, this, &frmSpielfeld::BleibeAufSchirm,
            Qt::QueuedConnection);
  connect(qApp, &QGuiApplication::screenRemoved, this, &frmSpielfeld::BleibeAufSchirm,
          Qt::QueuedConnection);
}

void frmSpielfeld::BleibeAufSchirm() {
  const QPoint vorher = pos();
  if (!screen()->availableGeometry().contains(frameGeometry()))
    Zentriere();
  for (QDialog *fenster : findChildren<QDialog *>())
    fenster->move(fenster->pos() + pos() - vorher);
}

frmSpielfeld::~frmSpielfeld() = default;

void frmSpielfeld::Zentriere() {
  const QRect schirm = screen()->availableGeometry();
  const QSize rest = (schirm.size() - frameGeometry().size()).expandedTo({0, 0});
  move(schirm.topLeft() + QPoint(rest.width(), rest.height()) / 2);
}

void frmSpielfeld::KnoepfeAufbauen(QWidget *bereich) {
  for (const Knopfeintrag &knopf : kKnoepfe) {
    auto *bild = new Bild(bereich, knopf.bild);
    bild->SetzeKlick([this, klick = knopf.klick] { klick(*this); });
    if (knopf.bedienung)
      bedienungen_[*knopf.bedienung] = bild;
  }
  imgModus_ = std::make_unique<Wahlgruppe>(bereich, kModuswahl, kModuseintraege,
                                           [this](int modus) { imgModus_Click(modus); });
  bereich->setMask(bereich->childrenRegion());  // The mouse reaches what lies between the buttons.
}

void frmSpielfeld::PfeileAufbauen(QWidget *flaeche) {
  for (const auto &[pfeil, bild] : kPfeile)
    pfeile_[pfeil] = new Bild(flaeche, bild);
  bedienungen_[Bedienung::imgWeiter] = pfeile_[Pfeil::Weiter];
  connect(&timer_[Pfeil::Start], &QTimer::timeout, this, [this] { ZeigeStart(*this); });
  connect(&timer_[Pfeil::Weiter], &QTimer::timeout, this, [this] { NaechsterLevelBlinkt(*this); });
}

frmBeste &frmSpielfeld::Bestenfenster() {
  if (!beste_) {
    BestenlisteLaden(*this);  // Its window may have been closed without its last change.
    beste_ = new frmBeste(this, *this);
    connect(beste_, &frmBeste::Entladen, this, [this] { beste_ = nullptr; });
  }
  return *beste_;
}

void frmSpielfeld::SetzeZiffer(Panelreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) {
  panel_->Reihe(reihe).SetzeZiffer(stelle, farbe, ziffer);
}

void frmSpielfeld::SetzeModustext(const std::string &text) {
  const QString vorher = lblModus_->text().simplified();
  lblModus_->ZeigeText(text);
  const QString jetzt = lblModus_->text().simplified();
  if (jetzt != vorher)
    SageAn(lblModus_, jetzt);
}

void frmSpielfeld::FaerbeModustext() { lblModus_->SetzeFarbe(kBlau); }

void frmSpielfeld::ZeigeModuswahl() { imgModus_->Waehle(spiel.Spielmodus); }

void frmSpielfeld::VerbergeModuswahl() { imgModus_->Verberge(); }

void frmSpielfeld::Zeige(Bedienung bedienung, bool sichtbar) {
  bedienungen_.at(bedienung)->setVisible(sichtbar);
  if (bedienung == Bedienung::imgNextLevel)
    Picture1_->Licht().Setze(sichtbar ? Brettlicht::Stand::Gewonnen : Brettlicht::Stand::Spiel);
  const auto eintrag = menueintraege_.find(bedienung);
  if (eintrag != menueintraege_.end())
    eintrag->second->setEnabled(sichtbar);
}

void frmSpielfeld::ZeigePfeil(Pfeil pfeil, int phase) {
  pfeile_.at(pfeil)->SetzeBild(pfeil == Pfeil::Start ? frmBilder::imgPfeilhoch(phase)
                                                     : frmBilder::imgPfeil(phase));
}

void frmSpielfeld::StoppePfeil(Pfeil pfeil) {
  timer_.at(pfeil).stop();
  ZeigePfeil(pfeil, kKeinPfeil);
}

void frmSpielfeld::SpieleSound(int effekt) {
  if (spiel.SoundAn)
    DasSoundgeraet().SpieleSound(effekt);
}

void frmSpielfeld::Melde(const Meldung &meldung) {
  if (meldung.sound != kKeinSound)
    SpieleSound(meldung.sound);
  frmMsgOk(this, meldung).Zeige();
}

bool frmSpielfeld::Frage(const Meldung &meldung) {
  SpieleSound(meldung.sound);
  frmMsgJa(this, meldung).Zeige();
  return spiel.Antwort == kJa;
}

void frmSpielfeld::BestenlistePruefen() {
  Bestenfenster();
  ::BestenlistePruefen(*this);
}

void frmSpielfeld::ZeigeBesteneintrag() { Bestenfenster().ZeigeZumEintragen(); }

void frmSpielfeld::BeendeDasSpiel() {
  spiel.Punkte = 0;
  Form_Unload();
}

bool frmSpielfeld::event(QEvent *ereignis) {
  const bool gesperrt = ereignis->type() == QEvent::WindowBlocked;
  QWidget *modal = QApplication::activeModalWidget();
  if (ereignis->type() == QEvent::WindowActivate && modal) {
    modal->activateWindow();  // The focus belongs to the modal window.
    if (auto *fenster = qobject_cast<Bildfenster *>(modal))
      fenster->ZeigeErneut();
  }
  // Assistive technology can trigger menu entries while a modal window is open.
  if (gesperrt || ereignis->type() == QEvent::WindowUnblocked) {
    for (QActionGroup *eintraege : findChildren<QActionGroup *>())
      eintraege->setEnabled(!gesperrt);
  }
  return QMainWindow::event(ereignis);
}

void frmSpielfeld::showEvent(QShowEvent *ereignis) {
  QMainWindow::showEvent(ereignis);
  QTimer::singleShot(0, this, [this] {  // Runs while the window manager makes the frame.
    LadeSpielbilder(devicePixelRatioF());
    std::ranges::for_each(findChildren<Bild *>(), &Bild::LadeVor);
  });
}

void frmSpielfeld::moveEvent(QMoveEvent *ereignis) {
  QMainWindow::moveEvent(ereignis);
  // The size of the frame is unknown until the window manager has made it.
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
  StoppePfeil(Pfeil::Weiter);
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
    Melde(MeldungKeinDateiname);
  else
    SpeichereSpielstand(*this, MitEndung(pfad));
}

void frmSpielfeld::imgModus_Click(int modus) {
  spiel.Spielmodus = static_cast<std::int16_t>(modus);
  ZeigeModuswahl();
  SetzeModustext(GewaehlterModus(modus));
  SchreibeIni();
}

void frmSpielfeld::imgEinstellungen_Click() {
  if (spiel.Punkte != 0 && !Frage(FrageEinstellungen()))
    return;
  StoppePfeil(Pfeil::Start);
  SpieleSound(kSoundBlip);
  frmOptionen optionen(this, *this);
  optionen.Platziere(this, Fensterlage::LinksOben);
  optionen.exec();
}

void frmSpielfeld::imgBester_Click() {
  BestenlistePruefen();
  Zeige(Bedienung::imgBester, false);
}

void frmSpielfeld::lblAnleitung_Click() { OeffneHilfe("saranten.pdf"); }

void frmSpielfeld::mnuInfo4_Click() {
  SpieleSound(kSoundBlip);
  Bestenfenster().ZeigeZumLesen();
}
