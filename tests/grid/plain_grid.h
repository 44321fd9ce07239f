// A second, simple grid that the real ones are compared with, and what fills both.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

#include "grid/grid_model.h"

namespace kav {

inline void PrintTo(GridCell cell, std::ostream* out) {
  *out << cell.row << ", " << cell.column;
}

namespace test {

struct PlainCell {
  std::u16string text;
  GridFormat format;

  bool operator==(const PlainCell&) const = default;
};

/// Takes the same calls as a grid, and keeps all that it shows.
struct PlainGrid {
  int fixedRows = 0;
  int fixedColumns = 0;
  std::vector<int> heights;
  std::vector<int> widths;
  std::vector<std::vector<PlainCell>> cells;
  GridCell focus;
  GridCell end;

  bool operator==(const PlainGrid&) const = default;

  int Rows() const { return static_cast<int>(heights.size()); }
  int Columns() const { return static_cast<int>(widths.size()); }
  bool Has(int row, int column) const {
    return row >= 0 && row < Rows() && column >= 0 && column < Columns();
  }
  PlainCell& At(int row, int column) {
    return cells.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
  }

  bool SetRowCount(int count) {
    if (count < 0 || count < fixedRows || count > 1000) return false;
    return Resize(count, Columns());
  }
  bool SetColumnCount(int count) {
    if (count < 0 || count < fixedColumns || count > 1000) return false;
    return Resize(Rows(), count);
  }
  bool SetFixedRowCount(int count) {
    if (count < 0 || count > Rows()) return false;
    fixedRows = count;
    return KeepSelection();
  }
  bool SetFixedColumnCount(int count) {
    if (count < 0 || count > Columns()) return false;
    fixedColumns = count;
    return KeepSelection();
  }
  bool SetItem(const GridItem& item) {
    if (!Has(item.row, item.column)) return false;
    PlainCell& cell = At(item.row, item.column);
    if ((item.mask & GridItem::kText) != 0) cell.text = std::u16string(item.text);
    if ((item.mask & GridItem::kFormat) != 0) cell.format = item.format;
    return true;
  }
  bool SetColumnWidth(int column, int width) {
    if (column < 0 || column >= Columns()) return false;
    widths.at(static_cast<std::size_t>(column)) = std::clamp(width, 4, 10000);
    return true;
  }
  void ResetSelectedRange() { focus = end = {}; }
  void SetFocusCell(GridCell cell) { focus = end = Nearest(cell); }
  void SelectTo(GridCell cell) {
    end = Nearest(cell);
    if (focus.IsNone()) focus = end;
  }
  void SelectAll() {
    focus = Nearest({INT_MIN, INT_MIN});
    end = Nearest({INT_MAX, INT_MAX});
  }
  void ClearSelectedCells() {
    for (int row = 0; row < Rows(); ++row) {
      for (int column = 0; column < Columns(); ++column) {
        if (IsSelected({row, column})) At(row, column).text.clear();
      }
    }
  }

  /// By trying every cell.
  GridCell Nearest(GridCell to) const {
    GridCell nearest;
    long long least = LLONG_MAX;
    for (int row = fixedRows; row < Rows(); ++row) {
      for (int column = fixedColumns; column < Columns(); ++column) {
        const long long distance = std::llabs(static_cast<long long>(row) - to.row) +
                                   std::llabs(static_cast<long long>(column) - to.column);
        if (distance < least) nearest = {row, column};
        least = std::min(least, distance);
      }
    }
    return nearest;
  }
  bool IsSelected(GridCell cell) const {
    const auto isBetween = [](int one, int at, int other) {
      return std::min(one, other) <= at && at <= std::max(one, other);
    };
    return !focus.IsNone() && isBetween(focus.row, cell.row, end.row) &&
           isBetween(focus.column, cell.column, end.column);
  }
  bool KeepSelection() {
    if (focus.IsNone()) return true;
    focus = Nearest(focus);
    end = Nearest(end);
    return true;
  }
  bool Resize(int rows, int columns) {
    heights.resize(static_cast<std::size_t>(rows), 18);
    widths.resize(static_cast<std::size_t>(columns), 60);
    cells.resize(heights.size());
    for (std::vector<PlainCell>& row : cells) row.resize(widths.size());
    return KeepSelection();
  }
};

/// All that `grid` shows; it has no selection.
inline PlainGrid PlainOf(const GridModel& grid) {
  PlainGrid plain;
  plain.Resize(grid.RowCount(), grid.ColumnCount());
  plain.fixedRows = grid.FixedRowCount();
  plain.fixedColumns = grid.FixedColumnCount();
  for (int i = 0; i < grid.RowCount(); ++i) {
    plain.heights.at(static_cast<std::size_t>(i)) = grid.Top(i + 1) - grid.Top(i);
  }
  for (int i = 0; i < grid.ColumnCount(); ++i) {
    plain.widths.at(static_cast<std::size_t>(i)) = grid.GetColumnWidth(i);
  }
  for (int row = 0; row < grid.RowCount(); ++row) {
    for (int column = 0; column < grid.ColumnCount(); ++column) {
      plain.At(row, column) = {std::u16string(grid.GetItemText(row, column)),
                               grid.GetItemFormat(row, column)};
    }
  }
  return plain;
}

inline void Shape(GridModel& grid, int rows, int columns, int fixedRows, int fixedColumns) {
  ASSERT_TRUE(grid.SetRowCount(rows));
  ASSERT_TRUE(grid.SetColumnCount(columns));
  ASSERT_TRUE(grid.SetFixedRowCount(fixedRows));
  ASSERT_TRUE(grid.SetFixedColumnCount(fixedColumns));
}

/// The text that Fill gives a cell: too long to be kept without memory of its own.
inline std::u16string LongText(int row, int column) {
  std::u16string text(40, u'.');
  text += static_cast<char16_t>(u'A' + row);
  text += static_cast<char16_t>(u'a' + column);
  return text;
}

/// Every cell with a text of its own, every second one with a format, every column with a width.
inline void Fill(GridModel& grid) {
  for (int row = 0; row < grid.RowCount(); ++row) {
    for (int column = 0; column < grid.ColumnCount(); ++column) {
      const bool isSecond = (row + column) % 2 != 0;
      const GridFormat format{isSecond ? GridAlignment::Right : GridAlignment::Left, isSecond};
      const std::u16string text = LongText(row, column);
      ASSERT_TRUE(grid.SetItem({row, column, GridItem::kText | GridItem::kFormat, text, format}));
    }
  }
  for (int i = 0; i < grid.ColumnCount(); ++i) ASSERT_TRUE(grid.SetColumnWidth(i, 20 + i));
}

}  // namespace test
}  // namespace kav
