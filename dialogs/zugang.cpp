#include "dialogs/zugang.h"

#include <QAccessibleWidget>
#include <QTimer>
#include <chrono>

#include "controls/bild.h"
#include "controls/zifferreihe.h"
#include "dialogs/bildfenster.h"

namespace {

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
    kinder.removeIf([](const QWidget *kind) {
      const auto *bild = qobject_cast<const Bild *>(kind);
      return (bild && bild->Ansage().isEmpty()) || kind->isWindow() || kind->isHidden();
    });
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

  QString text(QAccessible::Text art) const override {
    return art == QAccessible::Name ? DasBild().Ansage() : Zugang::text(art);
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
    QTimer::singleShot(0, &DasBild(), [bild = &DasBild(), taste] { bild->Klicke(taste); });
  }

 private:
  Bild &DasBild() const { return *static_cast<Bild *>(object()); }
};

/// Qt calls this for the class of an object, then for its base classes.
QAccessibleInterface *Fabrik(const QString &, QObject *objekt) {
  if (auto *bild = qobject_cast<Bild *>(objekt))
    return new ZugangBild(bild);
  if (auto *reihe = qobject_cast<Zifferreihe *>(objekt))
    return new QAccessibleWidget(reihe, QAccessible::StaticText);
  if (auto *fenster = qobject_cast<Bildfenster *>(objekt))
    return new Zugang(fenster, QAccessible::Dialog);
  return nullptr;
}

}  // namespace

void RichteZugangEin() { QAccessible::installFactory(Fabrik); }

void SageAn(QWidget *element, const QString &text) {
  if (!QAccessible::isActive())
    return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  if (element->hasFocus())
    return;  // A screen reader speaks its new name or description.
  QAccessibleAnnouncementEvent ansage(element, text);
  QAccessible::updateAccessibility(&ansage);
#else
  // Qt 6.4 has no announcements, and Orca loses its changes of names and descriptions. But Orca
  // speaks a notification when it is shown. It asks for the text later.
  constexpr std::chrono::minutes kAufbewahrt(1);
  auto *ansage = new Bild(element->window(), {"", {}, "", "", "", QAccessible::Notification});
  ansage->setAccessibleName(text);
  ansage->show();
  QTimer::singleShot(kAufbewahrt, ansage, &QObject::deleteLater);
#endif
}

void ErlaubeTab(QWidget *fenster) {
  for (Bild *bild : fenster->findChildren<Bild *>()) {
    if (bild->IstBedienbar())
      bild->setFocusPolicy(QAccessible::isActive() ? Qt::TabFocus : Qt::NoFocus);
  }
}
