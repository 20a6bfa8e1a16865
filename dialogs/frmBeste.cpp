#include "dialogs/frmBeste.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QValidator>
#include <algorithm>

#include "controls/beschriftung.h"
#include "controls/bild.h"
#include "controls/zifferreihe.h"
#include "core/ansicht.h"
#include "persistence/modBeste.h"
#include "persistence/textdatei.h"
#include "platform/modShellExecute.h"

namespace {

constexpr int kPunktstellen = 7;
constexpr Twips kErsterName{1300, 750, 2205, 405};
constexpr Twips kErstePunkte{4830 - kZifferngroesse.width * (kPunktstellen - 1), 720};
constexpr int kZeilenabstand = 90;  // twips

const Texteintrag kTexte[] = {
    {"Label1", {1110, 180, 2355, 375}, 12, true, kBlau, "Name des Spielers", Qt::AlignLeft},
    {"Label2", {3720, 180, 1245, 285}, 12, true, kBlau, "Punkte", Qt::AlignLeft},
};
// A horizontal line, and a vertical one with a gap for the digits.
constexpr Twips kLinien[] = {{1290, 600, 3750, 0}, {3600, 120, 0, 555}, {3600, 3225, 0, 105}};

// clang-format off
const Bildeintrag kClear{"lblClear", {900, 3630, 2205, 525}, "knopfZuruecksetzen",
                         "Einträge zurücksetzen", "Einträge zurücksetzen"};
// clang-format on
const Bildeintrag kEnde{"cmdEnde", {990, 4260, 2145, 495}, "knopfOk", "Fenster schließen", "OK"};

/// Removes characters that the file of the list cannot hold, so that the player sees what is saved.
class Speicherbares : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString &eingabe, int &stelle) const override {
    stelle = static_cast<int>(Speicherbar(eingabe.left(stelle)).size());
    eingabe = Speicherbar(eingabe);
    return Acceptable;
  }
};

}  // namespace

frmBeste::frmBeste(QWidget *hauptfenster, Ansicht &ansicht)
    : Bildfenster(hauptfenster, Qt::Dialog | kFesterRahmen, "beste", {0, 0, 5130, 4845}),
      hauptfenster_(hauptfenster),
      ansicht_(ansicht) {
  setWindowTitle("Beste Spieler ");
  for (const Texteintrag &eintrag : kTexte)
    new Beschriftung(this, eintrag);
  for (const Twips &linie : kLinien)
    NeueLinie(this, linie, 1, kBlau);
  for (int platz = 0; platz < kBeste; ++platz) {
    const QString nummer = QString::number(platz + 1);
    Twips lage = kErsterName;
    lage.top += platz * (kErsterName.height + kZeilenabstand);
    auto *name = new QLineEdit(this);
    name->setGeometry(Rechteck(lage));
    name->setFont(Schrift(12, true));
    name->setValidator(new Speicherbares(name));
    name->setAccessibleName("Name " + nummer);
    Element(txtSpieler_, platz) = name;

    lage = kErstePunkte;
    lage.top += platz * (kZifferngroesse.height + kZeilenabstand);
    Element(imgDiggi_, platz) = new Zifferreihe(this, lage, kPunktstellen, "Punkte " + nummer);
  }
  lblClear_ = new Bild(this, kClear);
  lblClear_->SetzeKlick([this] { cmdClear_Click(); });
  (new Bild(this, kEnde))->SetzeKlick([this] { cmdEnde_Click(); });
  // Never disabled: a disabled shortcut would type an "a" into the name.
  new QShortcut(Qt::ALT | Qt::Key_A, this, [this] {
    if (altAWirkt_)
      cmdClear_Click();
  });
}

void frmBeste::ZeigeZumLesen() {
  spiel.Beste.BestenEintrag = false;
  Platziere(hauptfenster_, Fensterlage::LinksOben);
  setWindowModality(Qt::NonModal);
  show();
  raise();
  activateWindow();
}

void frmBeste::ZeigeZumEintragen() {
  hide();
  setWindowModality(Qt::WindowModal);
  Platziere(hauptfenster_, Fensterlage::LinksOben);
  exec();
}

void frmBeste::closeEvent(QCloseEvent *ereignis) {
  emit Entladen();  // A name that was not confirmed is lost.
  deleteLater();
  Bildfenster::closeEvent(ereignis);
}

void frmBeste::keyPressEvent(QKeyEvent *ereignis) {
  if (ereignis->key() == Qt::Key_F1)
    OeffneHilfe("Bestespieler.pdf");
  else
    Bildfenster::keyPressEvent(ereignis);
}

void frmBeste::Form_Activate() {
  Bildfenster::Form_Activate();
  const Bestenliste &beste = spiel.Beste;
  const auto jemand = [](const std::string &name) { return name != kNiemand; };
  lblClear_->setVisible(!beste.BestenEintrag && std::ranges::any_of(beste.lstName, jemand));
  for (int platz = 0; platz < kBeste; ++platz) {
    QLineEdit *name = Element(txtSpieler_, platz);
    name->setText(QString::fromStdString(Eintrag(beste.lstName, platz)));
    name->setCursorPosition(0);  // Shows the beginning of a long name.
  }
  EingabeSperren();
  if (beste.BestenEintrag) {
    altAWirkt_ = false;
    QLineEdit *eingabe = Element(txtSpieler_, beste.BestenPlatz);
    eingabe->setReadOnly(false);
    eingabe->setFocusPolicy(Qt::StrongFocus);
    eingabe->selectAll();
    eingabe->setFocus();
  }
  PunkteZeigen();
}

void frmBeste::PunkteZeigen() {
  int platz = 0;
  for (Zifferreihe *reihe : imgDiggi_) {
    const std::string punkte = Eintrag(spiel.Beste.lstPunkte, platz++);
    reihe->ZeigeText(PunkteWert(punkte) == 0 ? "" : QString::fromStdString(punkte));
  }
}

void frmBeste::EingabeSperren() {
  for (QLineEdit *name : txtSpieler_) {
    name->setReadOnly(true);
    name->setFocusPolicy(Qt::ClickFocus);
  }
}

void frmBeste::cmdEnde_Click() {
  Bestenliste &beste = spiel.Beste;
  if (beste.BestenEintrag) {
    const std::string name = Element(txtSpieler_, beste.BestenPlatz)->text().toStdString();
    Element(beste.lstName, beste.BestenPlatz) = name.empty() ? kNeuerSpieler : name;
    BestenlisteSpeichern(ansicht_);
  }
  hide();
}

void frmBeste::cmdClear_Click() {
  spiel.Beste.BestenEintrag = false;
  const auto jemand = [](const QLineEdit *name) { return name->text().toStdString() != kNiemand; };
  if (std::ranges::any_of(txtSpieler_, jemand) && ansicht_.Frage(FrageEintraegeLoeschen)) {
    if (!BestenlisteAnlegen())
      ansicht_.Melde(MeldungBesteNichtGespeichert);
    BestenlisteLaden(ansicht_);
  }
  hide();
}
