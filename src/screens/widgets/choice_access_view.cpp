#include "screens/widgets/choice_access_view.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <algorithm>

#include "screens/widgets/shown_text_access_view.h"

namespace kav {
namespace {

class ChoiceAccess final : public QAccessibleWidget {
 public:
  explicit ChoiceAccess(QComboBox& box)
      : QAccessibleWidget(&box, QAccessible::ComboBox), chosen_([this] { return Chosen(); }) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(&chosen_);
    return QAccessibleWidget::interface_cast(type);
  }

  // The one child is the list of entries.
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    if (index != 0 || Box() == nullptr) return nullptr;
    QAbstractItemView* entries = Box()->view();
    if (entries->accessibleName().isEmpty()) entries->setAccessibleName(text(QAccessible::Name));
    return QAccessible::queryAccessibleInterface(entries);
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    return wanted != nullptr && wanted == child(0) ? 0 : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    QAccessibleInterface* entries = state().expanded ? child(0) : nullptr;
    return entries != nullptr && entries->rect().contains(x, y) ? entries : nullptr;
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Chosen() : QAccessibleWidget::text(kind);
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind != QAccessible::Value || Box() == nullptr) return;
    const int index = Box()->findText(text);
    if (index >= 0) Choose(index);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = Box() != nullptr && Box()->view()->isVisible();
    state.hasPopup = true;
    return state;
  }

  QStringList actionNames() const override {
    QStringList names{showMenuAction(), pressAction()};
    if (!state().disabled) names += {increaseAction(), decreaseAction()};
    return names + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name == showMenuAction() || name == pressAction()) return Toggle();
    if (name == increaseAction()) return Choose(Box()->currentIndex() + 1);
    if (name == decreaseAction()) return Choose(Box()->currentIndex() - 1);
    QAccessibleWidget::doAction(name);
  }

 private:
  QComboBox* Box() const { return qobject_cast<QComboBox*>(object()); }
  QString Chosen() const { return Box() != nullptr ? Box()->currentText() : QString(); }

  void Toggle() {
    if (Box()->view()->isVisible()) return Box()->hidePopup();
    if (Box()->isEnabled()) Box()->showPopup();
  }
  void Choose(int index) {
    if (!Box()->isEnabled() || Box()->count() == 0) return;
    Box()->setCurrentIndex(std::clamp(index, 0, Box()->count() - 1));
  }

  ShownTextAccess chosen_;
};

}  // namespace

QAccessibleInterface* MakeChoiceAccess(QComboBox& box) {
  return new ChoiceAccess(box);
}

}  // namespace kav
