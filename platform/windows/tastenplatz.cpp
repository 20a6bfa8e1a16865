#include "platform/tastenplatz.h"

#include <QKeyEvent>

unsigned Tastenplatz(const QKeyEvent &taste) {
  return taste.nativeScanCode();
}
