#include "screens/grid/grid_cell_access_view.h"

#include "grid/grid_texts.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/widgets/qt_text.h"

namespace kav {

GridCellAccess::GridCellAccess(CGridCtrl& grid, GridCell cell) : widget_(&grid), cell_(cell) {}

/// The grid in which the cell is; null where it is there no more.
CGridCtrl* GridCellAccess::Grid() const {
  auto* grid = dynamic_cast<CGridCtrl*>(widget_.data());
  if (grid == nullptr) return nullptr;
  return grid->Model().IsThere(cell_) ? grid : nullptr;
}

bool GridCellAccess::IsHeader() const {
  const CGridCtrl* grid = Grid();
  return grid == nullptr || grid->Model().IsFixed(cell_);
}

bool GridCellAccess::isValid() const {
  return Grid() != nullptr;
}

QWindow* GridCellAccess::window() const {
  QAccessibleInterface* table = parent();
  return table != nullptr ? table->window() : nullptr;
}

void* GridCellAccess::interface_cast(QAccessible::InterfaceType type) {
  if (IsHeader()) return nullptr;
  if (type == QAccessible::TableCellInterface) {
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

QAccessibleInterface* GridCellAccess::parent() const {
  CGridCtrl* grid = Grid();
  return grid != nullptr ? QAccessible::queryAccessibleInterface(grid) : nullptr;
}

QString GridCellAccess::text(QAccessible::Text kind) const {
  const CGridCtrl* grid = Grid();
  if (grid == nullptr) return {};
  const GridModel& model = grid->Model();
  if (kind == QAccessible::Name || kind == QAccessible::Value) {
    return ToQt(model.GetItemText(cell_.row, cell_.column));
  }
  const bool isMarked = model.GetItemFormat(cell_.row, cell_.column).isMarked;
  if (kind != QAccessible::Description || !isMarked) return {};
  return ToQt(kMarkedCell);
}

QRect GridCellAccess::rect() const {
  const CGridCtrl* grid = Grid();
  if (grid == nullptr) return {};
  const QRect area = grid->CellArea(cell_);
  return {grid->mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::Role GridCellAccess::role() const {
  const CGridCtrl* grid = Grid();
  if (grid == nullptr) return QAccessible::Cell;
  if (cell_.row < grid->Model().FixedRowCount()) return QAccessible::ColumnHeader;
  if (cell_.column < grid->Model().FixedColumnCount()) return QAccessible::RowHeader;
  return QAccessible::Cell;
}

QAccessible::State GridCellAccess::state() const {
  QAccessible::State state;
  const CGridCtrl* grid = Grid();
  state.invalid = grid == nullptr;
  if (grid == nullptr) return state;
  state.invisible = !grid->isVisible();
  state.disabled = !grid->isEnabled();
  state.offscreen = !grid->IsInView(cell_);
  if (IsHeader()) return state;
  state.focusable = true;
  state.selectable = true;
  state.extSelectable = true;
  state.editable = grid->IsEditable();
  state.readOnly = !grid->IsEditable();
  state.selected = isSelected();
  state.focused = grid->hasFocus() && grid->Focus() == cell_;
  return state;
}

bool GridCellAccess::isSelected() const {
  const CGridCtrl* grid = Grid();
  return grid != nullptr && grid->Selection().Contains(cell_);
}

QList<QAccessibleInterface*> GridCellAccess::columnHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  const CGridCtrl* grid = Grid();
  const int count = grid != nullptr ? grid->Model().FixedRowCount() : 0;
  for (int row = 0; row < count; ++row) {
    cells.push_back(parent()->child(grid->Model().PlaceOf({row, cell_.column})));
  }
  return cells;
}

QList<QAccessibleInterface*> GridCellAccess::rowHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  const CGridCtrl* grid = Grid();
  const int count = grid != nullptr ? grid->Model().FixedColumnCount() : 0;
  for (int column = 0; column < count; ++column) {
    cells.push_back(parent()->child(grid->Model().PlaceOf({cell_.row, column})));
  }
  return cells;
}

int GridCellAccess::columnIndex() const {
  const CGridCtrl* grid = Grid();
  return grid != nullptr ? cell_.column - grid->Model().FixedColumnCount() : -1;
}

int GridCellAccess::rowIndex() const {
  const CGridCtrl* grid = Grid();
  return grid != nullptr ? cell_.row - grid->Model().FixedRowCount() : -1;
}

QStringList GridCellAccess::actionNames() const {
  const CGridCtrl* grid = Grid();
  if (grid == nullptr || IsHeader()) return {};
  QStringList names{setFocusAction()};
  if (grid->IsEditable()) names.push_back(pressAction());
  return names;
}

void GridCellAccess::doAction(const QString& name) {
  CGridCtrl* grid = Grid();
  if (grid == nullptr || !actionNames().contains(name)) return;
  grid->setFocus(Qt::OtherFocusReason);
  grid->SetFocusCell(cell_);
  if (name == pressAction()) grid->EditFocusCell();
}

}  // namespace kav
