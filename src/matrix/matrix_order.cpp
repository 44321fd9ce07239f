#include "matrix/matrix_order.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

namespace kav {
namespace {

// What a token is to its neighbours: the character of an operator or of punctuation, '0' for a
// value, 'F' for a function, '.' for nothing, before the first token and after the last.
constexpr char kValue = '0';
constexpr char kFunction = 'F';
constexpr char kNothing = '.';

/// The roles that may follow each of `roles`.
struct OrderRow {
  std::string_view roles;
  std::string_view followers;
};

constexpr std::array kOrder{
    OrderRow{".", "0F()+-."}, OrderRow{"0", "0)+-*^,."}, OrderRow{"F", "("},
    OrderRow{"(", "0F(+-."},  OrderRow{")", "F)+-*^,."}, OrderRow{"+-*^", "0F(+-"},
    OrderRow{",", "0("},
};

bool Holds(std::string_view roles, char role) {
  return roles.find(role) != roles.npos;
}

char RoleOf(const MatrixToken& token) {
  if (const auto* symbol = std::get_if<MatrixOperator>(&token)) return static_cast<char>(*symbol);
  if (const auto* mark = std::get_if<MatrixPunctuation>(&token)) return static_cast<char>(*mark);
  return IsValue(token) ? kValue : kFunction;
}

bool MayFollow(char left, char right) {
  return std::any_of(kOrder.begin(), kOrder.end(), [&](const OrderRow& row) {
    return Holds(row.roles, left) && Holds(row.followers, right);
  });
}

bool NeighboursMatch(const MatrixTokens& tokens) {
  char before = kNothing;
  for (const MatrixToken& token : tokens) {
    const char role = RoleOf(token);
    if (!MayFollow(before, role)) return false;
    before = role;
  }
  return MayFollow(before, kNothing);
}

std::ptrdiff_t CountOf(char role, const MatrixTokens& tokens) {
  return std::count_if(tokens.begin(), tokens.end(),
                       [&](const MatrixToken& token) { return RoleOf(token) == role; });
}

}  // namespace

std::optional<CalcError> CheckMatrixOrder(const MatrixTokens& tokens) {
  if (CountOf('(', tokens) != CountOf(')', tokens)) {
    return MakeError(CalcErrorCode::UnmatchedParentheses);
  }
  if (!NeighboursMatch(tokens)) return MakeError(CalcErrorCode::Expression);
  return std::nullopt;
}

}  // namespace kav
