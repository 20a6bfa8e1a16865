#include "dialogs/frmMsg.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <utility>
#include <vector>

#include "core/spiel.h"
#include "dialogs/bild.h"
#include "dialogs/hilfe.h"

namespace {

/// A window without answers stores this, which means that the record is left alone.
constexpr std::int16_t kOhneAntwort = 0;

}  // namespace

/// All in which the two windows differ.
struct Meldelayout {
  struct Knopf {
    Bildzeile zeile;
    std::int16_t antwort;
  };
  struct Taste {
    int taste;
    std::int16_t antwort;
  };

  const char *hintergrund;
  Twips groesse;
  Textzeile lblName;
  Twips Picture1;
  Textzeile lblMeldung;
  Textzeile lblTitel;
  std::vector<Knopf> knoepfe;
  std::vector<Taste> tasten;
  std::int16_t beimSchliessen;
};

namespace {

const Meldelayout &LayoutJa() {
  static const Meldelayout layout{
      "meldungJa",
      {0, 0, 5880, 3540},
      {"lblName", {930, 180, 3915, 315}, 12, true, kHellgrau},
      {60, 750, 5745, 2025},
      {"lblMeldung", {120, 30, 5475, 825}, 9.75, true, kBlau},
      {"lblTitel", {60, 900, 5505, 1035}, 9.75, true, kMagenta},
      {{{"Image1", {5460, 60, 315, 315}, "schliessen", "schließen", "Schließen"}, kAbgebrochen},
       {{"lblNein", {480, 2910, 2205, 375}, "", "Fenster schließen ohne Bestätigung", "Nein"},
        kNein},
       {{"lblJa", {3330, 2880, 2175, 435}, "", "Bestätigen", "Ja"}, kJa}},
      {{Qt::Key_Escape, kAbgebrochen}, {Qt::Key_J, kJa}, {Qt::Key_N, kNein}},
      kAbgebrochen};
  return layout;
}

const Meldelayout &LayoutOk() {
  static const Meldelayout layout{
      "meldungOk",
      {0, 0, 5805, 3420},
      {"lblName", {960, 180, 4155, 435}, 14.25, false, kHellgrau},
      {60, 780, 5655, 2025},
      {"lblMeldung", {30, 60, 5445, 825}, 9.75, true, kBlau},
      {"lblTitel", {30, 930, 5505, 1005}, 9.75, true, kPurpur},
      {{{"Image2", {5370, 90, 315, 315}, "schliessen", "schließen", "Schließen"}, kOhneAntwort},
       {{"lblOk", {1800, 2910, 2175, 405}, "", "Fenster schließen", "OK"}, kOhneAntwort}},
      {{Qt::Key_Escape, kOhneAntwort}},
      kOhneAntwort};
  return layout;
}

}  // namespace

Meldefenster::Meldefenster(const Meldelayout &layout, const Meldung &meldung)
    : Bildfenster(QApplication::activeModalWidget(), Qt::Dialog | Qt::FramelessWindowHint,
                  layout.hintergrund, layout.groesse),
      layout_(layout),
      lage_(meldung.lage) {
  SetzeText(NeueBeschriftung(this, layout.lblName), Versionstext());
  setWindowTitle(QString::fromStdString(Versionstext()));

  auto *panel = new QWidget(this);
  panel->setGeometry(Rechteck(layout.Picture1));
  panel->setPalette(QPalette(Qt::white));
  panel->setAutoFillBackground(true);
  panel->setAttribute(Qt::WA_NoMousePropagation);  // The panel is no grip for dragging.
  SetzeText(NeueBeschriftung(panel, layout.lblMeldung), meldung.lblMeldung);
  SetzeText(NeueBeschriftung(panel, layout.lblTitel), meldung.lblTitel);

  for (const Meldelayout::Knopf &knopf : layout.knoepfe) {
    auto *bild = new Bild(this, knopf.zeile);
    bild->SetzeKlick([this, antwort = knopf.antwort] { Antworte(antwort); });
  }
}

void Meldefenster::ZeigeUeber(QWidget *hauptfenster) {
  if (!parentWidget())
    setParent(hauptfenster, windowFlags());
  Platziere(this, hauptfenster, lage_);
  exec();
}

void Meldefenster::Antworte(std::int16_t antwort) {
  if (antwort != kOhneAntwort)
    spiel.Antwort = antwort;
  done(antwort);
}

void Meldefenster::mousePressEvent(QMouseEvent *ereignis) {
  gegriffen_ = ereignis->button() == Qt::LeftButton;
}

void Meldefenster::mouseMoveEvent(QMouseEvent *ereignis) {
  // Asked a second time, the window manager would move the window after the button is released.
  if (std::exchange(gegriffen_, false) && ereignis->buttons() & Qt::LeftButton)
    windowHandle()->startSystemMove();
}

void Meldefenster::keyPressEvent(QKeyEvent *ereignis) {
  if (ereignis->key() == Qt::Key_F1)
    OeffneHilfe("Meldefenster.pdf");
  for (const Meldelayout::Taste &taste : layout_.tasten) {
    if (taste.taste == ereignis->key())
      Antworte(taste.antwort);
  }
}

void Meldefenster::closeEvent(QCloseEvent *ereignis) {
  Q_UNUSED(ereignis)
  Antworte(layout_.beimSchliessen);
}

frmMsgJa::frmMsgJa(const Meldung &meldung) : Meldefenster(LayoutJa(), meldung) {}

frmMsgOk::frmMsgOk(const Meldung &meldung) : Meldefenster(LayoutOk(), meldung) {}
