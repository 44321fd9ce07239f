#include "matrix/matrix_reducer.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <variant>

#include "matrix/matrix_texts.h"

namespace kav {
namespace {

// The operators by what is done first.
constexpr std::string_view kPowers = "^";
constexpr std::string_view kProducts = "*";
constexpr std::string_view kSums = "+-";

CalcError ExpressionError() {
  return MakeError(CalcErrorCode::Expression);
}

/// An intermediate result that cannot be written, or is not there any more.
CalcError NoRoom() {
  return MakeError(CalcErrorCode::Free, kNoRoomForMatrix);
}

bool IsOneOf(std::string_view symbols, const MatrixToken& token) {
  return token.IsOperator() && symbols.find(token.symbol) != symbols.npos;
}

}  // namespace

MatrixReducer::~MatrixReducer() {
  for (std::size_t i = 0; i < tokens_.size(); ++i) UseUp(i);
}

CalcResult<MatrixValue> MatrixReducer::Run() {
  for (std::size_t i = 0; i < tokens_.size(); ++i) {
    if (tokens_[i].symbol != ')') continue;
    if (auto failure = ReduceGroup(i)) return *std::move(failure);
  }
  if (auto failure = ReduceOperators({0, tokens_.size()})) return *std::move(failure);
  return TakeAnswer();
}

MatrixReducer::Failure MatrixReducer::ReduceGroup(std::size_t close) {
  std::size_t open = close;
  while (tokens_[open].symbol != '(') {
    if (open == 0) return ExpressionError();
    --open;
  }
  const Range inside{open + 1, close};
  if (auto failure = ReduceOperators(inside)) return failure;
  const bool isCall = open > 0 && tokens_[open - 1].tokenClass == MatrixToken::Class::Function;
  UseUp(open);
  UseUp(close);
  return isCall ? ReduceFunction(open - 1, inside) : std::nullopt;
}

MatrixReducer::Failure MatrixReducer::ReduceOperators(Range range) {
  if (auto failure = ReduceSigns(range)) return failure;
  for (const std::string_view symbols : {kPowers, kProducts, kSums}) {
    if (auto failure = ReduceLevel(range, symbols)) return failure;
  }
  return std::nullopt;
}

// From the right, so that of a chain of signs the one nearest to the value comes first.
MatrixReducer::Failure MatrixReducer::ReduceSigns(Range range) {
  for (std::size_t i = range.end; i-- > range.first;) {
    if (!IsOneOf(kSums, tokens_[i]) || IsValueAt(LiveBefore(i, range), range)) continue;
    const std::size_t value = LiveFrom(i + 1, range);
    if (!IsValueAt(value, range)) return ExpressionError();
    if (auto failure = ReduceSign(i, value)) return failure;
  }
  return std::nullopt;
}

MatrixReducer::Failure MatrixReducer::ReduceSign(std::size_t sign, std::size_t value) {
  if (tokens_[sign].symbol == '+') {
    UseUp(sign);
    return std::nullopt;
  }
  std::optional<MatrixValue> room;
  const auto operand = Load(value, room);
  if (!operand) return operand.error();
  UseUp(value);
  return Replace(sign, Negate(*operand));
}

MatrixReducer::Failure MatrixReducer::ReduceLevel(Range range, std::string_view symbols) {
  for (std::size_t i = range.first; i < range.end; ++i) {
    if (!IsOneOf(symbols, tokens_[i])) continue;
    const std::size_t left = LiveBefore(i, range);
    const std::size_t right = LiveFrom(i + 1, range);
    if (!IsValueAt(left, range) || !IsValueAt(right, range)) return ExpressionError();
    if (auto failure = ReduceOperator(left, i, right)) return failure;
  }
  return std::nullopt;
}

MatrixReducer::Failure MatrixReducer::ReduceOperator(std::size_t left, std::size_t symbol,
                                                     std::size_t right) {
  std::optional<MatrixValue> leftRoom;
  std::optional<MatrixValue> rightRoom;
  const auto leftOperand = Load(left, leftRoom);
  if (!leftOperand) return leftOperand.error();
  const auto rightOperand = Load(right, rightRoom);
  if (!rightOperand) return rightOperand.error();
  auto result = CombineOperands(*leftOperand, tokens_[symbol].symbol, *rightOperand);
  UseUp(symbol);
  UseUp(right);
  return Replace(left, std::move(result));
}

MatrixReducer::Failure MatrixReducer::ReduceFunction(std::size_t function, Range arguments) {
  const MatrixFunction code = tokens_[function].functionCode;
  std::array<std::optional<MatrixValue>, kMostMatrixArguments> rooms;
  std::array<MatrixOperand, kMostMatrixArguments> operands;
  std::size_t count = 0;
  std::size_t end = arguments.first;
  for (; count < ArgumentCount(code); ++count) {
    const std::size_t value = ValueFrom(end, arguments);
    if (value == arguments.end) break;
    const auto loaded = Load(value, rooms[count]);
    if (!loaded) return loaded.error();
    operands[count] = *loaded;
    end = value + 1;
  }
  for (std::size_t i = arguments.first; i < end; ++i) UseUp(i);
  return Replace(function, ApplyMatrixFunction(code, std::span(operands).first(count)));
}

std::size_t MatrixReducer::LiveBefore(std::size_t index, Range range) const {
  while (index-- > range.first) {
    if (!tokens_[index].IsUsedUp()) return index;
  }
  return range.end;
}

std::size_t MatrixReducer::LiveFrom(std::size_t index, Range range) const {
  while (index < range.end && tokens_[index].IsUsedUp()) ++index;
  return index;
}

std::size_t MatrixReducer::ValueFrom(std::size_t index, Range range) const {
  while (index < range.end && !tokens_[index].IsValue()) ++index;
  return index;
}

bool MatrixReducer::IsValueAt(std::size_t index, Range range) const {
  return index != range.end && tokens_[index].IsValue();
}

CalcResult<MatrixOperand> MatrixReducer::Load(std::size_t index,
                                              std::optional<MatrixValue>& room) const {
  const MatrixToken& token = tokens_[index];
  if (token.kind == MatrixToken::Kind::Number) return MatrixOperand{token.value, nullptr};
  if (token.fileName.empty()) {
    return MatrixOperand{0, &matrices_[static_cast<std::size_t>(token.value)]};
  }
  room = files_.Read(token.fileName);
  if (!room) return NoRoom();
  return MatrixOperand{0, &*room};
}

MatrixReducer::Failure MatrixReducer::Replace(std::size_t index,
                                              CalcResult<MatrixOrNumber> result) {
  UseUp(index);
  if (!result) return std::move(result).error();
  if (const double* number = std::get_if<double>(&*result)) {
    tokens_[index] = MatrixToken::Number(*number);
    return std::nullopt;
  }
  auto& matrix = *std::get_if<MatrixValue>(&*result);
  if (!IsAnyOperationLeft()) {
    tokens_[index] = MatrixToken::Matrix(kAnswerMatrix);
    answer_ = std::move(matrix);
    return std::nullopt;
  }
  std::string name = TemporaryMatrices::NameOf(static_cast<int>(index));
  if (!files_.Write(name, matrix)) return NoRoom();
  tokens_[index] = MatrixToken::Matrix(kAnswerMatrix, std::move(name));
  return std::nullopt;
}

void MatrixReducer::UseUp(std::size_t index) {
  if (!tokens_[index].fileName.empty()) files_.Remove(tokens_[index].fileName);
  tokens_[index] = {};
}

bool MatrixReducer::IsAnyOperationLeft() const {
  return std::any_of(tokens_.begin(), tokens_.end(), [](const MatrixToken& token) {
    return token.IsOperator() || token.tokenClass == MatrixToken::Class::Function;
  });
}

CalcResult<MatrixValue> MatrixReducer::TakeAnswer() {
  const Range all{0, tokens_.size()};
  const std::size_t only = ValueFrom(0, all);
  if (only == all.end || ValueFrom(only + 1, all) != all.end) return ExpressionError();
  if (tokens_[only].kind != MatrixToken::Kind::Matrix) return ExpressionError();
  if (answer_) return *std::move(answer_);
  std::optional<MatrixValue> room;
  const auto operand = Load(only, room);
  if (!operand) return operand.error();
  if (room) return *std::move(room);
  return *operand->matrix;
}

}  // namespace kav
