#include "dialogs/frmBeste.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QShowEvent>
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
constexpr Twips kErstePunkte{4830 - 210 * (kPunktstellen - 1), 720, 210, 420};
constexpr int kZeilenabstand = 90;  // twips between the rows

const Texteintrag kTexte[] = {
    {"Label1", {1110, 180, 2355, 375}, 12, true, kBlau, "Name des Spielers", Qt::AlignLeft},
    {"Label2", {3720, 180, 1245, 285}, 12, true, kBlau, "Punkte", Qt::AlignLeft},
};
// The upright rule passes behind the digits.
constexpr Twips kLinien[] = {{1290, 600, 3750, 0}, {3600, 120, 0, 555}, {3600, 3225, 0, 105}};

// clang-format off
const Bildeintrag kClear{"lblClear", {900, 3630, 2205, 525}, "knopfZuruecksetzen",
                         "Einträge zurücksetzen", "Einträge zurücksetzen"};
// clang-format on
const Bildeintrag kEnde{"cmdEnde", {990, 4260, 2145, 495}, "knopfOk", "Fenster schließen", "OK"};

/// Lets a text box take only what the list's file can hold, so that the player sees what is kept.
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
    : Bildfenster(hauptfenster, kFesterRahmen, "beste", {0, 0, 5130, 4845}),
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
    txtSpieler_.at(static_cast<std::size_t>(platz)) = name;

    lage = kErstePunkte;
    lage.top += platz * (kErstePunkte.height + kZeilenabstand);
    imgDiggi_.at(static_cast<std::size_t>(platz)) =
        new Zifferreihe(this, lage, kPunktstellen, "Punkte " + nummer);
  }
  lblClear_ = new Bild(this, kClear);
  lblClear_->SetzeKlick([this] { cmdClear_Click(); });
  (new Bild(this, kEnde))->SetzeKlick([this] { cmdEnde_Click(); });
  // Enabled in the entry mode, too: a disabled shortcut would type an "a" into the name.
  new QShortcut(Qt::ALT | Qt::Key_A, this, [this] {
    if (cmdClearSichtbar_)
      cmdClear_Click();
  });
  BestenlisteLaden(ansicht_);
}

void frmBeste::ZeigeZumLesen() {
  spiel.Beste.BestenEintrag = false;
  Platziere(hauptfenster_, Lage::LinksOben);
  setWindowModality(Qt::NonModal);
  show();
  raise();
  activateWindow();
}

void frmBeste::ZeigeZumEintragen() {
  hide();
  setWindowModality(Qt::WindowModal);
  Platziere(hauptfenster_, Lage::LinksOben);
  exec();
}

void frmBeste::showEvent(QShowEvent *ereignis) {
  Bildfenster::showEvent(ereignis);
  if (!ereignis->spontaneous())  // A window that was minimised must not lose the name in it.
    Form_Activate();
}

void frmBeste::closeEvent(QCloseEvent *ereignis) {
  // The closing box unloads the window: an entry that was not confirmed is lost with it.
  emit Entladen();
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
  const Bestenliste &beste = spiel.Beste;
  const auto niemand = [](const std::string &name) { return name == kNiemand; };
  lblClear_->setVisible(!beste.BestenEintrag &&
                        !std::all_of(beste.lstName.begin(), beste.lstName.end(), niemand));
  for (int platz = 0; platz < kBeste; ++platz) {
    QLineEdit *name = txtSpieler_.at(static_cast<std::size_t>(platz));
    name->setText(QString::fromStdString(Eintrag(beste.lstName, platz)));
    name->setCursorPosition(0);  // A long name is read from its beginning.
  }
  EingabeSperren();
  if (beste.BestenEintrag) {
    cmdClearSichtbar_ = false;
    QLineEdit *eingabe = txtSpieler_.at(static_cast<std::size_t>(beste.BestenPlatz));
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
  beste.lstName.resize(kBeste);  // What was shown is the list: entries that were missing are empty.
  beste.lstPunkte.resize(kBeste);
  if (beste.BestenEintrag) {
    const auto platz = static_cast<std::size_t>(beste.BestenPlatz);
    const std::string name = txtSpieler_.at(platz)->text().toStdString();
    beste.lstName.at(platz) = name.empty() ? kNeuerSpieler : name;
    BestenlisteSpeichern(ansicht_);
  }
  hide();
}

void frmBeste::cmdClear_Click() {
  spiel.Beste.BestenEintrag = false;
  const bool nurNiemand =
      std::all_of(txtSpieler_.begin(), txtSpieler_.end(),
                  [](const QLineEdit *name) { return name->text().toStdString() == kNiemand; });
  if (!nurNiemand && ansicht_.Frage(FrageEintraegeLoeschen())) {
    if (!BestenlisteAnlegen())
      ansicht_.Melde(MeldungBesteNichtGespeichert());
    BestenlisteLaden(ansicht_);
  }
  hide();
}
