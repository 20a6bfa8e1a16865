#include "controls/wiederholung.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWindow>
#include <map>

namespace {

/// State of a key. Times are event timestamps in milliseconds; 0: none yet.
struct Taste {
  quint64 gedrueckt = 0;
  quint64 losgelassen = 0;
  bool wiederholt = false;    ///< The last press was a repeat.
  QPointer<QWindow> fenster;  ///< Window with the focus at the first press.
};

std::map<int, Taste> tasten;  ///< By `QKeyEvent::key()`.

/// Updates the state once for each press. Qt delivers the same press to several objects.
const Taste &Beurteile(const QKeyEvent &druck) {
  Taste &taste = tasten[druck.key()];
  const quint64 zeit = druck.timestamp();
  if (zeit == 0 || zeit != taste.gedrueckt) {
    // An X server reports a repeat as a release and a press with the same timestamp. Qt sets the
    // auto-repeat flag only if it reads both at once.
    taste.wiederholt = druck.isAutoRepeat() || (zeit != 0 && zeit == taste.losgelassen);
    taste.gedrueckt = zeit;
    if (!taste.wiederholt)
      taste.fenster = QGuiApplication::focusWindow();
  }
  return taste;
}

}  // namespace

bool IstWiederholung(const QKeyEvent &taste) {
  return Beurteile(taste).wiederholt;
}

bool Tastenwache::eventFilter(QObject *, QEvent *ereignis) {
  const QEvent::Type art = ereignis->type();
  if (art == QEvent::KeyRelease) {
    const auto &taste = *static_cast<QKeyEvent *>(ereignis);
    tasten[taste.key()].losgelassen = taste.timestamp();
    return false;
  }
  if (art != QEvent::KeyPress && art != QEvent::ShortcutOverride)
    return false;
  const Taste &taste = Beurteile(*static_cast<QKeyEvent *>(ereignis));
  if (!taste.wiederholt)
    return false;
  if (art == QEvent::KeyPress)
    return taste.fenster != QGuiApplication::focusWindow();
  ereignis->accept();  // Then the key triggers no shortcut and arrives as a normal key press.
  return true;
}
