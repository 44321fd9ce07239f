// Which buttons of a statistics screen are enabled by what was done to its rows.
#pragma once

#include <cstddef>

#include "statistics/statistics_keypad.h"

namespace kav {

/// They are enabled and disabled in three groups. This depends on what was done to the list, not
/// only on what it holds: each change of the list has its call here.
class RowButtons {
 public:
  /// Whether `key` is enabled while no row is edited.
  bool Allow(StatisticsKey key) const;

  void AfterSelecting(bool isAnySelected) { ofSelection_ = isAnySelected; }
  /// Rows were inserted into a list that had `before`, and now has `now`.
  void AfterInserting(std::size_t before, std::size_t now);
  /// A row was erased, and `now` are left.
  void AfterErasing(std::size_t now);
  /// The edit of a row ended, with a change or without.
  void AfterEditing();
  /// Another list took the place of all, in which `complete` rows have all their cells.
  void AfterLoading(std::size_t complete);

 private:
  bool ofSelection_ = false;  ///< "Edit" and "Delete"
  bool ofRows_ = false;       ///< "Clear" and "Save"
  bool ofResults_ = false;
};

}  // namespace kav
