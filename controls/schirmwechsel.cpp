#include "controls/schirmwechsel.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

void BehalteGroesse(QWidget *fenster) {
  fenster->winId();  // Makes the system's window, unless there is one.
  QWindow *huelle = fenster->windowHandle();
  QObject::disconnect(huelle, &QWindow::screenChanged, fenster, nullptr);
  QObject::connect(
      huelle, &QWindow::screenChanged, fenster,
      [fenster, huelle] {
        const QSize groesse = fenster->minimumSize();
        huelle->setMinimumSize({0, 0});
        huelle->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
        huelle->setMinimumSize(groesse);
        huelle->setMaximumSize(groesse);
        huelle->resize(groesse);
      },
      Qt::QueuedConnection);
}
