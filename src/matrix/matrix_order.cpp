#include "matrix/matrix_order.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>
#include <vector>

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

/// The first token that cannot stand behind the one before it: the count of tokens if the last
/// cannot be the last, nullopt if all can stand.
std::optional<std::size_t> FirstMisfit(const MatrixTokens& tokens) {
  char before = kNothing;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const char role = RoleOf(tokens[i]);
    if (!MayFollow(before, role)) return i;
    before = role;
  }
  return MayFollow(before, kNothing) ? std::nullopt : std::optional(tokens.size());
}

/// The ")" that closes nothing or else the first "(" that nothing closes; nullopt if all match.
std::optional<std::size_t> UnmatchedParenthesis(const MatrixTokens& tokens) {
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const char role = RoleOf(tokens[i]);
    if (role == '(') open.push_back(i);
    if (role != ')') continue;
    if (open.empty()) return i;
    open.pop_back();
  }
  return open.empty() ? std::nullopt : std::optional(open.front());
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
  if (FirstMisfit(tokens)) return MakeError(CalcErrorCode::Expression);
  return std::nullopt;
}

std::size_t FaultyMatrixToken(const MatrixTokens& tokens) {
  if (CountOf('(', tokens) != CountOf(')', tokens)) return *UnmatchedParenthesis(tokens);
  const std::size_t misfit = FirstMisfit(tokens).value_or(0);
  // What ends too early is at fault, not what ends it.
  const bool isEnd = misfit == tokens.size() || RoleOf(tokens[misfit]) == ')';
  const bool isCutShort =
      isEnd && misfit > 0 && std::holds_alternative<MatrixOperator>(tokens[misfit - 1]);
  return isCutShort ? misfit - 1 : misfit;
}

}  // namespace kav
