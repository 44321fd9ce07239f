// The user's matrix files.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "common/expected.h"
#include "matrix/matrix_value.h"

namespace kav {

/// In bytes; more than any real matrix needs. A larger file is not read.
inline constexpr std::size_t kLargestMatrixFile = std::size_t{1} << 20;

/// The matrix in the file `path` (UTF-8), without the commas in its cells. Fails with what the user
/// is told if there is no such file, it is a folder, not readable, too large, or not a matrix.
Expected<MatrixValue, std::u16string> LoadMatrixFile(const std::string& path);

/// Makes `matrix` the content of the file `path` (UTF-8). If that fails, the file stays as it was,
/// and the answer tells the user what happened, to which file, and what to do.
std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix);

}  // namespace kav
