// Matrices as short texts for tests: blanks separate cells, ";" rows, and "_" is an empty cell.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "engine/calc_error.h"
#include "matrix/matrix_value.h"

namespace kav::test {

inline MatrixValue MatrixOf(std::u16string_view table) {
  MatrixValue matrix;
  matrix.rows = 1;
  int column = 0;
  std::u16string cell;
  const auto endCell = [&] {
    if (cell.empty()) return;
    matrix.At(matrix.rows - 1, column++) = cell == u"_" ? u"" : cell;
    matrix.columns = column;
    cell.clear();
  };
  for (const char16_t c : table) {
    if (c == u' ' || c == u';') endCell();
    if (c == u';') {
      ++matrix.rows;
      column = 0;
    } else if (c != u' ') {
      cell += c;
    }
  }
  endCell();
  return matrix;
}

inline std::u16string TableOf(const MatrixValue& matrix) {
  std::u16string table;
  for (int row = 0; row < matrix.rows; ++row) {
    if (row > 0) table += u"; ";
    for (int column = 0; column < matrix.columns; ++column) {
      if (column > 0) table += u' ';
      const std::u16string& cell = matrix.At(row, column);
      table += cell.empty() ? std::u16string(u"_") : cell;
    }
  }
  return table;
}

// The same in 8 bits.
inline MatrixValue MatrixOf(std::string_view table) {
  return MatrixOf(Widen(table));
}
inline std::string Spelled(const MatrixValue& matrix) {
  return Narrow(TableOf(matrix));
}

/// The matrix, or the message behind "error: ".
inline std::string Spelled(const CalcResult<MatrixValue>& result) {
  return result ? Spelled(*result) : "error: " + result.error().message;
}

}  // namespace kav::test
