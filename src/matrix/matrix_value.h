// Matrices as the user keeps them: texts in rows and columns.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "display/display_settings.h"

namespace kav {

/// The most rows, and the most columns, of a matrix.
inline constexpr int kLargestMatrix = kMatrixSizeRange.most;

/// A matrix of decimal texts. Only the cells within its rows and columns mean anything. Operations
/// read a cell as the number that its text begins with, or as 0 if there is none.
struct MatrixValue {
  std::int32_t rows = 0;  ///< 0 to kLargestMatrix, as `columns`
  std::int32_t columns = 0;
  std::array<std::array<std::u16string, kLargestMatrix>, kLargestMatrix> cells;

  /// `row` and `column` from 0 to kLargestMatrix - 1.
  const std::u16string& At(int row, int column) const {
    return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
  std::u16string& At(int row, int column) {
    return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }
};

/// The matrices of the calculator: [M1], [M2], [M3] and [M Ans].
inline constexpr int kMatrixCount = 4;
inline constexpr int kAnswerMatrix = 3;
using Matrices = std::array<MatrixValue, kMatrixCount>;

/// The names of the matrices as the screen writes them.
inline constexpr std::array<std::u16string_view, kMatrixCount> kMatrixNames{u"[M1]", u"[M2]",
                                                                            u"[M3]", u"[M Ans]"};

/// A rectangle of cells, counted from 0, both corners included.
struct CellRange {
  int top = 0;
  int left = 0;
  int bottom = 0;
  int right = 0;

  bool IsOneCell() const { return top == bottom && left == right; }
};

/// A matrix of empty cells, of 0 to kLargestMatrix rows and columns.
MatrixValue MatrixOfSize(int rows, int columns);

/// The cells of `matrix` that are within the new size, and empty ones beside them. A size outside 1
/// to kLargestMatrix is brought to the nearer end.
MatrixValue Resized(const MatrixValue& matrix, int rows, int columns);

/// The cells of `range` that `matrix` has; 0, 0 to -1, -1 if it has none of them.
CellRange WithinMatrix(const CellRange& range, const MatrixValue& matrix);

/// `matrix` with the cells of `range` that it has empty.
MatrixValue Cleared(MatrixValue matrix, const CellRange& range);

/// `matrix` with `text` in each of the cells of `range` that it has.
MatrixValue Filled(MatrixValue matrix, const CellRange& range, const std::u16string& text);

/// Whether both have the same size and the same texts in it.
bool SameMatrix(const MatrixValue& a, const MatrixValue& b);

/// Whether a cell of `matrix` is not empty.
bool HasText(const MatrixValue& matrix);

/// A cell, counted from 0.
struct CellPlace {
  int row = 0;
  int column = 0;
};

/// The first cell of `matrix`, row by row, that is empty, so that no expression may name the
/// matrix; nullopt if there is none, as for 0 rows.
std::optional<CellPlace> FirstEmptyCell(const MatrixValue& matrix);
inline bool HasEmptyCell(const MatrixValue& matrix) {
  return FirstEmptyCell(matrix).has_value();
}

}  // namespace kav
