// Matrices as the user keeps them: texts in rows and columns.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "display/display_settings.h"

namespace kav {

/// As many rows, and as many columns, as a matrix has at most.
inline constexpr int kLargestMatrix = kMatrixSizeRange.most;

/// A matrix of decimal texts. Only the cells within its rows and columns mean anything. Operations
/// read a cell as the number that opens its text, 0 where there is none.
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

/// A matrix of `rows` and `columns`, 0 to kLargestMatrix of each, with nothing in its cells.
MatrixValue MatrixOfSize(int rows, int columns);

/// The matrices of the calculator: [M1], [M2], [M3] and [M Ans].
inline constexpr int kMatrixCount = 4;
inline constexpr int kAnswerMatrix = 3;
using Matrices = std::array<MatrixValue, kMatrixCount>;

/// The names of the matrices as the screen writes them.
inline constexpr std::array<std::u16string_view, kMatrixCount> kMatrixNames{u"[M1]", u"[M2]",
                                                                            u"[M3]", u"[M Ans]"};

/// Whether both have the same size and the same texts in it.
bool SameMatrix(const MatrixValue& a, const MatrixValue& b);

/// Whether a cell of `matrix` is empty, so that no expression may name it. One of 0 rows has none.
bool HasEmptyCell(const MatrixValue& matrix);

}  // namespace kav
