// How wide the columns of a shown matrix are.
#pragma once

#include <array>

#include "matrix/matrix_value.h"

namespace kav {

/// The header column, then the columns of the matrix, in pixels of a screen that is 240 pixels
/// wide.
using ColumnWidths = std::array<int, kLargestMatrix + 1>;

inline constexpr int kHeaderColumnWidth = 20;

}  // namespace kav
