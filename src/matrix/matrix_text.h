// The text format of matrices, in the user's files and in those of intermediate results.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// "[ROWS*COLUMNS]", then a line for each row with a TAB between its cells; each line ends with CR
/// LF. Each character of a cell is written as its low byte, or as a blank if that is TAB or LF.
std::string PrintMatrix(const MatrixValue& matrix);

/// The matrix that `bytes` hold; each byte is a character. A line may end with LF alone, the last
/// one with nothing. nullopt if the header is malformed, a size is outside 1 to kLargestMatrix, or
/// cells or rows are missing or left over.
std::optional<MatrixValue> ReadMatrix(std::string_view bytes);

}  // namespace kav
