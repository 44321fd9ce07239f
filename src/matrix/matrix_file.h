// The user's matrix files.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "matrix/matrix_value.h"

namespace kav {

/// More bytes than any matrix worth the name has: a larger file is not read.
inline constexpr std::size_t kLargestMatrixFile = std::size_t{1} << 20;

/// The matrix in the file `path` (UTF-8), without the commas in its cells. nullopt where there is
/// none: nothing of that name, a folder, not readable, too large, or not a matrix.
std::optional<MatrixValue> LoadMatrixFile(const std::string& path);

/// Makes `matrix` the content of the file `path`. Where that cannot be, the file stays as it was,
/// and the answer says what happened, where, and what to do.
std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix);

}  // namespace kav
