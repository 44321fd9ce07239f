// The table that shows the rows of a data list.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/statistics/row_table_view.h"
#include "statistics/data_list.h"

namespace kav {

struct DataColumn {
  std::u16string_view heading;
  int width;  ///< in any unit: the columns divide the width of the table in these proportions
};

/// Called when the user does this to the table; each may be empty.
struct DataTableHooks {
  std::function<void()> selectionChanged = {};
  std::function<void(std::size_t column)> headingPressed = {};
  std::function<void()> edit = {};    ///< Enter, or a double click
  std::function<void()> remove = {};  ///< Delete
  std::function<void()> copy = {};
  std::function<void()> paste = {};
  /// A text is dropped on a cell, or beside the rows.
  std::function<void(const std::optional<DataCell>& cell, const std::u16string& text)> drop = {};
};

/// Shows `list`, which must outlive it, with a column for each variable and one for the count. One
/// or several whole rows can be selected. Lists of any length take the same time to show. Together
/// the columns are as wide as the table; the user drags the edges between them.
class DataTableView final : public RowTable {
 public:
  DataTableView(QWidget* parent, const DataList& list, std::span<const DataColumn> columns);

  void SetHooks(DataTableHooks hooks) { hooks_ = std::move(hooks); }

  /// Shows the list as it is now, with nothing selected. To be called after each change of the
  /// list.
  void Reload();
  /// Selects only this row, or none. Calls no hook.
  void Select(std::optional<std::size_t> row);

  std::optional<std::size_t> FirstSelected() const;
  /// The indices of the selected rows, in ascending order.
  std::vector<std::size_t> SelectedRows() const;

  void SetTextHeight(int pixels);
  /// Marks the column that the rows are sorted by.
  void ShowSorted(const std::optional<DataSorting>& sorting);

  void OpenRow(int row) override;
  void PressHeading(int column) override;

 private:
  class Cells;

  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
  void keyboardSearch(const QString&) override {}

  void MakeHeadings();
  /// Gives headings the letters of the rows, or smaller ones if a column is too narrow for them.
  void FitHeadings();
  void ShareWidth();
  void OnColumnDragged(int column, int before, int after);
  /// Calls `select`, which selects rows, without scrolling to them.
  void WithoutScrolling(const std::function<void()>& select);
  bool DoCommand(const QKeyEvent& event);
  QRect LandingAt(QPoint place, std::u16string_view text) const;
  std::optional<DataCell> CellAt(QPoint place) const;

  std::vector<DataColumn> columns_;
  Cells* cells_;
  DataTableHooks hooks_;
};

}  // namespace kav
