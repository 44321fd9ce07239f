#include "matrix/matrix_reducer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "matrix/matrix_arithmetic.h"
#include "matrix/matrix_error.h"
#include "matrix/matrix_functions.h"
#include "matrix/temporary_matrices.h"

namespace kav {
namespace {

// The operators, in the order in which they are applied.
constexpr std::string_view kPowers = "^";
constexpr std::string_view kProducts = "*";
constexpr std::string_view kSums = "+-";

CalcError ExpressionError() {
  return MakeError(CalcErrorCode::Expression);
}

/// `error`, which is about the token of the number `token`.
CalcError AboutToken(std::size_t token, CalcError error) {
  error.place = TextPlace{token, 1};
  return error;
}

bool IsOneOf(std::string_view symbols, const MatrixToken& token) {
  const auto* symbol = std::get_if<MatrixOperator>(&token);
  return symbol != nullptr && symbols.find(static_cast<char>(*symbol)) != symbols.npos;
}

bool Is(MatrixPunctuation mark, const MatrixToken& token) {
  const auto* held = std::get_if<MatrixPunctuation>(&token);
  return held != nullptr && *held == mark;
}

bool IsOperation(const MatrixToken& token) {
  return std::holds_alternative<MatrixOperator>(token) ||
         std::holds_alternative<MatrixFunction>(token);
}

/// Reduces tokens in their places; what is used up stays as UsedUp.
class MatrixReducer {
 public:
  MatrixReducer(MatrixTokens tokens, const Matrices& matrices, IntermediateMatrices& files)
      : tokens_(std::move(tokens)), matrices_(matrices), files_(files) {}
  ~MatrixReducer() {
    for (std::size_t i = 0; i < tokens_.size(); ++i) UseUp(i);
  }
  MatrixReducer(const MatrixReducer&) = delete;
  MatrixReducer& operator=(const MatrixReducer&) = delete;

  CalcResult<MatrixValue> Run() {
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
      if (!Is(MatrixPunctuation::Close, tokens_[i])) continue;
      if (auto failure = ReduceGroup(i)) return *std::move(failure);
    }
    if (auto failure = ReduceOperators({0, tokens_.size()})) return *std::move(failure);
    return TakeAnswer();
  }

 private:
  /// Tokens from `first` to before `end`.
  struct Range {
    std::size_t first;
    std::size_t end;
  };
  using Failure = std::optional<CalcError>;

  Failure ReduceGroup(std::size_t close) {
    std::size_t open = close;
    while (!Is(MatrixPunctuation::Open, tokens_[open])) {
      if (open == 0) return AboutToken(close, ExpressionError());
      --open;
    }
    const Range inside{open + 1, close};
    if (auto failure = ReduceOperators(inside)) return failure;
    UseUp(open);
    UseUp(close);
    const bool isCall = open > 0 && std::holds_alternative<MatrixFunction>(tokens_[open - 1]);
    if (!isCall) return std::nullopt;
    auto failure = ReduceFunction(open - 1, inside);
    if (failure) failure = AboutToken(open - 1, *std::move(failure));
    return failure;
  }

  Failure ReduceOperators(Range range) {
    if (auto failure = ReduceSigns(range)) return failure;
    for (const std::string_view symbols : {kPowers, kProducts, kSums}) {
      if (auto failure = ReduceLevel(range, symbols)) return failure;
    }
    return std::nullopt;
  }

  // From the right, so that of a chain of signs the one nearest to the value comes first.
  Failure ReduceSigns(Range range) {
    for (std::size_t i = range.end; i-- > range.first;) {
      if (!IsOneOf(kSums, tokens_[i]) || ValueBefore(i, range)) continue;
      const auto value = ValueAfter(i, range);
      if (!value) return AboutToken(i, ExpressionError());
      if (auto failure = ReduceSign(i, *value)) return failure;
    }
    return std::nullopt;
  }

  Failure ReduceSign(std::size_t sign, std::size_t value) {
    if (*std::get_if<MatrixOperator>(&tokens_[sign]) == MatrixOperator::Add) {
      UseUp(sign);
      return std::nullopt;
    }
    const auto operand = Load(value);
    if (!operand) return NoRoomForMatrix();
    UseUp(value);
    return Replace(sign, Negate(*operand));
  }

  Failure ReduceLevel(Range range, std::string_view symbols) {
    for (std::size_t i = range.first; i < range.end; ++i) {
      if (!IsOneOf(symbols, tokens_[i])) continue;
      const auto left = ValueBefore(i, range);
      const auto right = ValueAfter(i, range);
      if (!left || !right) return AboutToken(i, ExpressionError());
      if (auto failure = ReduceOperator(*left, i, *right)) {
        return AboutToken(i, *std::move(failure));
      }
    }
    return std::nullopt;
  }

  Failure ReduceOperator(std::size_t left, std::size_t symbol, std::size_t right) {
    const auto a = Load(left);
    const auto b = Load(right);
    if (!a || !b) return NoRoomForMatrix();
    auto result = CombineOperands(*a, *std::get_if<MatrixOperator>(&tokens_[symbol]), *b);
    UseUp(symbol);
    UseUp(right);
    return Replace(left, std::move(result));
  }

  Failure ReduceFunction(std::size_t function, Range inside) {
    const MatrixFunction code = *std::get_if<MatrixFunction>(&tokens_[function]);
    std::array<std::optional<MatrixOperand>, kMostMatrixArguments> operands;
    MatrixArguments arguments{};
    for (std::size_t i = 0; i < RowOf(code).argumentCount; ++i) {
      const std::size_t value = FirstValue(inside);
      if (value == inside.end) break;
      operands[i] = Load(value);
      if (!operands[i]) return NoRoomForMatrix();
      arguments[i] = MatrixIn(*operands[i]);
      // With the comma in front of it.
      while (inside.first <= value) UseUp(inside.first++);
    }
    auto result = ApplyMatrixFunction(code, arguments);
    if (!result) return std::move(result).error();
    return Replace(function, MatrixOrNumber(*std::move(result)));
  }

  std::optional<std::size_t> ValueAt(std::size_t index) const {
    return IsValue(tokens_[index]) ? std::optional(index) : std::nullopt;
  }
  // The nearest token of `range` that is not used up, if that is a value.
  std::optional<std::size_t> ValueBefore(std::size_t index, Range range) const {
    while (index-- > range.first) {
      if (!std::holds_alternative<UsedUp>(tokens_[index])) return ValueAt(index);
    }
    return std::nullopt;
  }
  std::optional<std::size_t> ValueAfter(std::size_t index, Range range) const {
    while (++index < range.end) {
      if (!std::holds_alternative<UsedUp>(tokens_[index])) return ValueAt(index);
    }
    return std::nullopt;
  }
  /// `range.end` if there is none.
  std::size_t FirstValue(Range range) const {
    while (range.first < range.end && !IsValue(tokens_[range.first])) ++range.first;
    return range.first;
  }

  /// What the value token at `index` stands for; nullopt if its file cannot be read.
  std::optional<MatrixOperand> Load(std::size_t index) const {
    const MatrixToken& token = tokens_[index];
    if (const auto* number = std::get_if<double>(&token)) return *number;
    if (const auto* slot = std::get_if<MatrixSlot>(&token)) {
      return &matrices_[static_cast<std::size_t>(slot->index)];
    }
    auto matrix = files_.Read(std::get_if<MatrixFileName>(&token)->name);
    if (!matrix) return std::nullopt;
    return *std::move(matrix);
  }

  /// Puts `result` into the place `index`, a matrix through a file if anything will read it.
  Failure Replace(std::size_t index, CalcResult<MatrixOrNumber> result) {
    UseUp(index);
    if (!result) return std::move(result).error();
    if (const double* number = std::get_if<double>(&*result)) {
      tokens_[index] = *number;
      return std::nullopt;
    }
    auto& matrix = *std::get_if<MatrixValue>(&*result);
    if (std::none_of(tokens_.begin(), tokens_.end(), IsOperation)) {
      tokens_[index] = MatrixSlot{kAnswerMatrix};
      answer_ = std::move(matrix);
      return std::nullopt;
    }
    MatrixFileName file{TemporaryMatrices::NameOf(static_cast<int>(index))};
    if (!files_.Write(file.name, matrix)) return NoRoomForMatrix();
    tokens_[index] = std::move(file);
    return std::nullopt;
  }

  void UseUp(std::size_t index) {
    if (const auto* file = std::get_if<MatrixFileName>(&tokens_[index])) files_.Remove(file->name);
    tokens_[index] = UsedUp{};
  }

  CalcResult<MatrixValue> TakeAnswer() {
    const Range all{0, tokens_.size()};
    const std::size_t only = FirstValue(all);
    if (only == all.end) return ExpressionError();
    const std::size_t spare = FirstValue({only + 1, all.end});
    if (spare != all.end) return AboutToken(spare, ExpressionError());
    if (answer_) return *std::move(answer_);
    auto operand = Load(only);
    if (!operand) return NoRoomForMatrix();
    if (auto* read = std::get_if<MatrixValue>(&*operand)) return std::move(*read);
    const MatrixValue* matrix = MatrixIn(*operand);
    if (matrix == nullptr) return ExpressionError();
    return *matrix;
  }

  MatrixTokens tokens_;
  const Matrices& matrices_;
  IntermediateMatrices& files_;
  std::optional<MatrixValue> answer_;  ///< the last operation's result
};

}  // namespace

CalcResult<MatrixValue> ReduceMatrixTokens(MatrixTokens tokens, const Matrices& matrices,
                                           IntermediateMatrices& files) {
  return MatrixReducer(std::move(tokens), matrices, files).Run();
}

}  // namespace kav
