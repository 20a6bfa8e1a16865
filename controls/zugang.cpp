#include "controls/zugang.h"

#include <QAccessibleWidget>
#include <QTimer>

#include "controls/bild.h"
#include "controls/zifferreihe.h"

namespace {

/// True for an arrow without a picture, which is visible for Qt only.
bool IstLeer(const QWidget *element) {
  const auto *bild = qobject_cast<const Bild *>(element);
  return bild && bild->Rolle() == QAccessible::Graphic && bild->Bildname().isEmpty();
}

/// Presents a control without its hidden children.
class Zugang : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  int childCount() const override { return static_cast<int>(Kinder().size()); }

  QAccessibleInterface *child(int index) const override {
    return QAccessible::queryAccessibleInterface(Kinder().value(index));
  }

  int indexOfChild(const QAccessibleInterface *kind) const override {
    return static_cast<int>(Kinder().indexOf(qobject_cast<QWidget *>(kind->object())));
  }

 private:
  QList<QWidget *> Kinder() const {
    QList<QWidget *> kinder = widget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    kinder.removeIf(
        [](const QWidget *kind) { return kind->isWindow() || kind->isHidden() || IstLeer(kind); });
    return kinder;
  }
};

/// Presents a picture with its state and the actions of its mouse buttons.
class ZugangBild : public Zugang {
 public:
  explicit ZugangBild(Bild *bild) : Zugang(bild, bild->Rolle()) {}

  QAccessible::State state() const override {
    QAccessible::State zustand = Zugang::state();
    const bool wahl = role() == QAccessible::RadioButton || role() == QAccessible::CheckBox;
    zustand.checkable = wahl;
    zustand.checked = wahl && DasBild().IstGewaehlt();
    zustand.focusable = DasBild().IstBedienbar();
    return zustand;
  }

  QStringList actionNames() const override {
    QStringList namen;
    if (DasBild().IstBedienbar())
      namen << pressAction();
    if (DasBild().IstZweitastig())
      namen << showMenuAction();
    return namen;
  }

  void doAction(const QString &name) override {
    if (!actionNames().contains(name))
      return;
    // Do not block the caller: the click may open a modal window.
    const Qt::MouseButton taste = name == pressAction() ? Qt::LeftButton : Qt::RightButton;
    QTimer::singleShot(0, &DasBild(), [bild = &DasBild(), taste] { bild->Bediene(taste); });
  }

 private:
  Bild &DasBild() const { return *static_cast<Bild *>(object()); }
};

/// Qt calls this for the class of an object, then for its base classes.
QAccessibleInterface *Fabrik(const QString &klasse, QObject *objekt) {
  if (auto *bild = qobject_cast<Bild *>(objekt))
    return new ZugangBild(bild);
  if (auto *reihe = qobject_cast<Zifferreihe *>(objekt))
    return new QAccessibleWidget(reihe, QAccessible::StaticText);
  if (klasse == "Bildfenster")
    return new Zugang(qobject_cast<QWidget *>(objekt), QAccessible::Dialog);
  return nullptr;
}

}  // namespace

void RichteZugangEin() {
  QAccessible::installFactory(Fabrik);
}
