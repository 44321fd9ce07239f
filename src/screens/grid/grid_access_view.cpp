#include "screens/grid/grid_access_view.h"

#include <QAccessibleWidget>
#include <QHash>

#include "grid/grid_texts.h"
#include "screens/grid/grid_cell_access_view.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// The table. Its rows and columns are those that are not fixed; its children are all cells, row by
/// row. An interface of a cell lives as long as the table, so that whoever keeps one never holds a
/// dead one: it says itself whether its cell is still there.
class GridAccess final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit GridAccess(CGridCtrl& grid) : QAccessibleWidget(&grid, QAccessible::Table) {}
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
    const auto* cell = dynamic_cast<const GridCellAccess*>(child);
    return cell != nullptr && cell->parent() == this ? Model().PlaceOf(cell->Cell()) : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const CGridCtrl* grid = Grid();
    if (grid == nullptr) return nullptr;
    return Cell(grid->CellAt(grid->mapFromGlobal(QPoint(x, y))));
  }
  QAccessibleInterface* focusChild() const override {
    if (widget() == nullptr || !widget()->hasFocus()) return QAccessibleWidget::focusChild();
    return Cell(Grid()->Focus());
  }

  // The table.
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int rowCount() const override { return Model().RowCount() - Model().FixedRowCount(); }
  int columnCount() const override { return Model().ColumnCount() - Model().FixedColumnCount(); }
  QAccessibleInterface* cellAt(int row, int column) const override {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    return Cell(InGrid(row, column));
  }
  QString rowDescription(int row) const override {
    return TextOf({InGrid(row, 0).row, Model().FixedColumnCount() - 1});
  }
  QString columnDescription(int column) const override {
    return TextOf({Model().FixedRowCount() - 1, InGrid(0, column).column});
  }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  // The selection.
  int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    const GridRange range = Selection();
    if (range.IsNone()) return cells;
    for (int row = range.top; row <= range.bottom; ++row) {
      for (int column = range.left; column <= range.right; ++column) {
        cells.push_back(Cell({row, column}));
      }
    }
    return cells;
  }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
  QList<int> selectedRows() const override {
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
      if (isRowSelected(row)) rows.push_back(row);
    }
    return rows;
  }
  QList<int> selectedColumns() const override {
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column) {
      if (isColumnSelected(column)) columns.push_back(column);
    }
    return columns;
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
    return row >= 0 && row < rowCount() && Select(InGrid(row, 0), InGrid(row, columnCount() - 1));
  }
  bool selectColumn(int column) override {
    return column >= 0 && column < columnCount() &&
           Select(InGrid(0, column), InGrid(rowCount() - 1, column));
  }
  // There is one range of cells: to take a line out of it could leave two.
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

 private:
  /// Null while the widget is being destroyed, of which the grid is gone first.
  CGridCtrl* Grid() const { return dynamic_cast<CGridCtrl*>(object()); }
  const GridModel& Model() const {
    static const GridModel kNothing;
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? grid->Model() : kNothing;
  }
  GridRange Selection() const {
    const CGridCtrl* grid = Grid();
    return grid != nullptr ? grid->Selection() : GridRange{};
  }
  GridCell InGrid(int row, int column) const {
    return {row + Model().FixedRowCount(), column + Model().FixedColumnCount()};
  }
  QString TextOf(GridCell cell) const { return ToQt(Model().GetItemText(cell.row, cell.column)); }
  QAccessibleInterface* Cell(GridCell cell) const {
    CGridCtrl* grid = Grid();
    if (grid == nullptr || cell.IsNone()) return nullptr;
    const int place = cell.row * GridModel::kMostRows + cell.column;
    const auto known = cells_.constFind(place);
    if (known != cells_.constEnd()) return QAccessible::accessibleInterface(*known);
    auto* made = new GridCellAccess(*grid, cell);
    cells_.insert(place, QAccessible::registerAccessibleInterface(made));
    return made;
  }
  bool Select(GridCell from, GridCell to) const {
    CGridCtrl* grid = Grid();
    if (grid == nullptr) return false;
    grid->FinishEdit();
    grid->SetFocusCell(from);
    grid->SelectTo(to);
    return true;
  }

  mutable QHash<int, QAccessible::Id> cells_;  // by place
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* grid = dynamic_cast<CGridCtrl*>(object);
  return grid != nullptr ? new GridAccess(*grid) : nullptr;
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
