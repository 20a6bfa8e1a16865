#include "platform/fenstersystem.h"

#include <windows.h>

#include <QWindow>

const char *const kOhneBildschirm = "Glanzgrube findet keinen Bildschirm.";

bool StapeltFenster() {
  return true;
}

void OhneTaskleiste(QWindow *fenster) {
  auto *hwnd = reinterpret_cast<HWND>(fenster->winId());
  const LONG_PTR stil = GetWindowLongPtrW(hwnd, GWL_EXSTYLE);
  SetWindowLongPtrW(hwnd, GWL_EXSTYLE,
                    (stil | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE) & ~WS_EX_APPWINDOW);
}
