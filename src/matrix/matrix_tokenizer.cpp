#include "matrix/matrix_tokenizer.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "common/number_text.h"
#include "engine/function_names.h"
#include "engine/token_reader.h"
#include "matrix/matrix_functions.h"
#include "matrix/matrix_value.h"

namespace kav {
namespace {

/// kMatrixNames in lower case.
constexpr std::array<std::string_view, kMatrixCount> kNames{"[m1]", "[m2]", "[m3]", "[m ans]"};

// The values of MatrixOperator and of MatrixPunctuation.
constexpr std::string_view kOperators = "^+-*";
constexpr std::string_view kPunctuation = "(),";

/// Digits, '.', 'e', and a sign directly behind an 'e'.
std::string_view TakeNumber(TokenReader& reader) {
  char before = 0;
  return reader.TakeWhile([&](char c) {
    const bool belongs =
        IsDigit(c) || c == '.' || c == 'e' || (before == 'e' && (c == '+' || c == '-'));
    before = c;
    return belongs;
  });
}

CalcResult<MatrixToken> ReadNumber(TokenReader& reader) {
  constexpr std::size_t kLongestNumber = 30;
  const std::string_view text = TakeNumber(reader);
  const std::size_t point = text.find('.');
  const std::size_t mark = text.find('e');
  const bool hasTwoPoints = point != text.rfind('.');
  const bool hasTwoMarks = mark != text.rfind('e');
  const bool hasPointInExponent = point != text.npos && point > mark;
  if (hasTwoPoints || hasTwoMarks || hasPointInExponent) {
    return MakeError(CalcErrorCode::Expression);
  }
  if (text.size() > kLongestNumber) return MakeError(CalcErrorCode::LengthLimit);
  return MatrixToken(ReadLeadingNumber(text));
}

CalcResult<MatrixToken> ReadMatrixName(TokenReader& reader) {
  char before = 0;
  const std::string_view name =
      reader.TakeWhile([&](char c) { return std::exchange(before, c) != ']'; });
  const auto* const found = std::find(kNames.begin(), kNames.end(), name);
  if (found == kNames.end()) return MakeError(CalcErrorCode::NotSupported, name);
  return MatrixToken(MatrixSlot{static_cast<int>(found - kNames.begin())});
}

CalcResult<MatrixToken> ReadWord(TokenReader& reader, std::optional<double> answer) {
  const std::string_view word = reader.TakeWord();
  if (word == kAnswerWord && answer) return MatrixToken(*answer);
  const auto functions = MatrixFunctions();
  const auto found = std::find_if(functions.begin(), functions.end(),
                                  [&](const MatrixFunctionRow& row) { return row.name == word; });
  if (found == functions.end()) return MakeError(CalcErrorCode::NotSupported, word);
  reader.SkipBlanks();
  if (reader.AtEnd()) return MakeError(CalcErrorCode::NeedsArgument, word);
  return MatrixToken(found->code);
}

CalcResult<MatrixToken> ReadSymbol(TokenReader& reader) {
  const char c = reader.Peek();
  const bool isOperator = kOperators.find(c) != kOperators.npos;
  if (!isOperator && kPunctuation.find(c) == kPunctuation.npos) return UnsupportedCharacter(reader);
  reader.Skip();
  if (isOperator) return MatrixToken(static_cast<MatrixOperator>(c));
  return MatrixToken(static_cast<MatrixPunctuation>(c));
}

CalcResult<MatrixToken> ReadToken(TokenReader& reader, std::optional<double> answer) {
  const char c = reader.Peek();
  if (IsDigit(c) || c == '.') return ReadNumber(reader);
  if (IsLetter(c)) return ReadWord(reader, answer);
  if (c == '[') return ReadMatrixName(reader);
  return ReadSymbol(reader);
}

}  // namespace

CalcResult<MatrixTokens> TokenizeMatrixExpression(std::string_view text,
                                                  std::optional<double> answer) {
  MatrixTokens tokens;
  TokenReader reader(text);
  for (reader.SkipBlanks(); !reader.AtEnd(); reader.SkipBlanks()) {
    const char* const start = reader.Next();
    auto token = tokens.size() == kMostMatrixTokens
                     ? CalcResult<MatrixToken>(MakeError(CalcErrorCode::LengthLimit))
                     : ReadToken(reader, answer);
    if (!token) {
      CalcError error = std::move(token).error();
      error.place = PlaceSince(start, reader, text);
      return error;
    }
    tokens.push_back(*std::move(token));
  }
  return tokens;
}

std::optional<TextPlace> PlaceOfMatrixToken(std::string_view text, std::size_t token) {
  TokenReader reader(text);
  for (reader.SkipBlanks(); !reader.AtEnd(); reader.SkipBlanks()) {
    const char* const start = reader.Next();
    if (!ReadToken(reader, 0)) break;
    if (token == 0) return PlaceSince(start, reader, text);
    --token;
  }
  return std::nullopt;
}

}  // namespace kav
