#include "display/number_input.h"

#include <algorithm>
#include <string>

#include "common/ascii.h"
#include "common/number_text.h"
#include "display/comma_reading.h"

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

}  // namespace kav
