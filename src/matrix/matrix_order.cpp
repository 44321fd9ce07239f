#include "matrix/matrix_order.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kav {
namespace {

// What a token is to its neighbours: its symbol, '0' for a value, '.' for nothing, beyond either
// end.
constexpr char kValue = '0';
constexpr char kNothing = '.';

/// What may stand before and after a token of one of these roles.
struct OrderRow {
  std::string_view roles;
  std::string_view before;
  std::string_view after;
};

constexpr std::string_view kAll = "0F()+-*^,.";
constexpr std::array kOrder{
    OrderRow{"0", "0F(+-*^,.", "0)+-*^,."},
    OrderRow{"F", kAll, "("},
    OrderRow{"(", "0F(+-*^,.", "0F(+-*^,."},
    OrderRow{")", "0F)+-*^,.", "0F)+-*^,."},
    OrderRow{"+-", kAll, "0F(+-"},
    OrderRow{"*^", "0)", "0F(+-"},
    OrderRow{",", "0)", "0("},
    OrderRow{".", kAll, kAll},
};

bool Holds(std::string_view roles, char role) {
  return roles.find(role) != roles.npos;
}

const OrderRow& RowOf(char role) {
  return *std::find_if(kOrder.begin(), kOrder.end(),
                       [&](const OrderRow& row) { return Holds(row.roles, role); });
}

char RoleOf(const MatrixToken& token) {
  return token.IsValue() ? kValue : token.symbol;
}

bool MayFollow(char left, char right) {
  return Holds(RowOf(left).after, right) && Holds(RowOf(right).before, left);
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

std::ptrdiff_t CountOf(char symbol, const MatrixTokens& tokens) {
  return std::count_if(tokens.begin(), tokens.end(),
                       [&](const MatrixToken& token) { return token.symbol == symbol; });
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
