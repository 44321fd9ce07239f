#include "matrix/matrix_file.h"

#include "common/number_text.h"
#include "matrix/matrix_text.h"
#include "matrix/matrix_texts.h"
#include "settings/atomic_file.h"
#include "settings/file_error_texts.h"

namespace kav {

Expected<MatrixValue, std::u16string> LoadMatrixFile(const std::string& path) {
  const auto bytes = ReadWholeFile(path, kLargestMatrixFile);
  auto matrix = bytes ? ReadMatrix(*bytes) : std::nullopt;
  if (!matrix) return MatrixFileIsInvalid(Widen(path));
  for (auto& row : matrix->cells) {
    for (std::u16string& cell : row) std::erase(cell, u',');
  }
  return *std::move(matrix);
}

std::optional<std::u16string> SaveMatrixFile(const std::string& path, const MatrixValue& matrix) {
  const auto error = SaveFile(path, PrintMatrix(matrix));
  if (!error) return std::nullopt;
  return MatrixCannotBeSaved(Widen(path), ReasonAndRemedy(*error));
}

}  // namespace kav
