// Calculates the tokens of a matrix expression.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "engine/calc_error.h"
#include "matrix/matrix_arithmetic.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"
#include "matrix/temporary_matrices.h"

namespace kav {

/// Reduces tokens, whose order CheckMatrixOrder accepts, in place: parentheses from the inside out,
/// in each of them signs, then powers, products and sums from the left. A result that a later
/// operation reads goes through a file, named after the place of the token that it replaces; the
/// last operation's result is the answer and needs none. The destructor removes all files. The
/// matrices and the files must outlive the object.
class MatrixReducer {
 public:
  MatrixReducer(MatrixTokens tokens, const Matrices& matrices, TemporaryMatrices& files)
      : tokens_(std::move(tokens)), matrices_(matrices), files_(files) {}
  ~MatrixReducer();
  MatrixReducer(const MatrixReducer&) = delete;
  MatrixReducer& operator=(const MatrixReducer&) = delete;

  /// To be called once. Fails with the first operation that cannot be done, with NoRoomForMatrix if
  /// a file cannot be written or read, and with CalcErrorCode::Expression if anything but one
  /// matrix is left.
  CalcResult<MatrixValue> Run();

 private:
  /// Tokens from `first` to before `end`.
  struct Range {
    std::size_t first;
    std::size_t end;
  };
  using Failure = std::optional<CalcError>;

  Failure ReduceGroup(std::size_t close);
  Failure ReduceOperators(Range range);
  Failure ReduceSigns(Range range);
  Failure ReduceSign(std::size_t sign, std::size_t value);
  Failure ReduceLevel(Range range, std::string_view symbols);
  Failure ReduceOperator(std::size_t left, std::size_t symbol, std::size_t right);
  Failure ReduceFunction(std::size_t function, Range inside);

  // The nearest token that is not used up, or `range.end`.
  std::size_t UnusedBefore(std::size_t index, Range range) const;
  std::size_t UnusedFrom(std::size_t index, Range range) const;
  std::size_t ValueFrom(std::size_t index, Range range) const;
  bool IsValueAt(std::size_t index, Range range) const;

  /// What the value token at `index` stands for.
  CalcResult<MatrixOperand> Load(std::size_t index) const;
  /// Puts `result` into the token at `index`, a matrix into its file.
  Failure Replace(std::size_t index, CalcResult<MatrixOrNumber> result);
  void UseUp(std::size_t index);
  bool IsAnyOperationLeft() const;
  CalcResult<MatrixValue> TakeAnswer();

  MatrixTokens tokens_;
  const Matrices& matrices_;
  TemporaryMatrices& files_;
  std::optional<MatrixValue> answer_;  ///< the last operation's result
};

}  // namespace kav
