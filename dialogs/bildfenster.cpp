#include "dialogs/bildfenster.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include "controls/bild.h"
#include "controls/bilder.h"
#include "dialogs/zugang.h"
#include "platform/fenstersystem.h"

Bildfenster::Bildfenster(QWidget *eltern, Qt::WindowFlags art, const char *hintergrund,
                         const Twips &groesse)
    : QDialog(eltern, art), hintergrund_(hintergrund) {
  setFixedSize(Rechteck(groesse).size());
  setWindowModality(Qt::WindowModal);
}

void Bildfenster::Platziere(const QWidget *hauptfenster, Fensterlage lage) {
  constexpr int kVersatz = 100;  // twips
  const QRect rahmen = hauptfenster->frameGeometry();
  const QPoint versatz(Pixel(kVersatz), Pixel(kVersatz));
  if (lage == Fensterlage::Mitte)
    move(rahmen.x() + (rahmen.width() - width()) / 2,
         rahmen.y() + (rahmen.height() - height()) / 2);
  else
    move(rahmen.topLeft() + (lage == Fensterlage::RechtsUnten ? versatz : -versatz));
  BehalteGroesse(this);
  if (isHidden())
    OhneTaskleiste(windowHandle());
}

int Bildfenster::exec() {
  QDialog::exec();
  parentWidget()->activateWindow();  // Without a window manager, nobody gives the focus back.
  return result();
}

void Bildfenster::ZeigeErneut() {
  // While it is being shown again, the compositor may make the main window active once more.
  if (!IstWayland() || !windowHandle()->isExposed())
    return;
  erneut_ = true;
  QWidget::setVisible(false);  // QDialog's would end exec().
  show();
  erneut_ = false;
}

void Bildfenster::showEvent(QShowEvent *ereignis) {
  ErlaubeTab(this);
  if (!ereignis->spontaneous() && !erneut_)
    Form_Activate();
  QDialog::showEvent(ereignis);
}

void Bildfenster::paintEvent(QPaintEvent *) {
  QPainter maler(this);
  ZeichneGenau(maler, {0, 0}, Katalogbild(hintergrund_, devicePixelRatioF()));
}

void Bildfenster::keyPressEvent(QKeyEvent *ereignis) {
  ereignis->ignore();  // QDialog would press a button on Enter and close on Esc.
}
