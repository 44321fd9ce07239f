#include "screens/grid/grid_selector_view.h"

namespace kav {

void GridSelector::Select(GridCell cell, GridReach reach, GridLines lines) {
  Take(SelectionTo(table_.Model(), table_.Marked(), cell, reach, lines));
  // Of a whole column or row, what shows stays in view.
  if (lines == GridLines::Columns) cell.row = table_.FirstShown().row;
  if (lines == GridLines::Rows) cell.column = table_.FirstShown().column;
  table_.Reveal(table_.Model().Nearest(cell));
}

void GridSelector::SelectAll() {
  Take(SelectionOfAll(table_.Model()));
}

void GridSelector::Go(GridCell from, GridMove by, GridReach reach) {
  Select(Moved(table_.Model(), from, by, table_.PageRows()), reach);
}

bool GridSelector::GoByTab(GridCell from, int step) {
  const GridCell next = NextByTab(table_.Model(), from, step);
  if (from != tabsTo_ || from.IsNone()) tabsFrom_ = from;
  tabsTo_ = next;
  if (!next.IsNone()) Select(next, GridReach::Focus);
  return !next.IsNone();
}

void GridSelector::GoByEnter(GridCell from, int step) {
  if (from == tabsTo_ && !tabsFrom_.IsNone()) from.column = tabsFrom_.column;
  tabsTo_ = {};
  Go(from, {step, 0}, GridReach::Focus);
}

void GridSelector::Take(const GridSelection& selection) {
  if (selection == table_.Marked()) return;
  table_.Mark(selection);
  TellFocus();
}

void GridSelector::TellFocus() {
  if (!table_.hasFocus()) return;
  const GridCell end = table_.SelectionEnd();
  table_.Tell(end == table_.Focus() ? QAccessible::Focus : QAccessible::Selection, end);
}

}  // namespace kav
