#include "screens/converter/choice_view.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <cstddef>

#include "converter/unit_tables.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Entries are high enough for a finger. However long their texts, they are as wide as their list.
class EntryDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 private:
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, option.fontMetrics.height() * 7 / 4};
  }
};

}  // namespace

ChoiceView::ChoiceView(std::u16string_view name) : ChoiceBox(name) {
  setPlaceholderText(ToQt(name));
  std::vector<std::u16string_view> builtIn;
  for (const UnitCategory& category : UnitCategories()) {
    builtIn.push_back(category.caption);
    for (const Unit& unit : category.units) builtIn.push_back(unit.name);
  }
  KeepRoomFor(builtIn);
  setItemDelegate(new EntryDelegate(this));
  view()->setTextElideMode(Qt::ElideMiddle);
}

void ChoiceView::Write(const std::vector<std::u16string>& texts, int chosen) {
  const QSignalBlocker blocker(this);
  const int wanted = static_cast<int>(texts.size());
  while (count() > wanted) removeItem(count() - 1);
  while (count() < wanted) addItem(QString());
  for (int i = 0; i < wanted; ++i) {
    const QString text = OneLine(texts[static_cast<std::size_t>(i)]);
    if (itemText(i) != text) setItemText(i, text);
  }
  setCurrentIndex(chosen);
}

}  // namespace kav
