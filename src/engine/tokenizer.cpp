#include "engine/tokenizer.h"

#include <algorithm>
#include <array>

#include "common/number_text.h"
#include "engine/token_reader.h"

namespace kav {
namespace {

constexpr double kPi = 3.141592653589793;

constexpr std::array kFunctions{
    FunctionName{"sin", FunctionCode::Sin},   FunctionName{"cos", FunctionCode::Cos},
    FunctionName{"tan", FunctionCode::Tan},   FunctionName{"asin", FunctionCode::Asin},
    FunctionName{"acos", FunctionCode::Acos}, FunctionName{"atan", FunctionCode::Atan},
    FunctionName{"sinh", FunctionCode::Sinh}, FunctionName{"cosh", FunctionCode::Cosh},
    FunctionName{"tanh", FunctionCode::Tanh}, FunctionName{"log", FunctionCode::Log},
    FunctionName{"ln", FunctionCode::Ln},     FunctionName{"exp", FunctionCode::Exp},
    FunctionName{"sqrt", FunctionCode::Sqrt}, FunctionName{"abs", FunctionCode::Abs},
    FunctionName{"int", FunctionCode::Int},   FunctionName{"frac", FunctionCode::Frac},
};

CalcError FreeError(std::string_view message) {
  return MakeError(CalcErrorCode::Free, message);
}

/// The variables of a formula and which of them it has used. Plain text has none.
class Variables {
 public:
  Variables() = default;
  explicit Variables(VariableType type) : count_(static_cast<std::size_t>(type) + 1) {}

  bool IsVariable(std::string_view word) const {
    return count_ != 0 && word.size() == 1 && word.front() >= 'x' && word.front() <= 'z';
  }
  std::optional<CalcError> Use(char letter) {
    const auto index = static_cast<std::size_t>(letter - 'x');
    if (index >= count_) {
      return FreeError(letter == 'y' ? "Can not use variable Y" : "Can not use variable Z");
    }
    used_[index] = true;
    return std::nullopt;
  }
  std::optional<CalcError> CheckAllUsed() const {
    constexpr std::array<std::string_view, 3> kMissing{"Argument error : Missing variable X",
                                                       "Argument error : Missing variable Y",
                                                       "Argument error : Missing variable Z"};
    for (std::size_t i = 0; i < count_; ++i) {
      if (!used_[i]) return FreeError(kMissing[i]);
    }
    return std::nullopt;
  }

 private:
  std::size_t count_ = 0;
  std::array<bool, 3> used_{};
};

/// The characters of a number: digits, '.', 'e', and a sign right behind an 'e'. `digits` holds
/// those before any 'e' as one integer, for as long as they fit.
struct NumberText {
  std::string_view text;
  std::uint64_t digits = 0;
  std::size_t decimals = 0;
  std::size_t points = 0;
  int exponentMarks = 0;
  bool hasPointInExponent = false;
};

NumberText TakeNumber(TokenReader& reader) {
  NumberText number;
  char before = 0;
  number.text = reader.TakeWhile([&](char c) {
    if (IsDecimalDigit(c)) {
      number.digits = number.digits * 10 + static_cast<std::uint64_t>(c - '0');
      number.decimals += number.points;
    } else if (c == '.') {
      ++number.points;
      number.hasPointInExponent = number.exponentMarks != 0;
    } else if (c == 'e') {
      ++number.exponentMarks;
    } else if (before != 'e' || (c != '+' && c != '-')) {
      return false;
    }
    before = c;
    return true;
  });
  return number;
}

std::optional<CalcError> ReadNumber(TokenReader& reader, TokenArray& tokens) {
  constexpr std::size_t kLongestNumber = 30;
  const NumberText number = TakeNumber(reader);
  if (number.exponentMarks > 1 || number.points > 1) return MakeError(CalcErrorCode::Expression);
  if (number.text.size() > kLongestNumber) return MakeError(CalcErrorCode::LengthLimit);
  if (number.hasPointInExponent) return MakeError(CalcErrorCode::Expression);
  const bool isShort = number.exponentMarks == 0 && number.text.size() <= kExactDigits;
  tokens.Append(NumberToken(isShort ? DecimalValue(number.digits, number.decimals)
                                    : ReadLeadingNumber(number.text)));
  return std::nullopt;
}

std::optional<CalcError> ReadFunction(std::string_view word, TokenReader& reader,
                                      TokenArray& tokens) {
  const auto* found = std::find_if(kFunctions.begin(), kFunctions.end(),
                                   [&](const FunctionName& row) { return row.name == word; });
  if (found == kFunctions.end()) return MakeError(CalcErrorCode::NotSupported, word);
  reader.SkipBlanks();
  if (reader.AtEnd()) return MakeError(CalcErrorCode::NeedsArgument, word);
  tokens.Append(FunctionToken(found->code));
  return std::nullopt;
}

std::optional<CalcError> ReadWord(TokenReader& reader, TokenArray& tokens, Variables& variables) {
  const std::string_view word = reader.TakeWord();
  if (word == "pi") {
    tokens.Append(NumberToken(kPi));
    return std::nullopt;
  }
  if (word == "p" || word == "c") {
    tokens.Append(OperatorToken(word.front()));
    return std::nullopt;
  }
  if (variables.IsVariable(word)) {
    tokens.Append(VariableToken(word.front()));
    return variables.Use(word.front());
  }
  return ReadFunction(word, reader, tokens);
}

std::optional<CalcError> ReadToken(TokenReader& reader, TokenArray& tokens, Variables& variables) {
  const char c = reader.Peek();
  if (IsDecimalDigit(c) || c == '.') return ReadNumber(reader, tokens);
  if (IsLetter(c)) return ReadWord(reader, tokens, variables);
  switch (c) {
    case '(':
    case ')':
      tokens.Append(ParenthesisToken(c));
      break;
    case '^':
    case '+':
    case '-':
    case '*':
    case '/':
    case '!':
    case '%':
      tokens.Append(OperatorToken(c));
      break;
    case '<':
    case '>':
      return ReadShift(reader, tokens);
    default:
      return UnsupportedCharacter(reader);
  }
  reader.Skip();
  return std::nullopt;
}

std::optional<CalcError> ReadAll(std::string_view text, TokenArray& tokens, Variables& variables) {
  TokenReader reader(text);
  for (reader.SkipBlanks(); !reader.AtEnd(); reader.SkipBlanks()) {
    if (tokens.IsFull()) return MakeError(CalcErrorCode::LengthLimit);
    if (auto error = ReadToken(reader, tokens, variables)) return error;
  }
  return std::nullopt;
}

}  // namespace

std::span<const FunctionName> FunctionNames() {
  return kFunctions;
}

std::optional<CalcError> Tokenize(std::string_view text, TokenArray& tokens) {
  Variables none;
  return ReadAll(text, tokens, none);
}

std::optional<CalcError> TokenizeFormula(std::string_view text, VariableType type,
                                         TokenArray& tokens) {
  Variables variables(type);
  if (auto error = ReadAll(text, tokens, variables)) return error;
  return variables.CheckAllUsed();
}

}  // namespace kav
