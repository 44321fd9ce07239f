#include "screens/grid/grid_mouse_view.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "screens/grid/grid_keys_view.h"

namespace kav {
namespace {

/// The time from one cell to the next while the mouse pulls a selection beyond the border.
constexpr int kScrollMilliseconds = 80;

/// The angle of one step of a wheel.
constexpr int kWheelStep = 120;

}  // namespace

GridMouse::GridMouse(GridTable& table, GridSelector& selector, GridEdit& edit,
                     const GridHooks& hooks)
    : table_(table), selector_(selector), edit_(edit), hooks_(hooks) {
  for (QWidget* part : {static_cast<QWidget*>(&table), table.viewport()}) {
    part->setMouseTracking(true);
  }
  table.installEventFilter(this);
}

bool GridMouse::eventFilter(QObject*, QEvent* event) {
  // What has the focus now, perhaps a box that opened, gets the release of the button.
  if (event->type() == QEvent::FocusOut) EndDrag();
  if (!table_.isEnabled()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      event->setAccepted(Press(static_cast<const QMouseEvent&>(*event)));
      return true;
    case QEvent::MouseButtonDblClick:
      event->setAccepted(DoubleClick(static_cast<const QMouseEvent&>(*event)));
      return true;
    case QEvent::MouseMove:
      Move(static_cast<const QMouseEvent&>(*event));
      return true;
    case QEvent::MouseButtonRelease:
      if (static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) EndDrag();
      return true;
    case QEvent::Wheel:
      event->setAccepted(Wheel(static_cast<const QWheelEvent&>(*event)));
      return true;
    default:
      return false;
  }
}

bool GridMouse::Press(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  if (event.button() != Qt::LeftButton || !table_.Whole().contains(place)) return false;
  edit_.Finish();
  place_ = place;
  resized_ = EdgeAt(place);
  if (resized_) {
    offset_ = table_.CellArea({0, *resized_}).width() - place.x();
  } else {
    PressAt(table_.CellAt(place), ReachOf(event.modifiers()));
  }
  return true;
}

void GridMouse::PressAt(GridCell cell, GridReach reach) {
  if (cell.IsNone()) return;
  const bool isInHeader = cell.row < table_.Model().FixedRowCount();
  const bool isInRowHeader = cell.column < table_.Model().FixedColumnCount();
  if (isInHeader && isInRowHeader) return selector_.SelectAll();
  selected_ = isInHeader ? GridLines::Columns : isInRowHeader ? GridLines::Rows : GridLines::Cells;
  selector_.Select(cell, reach, *selected_);
}

bool GridMouse::DoubleClick(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  const QPoint place = event.position().toPoint();
  if (const std::optional<int> edge = EdgeAt(place)) {
    Resize(*edge, table_.FittingWidth(*edge));
    return true;
  }
  const GridCell cell = table_.CellAt(place);
  if (cell.IsNone() || table_.Model().IsFixed(cell)) return Press(event);
  edit_.Finish();
  selector_.Select(cell, GridReach::Focus);
  edit_.Begin();
  return true;
}

void GridMouse::Move(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  if (!selected_ && !resized_) {
    table_.setCursor(EdgeAt(place) ? Qt::SplitHCursor : Qt::ArrowCursor);
    return;
  }
  if ((event.buttons() & Qt::LeftButton) == 0) return EndDrag();
  place_ = place;
  DragTo(place);
  const bool isOutside = !resized_ && !table_.Whole().contains(place);
  if (isOutside && !scrolling_.isActive()) scrolling_.start(kScrollMilliseconds, this);
  if (!isOutside) scrolling_.stop();
}

void GridMouse::timerEvent(QTimerEvent*) {
  DragTo(place_);
}

void GridMouse::DragTo(QPoint place) {
  if (resized_) return Resize(*resized_, qRound((place.x() + offset_) / table_.Scale()));
  const QRect room = table_.Room();
  if (!selected_ || room.isEmpty()) return;
  int column = table_.ColumnAt(std::clamp(place.x(), room.left(), room.right()));
  int row = table_.RowAt(std::clamp(place.y(), room.top(), room.bottom()));
  // Beside the cells the last one counts; beyond the border the next one comes into view.
  if (column < 0) column = table_.Model().ColumnCount() - 1;
  if (row < 0) row = table_.Model().RowCount() - 1;
  column += (place.x() > room.right() ? 1 : 0) - (place.x() < room.left() ? 1 : 0);
  row += (place.y() > room.bottom() ? 1 : 0) - (place.y() < room.top() ? 1 : 0);
  selector_.Select(table_.Model().Nearest({row, column}), GridReach::Selection, *selected_);
}

void GridMouse::EndDrag() {
  selected_.reset();
  resized_.reset();
  scrolling_.stop();
}

/// The column whose right edge is at a place of the headers.
std::optional<int> GridMouse::EdgeAt(QPoint place) const {
  const QRect room = table_.Room();
  if (place.y() < 0 || place.y() >= room.top() || place.x() < room.left()) return std::nullopt;
  const int reach = std::max(3, table_.font().pixelSize() / 3);
  const GridModel& grid = table_.Model();
  // From the right, so that the last of several very narrow columns can be pulled out again.
  for (int column = grid.ColumnCount() - 1; column >= grid.FixedColumnCount(); --column) {
    const int edge = table_.CellArea({0, column}).right() + 1;
    // Edges that are scrolled away under the row headers cannot be pulled.
    if (edge <= room.left()) return std::nullopt;
    if (std::abs(edge - place.x()) <= reach) return column;
  }
  return std::nullopt;
}

void GridMouse::Resize(int column, int width) {
  const int old = table_.GetColumnWidth(column);
  table_.SetColumnWidth(column, width);
  const int now = table_.GetColumnWidth(column);
  if (now != old && hooks_.columnResized) hooks_.columnResized(column, now);
}

bool GridMouse::Wheel(const QWheelEvent& event) {
  const QPoint angles = event.angleDelta();
  const bool isSideways = std::abs(angles.x()) > std::abs(angles.y());
  QScrollBar& bar = isSideways ? *table_.horizontalScrollBar() : *table_.verticalScrollBar();
  const bool isBeside = !table_.Whole().contains(event.position().toPoint());
  if (isBeside || bar.minimum() == bar.maximum()) return false;
  const int angle = isSideways ? angles.x() : angles.y();
  // A part of a line that was turned the other way does not count.
  if ((turned_ < 0 && angle > 0) || (turned_ > 0 && angle < 0)) turned_ = 0;
  const int most = kWheelStep * GridModel::kMostRows;
  turned_ += std::clamp(angle, -most, most) * std::clamp(QApplication::wheelScrollLines(), 0, 100);
  const int lines = turned_ / kWheelStep;
  turned_ -= lines * kWheelStep;
  if (isSideways) {
    bar.setValue(bar.value() - lines * bar.singleStep());
  } else if (lines != 0) {
    table_.ScrollToRow(table_.FirstShown().row - lines);
  }
  return true;
}

}  // namespace kav
