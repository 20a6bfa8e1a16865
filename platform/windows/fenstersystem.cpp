#include "platform/fenstersystem.h"

#include <windows.h>

#include <QWindow>

const char *const kOhneBildschirm = "Glanzgrube findet keinen Bildschirm.";

bool IstWayland() { return false; }

void OhneTaskleiste(QWindow *fenster) {
  if (fenster->transientParent())  // Windows gives an owned window no entry.
    return;
  auto *hwnd = reinterpret_cast<HWND>(fenster->winId());
  const LONG_PTR stil = GetWindowLongPtrW(hwnd, GWL_EXSTYLE) & ~WS_EX_APPWINDOW;
  // Qt itself refuses the focus only on a click, not when another window is minimised.
  const LONG_PTR ohneFokus =
      fenster->flags().testFlag(Qt::WindowDoesNotAcceptFocus) ? WS_EX_NOACTIVATE : 0;
  SetWindowLongPtrW(hwnd, GWL_EXSTYLE, stil | WS_EX_TOOLWINDOW | ohneFokus);
}
