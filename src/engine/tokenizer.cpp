#include "engine/tokenizer.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "engine/function_names.h"
#include "engine/token_reader.h"

namespace kav {
namespace {

constexpr double kPi = 3.141592653589793;

CalcError FreeError(std::string_view message) {
  return MakeError(CalcErrorCode::Free, message);
}

/// The variables of a formula and which of them it has used. Plain text has none, but may have an
/// answer.
class Variables {
 public:
  explicit Variables(std::optional<double> answer) : answer_(answer) {}
  explicit Variables(VariableType type, std::optional<double> answer = {})
      : count_(static_cast<std::size_t>(type) + 1), answer_(answer) {}

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
  /// What the word "ans" stands for.
  std::optional<double> LastAnswer() const { return answer_; }
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
  std::optional<double> answer_;
};

/// The characters of a number: digits, '.', 'e', and a sign right after an 'e'.
struct NumberText {
  std::string_view text;
  int points = 0;
  int exponentMarks = 0;
  bool hasPointInExponent = false;
};

NumberText TakeNumber(TokenReader& reader) {
  NumberText number;
  char before = 0;
  number.text = reader.TakeWhile([&](char c) {
    if (c == '.') {
      ++number.points;
      number.hasPointInExponent = number.exponentMarks != 0;
    } else if (c == 'e') {
      ++number.exponentMarks;
    } else if (!IsDigit(c) && (before != 'e' || (c != '+' && c != '-'))) {
      return false;
    }
    before = c;
    return true;
  });
  return number;
}

/// Whether `c` after the digits and the point of a number belongs to it.
bool GoesOnWith(char c) {
  return c == '.' || c == 'e';
}

std::optional<CalcError> ReadNumber(TokenReader& reader, TokenArray& tokens) {
  constexpr std::size_t kLongestNumber = 30;
  const std::string_view rest = reader.Rest();
  const char* const end = rest.data() + rest.size();
  const PlainNumber plain = ReadPlainNumber(rest.data(), end);
  // Most numbers are short and plain.
  if (plain.IsExact() && (plain.end == end || !GoesOnWith(*plain.end))) {
    reader.SkipTo(plain.end);
    tokens.Append(NumberToken(plain.Value()));
    return std::nullopt;
  }
  const NumberText number = TakeNumber(reader);
  if (number.exponentMarks > 1 || number.points > 1) return MakeError(CalcErrorCode::Expression);
  if (number.text.size() > kLongestNumber) return MakeError(CalcErrorCode::LengthLimit);
  if (number.hasPointInExponent) return MakeError(CalcErrorCode::Expression);
  tokens.Append(NumberToken(ReadLeadingNumber(number.text)));
  return std::nullopt;
}

std::optional<CalcError> ReadFunction(std::string_view word, TokenReader& reader,
                                      TokenArray& tokens) {
  const auto* found = std::find_if(kFunctionNames.begin(), kFunctionNames.end(),
                                   [&](const FunctionName& row) { return row.name == word; });
  if (found == kFunctionNames.end()) return MakeError(CalcErrorCode::NotSupported, word);
  reader.SkipBlanks();
  if (reader.AtEnd()) return MakeError(CalcErrorCode::NeedsArgument, word);
  tokens.Append(FunctionToken(found->code));
  return std::nullopt;
}

std::optional<CalcError> ReadWord(TokenReader& reader, TokenArray& tokens, Variables& variables) {
  const std::string_view word = reader.TakeWord();
  if (word == kPiWord) {
    tokens.Append(NumberToken(kPi));
    return std::nullopt;
  }
  if (word == kAnswerWord && variables.LastAnswer()) {
    tokens.Append(NumberToken(*variables.LastAnswer()));
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
  if (IsDigit(c) || c == '.') return ReadNumber(reader, tokens);
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

CalcResult<TokenArray> ReadAll(std::string_view text, Variables& variables,
                               int most = TokenArray::kCapacity) {
  const auto read = [&](TokenReader& reader, TokenArray& tokens) {
    return ReadToken(reader, tokens, variables);
  };
  return ReadTokens(text, read, most);
}

}  // namespace

CalcResult<TokenArray> Tokenize(std::string_view text, std::optional<double> answer) {
  Variables none(answer);
  return ReadAll(text, none);
}

CalcResult<TokenArray> TokenizeFormula(std::string_view text, VariableType type) {
  Variables variables(type);
  auto tokens = ReadAll(text, variables);
  auto missing = tokens ? variables.CheckAllUsed() : std::nullopt;
  if (missing) tokens = *std::move(missing);
  return tokens;
}

std::optional<TextPlace> PlaceOfToken(std::string_view text, int token) {
  // In a text without variables, or without an answer, none is met before `token`.
  Variables all(VariableType::XYZ, 0);
  return PlaceBetween(ReadAll(text, all, token), ReadAll(text, all, token + 1), text);
}

}  // namespace kav
