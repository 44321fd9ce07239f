// The engine's fixed array of tokens: what a text is cut into and what reduction consumes in place.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace kav {

/// What a token is, by fixed numbers; 0 stands for operands.
enum class TokenKind : std::int32_t { Operand = 0, Operator = 10, Function = 40, Parenthesis = 50 };

/// The functions by their codes; a token that is no function has code 0.
enum class FunctionCode : std::int32_t {
  None = 0,
  Sin = 41,
  Cos,
  Tan,
  Asin,
  Acos,
  Atan,
  Log,
  Ln,
  Exp,
  Sinh,
  Cosh,
  Tanh,
  Sqrt,
  Abs,
  Int,
  Frac,
};

/// The place of a symbol (ASCII) in a table of 128.
constexpr std::size_t SymbolIndex(char symbol) {
  return static_cast<unsigned char>(symbol) & 127U;
}

/// One token. `symbol` is an operator's character ('p' permutation, 'c' combination, '<' and '>'
/// the shifts, and in the integer bases 'a' and, 'o' or, 'x' xor, 'y' xnor, 'n' not), '(' or ')',
/// 'F' for a function, the letter of a variable, and 0 for a number and for all that is consumed.
struct CalcToken {
  char symbol;
  std::int32_t isNumber;  ///< 1 for an operand that is not consumed yet, else 0
  FunctionCode functionCode;
  TokenKind kind;
  double value;  ///< an operand's value, else 0
};

/// Tokens in the order of the text. There is room for 150 and one more: the limit is tested before
/// a token is read.
class TokenArray {
 public:
  static constexpr int kLimit = 150;
  static constexpr int kCapacity = kLimit + 1;

  TokenArray() = default;
  TokenArray(const TokenArray& other) { *this = other; }
  TokenArray& operator=(const TokenArray& other) {
    std::copy_n(other.slots_.begin(), other.count_, slots_.begin());
    count_ = other.count_;
    return *this;
  }
  ~TokenArray() = default;

  bool IsFull() const { return count_ > kLimit; }
  int Count() const { return count_; }

  /// Must not be called while IsFull().
  void Append(const CalcToken& token) { slots_[static_cast<std::size_t>(count_++)] = token; }

  CalcToken& operator[](int index) { return slots_[static_cast<std::size_t>(index)]; }
  const CalcToken& operator[](int index) const { return slots_[static_cast<std::size_t>(index)]; }

 private:
  std::array<CalcToken, kCapacity> slots_;  // Up to count_; to clear or copy all 5 KB would cost.
  int count_ = 0;
};

constexpr CalcToken NumberToken(double value) {
  return {0, 1, FunctionCode::None, TokenKind::Operand, value};
}
constexpr CalcToken VariableToken(char letter) {
  return {letter, 1, FunctionCode::None, TokenKind::Operand, 0};
}
constexpr CalcToken OperatorToken(char symbol) {
  return {symbol, 0, FunctionCode::None, TokenKind::Operator, 0};
}
constexpr CalcToken ParenthesisToken(char symbol) {
  return {symbol, 0, FunctionCode::None, TokenKind::Parenthesis, 0};
}
constexpr CalcToken FunctionToken(FunctionCode code) {
  return {'F', 0, code, TokenKind::Function, 0};
}

}  // namespace kav
