// Characters of ASCII in texts of 8 and of 16 bits. Nothing here looks at the locale.
#pragma once

#include <algorithm>

namespace kav {

template <class Char>
constexpr bool IsDigit(Char c) {
  return c >= Char{'0'} && c <= Char{'9'};
}

template <class Char>
constexpr bool IsUpper(Char c) {
  return c >= Char{'A'} && c <= Char{'Z'};
}

template <class Char>
constexpr bool IsLower(Char c) {
  return c >= Char{'a'} && c <= Char{'z'};
}

template <class Char>
constexpr bool IsLetter(Char c) {
  return IsLower(c) || IsUpper(c);
}

template <class Char>
constexpr Char LowerCase(Char c) {
  return IsUpper(c) ? static_cast<Char>(c - 'A' + 'a') : c;
}

template <class Char>
constexpr Char UpperCase(Char c) {
  return IsLower(c) ? static_cast<Char>(c - 'a' + 'A') : c;
}

/// The value of `c` as a digit in radixes up to 16; 16 if it is none, as are capital letters.
template <class Char>
constexpr int DigitValue(Char c) {
  if (IsDigit(c)) return c - Char{'0'};
  return c >= Char{'a'} && c <= Char{'f'} ? c - Char{'a'} + 10 : 16;
}

template <class TextA, class TextB>
constexpr bool EqualsIgnoringCase(const TextA& a, const TextB& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](auto x, auto y) {
    return LowerCase(x) == static_cast<decltype(x)>(LowerCase(y));
  });
}

}  // namespace kav
