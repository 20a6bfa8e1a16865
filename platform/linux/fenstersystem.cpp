#include "platform/fenstersystem.h"

#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

xcb_atom_t Atom(xcb_connection_t *verbindung, std::string_view name) {
  const auto anfrage =
      xcb_intern_atom(verbindung, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> antwort(
      xcb_intern_atom_reply(verbindung, anfrage, nullptr), &std::free);
  return antwort ? antwort->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

const char *const kOhneBildschirm =
    "Glanzgrube findet keinen Bildschirm. In einer Wayland-Sitzung braucht das Spiel das Paket "
    "»qt6-wayland« oder »xwayland«.";

bool IstWayland() { return QGuiApplication::platformName().startsWith("wayland"); }

void OhneTaskleiste(QWindow *fenster) {
  auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t *verbindung = x11 ? x11->connection() : nullptr;
  if (!verbindung)  // The interface also exists without an X server.
    return;
  const std::array<xcb_atom_t, 2> zustaende{Atom(verbindung, "_NET_WM_STATE_SKIP_TASKBAR"),
                                            Atom(verbindung, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(verbindung, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(fenster->winId()),
                      Atom(verbindung, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32,
                      static_cast<std::uint32_t>(zustaende.size()), zustaende.data());
}
