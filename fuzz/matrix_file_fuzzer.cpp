// Matrix files of any content. A matrix that was read, written and read again is the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "matrix/matrix_file.h"

namespace {

using kav::MatrixValue;

void Check(bool holds) {
  if (!holds) std::abort();
}

void CheckCells(const MatrixValue& matrix) {
  for (int row = 0; row < kav::kLargestMatrix; ++row) {
    for (int column = 0; column < kav::kLargestMatrix; ++column) {
      const std::u16string& cell = matrix.At(row, column);
      Check(cell.find_first_of(u"\t\n") == cell.npos);
      Check(cell.empty() || (row < matrix.rows && column < matrix.columns));
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto matrix = kav::ReadMatrix({reinterpret_cast<const char*>(data), size});
  if (!matrix) return 0;
  Check(matrix->rows >= 1 && matrix->rows <= kav::kLargestMatrix);
  Check(matrix->columns >= 1 && matrix->columns <= kav::kLargestMatrix);
  CheckCells(*matrix);
  const std::string written = kav::PrintMatrix(*matrix);
  const auto again = kav::ReadMatrix(written);
  Check(again && kav::SameMatrix(*matrix, *again));
  Check(kav::PrintMatrix(*again) == written);
  return 0;
}
