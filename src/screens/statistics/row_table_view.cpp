#include "screens/statistics/row_table_view.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QHeaderView>
#include <QItemSelection>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <limits>

namespace kav {
namespace {

/// What the header of the rows shows: it would take memory for each of them.
class NoRows final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

 private:
  int rowCount(const QModelIndex&) const override { return 0; }
  int columnCount(const QModelIndex&) const override { return 0; }
  QVariant data(const QModelIndex&, int) const override { return {}; }
};

/// The frame around the row of the keys, as a part of a row's height.
constexpr double kFocusLine = 0.04;

/// As a quotient rounded down, also for places above the table.
int Quotient(int place, int height) {
  return place >= 0 ? place / height : -((height - 1 - place) / height);
}

}  // namespace

RowTable::RowTable(QWidget* parent) : QTableView(parent) {
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  // The corner between the headers, one of which is not there.
  findChild<QAbstractButton*>({}, Qt::FindDirectChildrenOnly)->hide();
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
}

void RowTable::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  // A header that shared the selection of the rows would look at all of them whenever it is
  // painted.
  horizontalHeader()->setSelectionModel(new QItemSelectionModel(model, this));
  verticalHeader()->setModel(new NoRows(verticalHeader()));
  updateGeometries();
}

// Places.

void RowTable::SetRowHeight(int pixels) {
  if (height_ == pixels) return;
  height_ = pixels;
  updateGeometries();
  viewport()->update();
}

int RowTable::RowHeight() const {
  // The height of all rows together has to be an int.
  const int most = std::numeric_limits<int>::max() / std::max(RowTotal(), 1);
  return std::clamp(height_, 1, most);
}

int RowTable::RowsInView() const {
  return std::max(viewport()->height() / RowHeight(), 1);
}

int RowTable::TopRow() const {
  return verticalScrollBar()->value();
}

int RowTable::verticalOffset() const {
  return TopRow() * RowHeight();
}

QRect RowTable::AreaOf(int row) const {
  return {0, (row - TopRow()) * RowHeight(), horizontalHeader()->length(), RowHeight()};
}

QRect RowTable::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const QRect row = AreaOf(index.row());
  // Without the line.
  return {columnViewportPosition(index.column()), row.top(), columnWidth(index.column()) - 1,
          row.height() - 1};
}

QModelIndex RowTable::indexAt(const QPoint& place) const {
  const int row = TopRow() + Quotient(place.y(), RowHeight());
  const int column = columnAt(place.x());
  if (row < 0 || row >= RowTotal() || column < 0) return {};
  return model()->index(row, column);
}

void RowTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  const int row = index.row();
  const int last = row - RowsInView() + 1;
  int top = TopRow();
  if (hint == PositionAtTop || (hint == EnsureVisible && row < top)) top = row;
  if (hint == PositionAtBottom || (hint == EnsureVisible && last > top)) top = last;
  if (hint == PositionAtCenter) top = row - RowsInView() / 2;
  verticalScrollBar()->setValue(top);
}

void RowTable::scrollContentsBy(int, int) {
  viewport()->update();
}

void RowTable::updateGeometries() {
  QHeaderView& headings = *horizontalHeader();
  const int height = headings.sizeHint().height();
  setViewportMargins(0, height, 0, 0);
  const QRect room = viewport()->geometry();
  headings.setGeometry(room.left(), room.top() - height, room.width(), height);
  QScrollBar& bar = *verticalScrollBar();
  bar.setRange(0, std::max(RowTotal() - RowsInView(), 0));
  bar.setPageStep(RowsInView());
  QAbstractItemView::updateGeometries();  // NOLINT: not the table's, which asks the header of rows
}

// The look.

void RowTable::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  if (RowTotal() == 0) return;
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int first = TopRow() + std::max(event->rect().top(), 0) / RowHeight();
  const int last = std::min(TopRow() + event->rect().bottom() / RowHeight(), RowTotal() - 1);
  for (int row = first; row <= last; ++row) {
    for (int column = 0; column < ColumnTotal(); ++column) {
      PaintCell(painter, option, model()->index(row, column));
    }
  }
  PaintLines(painter, option, last - TopRow() + 1);
  PaintFocus(painter);
}

void RowTable::PaintCell(QPainter& painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) {
  QStyleOptionViewItem cell = option;
  cell.rect = visualRect(index);
  if (selectionModel()->isSelected(index)) cell.state |= QStyle::State_Selected;
  style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &cell, &painter, this);
  itemDelegateForIndex(index)->paint(&painter, cell, index);
}

/// The lines below the first `rows` in view, and beside their cells.
void RowTable::PaintLines(QPainter& painter, const QStyleOptionViewItem& option, int rows) const {
  const int colour = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
  painter.setPen(QPen(QColor::fromRgba(static_cast<QRgb>(colour)), 0));
  const int right = horizontalHeader()->length() - 1;
  const int bottom = rows * RowHeight() - 1;
  for (int row = 1; row <= rows; ++row) {
    painter.drawLine(0, row * RowHeight() - 1, right, row * RowHeight() - 1);
  }
  for (int column = 0; column < ColumnTotal(); ++column) {
    const int x = columnViewportPosition(column) + columnWidth(column) - 1;
    painter.drawLine(x, 0, x, bottom);
  }
}

/// Around the whole row that the keys work on.
void RowTable::PaintFocus(QPainter& painter) const {
  if (!hasFocus() || !currentIndex().isValid()) return;
  const bool isSelected = selectionModel()->isSelected(currentIndex());
  const double line = std::max(1.0, RowHeight() * kFocusLine);
  const QRectF row = QRectF(AreaOf(currentIndex().row())).adjusted(0, 0, -1, -1);
  painter.setPen(QPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Highlight),
                      line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  // Within the row and clear of its edge, so that it is seen on a selected one.
  const double inset = isSelected ? 1.5 * line : line / 2;
  painter.drawRect(row.adjusted(inset, inset, -inset, -inset));
}

// The selection.

QModelIndex RowTable::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  if (RowTotal() == 0) return {};
  const QModelIndex now = currentIndex();
  const int last = RowTotal() - 1;
  // Home and End go to the ends of the list, not of a row.
  if (action == MoveHome || (!now.isValid() && action != MoveEnd)) return model()->index(0, 0);
  if (action == MoveEnd) return model()->index(last, 0);
  int row = now.row();
  int column = now.column();
  if (action == MoveUp) --row;
  if (action == MoveDown) ++row;
  if (action == MovePageUp) row -= RowsInView();
  if (action == MovePageDown) row += RowsInView();
  if (action == MoveLeft) --column;
  if (action == MoveRight) ++column;
  return model()->index(std::clamp(row, 0, last), std::clamp(column, 0, ColumnTotal() - 1));
}

void RowTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
  const QRect area = rect.normalized();
  const QModelIndex first = indexAt(area.topLeft());
  const QModelIndex last = indexAt(area.bottomRight());
  if (!first.isValid() || !last.isValid()) return;
  selectionModel()->select(QItemSelection(first, last), command);
}

QRegion RowTable::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  const QRect view = viewport()->rect();
  for (const QItemSelectionRange& range : selection) {
    if (range.isValid()) region += view & (AreaOf(range.top()) | AreaOf(range.bottom()));
  }
  return region;
}

void RowTable::PickRow(int row) {
  if (row < 0 || row >= RowTotal() || !isEnabled()) return;
  setFocus(Qt::OtherFocusReason);
  selectionModel()->setCurrentIndex(
      model()->index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void RowTable::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
  // The toolkit's table would make a list of all cells for screen readers.
  QAbstractItemView::selectionChanged(now, before);  // NOLINT: therefore not the table's
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(this, QAccessible::SelectionWithin);
  QAccessible::updateAccessibility(&event);
}

void RowTable::currentChanged(const QModelIndex& now, const QModelIndex& before) {
  QAbstractItemView::currentChanged(now, before);  // NOLINT: the table's tells of another place
  for (const QModelIndex& index : {now, before}) {
    if (index.isValid()) viewport()->update(AreaOf(index.row()));
  }
  if (hasFocus()) TellOfCurrent();
}

void RowTable::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  viewport()->update();
  TellOfCurrent();
}

void RowTable::TellOfCurrent() {
  if (!QAccessible::isActive() || !currentIndex().isValid()) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(PlaceInTable(currentIndex().row(), currentIndex().column(), ColumnTotal()));
  QAccessible::updateAccessibility(&event);
}

}  // namespace kav
