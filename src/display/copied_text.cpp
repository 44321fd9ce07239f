#include "display/copied_text.h"

#include <algorithm>
#include <cstddef>

#include "common/ascii.h"
#include "common/number_text.h"

namespace kav {
namespace {

/// Whether the comma at `at` stands before a group of three digits, and behind a digit.
bool Groups(std::u16string_view text, std::size_t at) {
  constexpr std::size_t kGroup = 3;
  if (at == 0 || !IsDigit(text[at - 1]) || text.size() <= at + kGroup) return false;
  const std::u16string_view group = text.substr(at + 1, kGroup);
  const bool goesOn = text.size() > at + 1 + kGroup && IsDigit(text[at + 1 + kGroup]);
  return std::all_of(group.begin(), group.end(), IsDigit<char16_t>) && !goesOn;
}

}  // namespace

std::u16string PlainDigits(std::u16string_view shown) {
  std::u16string digits;
  digits.reserve(shown.size());
  for (std::size_t at = 0; at < shown.size(); ++at) {
    if (shown[at] != u',' || !Groups(shown, at)) digits += shown[at];
  }
  return digits;
}

std::u16string LineAndResult(std::u16string_view line, std::u16string_view shown) {
  return std::u16string(TrimBlanks(line)) + u" = " + PlainDigits(shown);
}

}  // namespace kav
