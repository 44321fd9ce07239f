// The keys of the matrix screen: where they stand, how they look and what they write.
#pragma once

#include <span>

#include "line/key_rows.h"

namespace kav {

/// The keys, row by row.
enum class MatrixKey {
  // clang-format off
  Deg, Functions, Tools, Backspace, Delete, Clear,
  ClearCells,
  PlayBack, Operations, MatrixTools, Variables, Size,
  Seven, Eight, Nine, Parentheses, Power,
  Four, Five, Six, Multiply, Divide,
  One, Two, Three, Add, Subtract,
  Zero, DoubleZero, Point, Exp, Equals,
  // clang-format on
};

using MatrixKeyRow = KeyRow<MatrixKey>;

/// All keys, in the order of MatrixKey.
std::span<const MatrixKeyRow> MatrixKeyRows();
const MatrixKeyRow& RowOf(MatrixKey key);

// Where the rest of the screen stands.
inline constexpr LinePlace kMatrixLinePlace{3, 2, 130, 11};
inline constexpr LinePlace kMatrixResultPlace{3, 13, 130, 9};
inline constexpr LinePlace kMatrixTabsPlace{3, 35, 104, 10};
inline constexpr LinePlace kGridPlace{3, 45, 130, 52};

}  // namespace kav
