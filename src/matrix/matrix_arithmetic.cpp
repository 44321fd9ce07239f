#include "matrix/matrix_arithmetic.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "engine/functions.h"
#include "matrix/cell_number.h"
#include "matrix/matrix_error.h"
#include "matrix/matrix_operations.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

double Calculate(double left, MatrixOperator symbol, double right) {
  switch (symbol) {
    case MatrixOperator::Power:
      return Power(left, right);
    case MatrixOperator::Multiply:
      return left * right;
    case MatrixOperator::Add:
      return left + right;
    case MatrixOperator::Subtract:
      break;
  }
  return left - right;
}

/// The matrix of the size of `size` with `value(row, column)` in each cell.
template <class Value>
MatrixValue MakeMatrix(const MatrixValue& size, Value value) {
  MatrixValue made = MatrixOfSize(size.rows, size.columns);
  for (int row = 0; row < made.rows; ++row) {
    for (int column = 0; column < made.columns; ++column) {
      made.At(row, column) = CellText(value(row, column));
    }
  }
  return made;
}

/// `change` of each cell. Unlike between two matrices, a cell out of range is a failure.
template <class Change>
CalcResult<MatrixValue> ChangeEachCell(const MatrixValue& a, Change change) {
  bool isInRange = true;
  MatrixValue changed = MakeMatrix(a, [&](int row, int column) {
    const double value = change(ReadCell(a.At(row, column)));
    isInRange = isInRange && std::isfinite(value);
    return value;
  });
  if (!isInRange) return MakeError(CalcErrorCode::OutOfRange);
  return changed;
}

CalcResult<MatrixValue> CombineCells(const MatrixValue& a, MatrixOperator symbol,
                                     const MatrixValue& b, std::string_view operation) {
  if (a.rows != b.rows || a.columns != b.columns) return MatrixSizeMismatch(operation);
  return MakeMatrix(a, [&](int row, int column) {
    return Calculate(ReadCell(a.At(row, column)), symbol, ReadCell(b.At(row, column)));
  });
}

CalcResult<MatrixOrNumber> Combine(double left, MatrixOperator symbol, double right) {
  const double result = Calculate(left, symbol, right);
  if (!std::isfinite(left) || !std::isfinite(right) || !std::isfinite(result)) {
    return MakeError(CalcErrorCode::OutOfRange);
  }
  return MatrixOrNumber(result);
}

CalcResult<MatrixValue> Combine(const MatrixValue& left, MatrixOperator symbol, double right) {
  if (symbol == MatrixOperator::Power) return RaiseMatrix(left, right);
  return ChangeEachCell(left, [&](double cell) { return Calculate(cell, symbol, right); });
}

CalcResult<MatrixValue> Combine(double left, MatrixOperator symbol, const MatrixValue& right) {
  if (symbol == MatrixOperator::Power) return MakeError(CalcErrorCode::Expression);
  return ChangeEachCell(right, [&](double cell) { return Calculate(left, symbol, cell); });
}

CalcResult<MatrixValue> Combine(const MatrixValue& left, MatrixOperator symbol,
                                const MatrixValue& right) {
  switch (symbol) {
    case MatrixOperator::Power:
      return MakeError(CalcErrorCode::Expression);
    case MatrixOperator::Multiply:
      return MultiplyMatrices(left, right);
    case MatrixOperator::Add:
      return CombineCells(left, symbol, right, kMatrixAddition);
    case MatrixOperator::Subtract:
      break;
  }
  return CombineCells(left, symbol, right, kMatrixSubtraction);
}

CalcResult<MatrixOrNumber> Either(CalcResult<MatrixValue> result) {
  if (!result) return std::move(result).error();
  return MatrixOrNumber(*std::move(result));
}

/// Of an operand that is no matrix.
double NumberIn(const MatrixOperand& operand) {
  return *std::get_if<double>(&operand);
}

}  // namespace

const MatrixValue* MatrixIn(const MatrixOperand& operand) {
  if (const auto* own = std::get_if<MatrixValue>(&operand)) return own;
  const auto* other = std::get_if<const MatrixValue*>(&operand);
  return other == nullptr ? nullptr : *other;
}

CalcResult<MatrixOrNumber> CombineOperands(const MatrixOperand& left, MatrixOperator symbol,
                                           const MatrixOperand& right) {
  const MatrixValue* a = MatrixIn(left);
  const MatrixValue* b = MatrixIn(right);
  if (a != nullptr && b != nullptr) return Either(Combine(*a, symbol, *b));
  if (a != nullptr) return Either(Combine(*a, symbol, NumberIn(right)));
  if (b != nullptr) return Either(Combine(NumberIn(left), symbol, *b));
  return Combine(NumberIn(left), symbol, NumberIn(right));
}

CalcResult<MatrixOrNumber> Negate(const MatrixOperand& operand) {
  const MatrixValue* matrix = MatrixIn(operand);
  if (matrix == nullptr) return MatrixOrNumber(-NumberIn(operand));
  return Either(Combine(*matrix, MatrixOperator::Multiply, -1));
}

}  // namespace kav
