#include "screens/widgets/tabs_access_view.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <QTabBar>
#include <utility>

#include "screens/widgets/shown_text_access_view.h"

namespace kav {
namespace {

/// The caption without the mark of its shortcut.
QString CaptionOfTab(const QTabBar& tabs, int index) {
  return tabs.tabText(index).remove(u'&');
}

/// A tab. Invalid as long as it is not there.
class TabAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  TabAccess(QTabBar& tabs, int index) : tabs_(&tabs), index_(index) {}

  int Index() const { return index_; }

  bool isValid() const override { return !tabs_.isNull() && index_ < tabs_->count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QAccessibleInterface* parent() const override {
    return tabs_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(tabs_.data());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    return isValid() && kind == QAccessible::Name ? CaptionOfTab(*tabs_, index_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect area = tabs_->tabRect(index_);
    return {tabs_->mapToGlobal(area.topLeft()), area.size()};
  }
  QAccessible::Role role() const override { return QAccessible::PageTab; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid()) return state;
    state.invisible = !tabs_->isVisible();
    state.disabled = !tabs_->isTabEnabled(index_);
    state.selectable = true;
    state.focusable = true;
    state.selected = tabs_->currentIndex() == index_;
    state.focused = state.selected && tabs_->hasFocus();
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (isValid() && name == pressAction()) tabs_->setCurrentIndex(index_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<QTabBar> tabs_;
  int index_;
};

/// The strip. It keeps the interfaces of its tabs as long as it lives, so that a screen reader that
/// holds one never holds a dead one.
class TabsAccess final : public QAccessibleWidget {
 public:
  explicit TabsAccess(QTabBar& tabs)
      : QAccessibleWidget(&tabs, QAccessible::PageTabList), chosen_([this] { return Chosen(); }) {}
  TabsAccess(const TabsAccess&) = delete;
  TabsAccess& operator=(const TabsAccess&) = delete;
  ~TabsAccess() override {
    for (const QAccessible::Id id : std::as_const(ids_)) QAccessible::deleteAccessibleInterface(id);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(&chosen_);
    return QAccessibleWidget::interface_cast(type);
  }

  int childCount() const override { return Tabs() != nullptr ? Tabs()->count() : 0; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    QAccessible::Id& id = ids_[index];
    if (id == 0) id = QAccessible::registerAccessibleInterface(new TabAccess(*Tabs(), index));
    return QAccessible::accessibleInterface(id);
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    const auto* tab = dynamic_cast<const TabAccess*>(wanted);
    return tab != nullptr && tab->parent() == this ? tab->Index() : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return Tabs() != nullptr ? child(Tabs()->tabAt(Tabs()->mapFromGlobal(QPoint(x, y)))) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    if (Tabs() == nullptr || !Tabs()->hasFocus()) return nullptr;
    return child(Tabs()->currentIndex());
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Chosen() : QAccessibleWidget::text(kind);
  }

 private:
  QTabBar* Tabs() const { return qobject_cast<QTabBar*>(object()); }
  QString Chosen() const {
    return Tabs() != nullptr ? CaptionOfTab(*Tabs(), Tabs()->currentIndex()) : QString();
  }

  ShownTextAccess chosen_;
  mutable QHash<int, QAccessible::Id> ids_;
};

}  // namespace

QAccessibleInterface* MakeTabsAccess(QTabBar& tabs) {
  return new TabsAccess(tabs);
}

}  // namespace kav
