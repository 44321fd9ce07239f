// The text format of matrices: of the user's files and of intermediate results.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// "[ROWS*COLUMNS]" and then each row, its cells with a TAB between them; every line ends with CR
/// LF. Bytes: of each character of a cell the low one, or a blank where that is a TAB or LF.
std::string PrintMatrix(const MatrixValue& matrix);

/// The matrix that `bytes` hold; each byte is a character. A line may end with LF alone, and the
/// last one without. nullopt for what is no such text: a header that is none, a size outside 1 to
/// kLargestMatrix, missing or surplus cells or rows.
std::optional<MatrixValue> ReadMatrix(std::string_view bytes);

}  // namespace kav
