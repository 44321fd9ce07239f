// A grid of texts without its pixels: counts, sizes, cells, selection and focus.
#pragma once

#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

enum class GridAlignment { Left, Centre, Right };

/// How a cell shows its text, which stands on a single line in the middle of its height.
struct GridFormat {
  GridAlignment alignment = GridAlignment::Left;
  bool isMarked = false;  ///< in a colour that says: look here

  bool operator==(const GridFormat&) const = default;
};

/// What SetItem sets of a cell: of text and format those that the mask has.
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

/// Cells from one corner to the other, both included; none where `top` is negative.
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

/// Rows and columns count from 0, the fixed ones included: those are the first ones, hold headers,
/// and are neither selected nor edited. What asks for a cell or a column that is not there gets
/// nothing, and what sets one does nothing.
class GridModel {
 public:
  static constexpr int kDefaultHeight = 18;
  static constexpr int kDefaultWidth = 60;
  static constexpr int kLeastWidth = 4;
  static constexpr int kMostWidth = 10000;
  static constexpr int kMostRows = 1000;  ///< and columns

  /// Its memory comes from `memory`, which must outlive it.
  explicit GridModel(std::pmr::memory_resource* memory = std::pmr::get_default_resource());
  GridModel(const GridModel&) = delete;
  GridModel& operator=(const GridModel&) = delete;
  ~GridModel() = default;

  int RowCount() const { return static_cast<int>(heights_.size()); }
  int ColumnCount() const { return static_cast<int>(widths_.size()); }
  int FixedRowCount() const { return fixedRows_; }
  int FixedColumnCount() const { return fixedColumns_; }

  /// Takes selection and focus away.
  void ResetSelectedRange();

  // The shape. False, and all is as it was, where there is no memory for it or the number makes no
  // sense: it is negative or above kMostRows, or more is to be fixed than there is. What is new is
  // empty and of the default size. Selection and focus stay where they can, else move to the
  // nearest cell that is left, and are none where there is none.
  bool SetRowCount(int count);
  bool SetColumnCount(int count);
  bool SetFixedRowCount(int count);
  bool SetFixedColumnCount(int count);

  /// False, and the cell is as it was, where there is no memory or no such cell.
  bool SetItem(const GridItem& item);
  /// Valid until a text or the shape is set.
  std::u16string_view GetItemText(int row, int column) const;
  GridFormat GetItemFormat(int row, int column) const;

  // Pixels.
  bool SetColumnWidth(int column, int width);  ///< `width` is brought into its range
  int GetColumnWidth(int column) const;        ///< 0 for a column that is not there
  int GetRowHeight(int row) const;

  GridCell Focus() const { return focus_; }
  GridRange Selection() const;
  bool IsFixed(GridCell cell) const;
  /// The nearest cell that is there and not fixed; none where there is none.
  GridCell Nearest(GridCell cell) const;
  /// Makes `cell`, or the nearest that is not fixed, the focus and all that is selected.
  void SetFocus(GridCell cell);
  /// Selects from the focus to `cell`, or the nearest; without a focus as SetFocus.
  void SelectTo(GridCell cell);
  void SelectAll();  ///< the focus goes to the first cell
  /// The other end of the selection than the focus.
  GridCell SelectionEnd() const { return end_; }

  /// Empties the texts of the selected cells; their formats stay.
  void ClearSelectedCells();

 private:
  bool IsThere(int row, int column) const;
  std::size_t Index(int row, int column) const;
  bool Reshape(int rows, int columns);
  void KeepSelection();

  std::pmr::vector<int> heights_;
  std::pmr::vector<int> widths_;
  std::pmr::vector<std::pmr::u16string> texts_;  // row by row
  std::pmr::vector<GridFormat> formats_;
  int fixedRows_ = 0;
  int fixedColumns_ = 0;
  GridCell focus_;
  GridCell end_;
};

}  // namespace kav
