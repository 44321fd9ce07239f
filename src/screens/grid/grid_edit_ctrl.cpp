// The selection of a grid and its edits in place.
#include <QAccessible>
#include <algorithm>

#include "grid/grid_texts.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/grid/grid_edit_view.h"
#include "screens/grid/grid_painter_view.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

GridCell CellOf(const QModelIndex& index) {
  return {index.row(), index.column()};
}

void Tell(CGridCtrl& grid, QAccessible::Event type, GridCell cell) {
  if (!QAccessible::isActive() || !grid.Model().IsThere(cell)) return;
  QAccessibleEvent event(&grid, type);
  event.setChild(grid.Model().PlaceOf(cell));
  QAccessible::updateAccessibility(&event);
}

}  // namespace

// The selection.

GridCell CGridCtrl::Focus() const {
  return CellOf(currentIndex());
}

GridRange CGridCtrl::Selection() const {
  const QItemSelection ranges = selectionModel()->selection();
  if (ranges.isEmpty()) return {};
  const QItemSelectionRange& range = ranges.front();
  return {range.top(), range.left(), range.bottom(), range.right()};
}

GridCell CGridCtrl::SelectionEnd() const {
  const GridCell focus = Focus();
  const GridRange range = Selection();
  if (range.IsNone()) return focus;
  return {focus.row == range.top ? range.bottom : range.top,
          focus.column == range.left ? range.right : range.left};
}

void CGridCtrl::Mark(GridCell focus, GridCell end) {
  const auto indexOf = [this](GridCell cell) {
    const GridCell nearest = model_.Nearest(cell);
    return model()->index(nearest.row, nearest.column);
  };
  selectionModel()->setCurrentIndex(indexOf(focus), QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(indexOf(focus), indexOf(end)),
                           QItemSelectionModel::ClearAndSelect);
}

void CGridCtrl::ResetSelectedRange() {
  GiveUpEdit();
  selectionModel()->clear();
}

void CGridCtrl::SetFocusCell(GridCell cell) {
  GiveUpEdit();
  Mark(cell, cell);
  Reveal(Focus());
  TellFocus();
}

void CGridCtrl::SelectTo(GridCell cell) {
  GiveUpEdit();
  Mark(Focus().IsNone() ? cell : Focus(), cell);
  TellFocus();
}

void CGridCtrl::ClearSelectedCells() {
  const GridRange range = Selection();
  for (int row = range.top; !range.IsNone() && row <= range.bottom; ++row) {
    for (int column = range.left; column <= range.right; ++column) {
      SetItem({row, column, GridItem::kText, u"", {}});
    }
  }
}

void CGridCtrl::Reveal(GridCell cell) {
  if (!cell.IsNone()) scrollTo(model()->index(cell.row, cell.column));
}

void CGridCtrl::currentChanged(const QModelIndex&, const QModelIndex&) {
  Repaint();
}

void CGridCtrl::selectionChanged(const QItemSelection&, const QItemSelection&) {
  Repaint();
}

/// Tells a screen reader the cell at which keys are, if the grid has them.
void CGridCtrl::TellFocus() {
  if (!hasFocus()) return;
  const GridCell end = SelectionEnd();
  Tell(*this, end == Focus() ? QAccessible::Focus : QAccessible::Selection, end);
}

// Edits in place.

void CGridCtrl::SetEditable(bool isEditable) {
  if (!isEditable) GiveUpEdit();
  isEditable_ = isEditable;
}

void CGridCtrl::EditFocusCell() {
  const GridCell cell = Focus();
  if (!isEditable_ || editing_ || cell.IsNone()) return;
  Reveal(cell);
  if (hooks_.beginEdit) hooks_.beginEdit(cell.row, cell.column);
  // The hook may have changed the grid.
  if (!isEditable_ || editing_ || Focus() != cell) return;
  editing_ = cell;
  edit_->setAlignment(TextAlignment(model_.GetItemFormat(cell.row, cell.column)));
  edit_->setAccessibleName(NameOfPlace(cell));
  edit_->setText(ToQt(model_.GetItemText(cell.row, cell.column)));
  edit_->selectAll();
  PlaceEdit();
  edit_->show();
  edit_->setFocus(Qt::OtherFocusReason);
}

/// Where a cell is, by the texts of its headers.
QString CGridCtrl::NameOfPlace(GridCell cell) const {
  const auto row = model_.GetItemText(cell.row, model_.FixedColumnCount() - 1);
  const auto column = model_.GetItemText(model_.FixedRowCount() - 1, cell.column);
  return ToQt(kRowOfCell) + ToQt(row) + ", " + ToQt(kColumnOfCell) + ToQt(column);
}

std::optional<GridCell> CGridCtrl::GiveUpEdit() {
  const std::optional<GridCell> cell = editing_;
  editing_.reset();
  if (!cell) return cell;
  // Hidden while it has the focus, the box would hand it to the widget behind the grid.
  if (edit_->hasFocus()) setFocus(Qt::OtherFocusReason);
  edit_->hide();
  Repaint();
  return cell;
}

void CGridCtrl::FinishEdit() {
  const std::optional<GridCell> cell = GiveUpEdit();
  if (!cell) return;
  // A text longer than the box takes is cut by it, but only if it was touched.
  const QString text =
      edit_->isModified() ? edit_->TypedText() : ToQt(model_.GetItemText(cell->row, cell->column));
  const bool isTaken =
      SetItem({cell->row, cell->column, GridItem::kText, text.toStdU16String(), {}});
  if (!isTaken && !model_.HasSource(*cell)) return;
  if (hooks_.endEdit) hooks_.endEdit(cell->row, cell->column, text);
  Tell(*this, QAccessible::NameChanged, *cell);
}

void CGridCtrl::PlaceEdit() {
  if (!editing_) return;
  QRect area = CellArea(*editing_).translated(-Room().topLeft());
  // A narrow column would show no more than the caret.
  area.setWidth(std::max(area.width(), 5 * font().pixelSize()));
  area.moveRight(std::min(area.right(), std::max(viewport()->width(), area.width()) - 1));
  edit_->setGeometry(area);
  const int margin = std::max(0, TextMargin(font().pixelSize()) - 2);
  edit_->setTextMargins(margin, 0, margin, 0);
}

}  // namespace kav
