#include "screens/widgets/label_list.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cstddef>

#include "screens/widgets/access_view.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Labels are as wide as the list, however long they are, and so cut visibly.
class FittingDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 private:
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

}  // namespace

LabelList::LabelList(std::u16string_view name) {
  setAccessibleName(ToQt(name));
  setItemDelegate(new FittingDelegate(this));
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  LetKeyboardFollow(*this);
}

std::optional<int> LabelList::Selected() const {
  const QList<QListWidgetItem*> items = selectedItems();
  return items.isEmpty() ? std::nullopt : std::optional(row(items.front()));
}

void LabelList::Write(const std::vector<std::u16string>& labels, std::optional<int> selected) {
  const QSignalBlocker blocker(this);
  const int wanted = static_cast<int>(labels.size());
  while (count() > wanted) delete takeItem(count() - 1);
  while (count() < wanted) addItem(QString());
  for (int i = 0; i < wanted; ++i) item(i)->setText(OneLine(labels[static_cast<std::size_t>(i)]));
  if (selected == Selected()) return;
  if (selected) {
    setCurrentRow(*selected, QItemSelectionModel::ClearAndSelect);
  } else {
    clearSelection();
  }
}

QSize LabelList::minimumSizeHint() const {
  return QListWidget::minimumSizeHint().expandedTo({0, LeastHeightOfList(*this)});
}

void LabelList::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  // Otherwise the focus is seen on a label.
  if (!hasFocus() || count() > 0) return;
  const double line = std::max(2.0, fontMetrics().height() / 10.0);
  QPainter painter(viewport());
  painter.setPen(QPen(palette().color(QPalette::Highlight), line));
  painter.drawRect(QRectF(viewport()->rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace kav
