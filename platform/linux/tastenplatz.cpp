#include "platform/tastenplatz.h"

#include <QKeyEvent>

unsigned Tastenplatz(const QKeyEvent &taste) {
  constexpr unsigned kVersatz = 8;  // X11 adds it to a scan code, and Wayland does the same.
  return taste.nativeScanCode() - kVersatz;
}
