#include "screens/statistics/row_access_view.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QHeaderView>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "screens/statistics/row_table_view.h"
#include "screens/widgets/qt_text.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The rows whose numbers are listed as those of selected rows.
constexpr int kMostListed = 100'000;
/// The cells that are kept for screen readers that hold them.
constexpr int kMostKept = 20'000;

/// A cell or, with row -1, a heading. Invalid as long as its cell is not there.
class RowCellAccess final : public QAccessibleInterface,
                            public QAccessibleTableCellInterface,
                            public QAccessibleActionInterface {
 public:
  RowCellAccess(RowTable& table, int row, int column)
      : widget_(&table), row_(row), column_(column) {}

  int Place() const { return PlaceInTable(row_, column_, Table()->ColumnTotal()); }

  bool isValid() const override { return Table() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    if (type != QAccessible::TableCellInterface || IsHeading()) return nullptr;
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  QAccessibleInterface* parent() const override {
    return isValid() ? QAccessible::queryAccessibleInterface(Table()) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    const bool isText = kind == QAccessible::Name || kind == QAccessible::Value;
    if (isText) return IsHeading() ? Heading(Qt::DisplayRole) : Index().data().toString();
    return kind == QAccessible::Description && IsHeading() ? Described() : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QHeaderView* headings = Table()->horizontalHeader();
    const QWidget* part = IsHeading() ? headings->viewport() : Table()->viewport();
    QRect area = IsHeading() ? part->rect() : Table()->visualRect(Index());
    area.setLeft(headings->sectionViewportPosition(column_));
    area.setWidth(headings->sectionSize(column_));
    return {part->mapToGlobal(area.topLeft()), area.size()};
  }
  QAccessible::Role role() const override {
    return IsHeading() ? QAccessible::ColumnHeader : QAccessible::Cell;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    const RowTable* table = Table();
    state.invalid = table == nullptr;
    if (table == nullptr) return state;
    state.invisible = !table->isVisible();
    state.disabled = !table->isEnabled();
    if (IsHeading()) return state;
    state.offscreen = !table->viewport()->rect().intersects(table->visualRect(Index()));
    state.focusable = true;
    state.selectable = true;
    state.extSelectable = true;
    state.selected = isSelected();
    state.focused = table->hasFocus() && table->currentIndex() == Index();
    return state;
  }

  // The place in the table.
  bool isSelected() const override {
    return isValid() && !IsHeading() && Table()->selectionModel()->isSelected(Index());
  }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    if (!isValid()) return {};
    return {parent()->child(column_)};
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return row_; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  // What can be done with it.
  QStringList actionNames() const override {
    if (!isValid() || !Table()->isEnabled()) return {};
    return IsHeading() ? QStringList{pressAction()} : QStringList{setFocusAction(), pressAction()};
  }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name)) return;
    if (IsHeading()) return Table()->PressHeading(column_);
    Table()->PickRow(row_);
    if (name == pressAction()) Table()->OpenRow(row_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  /// The table in which the cell is; null while the cell is not there.
  RowTable* Table() const {
    auto* table = dynamic_cast<RowTable*>(widget_.data());
    return table != nullptr && row_ < table->RowTotal() ? table : nullptr;
  }
  bool IsHeading() const { return row_ < 0; }
  QModelIndex Index() const { return Table()->model()->index(row_, column_); }
  /// What the arrow says; empty if there is none.
  QString Sorted() const {
    const QHeaderView& headings = *Table()->horizontalHeader();
    if (headings.sortIndicatorSection() != column_) return {};
    const bool isUpwards = headings.sortIndicatorOrder() == Qt::AscendingOrder;
    return ToQt(isUpwards ? kSortedUpwards : kSortedDownwards);
  }
  QString Described() const {
    const QString hint = Heading(Qt::ToolTipRole);
    return Sorted().isEmpty() ? hint : Sorted() + ". " + hint;
  }
  QString Heading(int role) const {
    return Table()->model()->headerData(column_, Qt::Horizontal, role).toString();
  }

  QPointer<QWidget> widget_;
  int row_;
  int column_;
};

/// The table. It keeps the interfaces of cells that were asked for.
class RowTableAccess final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit RowTableAccess(RowTable& table) : QAccessibleWidget(&table, QAccessible::Table) {}
  RowTableAccess(const RowTableAccess&) = delete;
  RowTableAccess& operator=(const RowTableAccess&) = delete;
  ~RowTableAccess() override { DropCells(); }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // The tree.
  int childCount() const override { return std::min(All(), kMostChildren); }
  QAccessibleInterface* child(int index) const override {
    const int columns = columnCount();
    if (columns == 0 || index < 0 || index >= All()) return nullptr;
    return Cell(index / columns - 1, index % columns);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* cell = dynamic_cast<const RowCellAccess*>(child);
    return cell != nullptr && cell->parent() == this ? cell->Place() : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const RowTable* table = Table();
    if (table == nullptr) return nullptr;
    const QHeaderView& headings = *table->horizontalHeader();
    const QPoint inHeadings = headings.mapFromGlobal(QPoint(x, y));
    if (headings.rect().contains(inHeadings)) return Cell(-1, headings.logicalIndexAt(inHeadings));
    const QPoint inRows = table->viewport()->mapFromGlobal(QPoint(x, y));
    if (!table->viewport()->rect().contains(inRows)) return nullptr;
    return CellOf(table->indexAt(inRows));
  }
  QAccessibleInterface* focusChild() const override {
    if (Table() == nullptr || !Table()->hasFocus()) return QAccessibleWidget::focusChild();
    return CellOf(Table()->currentIndex());
  }

  // The table.
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int rowCount() const override { return Table() == nullptr ? 0 : Table()->RowTotal(); }
  int columnCount() const override { return Table() == nullptr ? 0 : Table()->ColumnTotal(); }
  QAccessibleInterface* cellAt(int row, int column) const override {
    return HasRow(row) ? Cell(row, column) : nullptr;
  }
  QString rowDescription(int row) const override {
    return HasRow(row) ? ToQt(Widen(PrintInteger(row + 1))) : QString();
  }
  QString columnDescription(int column) const override {
    if (column < 0 || column >= columnCount()) return {};
    return Table()->model()->headerData(column, Qt::Horizontal).toString();
  }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  // The selection, which is one of rows.
  int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    for (const int row : Selected(kMostChildren)) {
      for (int column = 0; column < columnCount(); ++column) cells.push_back(Cell(row, column));
    }
    return cells;
  }
  int selectedRowCount() const override {
    int rows = 0;
    for (const QItemSelectionRange& range : Ranges()) rows += range.height();
    return rows;
  }
  int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
  QList<int> selectedRows() const override { return Selected(kMostListed); }
  QList<int> selectedColumns() const override {
    QList<int> columns;
    for (int i = 0; isColumnSelected(i); ++i) columns.push_back(i);
    return columns;
  }
  bool isRowSelected(int row) const override {
    return HasRow(row) && Table()->selectionModel()->isSelected(Table()->model()->index(row, 0));
  }
  bool isColumnSelected(int column) const override {
    return column < columnCount() && rowCount() > 0 && selectedRowCount() == rowCount();
  }
  bool selectRow(int row) override {
    if (!HasRow(row)) return false;
    Table()->PickRow(row);
    return isRowSelected(row);
  }
  bool unselectRow(int row) override {
    if (!isRowSelected(row) || !Table()->isEnabled()) return false;
    Table()->selectionModel()->select(Table()->model()->index(row, 0),
                                      QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    return true;
  }
  bool selectColumn(int) override { return false; }
  bool unselectColumn(int) override { return false; }

 private:
  /// Null while the widget is being made or destroyed: then it is no such table yet or any more.
  RowTable* Table() const { return dynamic_cast<RowTable*>(object()); }
  int All() const { return PlaceInTable(rowCount(), 0, columnCount()); }
  bool HasRow(int row) const { return row >= 0 && row < rowCount(); }

  QItemSelection Ranges() const {
    return Table() == nullptr ? QItemSelection() : Table()->selectionModel()->selection();
  }
  /// The first `most` of the selected rows.
  QList<int> Selected(int most) const {
    QList<int> rows;
    for (const QItemSelectionRange& range : Ranges()) {
      for (int row = range.top(); row <= range.bottom() && rows.size() < most; ++row) {
        rows.push_back(row);
      }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
  }

  QAccessibleInterface* CellOf(const QModelIndex& index) const {
    return index.isValid() ? Cell(index.row(), index.column()) : nullptr;
  }
  QAccessibleInterface* Cell(int row, int column) const {
    if (Table() == nullptr || column < 0 || column >= columnCount()) return nullptr;
    if (cells_.size() >= kMostKept) DropCells();
    QAccessible::Id& id = cells_[PlaceInTable(row, column, columnCount())];
    if (id == 0) {
      id = QAccessible::registerAccessibleInterface(new RowCellAccess(*Table(), row, column));
    }
    return QAccessible::accessibleInterface(id);
  }
  void DropCells() const {
    for (const QAccessible::Id id : std::as_const(cells_)) {
      QAccessible::deleteAccessibleInterface(id);
    }
    cells_.clear();
  }

  mutable QHash<int, QAccessible::Id> cells_;
};

QAccessibleInterface* MakeRowTableAccess(const QString&, QObject* object) {
  auto* table = dynamic_cast<RowTable*>(object);
  return table != nullptr ? new RowTableAccess(*table) : nullptr;
}

}  // namespace

void OfferRowTablesToScreenReaders() {
  static const bool kIsOffered = [] {
    QAccessible::installFactory(MakeRowTableAccess);
    return true;
  }();
  (void)kIsOffered;
}

}  // namespace kav
