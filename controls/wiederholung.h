// Auto-repeat of held keys and clicks that come too soon, detected for the whole application.
#pragma once

#include <QObject>

class QKeyEvent;

/// True if this key press is a repeat of a key that is held down. Needs an `Eingabewache`.
bool IstWiederholung(const QKeyEvent &taste);

/// Event filter of the application. A repeated key press triggers no shortcut, and it does not
/// reach a window that opened while the key was down. Within one window repeats still work. Where a
/// window has closed, a mouse press counts only if none came before it, in any window, within the
/// time of a double click: a triple click on a message does not reach what lies behind.
class Eingabewache : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool eventFilter(QObject *ziel, QEvent *ereignis) override;
};
