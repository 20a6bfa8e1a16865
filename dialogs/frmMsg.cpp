#include "dialogs/frmMsg.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <vector>

#include "controls/beschriftung.h"
#include "controls/bild.h"
#include "controls/wiederholung.h"
#include "core/spiel.h"
#include "platform/modShellExecute.h"
#include "platform/system.h"

/// The differences between the two windows.
struct Meldelayout {
  struct Knopf {
    Bildeintrag eintrag;
    std::int16_t antwort;
  };
  struct Taste {
    Qt::Key taste;
    unsigned platz;  ///< Used if the keyboard layout has no Latin letters; 0: none.
    std::int16_t antwort;
  };

  const char *hintergrund;
  Twips groesse;
  Texteintrag lblName;
  Twips Picture1;
  Texteintrag lblMeldung;
  Texteintrag lblTitel;
  std::vector<Knopf> knoepfe;
  std::vector<Taste> tasten;
};

namespace {

constexpr std::int16_t kOhneAntwort = 0;  ///< Does not change `spiel.Antwort`.

constexpr Qt::Alignment kMitteOben = Qt::AlignHCenter | Qt::AlignTop;

// Scan codes, see Tastenplatz().
constexpr unsigned kPlatzJ = 0x24;
constexpr unsigned kPlatzN = 0x31;

const Meldelayout kLayoutJa{
    "meldungJa",
    {0, 0, 5880, 3540},
    {"lblName", {930, 180, 3915, 315}, 12, true, kHellgrau},
    {60, 750, 5745, 2025},
    {"lblMeldung", {120, 30, 5475, 825}, 9.75, true, kBlau, "", kMitteOben, true},
    {"lblTitel", {60, 900, 5505, 1035}, 9.75, true, kMagenta, "", kMitteOben, true},
    {{{"Image1", {5460, 60, 315, 315}, "schliessen", "schließen", "Schließen"}, kAbgebrochen},
     {{"lblNein", {480, 2910, 2205, 375}, "", "Fenster schließen ohne Bestätigung", "Nein"}, kNein},
     {{"lblJa", {3330, 2880, 2175, 435}, "", "Bestätigen", "Ja"}, kJa}},
    {{Qt::Key_Escape, 0, kAbgebrochen}, {Qt::Key_J, kPlatzJ, kJa}, {Qt::Key_N, kPlatzN, kNein}}};

const Meldelayout kLayoutOk{
    "meldungOk",
    {0, 0, 5805, 3420},
    {"lblName", {960, 180, 4155, 435}, 14.25, false, kHellgrau},
    {60, 780, 5655, 2025},
    {"lblMeldung", {30, 60, 5445, 825}, 9.75, true, kBlau, "", kMitteOben, true},
    {"lblTitel", {30, 930, 5505, 1005}, 9.75, true, kPurpur, "", kMitteOben, true},
    {{{"Image2", {5370, 90, 315, 315}, "schliessen", "schließen", "Schließen"}, kOhneAntwort},
     {{"lblOk", {1800, 2910, 2175, 405}, "", "Fenster schließen", "OK"}, kOhneAntwort}},
    {{Qt::Key_Escape, 0, kOhneAntwort}}};

/// True for letters of other alphabets. For those Qt::Key is the Unicode value.
bool IstFremderBuchstabe(int taste) {
  constexpr int kEndeLatein = 0x24f;
  return taste > kEndeLatein && taste <= QChar::LastValidCodePoint;
}

/// The window that a message blocks.
QWidget *Vorderstes(QWidget *hauptfenster) {
  QWidget *modal = QApplication::activeModalWidget();
  return modal ? modal : hauptfenster;
}

}  // namespace

Meldefenster::Meldefenster(QWidget *hauptfenster, const Meldelayout &layout, const Meldung &meldung)
    : Bildfenster(Vorderstes(hauptfenster), Qt::Dialog | Qt::FramelessWindowHint,
                  layout.hintergrund, layout.groesse),
      hauptfenster_(hauptfenster),
      layout_(layout),
      lage_(meldung.lage) {
  (new Beschriftung(this, layout.lblName))->ZeigeText(Versionstext());
  setWindowTitle(QString::fromStdString(Versionstext()));

  auto *panel = new QWidget(this);
  panel->setGeometry(Rechteck(layout.Picture1));
  panel->setPalette(QPalette(Qt::white));
  panel->setAutoFillBackground(true);
  panel->setAttribute(Qt::WA_NoMousePropagation);  // A press on the panel does not drag.
  const int freieZeilen = meldung.lblTitel.starts_with("\r\n") ? 1 : 0;
  (new Beschriftung(panel, layout.lblMeldung))->ZeigeText(meldung.lblMeldung, freieZeilen);
  (new Beschriftung(panel, layout.lblTitel))->ZeigeText(meldung.lblTitel);

  for (const Meldelayout::Knopf &knopf : layout.knoepfe) {
    auto *bild = new Bild(this, knopf.eintrag);
    bild->SetzeKlick([this, antwort = knopf.antwort] { Antworte(antwort); });
  }
}

void Meldefenster::Zeige() {
  Platziere(hauptfenster_, lage_);
  exec();
}

void Meldefenster::Antworte(std::int16_t antwort) {
  if (antwort != kOhneAntwort)
    spiel.Antwort = antwort;
  done(antwort);
}

void Meldefenster::mousePressEvent(QMouseEvent *ereignis) {
  const bool links = ereignis->button() == Qt::LeftButton;
  griff_ = links ? std::optional(ereignis->position().toPoint()) : std::nullopt;
}

void Meldefenster::mouseMoveEvent(QMouseEvent *ereignis) {
  if (!griff_ || !(ereignis->buttons() & Qt::LeftButton))
    return;
  // With a second request, the window manager would move the window after the release, too.
  if (windowHandle()->startSystemMove())
    griff_.reset();
  else  // Not supported by the window manager.
    move(ereignis->globalPosition().toPoint() - *griff_);
}

void Meldefenster::keyPressEvent(QKeyEvent *ereignis) {
  constexpr Qt::KeyboardModifiers kOhneBedeutung = Qt::ShiftModifier | Qt::KeypadModifier;
  if (ereignis->modifiers() & ~kOhneBedeutung || IstWiederholung(*ereignis))
    return;
  if (ereignis->key() == Qt::Key_F1)
    OeffneHilfe("Meldefenster.pdf");
  const unsigned platz = IstFremderBuchstabe(ereignis->key()) ? Tastenplatz(*ereignis) : 0;
  for (const Meldelayout::Taste &taste : layout_.tasten) {
    if (taste.taste == ereignis->key() || (platz != 0 && taste.platz == platz))
      Antworte(taste.antwort);
  }
}

frmMsgJa::frmMsgJa(QWidget *hauptfenster, const Meldung &meldung)
    : Meldefenster(hauptfenster, kLayoutJa, meldung) {
  spiel.Antwort = kAbgebrochen;
}

frmMsgOk::frmMsgOk(QWidget *hauptfenster, const Meldung &meldung)
    : Meldefenster(hauptfenster, kLayoutOk, meldung) {}
