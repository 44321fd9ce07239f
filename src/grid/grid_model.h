// The cells of a grid and its shape, without its pixels on a screen.
#pragma once

#include <cstddef>
#include <functional>
#include <memory_resource>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav {

enum class GridAlignment { Left, Centre, Right };

/// How a cell shows its text: on one line, in the middle of the cell's height.
struct GridFormat {
  GridAlignment alignment = GridAlignment::Left;
  bool isMarked = false;  ///< in a colour that says: look here

  bool operator==(const GridFormat&) const = default;
};

/// A cell as SetItem sets it. `mask` says which of text and format are given.
struct GridItem {
  enum Mask : unsigned { kText = 1, kFormat = 2 };
  int row = 0;
  int column = 0;
  unsigned mask = kText | kFormat;
  std::u16string_view text;
  GridFormat format;
};

struct GridCell {
  int row = -1;
  int column = -1;

  bool IsNone() const { return row < 0; }
  bool operator==(const GridCell&) const = default;
};

/// The cells from one corner to the other, both included. No cell if `top` is negative.
struct GridRange {
  int top = -1;
  int left = -1;
  int bottom = -1;
  int right = -1;

  bool IsNone() const { return top < 0; }
  bool IsOneCell() const { return top >= 0 && top == bottom && left == right; }
  bool Contains(GridCell cell) const {
    return !IsNone() && cell.row >= top && cell.row <= bottom && cell.column >= left &&
           cell.column <= right;
  }
  bool operator==(const GridRange&) const = default;
};

/// What a cell shows, valid until its owner changes it.
struct GridContent {
  std::u16string_view text;
  GridFormat format;
};

/// Where an owner that has the cells itself lets the grid read them.
using GridSource = std::function<GridContent(GridCell)>;

/// Rows and columns count from 0. The first ones are fixed: they hold headers, and are neither
/// selected nor edited. A cell or column that does not exist is empty, and setting it fails.
class GridModel {
 public:
  // Pixels of a screen that is 240 pixels wide.
  static constexpr int kDefaultHeight = 18;
  static constexpr int kDefaultWidth = 60;
  static constexpr int kLeastWidth = 4;
  static constexpr int kMostWidth = 10000;
  static constexpr int kMostRows = 1000;  ///< and columns

  /// Takes its memory from `memory`, which must outlive it.
  explicit GridModel(std::pmr::memory_resource* memory = std::pmr::get_default_resource());
  GridModel(const GridModel&) = delete;
  GridModel& operator=(const GridModel&) = delete;
  ~GridModel() = default;

  int RowCount() const { return static_cast<int>(heights_.size()); }
  int ColumnCount() const { return static_cast<int>(widths_.size()); }
  int FixedRowCount() const { return fixedRows_; }
  int FixedColumnCount() const { return fixedColumns_; }

  // The shape. They fail and change nothing if memory runs out, if the count is negative or above
  // kMostRows, or if more would be fixed than there is. New cells are empty, new rows and columns
  // have the default size.
  bool SetRowCount(int count);
  bool SetColumnCount(int count);
  bool SetFixedRowCount(int count);
  bool SetFixedColumnCount(int count);

  /// From here on `source` is asked for all cells that are not fixed; an empty one ends this. It
  /// must have all cells of the shape.
  void SetSource(GridSource source) { source_ = std::move(source); }
  bool HasSource(GridCell cell) const { return source_ && IsThere(cell) && !IsFixed(cell); }

  /// Fails and changes nothing if memory runs out, if there is no such cell or if it has a source.
  bool SetItem(const GridItem& item);
  /// Valid until a text or the shape is set.
  std::u16string_view GetItemText(int row, int column) const;
  GridFormat GetItemFormat(int row, int column) const;

  /// Brings `width` into the range from kLeastWidth to kMostWidth.
  bool SetColumnWidth(int column, int width);
  int GetColumnWidth(int column) const;  ///< 0 if there is no such column
  // The pixels before a column or row that is there, or the sum of all for the count of them.
  int Left(int column) const;
  int Top(int row) const;

  bool IsThere(GridCell cell) const;
  bool IsFixed(GridCell cell) const;
  /// The place of a cell among all, row by row.
  int PlaceOf(GridCell cell) const { return cell.row * ColumnCount() + cell.column; }
  /// The nearest cell that is not fixed; none if all are fixed.
  GridCell Nearest(GridCell cell) const;

 private:
  std::size_t Index(int row, int column) const;
  bool Reshape(int rows, int columns);

  std::pmr::vector<int> heights_;
  std::pmr::vector<int> widths_;
  std::pmr::vector<std::pmr::u16string> texts_;  // row by row
  std::pmr::vector<GridFormat> formats_;
  int fixedRows_ = 0;
  int fixedColumns_ = 0;
  GridSource source_;
};

}  // namespace kav
