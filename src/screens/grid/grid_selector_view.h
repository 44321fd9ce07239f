// The selection of a grid as its user moves it.
#pragma once

#include "screens/grid/grid_table_view.h"

namespace kav {

/// Selects in a table: what the user leads to comes into view, and screen readers that listen are
/// told where the keys are. The table must outlive it.
class GridSelector {
 public:
  explicit GridSelector(GridTable& table) : table_(table) {}

  void Select(GridCell cell, GridReach reach, GridLines lines = GridLines::Cells);
  void SelectAll();
  void Go(GridCell from, GridMove by, GridReach reach);
  /// Goes on to the next cell or, with step -1, back; false at the last or first cell.
  bool GoByTab(GridCell from, int step);
  /// Goes to the next row or, with step -1, back; after steps by Tab, in the column where they
  /// began.
  void GoByEnter(GridCell from, int step);
  /// Tells the cell at which keys are, if the table has them.
  void TellFocus();

 private:
  void Take(const GridSelection& selection);

  GridTable& table_;
  // Of steps by Tab that follow one another: where they began, and where they have led.
  GridCell tabsFrom_;
  GridCell tabsTo_;
};

}  // namespace kav
