#include "dialogs/bildfenster.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>
#include <utility>

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
  while (QDialog::exec(), erneut_) {
  }
  parentWidget()->activateWindow();  // Without a window manager, nobody gives the focus back.
  return result();
}

void Bildfenster::ZeigeErneut() {
  // While it is being shown again, the compositor may make the main window active once more.
  erneut_ = IstWayland() && windowHandle()->isExposed();
  if (erneut_)
    hide();
}

void Bildfenster::showEvent(QShowEvent *ereignis) {
  ErlaubeTab(this);
  if (!ereignis->spontaneous() && !std::exchange(erneut_, false))
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
