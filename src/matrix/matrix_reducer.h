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

/// Reduces tokens (in checked order) in place, bracket by bracket, to the one matrix that is left.
/// A result that a later operation reads goes through a file, named after the token that it
/// replaces; the last operation's result is the answer and needs none. All files are gone with the
/// object. The matrices and the files must outlive it.
class MatrixReducer {
 public:
  MatrixReducer(MatrixTokens tokens, const Matrices& matrices, TemporaryMatrices& files)
      : tokens_(std::move(tokens)), matrices_(matrices), files_(files) {}
  ~MatrixReducer();
  MatrixReducer(const MatrixReducer&) = delete;
  MatrixReducer& operator=(const MatrixReducer&) = delete;

  /// To be called once. Fails with the first operation that cannot be done, and with
  /// CalcErrorCode::Expression where something else than one matrix is left.
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
  Failure ReduceFunction(std::size_t function, Range arguments);

  // The nearest token that is not used up; none is `range.end`.
  std::size_t LiveBefore(std::size_t index, Range range) const;
  std::size_t LiveFrom(std::size_t index, Range range) const;
  std::size_t ValueFrom(std::size_t index, Range range) const;
  bool IsValueAt(std::size_t index, Range range) const;

  /// The operand that the value token at `index` is. A matrix from a file is put into `room`.
  CalcResult<MatrixOperand> Load(std::size_t index, std::optional<MatrixValue>& room) const;
  Failure Replace(std::size_t index, CalcResult<MatrixOrNumber> result);
  void UseUp(std::size_t index);
  bool IsAnyOperationLeft() const;
  CalcResult<MatrixValue> TakeAnswer();

  MatrixTokens tokens_;
  const Matrices& matrices_;
  TemporaryMatrices& files_;
  std::optional<MatrixValue> answer_;  ///< of the last operation, in the place of its token's slot
};

}  // namespace kav
