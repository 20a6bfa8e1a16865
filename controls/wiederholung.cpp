#include "controls/wiederholung.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QRegion>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>
#include <map>

namespace {

/// State of a key. Times are event timestamps in milliseconds; 0: none yet.
struct Taste {
  quint64 gedrueckt = 0;
  quint64 erster = 0;  ///< The last press that was no repeat.
  quint64 losgelassen = 0;
  bool wiederholt = false;    ///< The press judged last was a repeat.
  QPointer<QWindow> fenster;  ///< Window with the focus at the first press.
};

std::map<int, Taste> tasten;  ///< By `QKeyEvent::key()`.

/// With assistive technology, Qt sends each event a second time when the bus has answered, maybe
/// behind later ones. The clock of an X server begins anew after 49 days.
bool IstNeuer(quint64 zeit, quint64 letzte) {
  constexpr quint64 kLaengsteFrist = 60'000;
  return zeit > letzte || letzte - zeit > kLaengsteFrist;
}

/// Updates the state once for each press. Qt delivers the same press to several objects.
const Taste &Beurteile(const QKeyEvent &druck) {
  Taste &taste = tasten[druck.key()];
  const quint64 zeit = druck.timestamp();
  if (zeit == 0 || IstNeuer(zeit, taste.gedrueckt)) {
    // An X server reports a repeat as a release and a press. Qt sets the auto-repeat flag only if
    // it reads both at once and within the same millisecond.
    constexpr quint64 kSchnellsterFinger = 10;
    taste.wiederholt = druck.isAutoRepeat() || (zeit != 0 && taste.losgelassen != 0 &&
                                                zeit - taste.losgelassen < kSchnellsterFinger);
    taste.gedrueckt = zeit;
    if (!taste.wiederholt) {
      taste.erster = zeit;
      taste.fenster = QGuiApplication::focusWindow();
    }
  } else {
    taste.wiederholt = zeit != taste.erster;
  }
  return taste;
}

QRegion geschlossen;       ///< Where windows have closed since the last pause between two presses.
quint64 letzterDruck = 0;  ///< Of any mouse button in any window. Milliseconds.

bool IstNachklick(const QMouseEvent &druck) {
  const quint64 abstand = druck.timestamp() - letzterDruck;
  letzterDruck = druck.timestamp();
  if (abstand >= static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval()))
    geschlossen = {};
  return geschlossen.contains(druck.globalPosition().toPoint());
}

}  // namespace

bool IstWiederholung(const QKeyEvent &taste) {
  return tasten[taste.key()].wiederholt;  // The event filter has judged it.
}

bool Eingabewache::eventFilter(QObject *ziel, QEvent *ereignis) {
  const QEvent::Type art = ereignis->type();
  if (art == QEvent::MouseButtonPress || art == QEvent::MouseButtonDblClick)
    return IstNachklick(*static_cast<QMouseEvent *>(ereignis));
  if (art == QEvent::Hide && (ziel->inherits("QDialog") || ziel->inherits("QMenu")))
    geschlossen += static_cast<QWidget *>(ziel)->frameGeometry();
  if (art == QEvent::KeyRelease) {
    const auto &taste = *static_cast<QKeyEvent *>(ereignis);
    quint64 &losgelassen = tasten[taste.key()].losgelassen;
    if (IstNeuer(taste.timestamp(), losgelassen))
      losgelassen = taste.timestamp();
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
