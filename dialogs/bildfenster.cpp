#include "dialogs/bildfenster.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>

#include "dialogs/bild.h"
#include "dialogs/bilder.h"

Bildfenster::Bildfenster(QWidget *eltern, Qt::WindowFlags art, const char *hintergrund,
                         const Twips &groesse)
    : QDialog(eltern, art), hintergrund_(hintergrund) {
  setFixedSize(Rechteck(groesse).size());
}

void Bildfenster::paintEvent(QPaintEvent *ereignis) {
  Q_UNUSED(ereignis)
  QPainter maler(this);
  ZeichneGenau(maler, {0, 0}, Bilddatei(hintergrund_));
}

void Bildfenster::keyPressEvent(QKeyEvent *ereignis) {
  // QDialog is not asked: it would press a default button at Enter and close at Esc.
  ereignis->ignore();
}
