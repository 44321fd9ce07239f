#include "screens/statistics/data_table_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>
#include <numeric>
#include <utility>

#include "screens/statistics/heading_view.h"
#include "screens/statistics/number_delegate_view.h"
#include "screens/widgets/access_view.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/text_drops.h"
#include "statistics/pasted_rows.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The height of a row, in heights of a line of text.
constexpr double kRowHeight = 1.25;

/// No column of any screen has room for more characters, and measuring a long text takes time.
constexpr std::size_t kLongestShown = 400;

}  // namespace

/// Makes the cells when they are to be shown.
class DataTableView::Cells final : public QAbstractTableModel {
 public:
  Cells(QObject* parent, const DataList& list, std::span<const DataColumn> columns)
      : QAbstractTableModel(parent), list_(list), columns_(columns.begin(), columns.end()) {
    Reload();
  }

  void Reload() {
    beginResetModel();
    rows_ = list_.RowCount();
    endResetModel();
  }

 private:
  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_);
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    // The list may have changed since the last Reload.
    if (!index.isValid() || row >= list_.RowCount()) return {};
    if (role == Qt::TextAlignmentRole) return Alignment();
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return TextOf(row, index.column());
    return {};
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return ToQt(columns_[static_cast<std::size_t>(section)].heading);
    if (role == Qt::TextAlignmentRole) return Alignment();
    if (role == Qt::ToolTipRole) return ToQt(SortHint(section + 1));
    return {};
  }

  bool IsCount(int column) const { return column + 1 == static_cast<int>(columns_.size()); }

  static QVariant Alignment() { return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight); }

  QString TextOf(std::size_t row, int column) const {
    if (IsCount(column)) return QString::fromStdString(list_.CountText(row));
    const std::string_view text = list_.ValueText(row, static_cast<std::size_t>(column));
    return QLatin1String(text.substr(0, kLongestShown));
  }

  const DataList& list_;
  std::vector<DataColumn> columns_;
  std::size_t rows_ = 0;
};

DataTableView::DataTableView(QWidget* parent, const DataList& list,
                             std::span<const DataColumn> columns)
    : RowTable(parent),
      columns_(columns.begin(), columns.end()),
      cells_(new Cells(this, list, columns)) {
  MakeHeadings();
  for (QWidget* part : findChildren<QWidget*>()) part->setStyle(ScreenStyle());
  setStyle(ScreenStyle());
  setAccessibleName(ToQt(kDataListName));
  setItemDelegate(new NumberDelegate(this));
  DataTableView::setModel(cells_);
  LetKeyboardFollow(*this);
  TakeTextDrops(
      *this, {[this](QPoint place, const std::u16string& text) { return LandingAt(place, text); },
              [this](QPoint place, const std::u16string& text) {
                if (hooks_.drop) hooks_.drop(CellAt(place), text);
              }});
}

/// The cell at a place of the viewport; nullopt beside the rows.
std::optional<DataCell> DataTableView::CellAt(QPoint place) const {
  const QModelIndex index = indexAt(place);
  if (!index.isValid()) return std::nullopt;
  return DataCell{static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())};
}

QRect DataTableView::LandingAt(QPoint place, std::u16string_view text) const {
  const QModelIndex index = indexAt(place);
  if (index.isValid() && OneCellOf(text)) return visualRect(index);
  // Above all rows.
  return {0, 0, viewport()->width(), std::max(RowHeight() / 4, 2)};
}

void DataTableView::MakeHeadings() {
  auto& headings = *new HeadingView(this);
  setHorizontalHeader(&headings);
  connect(&headings, &QHeaderView::sectionClicked, this, &DataTableView::PressHeading);
  connect(&headings, &QHeaderView::sectionResized, this, &DataTableView::OnColumnDragged);
  for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + column)), this);
    connect(shortcut, &QShortcut::activated, this, [this, column] { PressHeading(column); });
  }
}

void DataTableView::PressHeading(int column) {
  if (hooks_.headingPressed) hooks_.headingPressed(static_cast<std::size_t>(column));
}

void DataTableView::OpenRow(int) {
  if (hooks_.edit) hooks_.edit();
}

void DataTableView::ShowSorted(const std::optional<DataSorting>& sorting) {
  const bool isAscending = !sorting || sorting->direction == DataList::Direction::Ascending;
  horizontalHeader()->setSortIndicator(sorting ? static_cast<int>(sorting->column) : -1,
                                       isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void DataTableView::Reload() {
  const int top = verticalScrollBar()->value();
  const int current = currentIndex().row();
  const int before = model()->rowCount();
  cells_->Reload();
  updateGeometries();
  // New rows are at the top: show them.
  const int rows = model()->rowCount();
  const int added = std::max(rows - before, 0);
  verticalScrollBar()->setValue(added > 0 ? 0 : top);
  if (current < 0 || rows == 0) return;
  const int row = std::min(current + added, rows - 1);
  WithoutScrolling([&] {
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
  });
}

void DataTableView::WithoutScrolling(const std::function<void()>& select) {
  setAutoScroll(false);
  select();
  setAutoScroll(true);
}

void DataTableView::Select(std::optional<std::size_t> row) {
  if (row == FirstSelected()) return;
  const DataTableHooks kept = std::exchange(hooks_, {});
  if (row && static_cast<int>(*row) < model()->rowCount()) {
    WithoutScrolling([&] { selectRow(static_cast<int>(*row)); });
  } else {
    clearSelection();
  }
  hooks_ = kept;
}

std::optional<std::size_t> DataTableView::FirstSelected() const {
  std::optional<std::size_t> first;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    const auto top = static_cast<std::size_t>(range.top());
    first = std::min(first.value_or(top), top);
  }
  return first;
}

std::vector<std::size_t> DataTableView::SelectedRows() const {
  std::vector<std::size_t> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(static_cast<std::size_t>(row));
    }
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void DataTableView::SetTextHeight(int pixels) {
  setFont(ScreenFont(pixels));
  FitHeadings();
  SetRowHeight(qRound(fontMetrics().height() * kRowHeight));
}

void DataTableView::FitHeadings() {
  QHeaderView& header = *horizontalHeader();
  // This is the most that they take: they shrink with the letters.
  const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  std::vector<SpacedText> headings;
  headings.reserve(columns_.size());
  for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
    headings.push_back(
        {ToQt(columns_[static_cast<std::size_t>(column)].heading), columnWidth(column) - margins});
  }
  header.setFont(ScreenFont(FittingPixels(headings, font().pixelSize(), 1)));
}

void DataTableView::resizeEvent(QResizeEvent* event) {
  RowTable::resizeEvent(event);
  ShareWidth();
}

/// The columns take all of the width, each its part.
void DataTableView::ShareWidth() {
  const int whole = std::accumulate(columns_.begin(), columns_.end(), 0,
                                    [](int sum, const DataColumn& c) { return sum + c.width; });
  const QSignalBlocker quiet(horizontalHeader());
  std::int64_t before = 0;
  int left = 0;
  for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
    before += columns_[static_cast<std::size_t>(column)].width;
    const auto right = static_cast<int>(viewport()->width() * before / std::max(whole, 1));
    horizontalHeader()->resizeSection(column, right - left);
    left = right;
  }
  FitHeadings();
  viewport()->update();
}

void DataTableView::OnColumnDragged(int column, int before, int after) {
  const auto dragged = static_cast<std::size_t>(column);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    columns_[i].width = i == dragged ? before : columnWidth(static_cast<int>(i));
  }
  // The next column gives what this one takes, so that all stay in view.
  if (dragged + 1 < columns_.size()) {
    const int both = before + columns_[dragged + 1].width;
    const int least = std::min(2 * font().pixelSize(), both / 2);
    columns_[dragged].width = std::clamp(after, least, both - least);
    columns_[dragged + 1].width = both - columns_[dragged].width;
  }
  ShareWidth();
}

void DataTableView::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
  RowTable::selectionChanged(now, before);
  if (hooks_.selectionChanged) hooks_.selectionChanged();
}

void DataTableView::mouseDoubleClickEvent(QMouseEvent* event) {
  RowTable::mouseDoubleClickEvent(event);
  const bool isOnRow = indexAt(event->position().toPoint()).isValid();
  if (isOnRow && event->button() == Qt::LeftButton && hooks_.edit) hooks_.edit();
}

bool DataTableView::DoCommand(const QKeyEvent& event) {
  const auto call = [](const std::function<void()>& hook) {
    if (hook) hook();
    return true;
  };
  if (event.matches(QKeySequence::Copy)) return call(hooks_.copy);
  if (event.matches(QKeySequence::Paste)) return call(hooks_.paste);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return call(hooks_.edit);
    case Qt::Key_Delete:
      return call(hooks_.remove);
    default:
      return false;
  }
}

void DataTableView::keyPressEvent(QKeyEvent* event) {
  if (DoCommand(*event)) return;
  // Typing does not search the rows.
  const bool isTyped =
      !event->text().isEmpty() && event->text().front().isPrint() && event->key() != Qt::Key_Space;
  if (isTyped && !event->matches(QKeySequence::SelectAll)) return event->ignore();
  RowTable::keyPressEvent(event);
}

}  // namespace kav
