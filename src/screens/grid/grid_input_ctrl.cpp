// What the user does with keys and mouse on a grid.
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <memory>

#include "screens/grid/grid_access_view.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/grid/grid_edit_view.h"

namespace kav {
namespace {

/// The angle of one step of a wheel.
constexpr int kWheelStep = 120;

/// The time from one cell to the next while the mouse pulls a selection out of the viewport.
constexpr int kScrollMilliseconds = 80;

struct MoveKey {
  int key;
  bool withControl;
  GridMove move;
};
constexpr MoveKey kMoveKeys[]{
    {Qt::Key_Left, false, GridMove::Left},     {Qt::Key_Right, false, GridMove::Right},
    {Qt::Key_Up, false, GridMove::Up},         {Qt::Key_Down, false, GridMove::Down},
    {Qt::Key_Home, false, GridMove::RowStart}, {Qt::Key_End, false, GridMove::RowEnd},
    {Qt::Key_PageUp, false, GridMove::PageUp}, {Qt::Key_PageDown, false, GridMove::PageDown},
    {Qt::Key_Left, true, GridMove::RowStart},  {Qt::Key_Right, true, GridMove::RowEnd},
    {Qt::Key_Up, true, GridMove::ColumnStart}, {Qt::Key_Down, true, GridMove::ColumnEnd},
    {Qt::Key_Home, true, GridMove::Start},     {Qt::Key_End, true, GridMove::End},
};

constexpr Qt::KeyboardModifiers kCommands =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

std::optional<GridMove> MoveOf(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return std::nullopt;
  const bool withControl = (event.modifiers() & Qt::ControlModifier) != 0;
  for (const MoveKey& row : kMoveKeys) {
    if (row.key == event.key() && row.withControl == withControl) return row.move;
  }
  return std::nullopt;
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

/// The cell that Tab, or Shift+Tab, leads to.
std::optional<GridCell> TabTarget(const GridModel& grid, GridCell from, int key,
                                  Qt::KeyboardModifiers modifiers) {
  return IsBackward(key, modifiers) ? PreviousCell(grid, from) : NextCell(grid, from);
}

bool IsTab(const QKeyEvent& event) {
  const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return isTab && (event.modifiers() & kCommands) == 0;
}

}  // namespace

bool CGridCtrl::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // What means something here is no shortcut of the screen around.
    const bool edits = isEditable_ && (AsksForEdit(key) || IsTyping(key));
    if (edits || MoveOf(key) || IsSelectAll(key)) {
      event->accept();
      return true;
    }
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsTab(key) && GoTo(TabTarget(model_, model_.Focus(), key.key(), key.modifiers()))) {
      return true;
    }
  }
  return QAbstractScrollArea::event(event);
}

void CGridCtrl::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  // Who comes by keys must see where he is.
  const bool isByKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (isByKey && model_.Focus().IsNone()) Select(model_.Nearest({0, 0}), Reach::Focus);
  if (isByKey) ScrollTo(model_.SelectionEnd());
  TellFocus(*this);
  viewport()->update();
}

void CGridCtrl::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  // Whoever has the focus now, a box that opened perhaps, gets the release of the button.
  EndDrag();
  viewport()->update();
}

void CGridCtrl::keyPressEvent(QKeyEvent* event) {
  // While the box is open, what comes here is what it did not want.
  if (editing_ || !OnKey(*event)) event->ignore();
}

bool CGridCtrl::OnKey(const QKeyEvent& event) {
  const bool isExtending = (event.modifiers() & Qt::ShiftModifier) != 0;
  if (const auto move = MoveOf(event)) {
    Go(isExtending ? model_.SelectionEnd() : model_.Focus(), *move,
       isExtending ? Reach::Selection : Reach::Focus);
    return true;
  }
  if (IsSelectAll(event)) {
    ChangeSelection([this] { model_.SelectAll(); });
    return true;
  }
  const bool isTyping = IsTyping(event);
  if (!isEditable_ || !(isTyping || AsksForEdit(event))) return false;
  if (model_.Focus().IsNone()) Select({0, 0}, Reach::Focus);
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
  switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (!GoTo(TabTarget(model_, cell, key, modifiers))) {
        focusNextPrevChild(!IsBackward(key, modifiers));
      }
      break;
    case Qt::Key_Up:
      return Go(cell, GridMove::Up, Reach::Focus);
    case Qt::Key_PageUp:
      return Go(cell, GridMove::PageUp, Reach::Focus);
    case Qt::Key_PageDown:
      return Go(cell, GridMove::PageDown, Reach::Focus);
    case Qt::Key_Down:
      return Go(cell, GridMove::Down, Reach::Focus);
    default:
      return Go(cell, IsBackward(key, modifiers) ? GridMove::Up : GridMove::Down, Reach::Focus);
  }
}

bool CGridCtrl::GoTo(std::optional<GridCell> cell) {
  if (cell) Select(*cell, Reach::Focus);
  return cell.has_value();
}

void CGridCtrl::Go(GridCell from, GridMove move, Reach reach) {
  const int page = Room().height() / std::max(1, qRound(GridModel::kDefaultHeight * scale_));
  Select(Moved(model_, from, move, std::max(1, page - 1)), reach);
}

void CGridCtrl::Select(GridCell cell, Reach reach) {
  ChangeSelection([this, cell, reach] {
    if (reach == Reach::Focus) return model_.SetFocus(cell);
    model_.SelectTo(cell);
  });
  ScrollTo(model_.SelectionEnd());
}

void CGridCtrl::SelectColumn(int column, Reach reach) {
  ChangeSelection([this, column, reach] {
    const GridCell focus = model_.Focus();
    const bool keeps = reach == Reach::Selection && !focus.IsNone();
    model_.SetFocus({0, keeps ? focus.column : column});
    model_.SelectTo({model_.RowCount(), column});
  });
  ScrollTo(model_.Nearest({Geometry().FirstRow(), column}));
}

void CGridCtrl::SelectRow(int row, Reach reach) {
  ChangeSelection([this, row, reach] {
    const GridCell focus = model_.Focus();
    const bool keeps = reach == Reach::Selection && !focus.IsNone();
    model_.SetFocus({keeps ? focus.row : row, 0});
    model_.SelectTo({row, model_.ColumnCount()});
  });
  ScrollTo(model_.Nearest({row, Geometry().ColumnAt(Room().left())}));
}

void CGridCtrl::ChangeSelection(const std::function<void()>& change) {
  const GridRange oldSelection = model_.Selection();
  const GridCell oldFocus = model_.Focus();
  const GridCell oldEnd = model_.SelectionEnd();
  change();
  viewport()->update();
  const bool isFocusMoved = model_.Focus() != oldFocus;
  if (isFocusMoved || model_.SelectionEnd() != oldEnd) TellFocus(*this);
  if (isFocusMoved || model_.Selection() != oldSelection) {
    if (hooks_.selectionChanged) hooks_.selectionChanged();
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
  if (isInHeader && isInRowHeader) return ChangeSelection([this] { model_.SelectAll(); });
  drag_ = isInHeader ? Drag::Columns : isInRowHeader ? Drag::Rows : Drag::Cells;
  if (isInHeader) return SelectColumn(cell.column, reach);
  if (isInRowHeader) return SelectRow(cell.row, reach);
  Select(cell, reach);
}

void CGridCtrl::mouseMoveEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (drag_ == Drag::None) {
    viewport()->setCursor(EdgeAt(place) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
    return;
  }
  if ((event->buttons() & Qt::LeftButton) == 0) return EndDrag();
  dragPlace_ = place;
  DragTo(place);
  const bool isOutside = drag_ != Drag::ColumnWidth && !viewport()->rect().contains(place);
  if (isOutside && !scrolling_.isActive()) scrolling_.start(kScrollMilliseconds, this);
  if (!isOutside) scrolling_.stop();
}

void CGridCtrl::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scrolling_.timerId()) return QAbstractScrollArea::timerEvent(event);
  DragTo(dragPlace_);
}

void CGridCtrl::DragTo(QPoint place) {
  if (drag_ == Drag::ColumnWidth) {
    return ResizeColumn(dragColumn_, qRound((place.x() + dragOffset_) / scale_));
  }
  const QRect room = Room();
  if (room.isEmpty()) return;
  const GridGeometry geometry = Geometry();
  int column = geometry.ColumnAt(std::clamp(place.x(), room.left(), room.right()));
  int row = geometry.RowAt(std::clamp(place.y(), room.top(), room.bottom()));
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

int CGridCtrl::EdgeAt(QPoint place) const {
  const GridGeometry geometry = Geometry();
  if (place.y() < 0 || place.y() >= geometry.FixedSize().height()) return -1;
  return geometry.EdgeAt(place.x(), std::max(3, font().pixelSize() / 3));
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
  const GridGeometry geometry = Geometry();
  const int row =
      std::clamp(geometry.FirstRow() - lines, model_.FixedRowCount(), model_.RowCount());
  if (lines != 0) bar.setValue(geometry.Top(row) - geometry.FixedSize().height());
  return true;
}

}  // namespace kav
