#include "screens/converter/choice_view.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cstddef>
#include <string>

#include "converter/typed_name.h"
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

/// Entries that are found by their names as EntryNamed says, where none begins with what was typed.
class EntryModel final : public QStandardItemModel {
 public:
  using QStandardItemModel::QStandardItemModel;

 private:
  QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                        Qt::MatchFlags flags) const override {
    auto found = QStandardItemModel::match(start, role, value, hits, flags);
    if (!found.isEmpty() || (flags & Qt::MatchTypeMask) != Qt::MatchStartsWith) return found;
    std::vector<std::u16string> entries;
    entries.reserve(static_cast<std::size_t>(rowCount()));
    for (int row = 0; row < rowCount(); ++row) {
      entries.push_back(index(row, 0).data(role).toString().toStdU16String());
    }
    const auto place = EntryNamed(entries, value.toString().toStdU16String(),
                                  static_cast<std::size_t>(std::max(start.row(), 0)));
    if (!place) return {};
    return {index(static_cast<int>(*place), 0)};
  }
};

}  // namespace

ChoiceView::ChoiceView(std::u16string_view name) : ChoiceBox(name) {
  setModel(new EntryModel(this));
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
