#include "engine/base_tokenizer.h"

#include <array>
#include <optional>

#include "common/ascii.h"
#include "engine/function_names.h"
#include "engine/token_reader.h"

namespace kav {
namespace {

struct BaseRules {
  int radix;
  std::size_t mostDigits;
  std::string_view tooLong;
};

BaseRules RulesOf(BaseMode base) {
  if (base == BaseMode::Binary) return {2, 32, "Out of range(BIN MODE)"};
  if (base == BaseMode::Octal) return {8, 11, "Out of range(OCT MODE)"};
  return {16, 8, "Out of range(HEX MODE)"};
}

struct WordOperator {
  std::string_view word;
  char symbol;
};
constexpr std::array kWordOperators{
    WordOperator{"and", 'a'},  WordOperator{"or", 'o'},  WordOperator{"xor", 'x'},
    WordOperator{"xnor", 'y'}, WordOperator{"not", 'n'},
};

/// The symbol of the operator `word`; nullopt if it is none.
std::optional<char> SymbolOf(std::string_view word, BaseMode base) {
  // In hexadecimal a lower-case "and" reads as the number A and a word "nd", so the operator comes
  // in capitals there.
  if (base == BaseMode::Hexadecimal && word == "AND") return 'a';
  for (const WordOperator& row : kWordOperators) {
    if (row.word == word) return row.symbol;
  }
  return std::nullopt;
}

std::optional<CalcError> ReadNumber(TokenReader& reader, const BaseRules& rules,
                                    TokenArray& tokens) {
  const auto digits = reader.TakeWhile([&](char c) { return DigitValue(c) < rules.radix; });
  if (digits.size() > rules.mostDigits) return MakeError(CalcErrorCode::Free, rules.tooLong);
  double value = 0;
  for (const char c : digits) value = value * rules.radix + DigitValue(c);
  tokens.Append(NumberToken(value));
  return std::nullopt;
}

std::optional<CalcError> ReadWord(TokenReader& reader, BaseMode base, TokenArray& tokens) {
  const std::string_view word = reader.TakeWord();
  if (reader.AtEnd()) return MakeError(CalcErrorCode::Expression);
  const auto symbol = SymbolOf(word, base);
  if (!symbol) return MakeError(CalcErrorCode::NotSupported, word);
  tokens.Append(OperatorToken(*symbol));
  return std::nullopt;
}

/// Whether the word "ans" stands next. Its first letter is a digit in hexadecimal.
bool IsAnswerNext(const TokenReader& reader) {
  TokenReader ahead = reader;
  return ahead.TakeWord() == kAnswerWord;
}

std::optional<CalcError> ReadToken(TokenReader& reader, BaseMode base, const BaseRules& rules,
                                   std::optional<double> answer, TokenArray& tokens) {
  const char c = reader.Peek();
  if (answer && IsAnswerNext(reader)) {
    tokens.Append(NumberToken(*answer));
    reader.TakeWord();
    return std::nullopt;
  }
  if (DigitValue(c) < rules.radix) return ReadNumber(reader, rules, tokens);
  if (IsLetter(c)) return ReadWord(reader, base, tokens);
  switch (c) {
    case '(':
    case ')':
      tokens.Append(ParenthesisToken(c));
      break;
    case '+':
    case '-':
    case '*':
    case '/':
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

CalcResult<TokenArray> ReadAll(std::string_view text, BaseMode base, std::optional<double> answer,
                               int most = TokenArray::kCapacity) {
  const BaseRules rules = RulesOf(base);
  const auto read = [&](TokenReader& reader, TokenArray& tokens) {
    return ReadToken(reader, base, rules, answer, tokens);
  };
  return ReadTokens(text, read, most);
}

}  // namespace

CalcResult<TokenArray> TokenizeInBase(std::string_view text, BaseMode base,
                                      std::optional<double> answer) {
  return ReadAll(text, base, answer);
}

std::optional<TextPlace> PlaceOfTokenInBase(std::string_view text, int token, BaseMode base) {
  // In a text without an answer none is met before `token`.
  return PlaceBetween(ReadAll(text, base, 0, token), ReadAll(text, base, 0, token + 1), text);
}

}  // namespace kav
