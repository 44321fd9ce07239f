#include "matrix/matrix_functions.h"

#include <algorithm>

#include "matrix/matrix_error.h"
#include "matrix/matrix_operations.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

using Result = CalcResult<MatrixValue>;
using Arguments = MatrixArguments;

constexpr std::array kFunctions{
    MatrixFunctionRow{MatrixFunction::Inverse, "inverse", kMatrixInverse, 1,
                      [](const Arguments& a) { return InvertMatrix(*a[0]); }},
    MatrixFunctionRow{MatrixFunction::Transpose, "transpose", kMatrixTranspose, 1,
                      [](const Arguments& a) { return Result(TransposeMatrix(*a[0])); }},
    MatrixFunctionRow{MatrixFunction::LinearEquation, "linearequation", kMatrixLinearEquation, 2,
                      [](const Arguments& a) { return SolveLinearEquation(*a[0], *a[1]); }},
    MatrixFunctionRow{MatrixFunction::Determinant, "determinant", kMatrixDeterminant, 1,
                      [](const Arguments& a) { return MatrixDeterminant(*a[0]); }},
    MatrixFunctionRow{MatrixFunction::Triangular, "triangular", kMatrixTriangular, 1,
                      [](const Arguments& a) { return TriangularMatrix(*a[0]); }},
};

constexpr std::size_t PlaceOf(MatrixFunction function) {
  return static_cast<std::size_t>(function) - static_cast<std::size_t>(MatrixFunction::Inverse);
}

// Each code finds its row by its number.
constexpr bool kEveryRowIsInItsPlace = [] {
  for (std::size_t i = 0; i < kFunctions.size(); ++i) {
    if (PlaceOf(kFunctions[i].code) != i) return false;
  }
  return PlaceOf(MatrixFunction::Triangular) + 1 == kFunctions.size();
}();
static_assert(kEveryRowIsInItsPlace);

}  // namespace

std::span<const MatrixFunctionRow> MatrixFunctions() {
  return kFunctions;
}

const MatrixFunctionRow& RowOf(MatrixFunction function) {
  return kFunctions[PlaceOf(function)];
}

CalcResult<MatrixValue> ApplyMatrixFunction(MatrixFunction function,
                                            const MatrixArguments& arguments) {
  const MatrixFunctionRow& row = RowOf(function);
  const auto taken = std::span(arguments).first(row.argumentCount);
  if (std::count(taken.begin(), taken.end(), nullptr) != 0) {
    return MatrixArgumentError(row.operation);
  }
  return row.apply(arguments);
}

}  // namespace kav
