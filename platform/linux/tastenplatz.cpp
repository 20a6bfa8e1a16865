#include "platform/tastenplatz.h"

#include <QKeyEvent>

unsigned Tastenplatz(const QKeyEvent &taste) {
  constexpr unsigned kVersatz = 8;  // Of the key codes of X11, which Wayland has kept.
  return taste.nativeScanCode() - kVersatz;
}
