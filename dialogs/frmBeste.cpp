#include "dialogs/frmBeste.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>
#include <QShowEvent>
#include <algorithm>

#include "core/ansicht.h"
#include "dialogs/bild.h"
#include "dialogs/zifferreihe.h"
#include "persistence/modBeste.h"
#include "platform/modShellExecute.h"
#include "platform/pfade.h"

namespace {

constexpr int kPunktstellen = 7;
constexpr Twips kErsterName{1300, 750, 2205, 405};
constexpr Twips kErstePunkte{4830 - 210 * (kPunktstellen - 1), 720, 210, 420};
constexpr int kZeilenabstand = 90;  // twips between the rows

const Textzeile kTexte[] = {
    {"Label1", {1110, 180, 2355, 375}, 12, true, kBlau, "Name des Spielers"},
    {"Label2", {3720, 180, 1245, 285}, 12, true, kBlau, "Punkte"},
};
constexpr Twips kLinien[] = {{1290, 600, 3750, 0}, {3600, 120, 0, 3210}};

const Bildzeile kClear{"lblClear",
                       {900, 3630, 2205, 525},
                       "knopfZuruecksetzen",
                       "Einträge zurücksetzen",
                       "Einträge zurücksetzen"};
const Bildzeile kEnde{"cmdEnde", {990, 4260, 2145, 495}, "knopfOk", "Fenster schließen", "OK"};

QPointer<frmBeste> dasFenster;

/// An entry of the list in memory, which a failed reading may have left short.
QString Eintrag(const QStringList &liste, std::size_t zeile) {
  return liste.value(static_cast<qsizetype>(zeile));
}

}  // namespace

frmBeste &frmBeste::Fenster(QWidget *hauptfenster, Ansicht &ansicht) {
  if (!dasFenster)
    dasFenster = new frmBeste(hauptfenster, ansicht);
  return *dasFenster;
}

frmBeste::frmBeste(QWidget *hauptfenster, Ansicht &ansicht)
    : Bildfenster(hauptfenster, kFesterRahmen, "beste", {0, 0, 5130, 4845}),
      hauptfenster_(hauptfenster),
      ansicht_(ansicht) {
  setWindowTitle("Beste Spieler ");
  for (const Textzeile &zeile : kTexte)
    NeueBeschriftung(this, zeile);
  for (const Twips &linie : kLinien)
    NeueLinie(this, linie, 1, kBlau);
  for (std::size_t r = 0; r < kZeilen; ++r) {
    const int zeile = static_cast<int>(r);
    Twips lage = kErsterName;
    lage.top += zeile * (kErsterName.height + kZeilenabstand);
    txtSpieler_.at(r) = new QLineEdit(this);
    txtSpieler_.at(r)->setGeometry(Rechteck(lage));
    txtSpieler_.at(r)->setFont(Schrift(12, true));
    txtSpieler_.at(r)->setAccessibleName("Name " + QString::number(zeile + 1));

    lage = kErstePunkte;
    lage.top += zeile * (kErstePunkte.height + kZeilenabstand);
    imgDiggi_.at(r) =
        new Zifferreihe(this, lage, kPunktstellen, "Punkte " + QString::number(zeile + 1));
  }
  lblClear_ = new Bild(this, kClear);
  lblClear_->SetzeKlick([this] { cmdClear_Click(); });
  (new Bild(this, kEnde))->SetzeKlick([this] { cmdEnde_Click(); });
  cmdClear_ = new QShortcut(Qt::ALT | Qt::Key_A, this, [this] { cmdClear_Click(); });
  BestenlisteLaden(ansicht_);
}

void frmBeste::ZeigeZumLesen() {
  BestenEintrag = false;
  Platziere(this, hauptfenster_, Lage::LinksOben);
  setModal(false);
  show();
  raise();
  activateWindow();
}

void frmBeste::ZeigeZumEintragen() {
  hide();
  Platziere(this, hauptfenster_, Lage::LinksOben);
  exec();
}

void frmBeste::showEvent(QShowEvent *ereignis) {
  Bildfenster::showEvent(ereignis);
  Form_Activate();
}

bool frmBeste::event(QEvent *ereignis) {
  // While a name is typed no other window of the program can come to the front, so that coming back
  // from another program must not write over the name.
  if (ereignis->type() == QEvent::WindowActivate && !BestenEintrag)
    Form_Activate();
  return Bildfenster::event(ereignis);
}

void frmBeste::closeEvent(QCloseEvent *ereignis) {
  // The closing box unloads the window: an entry that was not confirmed is lost with it.
  dasFenster.clear();
  deleteLater();
  Bildfenster::closeEvent(ereignis);
}

void frmBeste::keyPressEvent(QKeyEvent *ereignis) {
  if (ereignis->key() == Qt::Key_F1)
    OeffneDokument(MitBackslash(Programmordner()) + "Bestespieler.pdf");
  else
    Bildfenster::keyPressEvent(ereignis);
}

void frmBeste::Form_Activate() {
  const auto niemand = [](const QString &name) { return name == kNiemand; };
  lblClear_->setVisible(!BestenEintrag && !std::all_of(lstName.begin(), lstName.end(), niemand));
  for (std::size_t r = 0; r < kZeilen; ++r)
    txtSpieler_.at(r)->setText(Eintrag(lstName, r));
  EingabeSperren();
  if (BestenEintrag) {
    cmdClear_->setEnabled(false);
    QLineEdit *eingabe = txtSpieler_.at(static_cast<std::size_t>(BestenPlatz));
    eingabe->setReadOnly(false);
    eingabe->setFocusPolicy(Qt::StrongFocus);
    eingabe->selectAll();
    eingabe->setFocus();
  }
  PunkteZeigen();
}

void frmBeste::PunkteZeigen() {
  for (std::size_t r = 0; r < kZeilen; ++r) {
    const QString text = Eintrag(lstPunkte, r);
    imgDiggi_.at(r)->ZeigeText(PunkteWert(text) == 0 ? QString() : text);
  }
}

void frmBeste::EingabeSperren() {
  for (QLineEdit *name : txtSpieler_) {
    name->setReadOnly(true);
    name->setFocusPolicy(Qt::ClickFocus);
  }
}

void frmBeste::cmdEnde_Click() {
  if (BestenEintrag) {
    const auto platz = static_cast<std::size_t>(BestenPlatz);
    const QString name = txtSpieler_.at(platz)->text();
    lstName[BestenPlatz] = name.isEmpty() ? kNeuerSpieler : name;
    BestenlisteSpeichern(ansicht_);
  }
  hide();
}

void frmBeste::cmdClear_Click() {
  BestenEintrag = false;
  const bool nurNiemand =
      std::all_of(txtSpieler_.begin(), txtSpieler_.end(),
                  [](const QLineEdit *name) { return name->text() == kNiemand; });
  if (!nurNiemand && ansicht_.Frage(FrageEintraegeLoeschen())) {
    BestenlisteAnlegen();
    BestenlisteLaden(ansicht_);
  }
  hide();
}
