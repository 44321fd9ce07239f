#include "support/random_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/number_text.h"
#include "support/plain_functions.h"
#include "support/plain_tokens.h"

namespace kav::test {
namespace {

constexpr std::array<std::string_view, 26> kDecimalValues{
    "0",   "1",   "2",   "3",    "5",     "7.5",   "30",  "45",        "90",
    "180", "270", "100", "149",  "150",   "171",   "200", "1e5",       "1e-3",
    ".",   "1e",  "pi",  "0.25", "1e200", "1e400", "33",  "4294967296"};
constexpr std::array<std::string_view, 11> kDecimalOperators{"+", "-", "*", "/",  "%", "^",
                                                             "!", "p", "c", "<<", ">>"};
constexpr std::array<std::string_view, 9> kBitOperators{"+",  "-",     "*",    "/",     "<<",
                                                        ">>", " AND ", " or ", " xnor "};
constexpr std::array<std::string_view, 22> kStrayPieces{"(",     ")",
                                                        "()",    ")(",
                                                        "e",     "x",
                                                        "y",     "z",
                                                        "foo",   "<",
                                                        "><",    "$",
                                                        ",",     "\xC3\xA4",
                                                        "1.2.3", "sin",
                                                        "not ",  " xor ",
                                                        " and ", "nd",
                                                        "SIN",   "123456789012345678901234567890"};

double Calculate(char symbol, double a, double b) {
  if (symbol == '+') return a + b;
  if (symbol == '-') return a - b;
  if (symbol == '*') return a * b;
  if (symbol == '/') return a / b;
  return symbol == '%' ? std::fmod(a, b) : std::pow(a, b);
}

}  // namespace

KnownExpression ExpressionWriter::Write(int depth) {
  if (depth == 0 || random_.Below(6) == 0) return Number();
  return random_.Below(3) == 0 ? Function(depth) : Operation(depth);
}

KnownExpression ExpressionWriter::Number() {
  const auto whole = static_cast<double>(random_.Below(1000));
  const double value = random_.Below(2) == 0 ? whole : whole * random_.Fraction();
  const std::string text = PrintRoundTrip(value);
  if (random_.Below(4) == 0) return {"(-" + text + ")", -value};
  return {text, value};
}

KnownExpression ExpressionWriter::Function(int depth) {
  const std::string name = random_.Of(kPlainFunctions);
  const KnownExpression inner = Write(depth - 1);
  if (!PlainIsInDomain(name, inner.value, unit_)) return inner;
  const double value = PlainApply(name, inner.value, unit_);
  if (!std::isfinite(value)) return inner;
  return {name + "(" + inner.text + ")", value};
}

KnownExpression ExpressionWriter::Operation(int depth) {
  const KnownExpression left = Write(depth - 1);
  const KnownExpression right = Write(depth - 1);
  const char symbol = std::string_view("+-*/%^")[random_.Below(6)];
  const double value = Calculate(symbol, left.value, right.value);
  if (!std::isfinite(value)) return left;
  return {"(" + left.text + symbol + right.text + ")", value};
}

std::string OrderedWriter::Write(std::size_t length, std::string_view variables) {
  std::string line = "[";
  int open = 0;
  while (line.size() <= length || !MayFollow(line, open > 0 ? ')' : ']')) {
    const char symbol = Pick(line, open > 0);
    open += symbol == '(' ? 1 : symbol == ')' ? -1 : 0;
    line += symbol;
  }
  for (; open > 0; --open) line += ')';
  for (; open < 0; ++open) line += "+(";
  std::string text;
  for (const char symbol : line.substr(1)) text += Spell(symbol, variables) + " ";
  return text;
}

/// Whether `next` suits all of `line` as far as neighbours go; '[' and ']' are the ends.
bool OrderedWriter::MayFollow(const std::string& line, char next) const {
  if (line.size() == 1) return next != ')' && next != ']';
  if (next == ')' && line.back() == '(') return false;
  return PlainMayStand(line[line.size() - 2], line.back(), next, base_);
}

bool OrderedWriter::HasFollower(char before, char symbol) const {
  constexpr std::string_view kFollowers = "V(+)F";
  return std::any_of(kFollowers.begin(), kFollowers.end(),
                     [&](char follower) { return PlainMayStand(before, symbol, follower, base_); });
}

char OrderedWriter::Pick(const std::string& line, bool isOpen) {
  const std::string_view all =
      base_ == BaseMode::Decimal ? "VVVVVVVVFFF(((+--*/^!%pc<>))))" : "VVVVVV(((+-*/<>aoxyn))))";
  while (true) {
    const char symbol = all[random_.Below(all.size())];
    if (symbol == ')' && !isOpen && random_.Below(50) != 0) continue;
    if (symbol == 'V' && line.back() == 'V' && random_.Below(10) != 0) continue;
    if (MayFollow(line, symbol) && HasFollower(line.back(), symbol)) return symbol;
  }
}

std::string OrderedWriter::Spell(char symbol, std::string_view variables) {
  switch (symbol) {
    case 'V':
      if (!variables.empty() && random_.Below(2) == 0) {
        return std::string(1, variables[random_.Below(variables.size())]);
      }
      return base_ == BaseMode::Decimal ? std::string(random_.Of(kDecimalValues))
                                        : std::to_string(random_.Below(2));
    case 'F':
      return random_.Of(kPlainFunctions);
    case '<':
      return "<<";
    case '>':
      return ">>";
    case 'a':
      return base_ == BaseMode::Hexadecimal ? "AND" : "and";
    case 'o':
      return "or";
    case 'x':
      return "xor";
    case 'y':
      return "xnor";
    case 'n':
      return "not";
    default:
      return {symbol};
  }
}

std::string PieceThrower::Throw(std::size_t most, std::string_view variables) {
  variables_ = variables;
  std::string text;
  open_ = 0;
  for (std::size_t left = 1 + random_.Below(most); left > 0; --left) {
    AppendOperand(text);
    if (left > 1) AppendOperator(text);
  }
  text.append(static_cast<std::size_t>(open_), ')');
  return text;
}

void PieceThrower::AppendOperand(std::string& text) {
  if (OneIn(80)) text += random_.Of(kStrayPieces);
  while (OneIn(4)) text += OneIn(3) ? '+' : '-';
  if (OneIn(6)) AppendPrefix(text);
  while (OneIn(5)) {
    text += '(';
    ++open_;
    if (OneIn(4)) text += OneIn(3) ? '+' : '-';
  }
  AppendValue(text);
  if (OneIn(12)) {
    text += ' ';
    AppendValue(text);
  }
  for (; open_ > 0 && OneIn(3); --open_) text += ')';
  if (base_ == BaseMode::Decimal && OneIn(12)) text += '!';
}

void PieceThrower::AppendPrefix(std::string& text) {
  if (base_ != BaseMode::Decimal) {
    text += " not ";
    return;
  }
  do {
    text += ' ';
    text += random_.Of(kPlainFunctions);
    if (OneIn(4)) text += '-';
  } while (OneIn(4));
  text += OneIn(2) ? "(" : " ";
  if (text.back() == '(') ++open_;
}

void PieceThrower::AppendValue(std::string& text) {
  if (!variables_.empty() && OneIn(2)) {
    text += variables_[random_.Below(variables_.size())];
    text += ' ';
  } else if (base_ == BaseMode::Decimal) {
    text += random_.Of(kDecimalValues);
  } else {
    const int radix = base_ == BaseMode::Hexadecimal ? 16 : base_ == BaseMode::Octal ? 8 : 2;
    const std::size_t shift = random_.Below(32);
    text += PrintInRadix(static_cast<std::uint32_t>(random_.Bits()) >> shift, radix);
  }
}

void PieceThrower::AppendOperator(std::string& text) {
  const std::string_view chosen =
      base_ == BaseMode::Decimal ? random_.Of(kDecimalOperators) : random_.Of(kBitOperators);
  text += base_ != BaseMode::Hexadecimal && chosen == " AND " ? " and " : chosen;
  if (base_ == BaseMode::Decimal && OneIn(16)) text += '/';
  if (base_ != BaseMode::Decimal && OneIn(12)) text += " xor ";
}

std::string AnyBytes(Random& random, std::size_t most) {
  static constexpr std::string_view kKnown = "0123456789.+-*/^!%()<>pcexyz sincotaAND";
  std::string text(random.Below(most + 1), ' ');
  for (char& c : text) {
    c = random.Below(8) == 0 ? static_cast<char>(random.Below(256))
                             : kKnown[random.Below(kKnown.size())];
  }
  return text;
}

}  // namespace kav::test
