#include "display/number_input.h"

#include <algorithm>
#include <string>

#include "common/ascii.h"
#include "common/number_text.h"
#include "display/comma_reading.h"
#include "engine/expression_engine.h"

namespace kav {
namespace {

constexpr char kSeparator = ',';

/// Whether the integer part `whole` is one to three digits, the first not 0, and then groups of a
/// separator and three digits.
bool IsGrouped(std::string_view whole) {
  constexpr std::size_t kGroup = 3;
  const std::size_t first = whole.find(kSeparator);
  if (first == 0 || first > kGroup || whole.front() == '0') return false;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const bool endsGroup = i >= first && (i - first) % (kGroup + 1) == 0;
    if (endsGroup ? whole[i] != kSeparator : !IsDigit(whole[i])) return false;
  }
  return (whole.size() - first) % (kGroup + 1) == 0;
}

/// Whether `text` has an operator, a parenthesis or a word. One without is a number with a mistake
/// in it, of which the engine would make something: "." would be 0.
bool HasWork(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" +-");
  if (start == text.npos) return false;
  for (std::size_t i = start; i < text.size(); ++i) {
    const char c = text[i];
    const bool isSign = c == '+' || c == '-';
    const bool isOfExponent = isSign && (text[i - 1] == 'e' || text[i - 1] == 'E');
    if (isSign ? i > start && !isOfExponent
               : std::string_view("0123456789.,eE ").find(c) == std::string_view::npos)
      return true;
  }
  return false;
}

}  // namespace

std::optional<double> ReadShownNumber(std::string_view text) {
  text = TrimBlanks(text);
  const std::size_t start = text.find_first_not_of("+-");
  if (start > 1) return std::nullopt;  // Or there is nothing else.
  // No number is shown in letters.
  if (!IsDigit(text[start]) && text[start] != '.') return std::nullopt;
  const std::size_t end = std::min(text.find_first_of(".eE"), text.size());
  const std::string_view whole = text.substr(start, end - start);
  if (whole.find(kSeparator) == whole.npos) return ReadWholeNumber(text);
  if (!IsGrouped(whole)) return std::nullopt;
  std::string plain(text.substr(0, end));
  plain.erase(std::remove(plain.begin(), plain.end(), kSeparator), plain.end());
  return ReadWholeNumber(plain.append(text.substr(end)));
}

Expected<double, std::u16string> ReadNumberField(std::u16string_view field,
                                                 std::u16string_view notANumber) {
  if (auto refusal = CommaRefusal(field)) return *std::move(refusal);
  const auto number = ReadShownNumber(Narrow(field));
  if (!number) return std::u16string(notANumber);
  return *number;
}

Expected<double, std::u16string> ReadNumberOrExpression(std::u16string_view field,
                                                        std::u16string_view notANumber,
                                                        AngleUnit angle) {
  auto number = ReadNumberField(field, notANumber);
  if (number || QuestionOfLine(field)) return number;
  const std::string line = Narrow(WithoutThousands(field));
  if (!HasWork(line)) return number;
  const auto value = Evaluate(line, {angle, BaseMode::Decimal});
  return value ? *value : std::move(number);
}

}  // namespace kav
