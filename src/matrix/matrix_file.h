// Matrices as text: in the user's files and in those of intermediate results.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "matrix/matrix_value.h"

namespace kav {

/// How the lines of matrix files end.
inline constexpr std::string_view kMatrixLineEnd = "\r\n";

/// "[ROWS*COLUMNS]", then a line for each row with a TAB between its cells; each line ends with
/// `lineEnd`. Each character of a cell is written as its low byte, or as a blank if that is TAB or
/// LF.
std::string PrintMatrix(const MatrixValue& matrix, std::string_view lineEnd = kMatrixLineEnd);

/// Why a text is no matrix, and in which line.
struct MatrixFault {
  enum class Kind {
    NoSize,      ///< the header is malformed, or a size is outside 1 to kLargestMatrix
    OtherCells,  ///< the row has more or fewer cells than the matrix has columns
    NoRow,       ///< the text ends before the last row
    RowLeft,     ///< there is more than line ends behind the last row
  };
  Kind kind;
  int line;  ///< counted from 1
};

/// The matrix that `bytes` hold; each byte is a character. A line may end with LF alone, the last
/// one with nothing. A byte order mark before the header and empty lines behind the last row are
/// left out: editors put them there.
Expected<MatrixValue, MatrixFault> ReadMatrixText(std::string_view bytes);

/// The same; nullopt if `bytes` hold no matrix.
std::optional<MatrixValue> ReadMatrix(std::string_view bytes);

/// The same for the bytes of a user's file: without the commas in the cells.
Expected<MatrixValue, MatrixFault> ReadMatrixFile(std::string_view bytes);

/// In bytes; more than any real matrix needs. A larger file is not read.
inline constexpr std::size_t kLargestMatrixFile = std::size_t{1} << 20;

/// The matrix in the file `path` (UTF-8), without the commas in its cells. Fails with what the user
/// is told if there is no such file, it is a folder, not readable, too large, or not a matrix.
Expected<MatrixValue, std::u16string> LoadMatrixFile(const std::string& path);

/// Makes `matrix` the content of the file `path` (UTF-8). If that fails, the file stays as it was,
/// and the answer tells the user what happened, to which file, and what to do.
std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix);

}  // namespace kav
