// What a matrix expression is cut into, and what its reduction replaces in place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace kav {

/// One of the four matrices, by its index in Matrices.
struct MatrixSlot {
  int index;
};

/// An intermediate result, by the name of the temporary file that holds it.
struct MatrixFileName {
  std::string name;
};

/// The operators, by their characters.
enum class MatrixOperator : char { Add = '+', Subtract = '-', Multiply = '*', Power = '^' };

/// The functions, by their codes.
enum class MatrixFunction : std::int32_t {
  Inverse = 41,
  Transpose,
  LinearEquation,
  Determinant,
  Triangular,
};

enum class MatrixPunctuation : char { Open = '(', Close = ')', Comma = ',' };

/// What a token is once an operation has taken it.
struct UsedUp {};

/// One piece of a matrix expression. A number is a double.
using MatrixToken = std::variant<UsedUp, double, MatrixSlot, MatrixFileName, MatrixOperator,
                                 MatrixFunction, MatrixPunctuation>;

/// Whether `token` is a number or a matrix.
inline bool IsValue(const MatrixToken& token) {
  return std::holds_alternative<double>(token) || std::holds_alternative<MatrixSlot>(token) ||
         std::holds_alternative<MatrixFileName>(token);
}

/// In the order of the text; at most kMostMatrixTokens.
using MatrixTokens = std::vector<MatrixToken>;
inline constexpr std::size_t kMostMatrixTokens = 71;

}  // namespace kav
