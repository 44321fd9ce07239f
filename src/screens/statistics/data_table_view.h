// The rows of a data list as a table.
#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "statistics/data_list.h"

namespace kav {

/// A column by its heading; the columns of a table share its width out by the proportions of
/// theirs.
struct DataColumn {
  std::u16string_view heading;
  int width;
};

/// What the table's user asks for; each may be empty.
struct DataTableHooks {
  std::function<void()> selectionChanged = {};
  std::function<void(std::size_t column)> headingPressed = {};
  std::function<void()> edit = {};    ///< Enter, or a double click
  std::function<void()> remove = {};  ///< Delete
  std::function<void()> copy = {};
  std::function<void()> paste = {};
};

/// Shows `list`, which must outlive it; a column for each variable and one for the count. Rows are
/// selected as a whole, several of them if so wished. To show a list takes as long whatever its
/// length, but for a few bytes a row.
class DataTableView final : public QTableView {
 public:
  DataTableView(QWidget* parent, const DataList& list, std::span<const DataColumn> columns);

  void SetHooks(DataTableHooks hooks) { hooks_ = std::move(hooks); }

  /// Shows the list as it is by now: at once after each change of it. Nothing is selected then.
  void Reload();
  /// Selects this row alone, or none, and calls no hook.
  void Select(std::optional<std::size_t> row);

  std::optional<std::size_t> FirstSelected() const;
  /// From the top.
  std::vector<std::size_t> SelectedRows() const;

  void SetTextHeight(int pixels);

  void setModel(QAbstractItemModel* model) override;

 private:
  class Cells;

  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyboardSearch(const QString&) override {}

  /// Headings have the size of the rows, or a smaller one where a column is narrow.
  void FitHeadings();
  void SetRowHeight();
  /// `select` selects rows, or one to go on from, which are not to be brought into view.
  void WithoutScrolling(const std::function<void()>& select);
  bool DoCommand(const QKeyEvent& event);

  const DataList& list_;
  std::vector<DataColumn> columns_;
  Cells* cells_;
  DataTableHooks hooks_;
};

}  // namespace kav
