// Matrices spelled out, for tests.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "engine/calc_error.h"
#include "matrix/matrix_value.h"

namespace kav::test {

/// The matrix of `text`: a blank between two cells, a ';' between two rows.
inline MatrixValue MatrixOf(std::string_view text) {
  MatrixValue matrix;
  int column = 0;
  matrix.rows = matrix.columns = text.empty() ? 0 : 1;
  for (const char16_t c : Widen(text)) {
    if (c == u' ') {
      matrix.columns = std::max(matrix.columns, ++column + 1);
    } else if (c == u';') {
      ++matrix.rows;
      column = 0;
    } else {
      matrix.At(matrix.rows - 1, column) += c;
    }
  }
  return matrix;
}

/// The text that MatrixOf reads as `matrix`.
inline std::string Spelled(const MatrixValue& matrix) {
  std::string text;
  for (int row = 0; row < matrix.rows; ++row) {
    for (int column = 0; column < matrix.columns; ++column) {
      text += Narrow(matrix.At(row, column)) + (column + 1 == matrix.columns ? ";" : " ");
    }
  }
  if (!text.empty()) text.pop_back();
  return text;
}

/// The matrix, or the message behind "error: ".
inline std::string Spelled(const CalcResult<MatrixValue>& result) {
  return result ? Spelled(*result) : "error: " + result.error().message;
}

}  // namespace kav::test
