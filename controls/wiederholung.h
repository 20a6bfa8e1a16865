// Auto-repeat of held keys, detected in one place for the whole application.
#pragma once

#include <QObject>

class QKeyEvent;

/// True if this key press is a repeat of a key that is held down. Needs an installed `Tastenwache`.
bool IstWiederholung(const QKeyEvent &taste);

/// Event filter of the application. A repeated key press triggers no shortcut, and it does not
/// reach a window that opened while the key was down. Within one window repeats still work.
class Tastenwache : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool eventFilter(QObject *ziel, QEvent *ereignis) override;
};
