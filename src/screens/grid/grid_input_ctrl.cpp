// What the user does with keys and mouse on a grid.
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <array>
#include <memory>

#include "screens/grid/grid_ctrl.h"
#include "screens/grid/grid_edit_view.h"

namespace kav {
namespace {

/// The time from one cell to the next while the mouse pulls a selection beyond the border.
constexpr int kScrollMilliseconds = 80;

/// Beyond the border, wherever a cell is.
constexpr int kFar = GridModel::kMostRows;
constexpr GridCell kFirst{0, 0};
constexpr GridCell kLast{kFar, kFar};
/// Stands for the rows of a page.
constexpr int kPage = 2 * kFar;

/// By how many rows and columns a key moves.
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

bool TypesIntoCell(const QKeyEvent& event) {
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

/// How many cells Tab or Enter leads on; with Shift, back.
int StepOf(const QKeyEvent& event) {
  const bool isBack =
      event.key() == Qt::Key_Backtab || (event.modifiers() & Qt::ShiftModifier) != 0;
  return isBack ? -1 : 1;
}

bool IsTab(const QKeyEvent& event) {
  const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return isTab && (event.modifiers() & kCommands) == 0;
}

bool EndsEdit(const QKeyEvent& event) {
  constexpr std::array kKeys{Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Escape,
                             Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,
                             Qt::Key_Down,   Qt::Key_PageUp,  Qt::Key_PageDown};
  if ((event.modifiers() & kCommands) != 0) return false;
  return std::find(kKeys.begin(), kKeys.end(), event.key()) != kKeys.end();
}

bool IsOfMouse(const QEvent& event) {
  constexpr std::array kTypes{QEvent::MouseButtonPress,
                              QEvent::MouseButtonRelease,
                              QEvent::MouseMove,
                              QEvent::MouseButtonDblClick,
                              QEvent::Wheel,
                              QEvent::ToolTip};
  return std::find(kTypes.begin(), kTypes.end(), event.type()) != kTypes.end();
}

}  // namespace

bool CGridCtrl::event(QEvent* event) {
  // Viewport and headers leave the mouse to the grid, which sees places of its own.
  if (IsOfMouse(*event)) return QWidget::event(event);  // NOLINT: a scroll area refuses the mouse
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // A key of the grid is not to work as a shortcut of the screen around it.
    const bool edits = isEditable_ && (AsksForEdit(key) || TypesIntoCell(key));
    if (edits || MoveOf(key.key(), key.modifiers()) != nullptr || IsSelectAll(key)) {
      event->accept();
      return true;
    }
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsTab(key) && GoByTab(Focus(), StepOf(key))) return true;
  }
  return QTableView::event(event);
}

bool CGridCtrl::viewportEvent(QEvent* event) {
  return !IsOfMouse(*event) && QTableView::viewportEvent(event);
}

void CGridCtrl::focusInEvent(QFocusEvent* event) {
  // Someone who comes by keys must see the focus cell.
  const bool isByKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (isByKey && Focus().IsNone()) Select(kFirst, Reach::Focus);
  if (isByKey) Reveal(SelectionEnd());
  TellFocus();
  Repaint();
}

void CGridCtrl::focusOutEvent(QFocusEvent*) {
  // What has the focus now, perhaps a box that opened, gets the release of the button.
  EndDrag();
  Repaint();
}

void CGridCtrl::keyPressEvent(QKeyEvent* event) {
  // While the edit box is open, only keys that it ignored come here.
  if (editing_ || !OnKey(*event)) event->ignore();
}

bool CGridCtrl::OnKey(const QKeyEvent& event) {
  if (const MoveKey* move = MoveOf(event.key(), event.modifiers())) {
    const Reach reach = ReachOf(event.modifiers());
    const GridCell from = reach == Reach::Selection ? SelectionEnd() : Focus();
    Select(Moved(from, move->rows, move->columns), reach);
    return true;
  }
  if (IsSelectAll(event)) {
    SelectRange(kFirst, kLast);
    return true;
  }
  const bool isTyping = TypesIntoCell(event);
  if (!isEditable_ || !(isTyping || AsksForEdit(event))) return false;
  if (Focus().IsNone()) Select(kFirst, Reach::Focus);
  EditFocusCell();
  // The old text is selected, so what is typed replaces it.
  if (isTyping && editing_) {
    const std::unique_ptr<QKeyEvent> typed(event.clone());
    QApplication::sendEvent(edit_, typed.get());
  }
  return true;
}

/// Takes the keys that end an edit from its box, and sees when the box loses the focus.
bool CGridCtrl::FilterEdit(QEvent& event) {
  if (event.type() == QEvent::FocusOut) {
    // The box's own menu takes the focus only for as long as it is open.
    if (static_cast<QFocusEvent&>(event).reason() != Qt::PopupFocusReason) FinishEdit();
    return false;
  }
  const bool isShortcut = event.type() == QEvent::ShortcutOverride;
  if (!isShortcut && event.type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (!EndsEdit(key)) return false;
  event.accept();
  if (!isShortcut) OnEditKey(key);
  return true;
}

void CGridCtrl::OnEditKey(const QKeyEvent& event) {
  if (!editing_) return;
  const GridCell cell = *editing_;
  if (event.key() == Qt::Key_Escape) {
    GiveUpEdit();
    return;
  }
  FinishEdit();
  if (IsTab(event)) {
    if (!GoByTab(cell, StepOf(event))) focusNextPrevChild(StepOf(event) > 0);
    return;
  }
  const MoveKey* move = MoveOf(event.key(), {});
  Select(Moved(cell, move != nullptr ? move->rows : StepOf(event), 0), Reach::Focus);
}

/// The cell so many rows and columns further, which may lie beyond the border; the first cell from
/// none.
GridCell CGridCtrl::Moved(GridCell cell, int rows, int columns) const {
  const int page = Room().height() / std::max(1, qRound(GridModel::kDefaultHeight * scale_));
  if (std::abs(rows) == kPage) rows = rows / kPage * std::max(1, page - 1);
  const GridCell from = model_.Nearest(cell);
  return cell.IsNone() ? from : GridCell{from.row + rows, from.column + columns};
}

/// Moves the focus to the next cell or, with step -1, to the one before, row by row; false at the
/// last or first cell. From none, enters at the first or last cell.
bool CGridCtrl::GoByTab(GridCell cell, int step) {
  const GridCell first = model_.Nearest(kFirst);
  if (first.IsNone()) return false;
  const GridCell from = model_.Nearest(cell);
  const int columns = model_.ColumnCount() - first.column;
  const int last = columns * (model_.RowCount() - first.row) - 1;
  int place = (from.row - first.row) * columns + from.column - first.column;
  if (cell.IsNone()) place = step < 0 ? last + 1 : -1;
  place += step;
  if (place < 0 || place > last) return false;
  Select({first.row + place / columns, first.column + place % columns}, Reach::Focus);
  return true;
}

CGridCtrl::Reach CGridCtrl::ReachOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier) != 0 ? Reach::Selection : Reach::Focus;
}

/// Where a selection that reaches to `cell` begins.
GridCell CGridCtrl::Anchor(GridCell cell, Reach reach) const {
  return reach == Reach::Selection && !Focus().IsNone() ? Focus() : cell;
}

void CGridCtrl::Select(GridCell cell, Reach reach, Drag drag) {
  const bool hasAllRows = drag == Drag::Columns;
  const bool hasAllColumns = drag == Drag::Rows;
  const GridCell from = Anchor(cell, reach);
  SelectRange({hasAllRows ? 0 : from.row, hasAllColumns ? 0 : from.column},
              {hasAllRows ? model_.RowCount() : cell.row,
               hasAllColumns ? model_.ColumnCount() : cell.column});
  Reveal(model_.Nearest(
      {hasAllRows ? FirstRow() : cell.row, hasAllColumns ? columnAt(0) : cell.column}));
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
  const QPoint place = event->position().toPoint();
  if (event->button() != Qt::LeftButton || !Whole().contains(place)) return event->ignore();
  FinishEdit();
  dragPlace_ = place;
  dragColumn_ = EdgeAt(place);
  if (dragColumn_ >= 0) {
    drag_ = Drag::ColumnWidth;
    dragOffset_ = CellArea({0, dragColumn_}).width() - place.x();
    return;
  }
  PressAt(CellAt(place), ReachOf(event->modifiers()));
}

void CGridCtrl::PressAt(GridCell cell, Reach reach) {
  if (cell.IsNone()) return;
  const bool isInHeader = cell.row < model_.FixedRowCount();
  const bool isInRowHeader = cell.column < model_.FixedColumnCount();
  if (isInHeader && isInRowHeader) return SelectRange(kFirst, kLast);
  drag_ = isInHeader ? Drag::Columns : isInRowHeader ? Drag::Rows : Drag::Cells;
  Select(cell, reach, drag_);
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
  // Beside the cells the last one counts; beyond the border the next one comes into view.
  if (column < 0) column = model_.ColumnCount() - 1;
  if (row < 0) row = model_.RowCount() - 1;
  column += (place.x() > room.right() ? 1 : 0) - (place.x() < room.left() ? 1 : 0);
  row += (place.y() > room.bottom() ? 1 : 0) - (place.y() < room.top() ? 1 : 0);
  if (drag_ != Drag::None) Select(model_.Nearest({row, column}), Reach::Selection, drag_);
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
  // From the right, so that the last of several very narrow columns can be pulled out again.
  for (int column = model_.ColumnCount() - 1; column >= model_.FixedColumnCount(); --column) {
    const int edge = CellArea({0, column}).right() + 1;
    // Edges that are scrolled away under the row headers cannot be pulled.
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

}  // namespace kav
