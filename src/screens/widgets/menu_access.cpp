#include "screens/widgets/menu_access.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QAction>
#include <QMenu>

namespace kav {
namespace {

/// An entry without a menu of its own.
class EntryAccess final : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  EntryAccess(QMenu& menu, QAction& entry)
      : QAccessibleObject(&entry), menu_(menu), entry_(entry) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&menu_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::MenuItem; }

  QRect rect() const override {
    const QRect place = menu_.actionGeometry(&entry_);
    return {menu_.mapToGlobal(place.topLeft()), place.size()};
  }

  QString text(QAccessible::Text what) const override {
    switch (what) {
      case QAccessible::Name:
        return entry_.text().remove(QChar(u'&'));
      case QAccessible::Description:
        return entry_.statusTip();
      case QAccessible::Accelerator:
        return entry_.shortcut().toString(QKeySequence::NativeText);
      default:
        return {};
    }
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !menu_.isVisible() || !entry_.isVisible();
    state.focusable = true;
    state.focused = menu_.activeAction() == &entry_;
    state.disabled = !entry_.isEnabled();
    state.checkable = entry_.isCheckable();
    state.checked = entry_.isChecked();
    return state;
  }

  QStringList actionNames() const override {
    return entry_.isEnabled() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) entry_.trigger();
  }
  QStringList keyBindingsForAction(const QString&) const override {
    return QStringList(text(QAccessible::Accelerator));
  }

 private:
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  QMenu& menu_;
  QAction& entry_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* entry = qobject_cast<QAction*>(object);
  auto* menu = entry != nullptr ? qobject_cast<QMenu*>(entry->parent()) : nullptr;
  if (menu == nullptr || entry->statusTip().isEmpty()) return nullptr;
  return new EntryAccess(*menu, *entry);
}

}  // namespace

void DescribeMenusToScreenReaders() {
  static const bool kIsDone = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  (void)kIsDone;
}

}  // namespace kav
