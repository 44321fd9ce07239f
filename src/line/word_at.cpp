#include "line/word_at.h"

#include <algorithm>

#include "common/ascii.h"

namespace kav {
namespace {

bool IsDigitOfHex(char16_t c) {
  return DigitValue(LowerCase(c)) < 16;
}

/// Whether `c` may be part of a name. Half of a character beyond 16 bits is, too: both halves go
/// together.
bool IsOfName(char16_t c) {
  constexpr char16_t kFirstBeyondSigns = 0xC0;
  const bool isSign = c == u'×' || c == u'÷' || (c >= 0x2000 && c < 0x2C00);
  return IsLetter(c) || c == u'_' || (c >= kFirstBeyondSigns && !isSign);
}

/// What comes behind the characters from `at` on for which `belongs` is true.
template <class Belongs>
std::size_t EndOf(std::u16string_view text, std::size_t at, const Belongs& belongs) {
  while (at < text.size() && belongs(text[at])) ++at;
  return at;
}

/// The end of the group of three digits behind the comma at `at`; `at` if there is none.
std::size_t EndOfGroup(std::u16string_view text, std::size_t at) {
  constexpr std::size_t kGroup = 3;
  if (at >= text.size() || text[at] != u',') return at;
  const std::size_t end = EndOf(text, at + 1, IsDigit<char16_t>);
  return end == at + 1 + kGroup ? end : at;
}

/// The end of the exponent at `at`; `at` if there is none.
std::size_t EndOfExponent(std::u16string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != u'E' && text[at] != u'e')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-')) ++digits;
  const std::size_t end = EndOf(text, digits, IsDigit<char16_t>);
  return end > digits ? end : at;
}

/// What a comma behind digits is: within parentheses it stands between arguments.
enum class Commas { Group, Separate };

/// The end of the decimal number at `at`; `at` if there is none.
std::size_t EndOfDecimal(std::u16string_view text, std::size_t at, Commas commas) {
  std::size_t end = EndOf(text, at, IsDigit<char16_t>);
  std::size_t group = end;
  if (end > at && commas == Commas::Group) group = EndOfGroup(text, end);
  while (group != end) {
    end = group;
    group = EndOfGroup(text, end);
  }
  const bool hasPoint = end < text.size() && text[end] == u'.';
  const std::size_t fraction = hasPoint ? EndOf(text, end + 1, IsDigit<char16_t>) : end;
  const bool isPointAlone = end == at && fraction <= end + 1;
  return isPointAlone ? at : EndOfExponent(text, fraction);
}

/// The end of what begins at `at`, which is in the text.
std::size_t EndOfWord(std::u16string_view text, std::size_t at, BaseMode base, Commas commas) {
  const std::size_t number = base == BaseMode::Hexadecimal && IsDigit(text[at])
                                 ? EndOf(text, at, IsDigitOfHex)
                                 : EndOfDecimal(text, at, commas);
  if (number > at) return number;
  const std::size_t name = EndOf(text, at, [](char16_t c) { return IsOfName(c) || IsDigit(c); });
  return std::max(name, at + 1);
}

}  // namespace

Selection WordAt(std::u16string_view text, std::size_t position, BaseMode base) {
  Selection word;
  int depth = 0;
  while (word.end < text.size() && word.end <= position) {
    const char16_t first = text[word.end];
    if (first == u'(') ++depth;
    if (first == u')') --depth;
    const Commas commas = depth > 0 ? Commas::Separate : Commas::Group;
    word = {word.end, EndOfWord(text, word.end, base, commas)};
  }
  return word;
}

}  // namespace kav
