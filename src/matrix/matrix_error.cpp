#include "matrix/matrix_error.h"

#include <string>

#include "matrix/matrix_texts.h"

namespace kav {
namespace {

CalcError AboutOperation(std::string_view operation, std::string_view what) {
  return MakeError(CalcErrorCode::Free,
                   std::string("[").append(operation).append("] ").append(what));
}

}  // namespace

CalcError MatrixSizeMismatch(std::string_view operation) {
  return AboutOperation(operation, kSizeMismatch);
}

CalcError MatrixArgumentError(std::string_view operation) {
  return AboutOperation(operation, kArgumentError);
}

CalcError MatrixHasNoConvergence(std::string_view operation) {
  return AboutOperation(operation, kNoConvergence);
}

CalcError MatrixIsNotInvertible() {
  return AboutOperation(kMatrixInverse, kNotInvertible);
}

CalcError MatrixHasZeroInDiagonal() {
  return AboutOperation(kMatrixTriangular, kZeroInDiagonal);
}

CalcError MatrixExponentIsNotNatural() {
  return {CalcErrorCode::NotInteger, std::string(kMatrixPower).append(kNeitherFractionNorNegative)};
}

CalcError NoRoomForMatrix() {
  return MakeError(CalcErrorCode::Free, kNoRoomForMatrix);
}

}  // namespace kav
