#include "dialogs/ersterblick.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

class Waechter : public QObject {
 public:
  Waechter(QWidget *fenster, std::function<void()> tat) : QObject(fenster), tat_(std::move(tat)) {
    fenster->installEventFilter(this);
  }

  bool eventFilter(QObject *fenster, QEvent *ereignis) override {
    if (ereignis->type() == QEvent::Paint) {
      QTimer::singleShot(0, fenster, tat_);
      deleteLater();
      fenster->removeEventFilter(this);
    }
    return false;
  }

 private:
  std::function<void()> tat_;
};

}  // namespace

void NachErstemBlick(QWidget *fenster, const std::function<void()> &tat) {
  new Waechter(fenster, tat);
}
