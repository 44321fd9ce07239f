// What a matrix expression is cut into, and what its reduction uses up in place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kav {

/// The functions by their codes; a token that is no function has code 0.
enum class MatrixFunction : std::int32_t {
  None = 0,
  Inverse = 41,
  Transpose,
  LinearEquation,
  Determinant,
  Triangular,
};

/// One piece of a matrix expression.
struct MatrixToken {
  enum class Kind : std::int32_t { None = 0, Number = 1, Matrix = 2 };
  enum class Class : std::int32_t { None = 0, Operator = 10, Function = 40, Parenthesis = 50 };

  char symbol = 0;  ///< the character of an operator or of punctuation, 'F' for a function
  Kind kind = Kind::None;
  MatrixFunction functionCode = MatrixFunction::None;
  Class tokenClass = Class::None;
  double value = 0;      ///< of a number; for a matrix that is in no file its slot, 0 to 3
  std::string fileName;  ///< of an intermediate result; empty for a slot

  static MatrixToken Number(double value) {
    MatrixToken token;
    token.kind = Kind::Number;
    token.value = value;
    return token;
  }
  static MatrixToken Matrix(int slot, std::string fileName = {}) {
    MatrixToken token;
    token.kind = Kind::Matrix;
    token.value = slot;
    token.fileName = std::move(fileName);
    return token;
  }
  static MatrixToken Symbol(char symbol, Class tokenClass) {
    MatrixToken token;
    token.symbol = symbol;
    token.tokenClass = tokenClass;
    return token;
  }
  static MatrixToken Function(MatrixFunction code) {
    MatrixToken token = Symbol('F', Class::Function);
    token.functionCode = code;
    return token;
  }

  bool IsValue() const { return kind != Kind::None; }
  bool IsOperator() const { return tokenClass == Class::Operator; }
  /// Neither a value nor a symbol is left.
  bool IsUsedUp() const { return symbol == 0 && !IsValue(); }
};

/// In the order of the text; at most kMostMatrixTokens.
using MatrixTokens = std::vector<MatrixToken>;
inline constexpr std::size_t kMostMatrixTokens = 71;

}  // namespace kav
