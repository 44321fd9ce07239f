#include "engine/token_order.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kav {
namespace {

// What a token is to its neighbours, one character each: the symbol of an operator or parenthesis,
// 'F' for a function, '0' for a number or variable, '.' for what lies beyond either end.
constexpr std::string_view kRoles = "0F()+-*/^!%pc<>aoxyn.";
constexpr char kNumber = '0';
constexpr char kNothing = '.';

constexpr int kNone = -1;

using RoleSet = std::uint32_t;

constexpr std::uint8_t NumberOf(char role) {
  return static_cast<std::uint8_t>(kRoles.find(role));
}

constexpr RoleSet Only(std::string_view roles) {
  RoleSet set = 0;
  for (const char role : roles) set |= RoleSet{1} << NumberOf(role);
  return set;
}
constexpr RoleSet AllBut(std::string_view roles) {
  return ~Only(roles);
}
constexpr RoleSet kAll = AllBut("");

/// What may stand before and after a token of one of these roles.
struct OrderRow {
  std::string_view roles;
  RoleSet before;
  RoleSet after;
};

// There is no multiplication without a sign. Functions may stand anywhere: what is wrong about them
// shows in their neighbours. A '/' may follow another operator, so that 4*/2 passes here and fails
// when it is reduced.
constexpr OrderRow kDecimalOrder[] = {
    {"0", AllBut(")"), AllBut("(F")},
    {"(", AllBut(")"), AllBut(")")},
    {")", AllBut("("), AllBut("(")},
    {"F", kAll, kAll},
    {"+-", kAll, Only("0F(+-")},
    {"!", Only("0)"), Only(".)+-*/^%pc<>")},
    {"/", Only("0)!*/^%pc<>"), Only("0(+-F/")},
    {"*^%pc<>", Only("0)!"), Only("0(+-F/")},
};
constexpr OrderRow kBaseOrder[] = {
    {"0", AllBut(")"), AllBut("(")},     {"(", AllBut(")"), AllBut(")")},
    {")", AllBut("("), AllBut("(")},     {"+-", kAll, Only("0n(+-")},
    {"aoxy", Only("0)"), Only("0(n")},   {"n", Only(".*/+-<>(aoxy"), Only("0(")},
    {"*/<>", Only("0)"), Only("0(+-n")},
};

/// The rows of a family of bases, found by the number of the role.
struct OrderTable {
  std::array<RoleSet, kRoles.size()> before{};
  std::array<RoleSet, kRoles.size()> after{};

  template <std::size_t kRows>
  explicit constexpr OrderTable(const OrderRow (&rows)[kRows]) {
    for (const OrderRow& row : rows) {
      for (const char role : row.roles) {
        before[NumberOf(role)] = row.before;
        after[NumberOf(role)] = row.after;
      }
    }
  }
};
constexpr OrderTable kDecimal(kDecimalOrder);
constexpr OrderTable kInteger(kBaseOrder);

constexpr std::array<std::uint8_t, 128> kNumberOfSymbol = [] {
  std::array<std::uint8_t, 128> numbers{};
  for (const char role : kRoles) numbers[SymbolIndex(role)] = NumberOf(role);
  return numbers;
}();

std::uint8_t RoleOf(const CalcToken& token) {
  return token.isNumber != 0 ? NumberOf(kNumber) : kNumberOfSymbol[SymbolIndex(token.symbol)];
}

bool Contains(RoleSet set, std::uint8_t role) {
  return ((set >> role) & 1U) != 0;
}

bool ParenthesesMatch(const TokenArray& tokens) {
  int surplus = 0;
  for (int i = 0; i < tokens.Count(); ++i) {
    if (tokens[i].symbol == '(') ++surplus;
    if (tokens[i].symbol == ')') --surplus;
  }
  return surplus == 0;
}

/// The ')' that closes nothing or else the first '(' that nothing closes; kNone if all match.
int UnmatchedParenthesis(const TokenArray& tokens) {
  int surplus = 0;
  for (int i = 0; i < tokens.Count(); ++i) {
    if (tokens[i].symbol == '(') ++surplus;
    if (tokens[i].symbol == ')' && --surplus < 0) return i;
  }
  int unmatched = kNone;
  int closing = 0;
  for (int i = tokens.Count() - 1; i >= 0; --i) {
    if (tokens[i].symbol == ')') ++closing;
    if (tokens[i].symbol == '(' && --closing < 0) {
      unmatched = i;
      closing = 0;
    }
  }
  return unmatched;
}

/// The first token that cannot stand behind the one before it: the count of tokens if the last
/// cannot be the last, kNone if all can stand.
int FirstMisfit(const TokenArray& tokens, const OrderTable& order) {
  constexpr std::uint8_t kBeyond = NumberOf(kNothing);
  RoleSet mayFollow = kAll;
  std::uint8_t before = kBeyond;
  for (int i = 0; i < tokens.Count(); ++i) {
    const std::uint8_t role = RoleOf(tokens[i]);
    if (!Contains(mayFollow, role) || !Contains(order.before[role], before)) return i;
    mayFollow = order.after[role];
    before = role;
  }
  return Contains(mayFollow, kBeyond) ? kNone : tokens.Count();
}

}  // namespace

std::optional<CalcError> CheckOrder(const TokenArray& tokens, BaseMode base) {
  if (FaultyToken(tokens, base) == kNone) return std::nullopt;
  return MakeError(ParenthesesMatch(tokens) ? CalcErrorCode::Expression
                                            : CalcErrorCode::UnmatchedParentheses);
}

int FaultyToken(const TokenArray& tokens, BaseMode base) {
  if (!ParenthesesMatch(tokens)) return UnmatchedParenthesis(tokens);
  const int misfit = FirstMisfit(tokens, base == BaseMode::Decimal ? kDecimal : kInteger);
  if (misfit == kNone) return kNone;
  // What ends too early is at fault, not what ends it.
  const bool isEnd = misfit == tokens.Count() || tokens[misfit].symbol == ')';
  const bool isCutShort = isEnd && misfit > 0 && tokens[misfit - 1].kind == TokenKind::Operator;
  return isCutShort ? misfit - 1 : misfit;
}

}  // namespace kav
