// The dialog of the constants: a table, a filter and the selected row.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "memory/constants_table.h"

namespace kav {

/// Rows are counted from 0 among those that are shown.
class ConstantsModel {
 public:
  /// Loads the table from the first of `folders` that has it.
  explicit ConstantsModel(const std::vector<std::string>& folders);

  /// Why there is no table, to be told once; nullopt if there is one.
  const std::optional<std::u16string>& LoadFailure() const { return failure_; }

  /// Shows the rows that match `filter`, see Matches, those whose symbol it is first; "mole" finds
  /// the unit mol. The selected row stays selected if it is shown.
  void SetFilter(std::u16string_view filter);

  std::size_t ShownCount() const { return shown_.size(); }
  /// `row` is below ShownCount.
  const Constant& Shown(std::size_t row) const { return table_[shown_[row]]; }
  /// How many of how many rows are shown: "12 of 250".
  std::u16string CountText() const;

  /// nullopt if no row is selected, as at the start.
  std::optional<std::size_t> SelectedRow() const;
  /// A row that is not shown selects none.
  void Select(std::optional<std::size_t> row);
  /// Moves the selection down by `rows`, up if that is negative, but not past the first and the
  /// last row. Without a selection it selects the first row or, if moving up, the last.
  void Move(std::ptrdiff_t rows);

  /// The texts of the selected row; empty without one.
  std::u16string_view SelectedName() const;
  std::u16string_view SelectedValue() const;

  /// The value of the selected row as it stands in the file; without one, what to tell the user.
  Expected<std::u16string, std::u16string_view> Choose() const;

 private:
  std::vector<Constant> table_;
  std::optional<std::u16string> failure_;
  std::vector<std::size_t> shown_;       ///< indices of table_
  std::optional<std::size_t> selected_;  ///< an index of table_ that is in shown_
};

}  // namespace kav
