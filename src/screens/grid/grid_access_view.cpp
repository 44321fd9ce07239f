#include "screens/grid/grid_access_view.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <numeric>

#include "grid/grid_texts.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/widgets/qt_text.h"

// The toolkit's own accessible table is not enough here: its cells have neither a value nor an
// action that edits them, and become invalid with each change of the shape.

namespace kav {
namespace {

QString TextOf(const CGridCtrl& grid, GridCell cell) {
  return ToQt(grid.GetItemText(cell.row, cell.column));
}

/// A cell. Invalid as long as its cell is not there. Headers are cells without a place in the
/// table.
class CellAccess final : public QAccessibleInterface,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface {
 public:
  CellAccess(CGridCtrl& grid, GridCell cell) : widget_(&grid), cell_(cell) {}

  GridCell Cell() const { return cell_; }

  bool isValid() const override { return Grid() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (IsHeader()) return nullptr;
    if (type == QAccessible::TableCellInterface) {
      return static_cast<QAccessibleTableCellInterface*>(this);
    }
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }
  QAccessibleInterface* parent() const override {
    CGridCtrl* grid = Grid();
    return grid != nullptr ? QAccessible::queryAccessibleInterface(grid) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    const CGridCtrl* grid = Grid();
    if (grid == nullptr) return {};
    if (kind == QAccessible::Name || kind == QAccessible::Value) return TextOf(*grid, cell_);
    const bool isMarked = grid->Model().GetItemFormat(cell_.row, cell_.column).isMarked;
    return kind == QAccessible::Description && isMarked ? ToQt(kMarkedCell) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const CGridCtrl* grid = Grid();
    if (grid == nullptr) return {};
    const QRect area = grid->CellArea(cell_);
    return {grid->mapToGlobal(area.topLeft()), area.size()};
  }
  QAccessible::Role role() const override {
    const CGridCtrl* grid = Grid();
    if (grid == nullptr || !IsHeader()) return QAccessible::Cell;
    const bool isAbove = cell_.row < grid->Model().FixedRowCount();
    return isAbove ? QAccessible::ColumnHeader : QAccessible::RowHeader;
  }
  QAccessible::State state() const override {
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
    state.editable = true;
    state.selected = isSelected();
    state.focused = grid->hasFocus() && grid->Focus() == cell_;
    return state;
  }

  // The place in the table.
  bool isSelected() const override {
    const CGridCtrl* grid = Grid();
    return grid != nullptr && grid->Selection().Contains(cell_);
  }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    QList<QAccessibleInterface*> cells;
    const CGridCtrl* grid = Grid();
    for (int row = 0; grid != nullptr && row < grid->Model().FixedRowCount(); ++row) {
      cells.push_back(parent()->child(grid->Model().PlaceOf({row, cell_.column})));
    }
    return cells;
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override {
    QList<QAccessibleInterface*> cells;
    const CGridCtrl* grid = Grid();
    for (int column = 0; grid != nullptr && column < grid->Model().FixedColumnCount(); ++column) {
      cells.push_back(parent()->child(grid->Model().PlaceOf({cell_.row, column})));
    }
    return cells;
  }
  int columnIndex() const override {
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? cell_.column - grid->Model().FixedColumnCount() : -1;
  }
  int rowIndex() const override {
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? cell_.row - grid->Model().FixedRowCount() : -1;
  }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  // What can be done with it.
  QStringList actionNames() const override {
    return IsHeader() ? QStringList() : QStringList{setFocusAction(), pressAction()};
  }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name)) return;
    CGridCtrl* grid = Grid();
    grid->setFocus(Qt::OtherFocusReason);
    grid->SetFocusCell(cell_);
    if (name == pressAction()) grid->EditFocusCell();
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  /// The grid in which the cell is; null while the cell is not there.
  CGridCtrl* Grid() const {
    auto* grid = dynamic_cast<CGridCtrl*>(widget_.data());
    return grid != nullptr && grid->Model().IsThere(cell_) ? grid : nullptr;
  }
  bool IsHeader() const { return !isValid() || Grid()->Model().IsFixed(cell_); }

  QPointer<QWidget> widget_;
  GridCell cell_;
};

/// The table. Its rows and columns are those that are not fixed; its children are all cells, row by
/// row. It keeps the interfaces of its cells as long as it lives, so that a screen reader that
/// holds one never holds a dead one.
class GridAccess final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit GridAccess(GridTable& table) : QAccessibleWidget(&table, QAccessible::Table) {}
  GridAccess(const GridAccess&) = delete;
  GridAccess& operator=(const GridAccess&) = delete;
  ~GridAccess() override {
    for (const QAccessible::Id id : std::as_const(cells_))
      QAccessible::deleteAccessibleInterface(id);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // The tree.
  int childCount() const override { return Model().RowCount() * Model().ColumnCount(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return Cell({index / Model().ColumnCount(), index % Model().ColumnCount()});
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* cell = dynamic_cast<const CellAccess*>(child);
    return cell != nullptr && cell->parent() == this ? Model().PlaceOf(cell->Cell()) : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? Cell(grid->CellAt(grid->mapFromGlobal(QPoint(x, y)))) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    if (Grid() == nullptr || !Grid()->hasFocus()) return QAccessibleWidget::focusChild();
    return Cell(Grid()->Focus());
  }

  // The table.
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int rowCount() const override { return Model().RowCount() - Model().FixedRowCount(); }
  int columnCount() const override { return Model().ColumnCount() - Model().FixedColumnCount(); }
  QAccessibleInterface* cellAt(int row, int column) const override {
    return HasRow(row) && HasColumn(column) ? Cell(InGrid(row, column)) : nullptr;
  }
  QString rowDescription(int row) const override {
    return Description({InGrid(row, 0).row, Model().FixedColumnCount() - 1});
  }
  QString columnDescription(int column) const override {
    return Description({Model().FixedRowCount() - 1, InGrid(0, column).column});
  }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  // The selection.
  int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    const GridRange range = Selection();
    for (int row = range.top; !range.IsNone() && row <= range.bottom; ++row) {
      for (int column = range.left; column <= range.right; ++column) {
        cells.push_back(Cell({row, column}));
      }
    }
    return cells;
  }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
  QList<int> selectedRows() const override {
    return Those(rowCount(), [this](int row) { return isRowSelected(row); });
  }
  QList<int> selectedColumns() const override {
    return Those(columnCount(), [this](int column) { return isColumnSelected(column); });
  }
  bool isRowSelected(int row) const override {
    const GridRange range = Selection();
    return range.Contains(InGrid(row, 0)) && range.Contains(InGrid(row, columnCount() - 1));
  }
  bool isColumnSelected(int column) const override {
    const GridRange range = Selection();
    return range.Contains(InGrid(0, column)) && range.Contains(InGrid(rowCount() - 1, column));
  }
  bool selectRow(int row) override {
    return HasRow(row) && Select(InGrid(row, 0), InGrid(row, columnCount() - 1));
  }
  bool selectColumn(int column) override {
    return HasColumn(column) && Select(InGrid(0, column), InGrid(rowCount() - 1, column));
  }
  // The selection is one range: without one of its lines it could be two.
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

 private:
  /// Null while the widget is being made or destroyed: then it is no grid yet or any more.
  CGridCtrl* Grid() const { return dynamic_cast<CGridCtrl*>(object()); }
  const GridModel& Model() const {
    static const GridModel kNothing;
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? grid->Model() : kNothing;
  }
  GridRange Selection() const { return Grid() != nullptr ? Grid()->Selection() : GridRange{}; }
  bool HasRow(int row) const { return row >= 0 && row < rowCount(); }
  bool HasColumn(int column) const { return column >= 0 && column < columnCount(); }
  GridCell InGrid(int row, int column) const {
    return {row + Model().FixedRowCount(), column + Model().FixedColumnCount()};
  }
  QString Description(GridCell header) const {
    return ToQt(Model().GetItemText(header.row, header.column));
  }
  template <class IsOne>
  static QList<int> Those(int count, const IsOne& isOne) {
    QList<int> lines(count);
    std::iota(lines.begin(), lines.end(), 0);
    lines.removeIf([&isOne](int line) { return !isOne(line); });
    return lines;
  }
  QAccessibleInterface* Cell(GridCell cell) const {
    CGridCtrl* grid = Grid();
    if (grid == nullptr || cell.IsNone()) return nullptr;
    // By row and column: with another shape a cell keeps its interface.
    QAccessible::Id& id = cells_[cell.row * GridModel::kMostRows + cell.column];
    if (id == 0) id = QAccessible::registerAccessibleInterface(new CellAccess(*grid, cell));
    return QAccessible::accessibleInterface(id);
  }
  bool Select(GridCell from, GridCell to) const {
    CGridCtrl* grid = Grid();
    if (grid == nullptr) return false;
    grid->FinishEdit();
    grid->SetFocusCell(from);
    grid->SelectTo(to);
    return true;
  }

  mutable QHash<int, QAccessible::Id> cells_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  // The toolkit asks while the grid is being made, and keeps what it gets.
  auto* table = dynamic_cast<GridTable*>(object);
  return table != nullptr ? new GridAccess(*table) : nullptr;
}

}  // namespace

void OfferGridsToScreenReaders() {
  static const bool kIsOffered = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  (void)kIsOffered;
}

}  // namespace kav
