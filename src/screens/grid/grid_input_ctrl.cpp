// What the user does with keys and mouse on a grid.
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <memory>

#include "screens/grid/grid_ctrl.h"
#include "screens/grid/grid_edit_view.h"

namespace kav {
namespace {

/// The angle of one step of a wheel.
constexpr int kWheelStep = 120;

/// The time from one cell to the next while the mouse pulls a selection out of the viewport.
constexpr int kScrollMilliseconds = 80;

/// Beyond the border, wherever a cell is.
constexpr int kFar = GridModel::kMostRows;
/// Stands for the rows of a page.
constexpr int kPage = 2 * kFar;

/// How many rows and columns a key leads on.
struct MoveKey {
  int key;
  bool withControl;
  int rows;
  int columns;
};
constexpr MoveKey kMoveKeys[]{
    {Qt::Key_Left, false, 0, -1},       {Qt::Key_Right, false, 0, 1},
    {Qt::Key_Up, false, -1, 0},         {Qt::Key_Down, false, 1, 0},
    {Qt::Key_Home, false, 0, -kFar},    {Qt::Key_End, false, 0, kFar},
    {Qt::Key_PageUp, false, -kPage, 0}, {Qt::Key_PageDown, false, kPage, 0},
    {Qt::Key_Left, true, 0, -kFar},     {Qt::Key_Right, true, 0, kFar},
    {Qt::Key_Up, true, -kFar, 0},       {Qt::Key_Down, true, kFar, 0},
    {Qt::Key_Home, true, -kFar, -kFar}, {Qt::Key_End, true, kFar, kFar},
};

constexpr Qt::KeyboardModifiers kCommands =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

const MoveKey* MoveOf(int key, Qt::KeyboardModifiers modifiers) {
  if ((modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0) return nullptr;
  const bool withControl = (modifiers & Qt::ControlModifier) != 0;
  for (const MoveKey& row : kMoveKeys) {
    if (row.key == key && row.withControl == withControl) return &row;
  }
  return nullptr;
}

bool IsTyping(const QKeyEvent& event) {
  if ((event.modifiers() & kCommands) != 0) return false;
  return !event.text().isEmpty() && event.text().front().isPrint();
}

bool AsksForEdit(const QKeyEvent& event) {
  if ((event.modifiers() & (kCommands | Qt::ShiftModifier)) != 0) return false;
  return event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsSelectAll(const QKeyEvent& event) {
  return event.key() == Qt::Key_A && (event.modifiers() & kCommands) == Qt::ControlModifier;
}

bool IsBackward(int key, Qt::KeyboardModifiers modifiers) {
  return key == Qt::Key_Backtab || (modifiers & Qt::ShiftModifier) != 0;
}

bool IsTab(const QKeyEvent& event) {
  const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return isTab && (event.modifiers() & kCommands) == 0;
}

/// Of the grid's own, wherever in it they are.
bool IsOfMouse(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ToolTip:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool CGridCtrl::event(QEvent* event) {
  // With places of the whole grid, where viewport and headers leave it to their parent.
  if (IsOfMouse(*event)) return QWidget::event(event);
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // What means something here is no shortcut of the screen around.
    const bool edits = isEditable_ && (AsksForEdit(key) || IsTyping(key));
    if (edits || MoveOf(key.key(), key.modifiers()) != nullptr || IsSelectAll(key)) {
      event->accept();
      return true;
    }
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsTab(key) && GoByTab(Focus(), IsBackward(key.key(), key.modifiers()))) return true;
  }
  return QTableView::event(event);
}

bool CGridCtrl::viewportEvent(QEvent* event) {
  return !IsOfMouse(*event) && QTableView::viewportEvent(event);
}

void CGridCtrl::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  // Who comes by keys must see where he is.
  const bool isByKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (isByKey && Focus().IsNone()) Select({0, 0}, Reach::Focus);
  if (isByKey) Reveal(SelectionEnd());
  TellFocus();
  Repaint();
}

void CGridCtrl::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  // Whoever has the focus now, a box that opened perhaps, gets the release of the button.
  EndDrag();
  Repaint();
}

void CGridCtrl::keyPressEvent(QKeyEvent* event) {
  // While the box is open, what comes here is what it did not want.
  if (editing_ || !OnKey(*event)) event->ignore();
}

bool CGridCtrl::OnKey(const QKeyEvent& event) {
  const bool isExtending = (event.modifiers() & Qt::ShiftModifier) != 0;
  if (const MoveKey* move = MoveOf(event.key(), event.modifiers())) {
    const GridCell from = isExtending ? SelectionEnd() : Focus();
    Select(From(from, move->rows, move->columns), isExtending ? Reach::Selection : Reach::Focus);
    return true;
  }
  if (IsSelectAll(event)) {
    SelectAll();
    return true;
  }
  const bool isTyping = IsTyping(event);
  if (!isEditable_ || !(isTyping || AsksForEdit(event))) return false;
  if (Focus().IsNone()) Select({0, 0}, Reach::Focus);
  EditFocusCell();
  // The old text is selected, and so replaced by what is typed.
  if (isTyping && editing_) {
    const std::unique_ptr<QKeyEvent> typed(event.clone());
    QApplication::sendEvent(edit_, typed.get());
  }
  return true;
}

void CGridCtrl::OnEditKey(int key, Qt::KeyboardModifiers modifiers) {
  if (!editing_) return;
  if (key == Qt::Key_Escape) return GiveUpEdit();
  const GridCell cell = *editing_;
  FinishEdit();
  const bool isBackward = IsBackward(key, modifiers);
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    if (!GoByTab(cell, isBackward)) focusNextPrevChild(!isBackward);
    return;
  }
  // Enter leads on as an arrow does.
  const MoveKey* move = MoveOf(key, {});
  Select(From(cell, move != nullptr ? move->rows : isBackward ? -1 : 1, 0), Reach::Focus);
}

/// The cell so many rows and columns on, at most the one at the border.
GridCell CGridCtrl::From(GridCell cell, int rows, int columns) const {
  const int page = Room().height() / std::max(1, qRound(GridModel::kDefaultHeight * scale_));
  if (std::abs(rows) == kPage) rows = rows / kPage * std::max(1, page - 1);
  const GridCell from = model_.Nearest(cell);
  return cell.IsNone() ? from : GridCell{from.row + rows, from.column + columns};
}

/// Goes row by row; false beyond the first and the last cell. Without a cell, from outside.
bool CGridCtrl::GoByTab(GridCell cell, bool isBackward) {
  const GridCell first = model_.Nearest({0, 0});
  if (first.IsNone()) return false;
  const GridCell from = model_.Nearest(cell);
  const int columns = model_.ColumnCount() - first.column;
  const int last = columns * (model_.RowCount() - first.row) - 1;
  int place = (from.row - first.row) * columns + from.column - first.column;
  if (cell.IsNone()) place = isBackward ? last + 1 : -1;
  place += isBackward ? -1 : 1;
  if (place < 0 || place > last) return false;
  Select({first.row + place / columns, first.column + place % columns}, Reach::Focus);
  return true;
}

void CGridCtrl::Select(GridCell cell, Reach reach) {
  const bool isExtending = reach == Reach::Selection && !Focus().IsNone();
  SelectRange(isExtending ? Focus() : cell, cell);
  Reveal(SelectionEnd());
}

void CGridCtrl::SelectColumn(int column, Reach reach) {
  const bool isExtending = reach == Reach::Selection && !Focus().IsNone();
  SelectRange({0, isExtending ? Focus().column : column}, {model_.RowCount(), column});
  Reveal(model_.Nearest({FirstRow(), column}));
}

void CGridCtrl::SelectRow(int row, Reach reach) {
  const bool isExtending = reach == Reach::Selection && !Focus().IsNone();
  SelectRange({isExtending ? Focus().row : row, 0}, {row, model_.ColumnCount()});
  Reveal(model_.Nearest({row, columnAt(0)}));
}

void CGridCtrl::SelectAll() {
  SelectRange({0, 0}, {model_.RowCount(), model_.ColumnCount()});
}

void CGridCtrl::SelectRange(GridCell focus, GridCell end) {
  const GridRange oldSelection = Selection();
  const GridCell oldFocus = Focus();
  const GridCell oldEnd = SelectionEnd();
  Mark(focus, end);
  const bool isFocusMoved = Focus() != oldFocus;
  if (isFocusMoved || SelectionEnd() != oldEnd) TellFocus();
  if ((isFocusMoved || Selection() != oldSelection) && hooks_.selectionChanged) {
    hooks_.selectionChanged();
  }
}

void CGridCtrl::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  FinishEdit();
  const QPoint place = event->position().toPoint();
  dragPlace_ = place;
  dragColumn_ = EdgeAt(place);
  if (dragColumn_ >= 0) {
    drag_ = Drag::ColumnWidth;
    dragOffset_ = CellArea({0, dragColumn_}).width() - place.x();
    return;
  }
  const bool isExtending = (event->modifiers() & Qt::ShiftModifier) != 0;
  PressAt(CellAt(place), isExtending ? Reach::Selection : Reach::Focus);
}

void CGridCtrl::PressAt(GridCell cell, Reach reach) {
  if (cell.IsNone()) return;
  const bool isInHeader = cell.row < model_.FixedRowCount();
  const bool isInRowHeader = cell.column < model_.FixedColumnCount();
  if (isInHeader && isInRowHeader) return SelectAll();
  drag_ = isInHeader ? Drag::Columns : isInRowHeader ? Drag::Rows : Drag::Cells;
  if (isInHeader) return SelectColumn(cell.column, reach);
  if (isInRowHeader) return SelectRow(cell.row, reach);
  Select(cell, reach);
}

void CGridCtrl::mouseMoveEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (drag_ == Drag::None) {
    setCursor(EdgeAt(place) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
    return;
  }
  if ((event->buttons() & Qt::LeftButton) == 0) return EndDrag();
  dragPlace_ = place;
  DragTo(place);
  const bool isOutside = drag_ != Drag::ColumnWidth && !Whole().contains(place);
  if (isOutside && !scrolling_.isActive()) scrolling_.start(kScrollMilliseconds, this);
  if (!isOutside) scrolling_.stop();
}

void CGridCtrl::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scrolling_.timerId()) return QTableView::timerEvent(event);
  DragTo(dragPlace_);
}

void CGridCtrl::DragTo(QPoint place) {
  if (drag_ == Drag::ColumnWidth) {
    return ResizeColumn(dragColumn_, qRound((place.x() + dragOffset_) / scale_));
  }
  const QRect room = Room();
  if (room.isEmpty()) return;
  int column = ColumnAt(std::clamp(place.x(), room.left(), room.right()));
  int row = RowAt(std::clamp(place.y(), room.top(), room.bottom()));
  // Beside the last cell is at the last cell; outside of the room the next one comes into it.
  if (column < 0) column = model_.ColumnCount() - 1;
  if (row < 0) row = model_.RowCount() - 1;
  column += (place.x() > room.right() ? 1 : 0) - (place.x() < room.left() ? 1 : 0);
  row += (place.y() > room.bottom() ? 1 : 0) - (place.y() < room.top() ? 1 : 0);
  const GridCell cell = model_.Nearest({row, column});
  if (drag_ == Drag::Columns) return SelectColumn(cell.column, Reach::Selection);
  if (drag_ == Drag::Rows) return SelectRow(cell.row, Reach::Selection);
  if (drag_ == Drag::Cells) Select(cell, Reach::Selection);
}

void CGridCtrl::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) EndDrag();
}

void CGridCtrl::EndDrag() {
  drag_ = Drag::None;
  scrolling_.stop();
}

void CGridCtrl::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const QPoint place = event->position().toPoint();
  const int edge = EdgeAt(place);
  if (edge >= 0) return ResizeColumn(edge, FittingWidth(edge));
  const GridCell cell = CellAt(place);
  if (cell.IsNone() || model_.IsFixed(cell)) return mousePressEvent(event);
  FinishEdit();
  Select(cell, Reach::Focus);
  EditFocusCell();
}

/// The column whose right edge is at a place of the headers; -1 if there is none.
int CGridCtrl::EdgeAt(QPoint place) const {
  const QRect room = Room();
  if (place.y() < 0 || place.y() >= room.top() || place.x() < room.left()) return -1;
  const int reach = std::max(3, font().pixelSize() / 3);
  // From the right: of columns that are narrower than the reach, the last can be pulled out again.
  for (int column = model_.ColumnCount() - 1; column >= model_.FixedColumnCount(); --column) {
    const int edge = CellArea({0, column}).right() + 1;
    // What is scrolled away under the headers is not there to be pulled.
    if (edge <= room.left()) return -1;
    if (std::abs(edge - place.x()) <= reach) return column;
  }
  return -1;
}

void CGridCtrl::ResizeColumn(int column, int width) {
  const int old = GetColumnWidth(column);
  if (!SetColumnWidth(column, width) || GetColumnWidth(column) == old) return;
  if (hooks_.columnResized) hooks_.columnResized(column, GetColumnWidth(column));
}

void CGridCtrl::wheelEvent(QWheelEvent* event) {
  if (!ScrollByWheel(event->angleDelta())) event->ignore();
}

bool CGridCtrl::ScrollByWheel(QPoint turned) {
  const bool isSideways = std::abs(turned.x()) > std::abs(turned.y());
  QScrollBar& bar = isSideways ? *horizontalScrollBar() : *verticalScrollBar();
  if (bar.minimum() == bar.maximum()) return false;
  const int angle = isSideways ? turned.x() : turned.y();
  // What was turned the other way is not to be turned back first.
  if ((wheel_ < 0 && angle > 0) || (wheel_ > 0 && angle < 0)) wheel_ = 0;
  const int most = kWheelStep * GridModel::kMostRows;
  wheel_ += std::clamp(angle, -most, most) * std::clamp(QApplication::wheelScrollLines(), 0, 100);
  const int lines = wheel_ / kWheelStep;
  wheel_ -= lines * kWheelStep;
  if (isSideways) {
    bar.setValue(bar.value() - lines * bar.singleStep());
    return true;
  }
  const int row = std::clamp(FirstRow() - lines, model_.FixedRowCount(), model_.RowCount());
  if (lines != 0) bar.setValue(Top(row) - Top(model_.FixedRowCount()));
  return true;
}

}  // namespace kav
