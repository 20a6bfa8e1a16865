#include "shell/frmSpielfeld.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <optional>

#include "core/befehle.h"
#include "core/level.h"
#include "core/zug.h"
#include "dialogs/bild.h"
#include "dialogs/bilder.h"
#include "dialogs/frmBeste.h"
#include "dialogs/frmMsg.h"
#include "dialogs/frmOptionen.h"
#include "dialogs/hilfe.h"
#include "dialogs/zifferreihe.h"
#include "persistence/iniLumbra.h"
#include "persistence/modBeste.h"
#include "persistence/modDateiHandling.h"
#include "platform/modOpenSave.h"
#include "platform/mod_MySound.h"

namespace {

constexpr Twips kFenster{0, 0, 13170, 10935};
const Bildzeile kFlaeche{"frmSpielfeld", kFenster, "spielfeld", "", "Spiel", QAccessible::Grouping};
// The picture of the window shows the board as well.
const Bildzeile kPicture1{"Picture1",  {3330, 210, 9645, 9705}, "", "",
                          "Spielfeld", QAccessible::Grouping};

const Textzeile kLblModus{"lblModus", {4260, 9960, 6615, 855}, 11.25, true, kDunkelblau};

const std::vector<Wahlgruppe::Zeile> kModuszeilen{{{4800, 10380, 2175, 480}, "Einfach"},
                                                  {{7140, 10380, 2175, 480}, "Normal"},
                                                  {{9450, 10380, 2175, 480}, "Experte"}};

struct Pfeilzeile {
  Pfeil pfeil;
  Bildzeile zeile;
};
const Pfeilzeile kPfeile[] = {
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

/// A row of the panel: the label picture and the places of its digits.
struct Panelzeile {
  Bildzeile tafel;
  Twips ecke;
  int stellen;
};
const Panelzeile kPanel[] = {
    {{"Image1", {240, 3330, 2865, 630}, "tafelPunkte", "", "Punkte", QAccessible::Graphic},
     {1860, 3450},
     5},
    {{"Image6",
      {240, 4020, 2865, 630},
      "tafelLevelpunkte",
      "",
      "Levelpunkte",
      QAccessible::Graphic},
     {2280, 4140},
     3},
    {{"Image4", {270, 6180, 2865, 630}, "tafelLevel", "", "Level", QAccessible::Graphic},
     {2460, 6300},
     2},
    {{"Image3", {210, 5460, 2865, 630}, "tafelOffen", "", "noch offen", QAccessible::Graphic},
     {2430, 5580},
     2},
    {{"Image2",
      {240, 4710, 2865, 630},
      "tafelFehlversuche",
      "",
      "Fehlversuche",
      QAccessible::Graphic},
     {2460, 4830},
     2},
};

// The pattern of the cells and of the clue places; see ZelleLage and PlatzLage.
constexpr Twips kZelle{2370, 2370, 705, 705};
constexpr Twips kSpaltenplatz{2520, 1800, 435, 465};
constexpr Twips kZeilenplatz{1800, 2460, 435, 465};
constexpr int kPlatzschrittHoch = 420;
constexpr int kPlatzschrittLinks = 350;

int ZeileVon(int zelle) {
  return (zelle - 1) / kLinie + 1;
}
int SpalteVon(int zelle) {
  return (zelle - 1) % kLinie + 1;
}

Twips ZelleLage(int zelle) {
  return {kZelle.left + kZelle.width * (SpalteVon(zelle) - 1),
          kZelle.top + kZelle.height * (ZeileVon(zelle) - 1), kZelle.width, kZelle.height};
}

/// A clue place as the player counts it.
struct Zahlfeld {
  bool spalte;
  int linie;  ///< From 1.
  int k;      ///< From 1, the place next to the board.
};

Zahlfeld ZahlfeldVon(int platz) {
  const int nummer = (platz - 1) % (kZahlfelder / 2);
  return {platz <= kZahlfelder / 2, nummer / kPlaetzeJeLinie + 1, nummer % kPlaetzeJeLinie + 1};
}

/// The places of a line grow away from the playfield.
Twips PlatzLage(int platz) {
  const Zahlfeld feld = ZahlfeldVon(platz);
  Twips lage = feld.spalte ? kSpaltenplatz : kZeilenplatz;
  if (feld.spalte) {
    lage.left += kZelle.width * (feld.linie - 1);
    lage.top -= kPlatzschrittHoch * (feld.k - 1);
  } else {
    lage.left -= kPlatzschrittLinks * (feld.k - 1);
    lage.top += kZelle.height * (feld.linie - 1);
  }
  return lage;
}

struct Kachelbild {
  Kachel kachel;
  const QPixmap *bild;
  const char *ansage;
};
const std::array<Kachelbild, 4> &Kachelbilder() {
  static const std::array<Kachelbild, 4> bilder{
      {{Kachel::Verdeckt, &frmBilder::imgPlatte(1), "verdeckt"},
       {Kachel::Markiert, &frmBilder::imgPlatte(2), "markiert"},
       {Kachel::Fehler, &frmBilder::imgPlatte(0), "Fehler"},
       {Kachel::Sarant, &frmBilder::imgSarant(), "Sarant"}}};
  return bilder;
}

const Kachelbild &KachelbildVon(const QPixmap *bild) {
  const auto &bilder = Kachelbilder();
  return *std::find_if(bilder.begin(), bilder.end() - 1,
                       [bild](const Kachelbild &eintrag) { return eintrag.bild == bild; });
}

const Kachelbild &KachelbildVon(Kachel kachel) {
  const auto &bilder = Kachelbilder();
  return *std::find_if(bilder.begin(), bilder.end() - 1,
                       [kachel](const Kachelbild &eintrag) { return eintrag.kachel == kachel; });
}

/// A cell; what a screen reader says is read from its tile.
class Zellenbild : public Bild {
 public:
  Zellenbild(QWidget *eltern, int zelle) : Bild(eltern), zelle_(zelle) {
    setObjectName("imgSar" + QString::number(zelle));
    setGeometry(Rechteck(ZelleLage(zelle)));
    SetzeAnsage(objectName(), QAccessible::Button);
  }
  QString Ansage() const override {
    return QString("Zeile %1, Spalte %2: ").arg(ZeileVon(zelle_)).arg(SpalteVon(zelle_)) +
           KachelbildVon(GezeigtesBild()).ansage;
  }

 private:
  int zelle_;
};

int ZahlVon(const QPixmap *bild) {
  int zahl = 0;
  while (zahl < kLinie && bild != &frmZahlen::imgZahl(zahl))
    ++zahl;
  return zahl;
}

/// A clue place; what a screen reader says is read from its number.
class Platzbild : public Bild {
 public:
  Platzbild(QWidget *eltern, int platz) : Bild(eltern), platz_(platz) {
    setObjectName("imgDiggi" + QString::number(platz));
    setGeometry(Rechteck(PlatzLage(platz)));
    SetzeAnsage(objectName(), QAccessible::StaticText);
  }
  QString Ansage() const override {
    const Zahlfeld feld = ZahlfeldVon(platz_);
    return QString("%1 %2, Zahl %3: %4")
        .arg(feld.spalte ? "Spalte" : "Zeile")
        .arg(feld.linie)
        .arg(feld.k)
        .arg(ZahlVon(GezeigtesBild()));
  }

 private:
  int platz_;
};

std::size_t Index(int n) {
  return static_cast<std::size_t>(n);
}

}  // namespace

/// A picture button: where it stands, what a click does, and its name for the rules if they show
/// and hide it.
struct frmSpielfeld::Knopfzeile {
  Bildzeile zeile;
  void (frmSpielfeld::*klick)();
  std::optional<Bedienung> bedienung = std::nullopt;
  const char *gedrueckt = "";  ///< Picture while a mouse button is held on it.
};

const std::vector<frmSpielfeld::Knopfzeile> &frmSpielfeld::Knopftabelle() {
  using F = frmSpielfeld;
  static const std::vector<Knopfzeile> tabelle{
      {{"imgOeffnen",
        {1590, 300, 480, 480},
        "spielLaden",
        "Vorhandene Spieledatei laden",
        "Spiel laden"},
       &F::imgOeffnen_Click,
       Bedienung::imgOeffnen},
      {{"imgSpeichern",
        {2160, 300, 480, 480},
        "spielSpeichern",
        "Aktuellen Spielstand speichern",
        "Spiel speichern"},
       &F::imgSpeichern_Click,
       Bedienung::imgSpeichern},
      {{"lblAnleitung", {240, 1470, 1440, 630}, "cmdHilfeAuswahl", "Spielanleitung", "Hilfe"},
       &F::lblAnleitung_Click,
       std::nullopt,
       "cmdHilfeGruen"},
      {{"lblInfo",
        {240, 2160, 1440, 630},
        "cmdBeschreibungenAuswahl",
        "Information zum Spiel",
        "Info"},
       &F::lblInfo_Click,
       std::nullopt,
       "cmdBeschreibungenFruen"},
      {{"imgEinstellungen",
        {330, 6930, 2865, 630},
        "knopfEinstellungen",
        "Einstellungen des Spieles ändern",
        "Einstellungen"},
       &F::imgEinstellungen_Click},
      {{"imgNeuesSpiel",
        {360, 8460, 2865, 630},
        "knopfNeuesSpiel",
        "Neues Spiel starten",
        "Neues Spiel"},
       &F::imgNeuesSpiel_Click},
      {{"imgEnde", {420, 9210, 2040, 630}, "knopfBeenden", "Spiel beenden", "Beenden"},
       &F::imgEnde_Click},
      {{"imgNextLevel",
        {1230, 10050, 2865, 630},
        "knopfNextLevel",
        "Start des nächsten Levels",
        "Nächster Level"},
       &F::imgNextLevel_Click,
       Bedienung::imgNextLevel},
      {{"cmdWiederholen", {1200, 10050, 2865, 630}, "knopfWiederholen", "", "Wiederholen"},
       &F::cmdWiederholen_Click,
       Bedienung::cmdWiederholen},
      {{"imgBester",
        {10140, 9960, 2865, 630},
        "knopfBester",
        "Eintrag in die Liste der besten Spieler",
        "Bester Spieler"},
       &F::imgBester_Click,
       Bedienung::imgBester},
  };
  return tabelle;
}

frmSpielfeld::frmSpielfeld() {
  setWindowTitle(QString::fromStdString(Versionstext()));
  setContextMenuPolicy(Qt::NoContextMenu);
  auto *flaeche = new Bild(this, kFlaeche);
  flaeche->setFixedSize(Rechteck(kFenster).size());
  setCentralWidget(flaeche);
  FeldAufbauen(flaeche);
  lblModus_ = NeueBeschriftung(flaeche, kLblModus);
  KnoepfeAufbauen(flaeche);
  PanelAufbauen(flaeche);
  MenueAufbauen();
  tastatur_ = std::make_unique<Tastatur>(
      flaeche, std::vector<QWidget *>(imgSar_.begin() + 1, imgSar_.end()),
      [this](bool spalte, int linie) { return Zahlen(spalte, linie); });
  for (const Bedienung bedienung : {Bedienung::imgNextLevel, Bedienung::cmdWiederholen,
                                    Bedienung::imgSpeichern, Bedienung::imgBester})
    Zeige(bedienung, false);
  ErlaubeSpeichern(false);

  layout()->setSizeConstraint(QLayout::SetFixedSize);
  adjustSize();
  const QRect schirm = screen()->availableGeometry();
  move(schirm.x() + (schirm.width() - width()) / 2, schirm.y() + (schirm.height() - height()) / 2);
}

void frmSpielfeld::FeldAufbauen(QWidget *flaeche) {
  auto *Picture1 = new Bild(flaeche, kPicture1);
  for (int n = 1; n <= kZellen; ++n) {
    imgSar_.at(Index(n)) = new Zellenbild(Picture1, n);
    imgSar_.at(Index(n))->SetzeDruck([this, n](Qt::MouseButton taste) {
      imgSar_MouseDown(*this, n, taste == Qt::LeftButton ? kLinkeTaste : kRechteTaste);
    });
    SetzeKachel(n, Kachel::Verdeckt);
  }
  for (int n = 1; n <= kZahlfelder; ++n) {
    imgDiggi_.at(Index(n)) = new Platzbild(Picture1, n);
    SetzeZahl(n, 0);
  }
}

void frmSpielfeld::KnoepfeAufbauen(QWidget *flaeche) {
  for (const Knopfzeile &knopf : Knopftabelle()) {
    auto *bild = new Bild(flaeche, knopf.zeile);
    bild->SetzeKlick([this, klick = knopf.klick] { (this->*klick)(); });
    if (knopf.bedienung)
      bedienungen_[*knopf.bedienung] = bild;
    if (*knopf.gedrueckt != '\0') {
      const QPixmap *ruhend = bild->GezeigtesBild();
      const QPixmap *gedrueckt = &Bilddatei(knopf.gedrueckt);
      bild->SetzeDruck([bild, gedrueckt](Qt::MouseButton) { bild->SetzeBild(gedrueckt); });
      bild->SetzeLoslassen([bild, ruhend](Qt::MouseButton) { bild->SetzeBild(ruhend); });
    }
  }
  imgModus_ = std::make_unique<Wahlgruppe>(flaeche, kModuswahl, kModuszeilen,
                                           [this](int modus) { imgModus_Click(modus); });
  for (const Pfeilzeile &zeile : kPfeile) {
    pfeile_[zeile.pfeil] = new Bild(flaeche, zeile.zeile);
    ZeigePfeil(zeile.pfeil, kKeinPfeil);
  }
  bedienungen_[Bedienung::imgWeiter] = pfeile_[Pfeil::Weiter];
  connect(&timer_[Pfeil::Start], &QTimer::timeout, this, [this] { ZeigeStart(*this); });
  connect(&timer_[Pfeil::Weiter], &QTimer::timeout, this, [this] { NaechsterLevelBlinkt(*this); });
}

void frmSpielfeld::PanelAufbauen(QWidget *flaeche) {
  std::vector<Zifferreihe *> reihen;
  for (const Panelzeile &zeile : kPanel) {
    new Bild(flaeche, zeile.tafel);
    reihen.push_back(new Zifferreihe(flaeche, zeile.ecke, zeile.stellen, zeile.tafel.ansage));
  }
  imgPunkte_ = reihen[0];
  imgLevel_ = reihen[1];
  imgAuswertung_ = {reihen[2], reihen[3], reihen[4]};
}

void frmSpielfeld::MenueAufbauen() {
  // The blanks behind the first two captions keep the heads of the menus apart.
  QMenu *mnuMenue1 = menuBar()->addMenu("&Spiel                     ");
  mnuSpiel_[1] = mnuMenue1->addAction("Neues Spiel", QKeySequence(Qt::CTRL | Qt::Key_N));
  mnuSpiel_[2] = mnuMenue1->addAction("Spielstand laden...", QKeySequence(Qt::CTRL | Qt::Key_O));
  mnuSpiel_[3] =
      mnuMenue1->addAction("Spielstand speichern unter...", QKeySequence(Qt::CTRL | Qt::Key_S));
  mnuMenue1->addSeparator();
  mnuSpiel_[5] = mnuMenue1->addAction("b&eenden");
  for (const auto &[eintrag, aktion] : mnuSpiel_)
    connect(aktion, &QAction::triggered, this, [this, n = eintrag] { mnuSpiel_Click(n); });

  QMenu *mnuMenue2 = menuBar()->addMenu("&Optionen             ");
  QMenu *mnuSound = mnuMenue2->addMenu("Sound");
  mnuSound_ = mnuSound->menuAction();
  mnusoundan_[1] = mnuSound->addAction("an");
  mnusoundan_[2] = mnuSound->addAction("aus");
  for (const auto &[eintrag, aktion] : mnusoundan_) {
    aktion->setCheckable(true);
    connect(aktion, &QAction::triggered, this, [this, n = eintrag] { mnusoundan_Click(n); });
  }
  mnusoundan_[1]->setChecked(true);
  mnuMenue2->addSeparator();
  connect(mnuMenue2->addAction("Einstellungen..."), &QAction::triggered, this,
          [this] { imgEinstellungen_Click(); });

  QMenu *mnuMenue3 = menuBar()->addMenu("&Information");
  std::map<int, QAction *> mnuInfo;
  mnuInfo[1] = mnuMenue3->addAction("&Spielanleitung", QKeySequence(Qt::Key_F1));
  mnuInfo[2] = mnuMenue3->addAction("&zu dieser Anwendung...");
  mnuMenue3->addSeparator();
  mnuInfo[4] = mnuMenue3->addAction("&Beste Spieler...");
  for (const auto &[eintrag, aktion] : mnuInfo)
    connect(aktion, &QAction::triggered, this, [this, n = eintrag] { mnuInfo_Click(n); });
}

QString frmSpielfeld::Zahlen(bool spalte, int linie) const {
  QStringList zahlen;
  for (int platz = 1; platz <= kZahlfelder; ++platz) {
    const Zahlfeld feld = ZahlfeldVon(platz);
    const Bild *bild = imgDiggi_.at(Index(platz));
    if (feld.spalte == spalte && feld.linie == linie && !bild->isHidden())
      zahlen.prepend(QString::number(ZahlVon(bild->GezeigtesBild())));
  }
  return QString("%1 %2: %3")
      .arg(spalte ? "Spalte" : "Zeile")
      .arg(linie)
      .arg(zahlen.isEmpty() ? "leer" : zahlen.join(", "));
}

void frmSpielfeld::ZeigeModuswahl() {
  imgModus_->Waehle(spiel.Spielmodus);
}

void frmSpielfeld::ErlaubeLaden(bool erlaubt) {
  Zeige(Bedienung::imgOeffnen, erlaubt);
  mnuSpiel_.at(2)->setEnabled(erlaubt);
}

void frmSpielfeld::ErlaubeSound(bool erlaubt) {
  mnuSound_->setEnabled(erlaubt);
}

Kachel frmSpielfeld::LiesKachel(int zelle) const {
  return KachelbildVon(imgSar_.at(Index(zelle))->GezeigtesBild()).kachel;
}

void frmSpielfeld::SetzeKachel(int zelle, Kachel kachel) {
  imgSar_.at(Index(zelle))->SetzeBild(KachelbildVon(kachel).bild);
}

void frmSpielfeld::SetzeZahl(int platz, int zahl) {
  imgDiggi_.at(Index(platz))->SetzeBild(&frmZahlen::imgZahl(zahl));
}

bool frmSpielfeld::IstZahlNull(int platz) const {
  return ZahlVon(imgDiggi_.at(Index(platz))->GezeigtesBild()) == 0;
}

void frmSpielfeld::ZeigeZahlfeld(int platz, bool sichtbar) {
  imgDiggi_.at(Index(platz))->setVisible(sichtbar);
}

void frmSpielfeld::SetzeZiffer(Ziffernreihe reihe, int stelle, Ziffernfarbe farbe, int ziffer) {
  const QPixmap *bild =
      farbe == Ziffernfarbe::Rot ? &frmDigital::imgRot(ziffer) : &frmDigital::imgDiggi(ziffer);
  switch (reihe) {
    case Ziffernreihe::imgPunkte:
      imgPunkte_->SetzeZiffer(stelle, bild);
      break;
    case Ziffernreihe::imgLevel:
      imgLevel_->SetzeZiffer(stelle, bild);
      break;
    case Ziffernreihe::imgAuswertung:
      imgAuswertung_.at(Index(stelle / 2))->SetzeZiffer(stelle % 2, bild);
      break;
  }
}

void frmSpielfeld::SetzeModustext(const std::string &text) {
  SetzeText(lblModus_, text);
}

void frmSpielfeld::SetzeModusfarbe(Textfarbe farbe) {
  QPalette palette = lblModus_->palette();
  palette.setColor(QPalette::WindowText, QColor(farbe == Textfarbe::Blau ? kBlau : kDunkelblau));
  lblModus_->setPalette(palette);
}

bool frmSpielfeld::IstSichtbar(Bedienung bedienung) const {
  return !bedienungen_.at(bedienung)->isHidden();  // isVisible() is false in a minimised window.
}

void frmSpielfeld::Zeige(Bedienung bedienung, bool sichtbar) {
  bedienungen_.at(bedienung)->setVisible(sichtbar);
}

void frmSpielfeld::ErlaubeSpeichern(bool erlaubt) {
  mnuSpiel_.at(3)->setEnabled(erlaubt);
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
  frmBeste::Fenster(this, *this);  // The list in memory exists as soon as its window does.
  ::BestenlistePruefen(*this);
}

void frmSpielfeld::ZeigeBesteneintrag() {
  frmBeste::Fenster(this, *this).ZeigeZumEintragen();
}

void frmSpielfeld::BeendeDasSpiel() {
  spiel.Punkte = 0;
  Form_Unload();
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
  mnuSpiel_Click(2);
}

void frmSpielfeld::imgSpeichern_Click() {
  mnuSpiel_Click(3);
}

void frmSpielfeld::imgNeuesSpiel_Click() {
  ::imgNeuesSpiel_Click(*this);
}

void frmSpielfeld::imgNextLevel_Click() {
  ::imgNextLevel_Click(*this);
}

void frmSpielfeld::cmdWiederholen_Click() {
  ::cmdWiederholen_Click(*this);
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
  Platziere(&optionen, this, Lage::LinksOben);
  optionen.exec();
}

void frmSpielfeld::imgEnde_Click() {
  ::imgEnde_Click(*this);
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

void frmSpielfeld::mnuSpiel_Click(int eintrag) {
  switch (eintrag) {
    case 1:
      imgNeuesSpiel_Click();
      break;
    case 2: {
      bool weiter = true;
      SucheSpielstand(*this, weiter);
      const QString pfad = weiter ? DateiOeffnenDialog(this) : QString();
      if (!pfad.isEmpty())
        LadeGewaehlteDatei(*this, pfad);
      break;
    }
    case 3: {
      const QString pfad = DateiSpeichernDialog(this);
      if (pfad.isEmpty())
        Melde(MeldungKeinDateiname());
      else
        SpeichereSpielstand(*this, MitEndung(pfad));
      break;
    }
    case 5:
      imgEnde_Click();
      break;
    default:
      break;
  }
}

void frmSpielfeld::mnusoundan_Click(int eintrag) {
  for (const auto &[n, aktion] : mnusoundan_)
    aktion->setChecked(n == eintrag);
  spiel.SoundAn = mnusoundan_.at(1)->isChecked();
}

void frmSpielfeld::mnuInfo_Click(int eintrag) {
  switch (eintrag) {
    case 1:
      lblAnleitung_Click();
      break;
    case 2:
      lblInfo_Click();
      break;
    case 4:
      SpieleSound(kKlangBlip);
      frmBeste::Fenster(this, *this).ZeigeZumLesen();
      break;
    default:
      break;
  }
}
