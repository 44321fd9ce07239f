#include "matrix/matrix_arithmetic.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "engine/functions.h"
#include "matrix/matrix_operations.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

CalcResult<MatrixOrNumber> Either(CalcResult<MatrixValue> result) {
  if (!result) return std::move(result).error();
  return MatrixOrNumber(*std::move(result));
}

double Calculate(double left, char symbol, double right) {
  switch (symbol) {
    case '^':
      return Power(left, right);
    case '*':
      return left * right;
    case '+':
      return left + right;
    default:
      return left - right;
  }
}

CalcResult<MatrixOrNumber> CombineNumbers(double left, char symbol, double right) {
  const double result = Calculate(left, symbol, right);
  if (!std::isfinite(left) || !std::isfinite(right) || !std::isfinite(result)) {
    return MakeError(CalcErrorCode::OutOfRange);
  }
  return MatrixOrNumber(result);
}

CalcResult<MatrixValue> CombineWithNumber(const MatrixValue& left, char symbol, double right) {
  switch (symbol) {
    case '^':
      return RaiseMatrix(left, right);
    case '*':
      return MultiplyByNumber(left, right);
    case '+':
      return AddNumber(left, right);
    default:
      return SubtractNumber(left, right);
  }
}

CalcResult<MatrixValue> CombineWithMatrix(double left, char symbol, const MatrixValue& right) {
  switch (symbol) {
    case '^':
      return MakeError(CalcErrorCode::Expression);
    case '*':
      return MultiplyByNumber(right, left);
    case '+':
      return AddNumber(right, left);
    default:
      return SubtractFromNumber(left, right);
  }
}

CalcResult<MatrixValue> CombineMatrices(const MatrixValue& left, char symbol,
                                        const MatrixValue& right) {
  switch (symbol) {
    case '^':
      return MakeError(CalcErrorCode::Expression);
    case '*':
      return MultiplyMatrices(left, right);
    case '+':
      return AddMatrices(left, right);
    default:
      return SubtractMatrices(left, right);
  }
}

/// The operation of a function, by the name of its messages.
std::string_view NameOf(MatrixFunction function) {
  switch (function) {
    case MatrixFunction::Inverse:
      return kMatrixInverse;
    case MatrixFunction::Transpose:
      return kMatrixTranspose;
    case MatrixFunction::LinearEquation:
      return kMatrixLinearEquation;
    case MatrixFunction::Determinant:
      return kMatrixDeterminant;
    case MatrixFunction::Triangular:
    case MatrixFunction::None:
      break;
  }
  return kMatrixTriangular;
}

/// For as many arguments as the function takes, all of them matrices.
CalcResult<MatrixValue> ApplyToMatrices(MatrixFunction function,
                                        std::span<const MatrixOperand> arguments) {
  const MatrixValue& first = *arguments.front().matrix;
  switch (function) {
    case MatrixFunction::Inverse:
      return InvertMatrix(first);
    case MatrixFunction::Transpose:
      return TransposeMatrix(first);
    case MatrixFunction::LinearEquation:
      return SolveLinearEquation(first, *arguments.back().matrix);
    case MatrixFunction::Determinant:
      return MatrixDeterminant(first);
    case MatrixFunction::Triangular:
    case MatrixFunction::None:
      break;
  }
  return TriangularMatrix(first);
}

}  // namespace

CalcResult<MatrixOrNumber> CombineOperands(const MatrixOperand& left, char symbol,
                                           const MatrixOperand& right) {
  if (left.matrix == nullptr && right.matrix == nullptr) {
    return CombineNumbers(left.number, symbol, right.number);
  }
  if (right.matrix == nullptr) return Either(CombineWithNumber(*left.matrix, symbol, right.number));
  if (left.matrix == nullptr) return Either(CombineWithMatrix(left.number, symbol, *right.matrix));
  return Either(CombineMatrices(*left.matrix, symbol, *right.matrix));
}

CalcResult<MatrixOrNumber> Negate(const MatrixOperand& operand) {
  if (operand.matrix == nullptr) return MatrixOrNumber(-operand.number);
  return Either(MultiplyByNumber(*operand.matrix, -1));
}

std::size_t ArgumentCount(MatrixFunction function) {
  return function == MatrixFunction::LinearEquation ? 2 : 1;
}

CalcResult<MatrixOrNumber> ApplyMatrixFunction(MatrixFunction function,
                                               std::span<const MatrixOperand> arguments) {
  const bool areMatrices =
      std::none_of(arguments.begin(), arguments.end(),
                   [](const MatrixOperand& argument) { return argument.matrix == nullptr; });
  if (!areMatrices || arguments.size() != ArgumentCount(function)) {
    return MakeError(CalcErrorCode::Free, MatrixArgumentError(NameOf(function)));
  }
  return Either(ApplyToMatrices(function, arguments));
}

}  // namespace kav
