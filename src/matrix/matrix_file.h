// Matrices as text: in the user's files and in those of intermediate results.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "matrix/matrix_value.h"

namespace kav {

/// "[ROWS*COLUMNS]", then a line for each row with a TAB between its cells; each line ends with CR
/// LF. Each character of a cell is written as its low byte, or as a blank if that is TAB or LF.
std::string PrintMatrix(const MatrixValue& matrix);

/// The matrix that `bytes` hold; each byte is a character. A line may end with LF alone, the last
/// one with nothing. nullopt if the header is malformed, a size is outside 1 to kLargestMatrix, or
/// cells or rows are missing or left over.
std::optional<MatrixValue> ReadMatrix(std::string_view bytes);

/// In bytes; more than any real matrix needs. A larger file is not read.
inline constexpr std::size_t kLargestMatrixFile = std::size_t{1} << 20;

/// The matrix in the file `path` (UTF-8), without the commas in its cells. Fails with what the user
/// is told if there is no such file, it is a folder, not readable, too large, or not a matrix.
Expected<MatrixValue, std::u16string> LoadMatrixFile(const std::string& path);

/// Makes `matrix` the content of the file `path` (UTF-8). If that fails, the file stays as it was,
/// and the answer tells the user what happened, to which file, and what to do.
std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix);

}  // namespace kav
