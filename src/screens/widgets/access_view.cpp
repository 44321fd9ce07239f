#include "screens/widgets/access_view.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QTabBar>

#include "screens/widgets/choice_access_view.h"
#include "screens/widgets/shown_text_access_view.h"
#include "screens/widgets/tabs_access_view.h"

namespace kav {
namespace {

using Relations = QList<QPair<QAccessibleInterface*, QAccessible::Relation>>;

/// A label. The toolkit's own does not tell its text if it has a name.
class LabelAccess final : public QAccessibleWidget {
 public:
  explicit LabelAccess(QLabel& label)
      : QAccessibleWidget(&label, QAccessible::StaticText), shown_([this] { return Shown(); }) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface && !IsPicture()) {
      return static_cast<QAccessibleTextInterface*>(&shown_);
    }
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::Role role() const override {
    return IsPicture() ? QAccessible::Graphic : QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    // Without a name of its own it is called by its text, not by the box that it stands in.
    const bool isText = kind == QAccessible::Value ||
                        (kind == QAccessible::Name && widget()->accessibleName().isEmpty());
    return isText ? Shown() : QAccessibleWidget::text(kind);
  }
  Relations relations(QAccessible::Relation match) const override {
    Relations all = QAccessibleWidget::relations(match);
    QWidget* buddy = Label() != nullptr ? Label()->buddy() : nullptr;
    if (buddy != nullptr && (match & QAccessible::Labelled) != 0) {
      all.emplace_back(QAccessible::queryAccessibleInterface(buddy), QAccessible::Labelled);
    }
    return all;
  }

 private:
  QLabel* Label() const { return qobject_cast<QLabel*>(object()); }
  bool IsPicture() const {
    return Label() != nullptr && !Label()->pixmap(Qt::ReturnByValue).isNull();
  }
  QString Shown() const {
    if (Label() == nullptr) return {};
    QString text = Label()->text();
    if (Label()->buddy() != nullptr) text.remove(u'&');
    return text;
  }

  ShownTextAccess shown_;
};

/// A plain widget: a window, a part of one, or if it takes the keyboard, a picture to work on.
class WindowAccess final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QAccessible::Role role() const override {
    if (widget()->isWindow()) return QAccessible::Window;
    return widget()->focusPolicy() != Qt::NoFocus ? QAccessible::Graphic : QAccessible::Client;
  }
  // The toolkit's own does not open the menu of a widget.
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (HasMenu() && !names.contains(showMenuAction())) names << showMenuAction();
    return names;
  }
  void doAction(const QString& name) override {
    if (name != showMenuAction() || !HasMenu()) return QAccessibleWidget::doAction(name);
    const QPoint middle = rect().center();
    QContextMenuEvent open(QContextMenuEvent::Other, widget()->mapFromGlobal(middle), middle);
    QCoreApplication::sendEvent(widget(), &open);
  }

 private:
  bool HasMenu() const {
    return widget()->isEnabled() && widget()->contextMenuPolicy() == Qt::ActionsContextMenu;
  }
};

QAccessibleInterface* MakeWidgetAccess(const QString& kind, QObject* object) {
  if (kind == QLatin1String("QComboBox")) {
    auto* box = qobject_cast<QComboBox*>(object);
    return box != nullptr && !box->isEditable() ? MakeChoiceAccess(*box) : nullptr;
  }
  if (kind == QLatin1String("QTabBar")) {
    auto* tabs = qobject_cast<QTabBar*>(object);
    return tabs != nullptr ? MakeTabsAccess(*tabs) : nullptr;
  }
  if (kind == QLatin1String("QLabel")) {
    auto* label = qobject_cast<QLabel*>(object);
    return label != nullptr ? new LabelAccess(*label) : nullptr;
  }
  if (kind == QLatin1String("QWidget") && object->metaObject() == &QWidget::staticMetaObject) {
    return new WindowAccess(static_cast<QWidget*>(object));
  }
  return nullptr;
}

}  // namespace

void OfferWidgetsToScreenReaders() {
  static const bool kIsOffered = [] {
    QAccessible::installFactory(MakeWidgetAccess);
    return true;
  }();
  (void)kIsOffered;
}

void LetKeyboardFollow(QAbstractItemView& view) {
  const auto follow = [&view] {
    QItemSelectionModel& rows = *view.selectionModel();
    const QItemSelection selected = rows.selection();
    if (selected.size() != 1 || selected.front().height() != 1) return;
    const QModelIndex row = selected.front().topLeft();
    if (row.row() == rows.currentIndex().row()) return;
    rows.setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    view.scrollTo(row);
  };
  QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &view, follow);
}

}  // namespace kav
