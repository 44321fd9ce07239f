// The numbers in rows of data, most of which are short and plain.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "common/number_text.h"

namespace kav {

/// Decimal digits as an integer, which overflows silently, and where they end.
struct TakenDigits {
  std::uint64_t number;
  const char* end;
};

/// Appends the decimal digits from `at` on to `number`.
inline TakenDigits TakeDigits(const char* at, const char* end, std::uint64_t number) {
  for (; at != end; ++at) {
    const unsigned digit = static_cast<unsigned char>(*at) - unsigned{'0'};
    if (digit > 9) break;
    number = number * 10 + digit;
  }
  return {number, at};
}

constexpr std::array<double, kExactDigits + 1> MakeExactPowersOfTen() {
  std::array<double, kExactDigits + 1> powers{1};
  for (std::size_t i = 1; i <= kExactDigits; ++i) powers[i] = 10 * powers[i - 1];
  return powers;
}
inline constexpr auto kExactPowersOfTen = MakeExactPowersOfTen();

/// The same as ReadLeadingNumber, and faster for decimal numbers of up to kExactDigits digits,
/// perhaps with a minus and a point.
inline double ReadDataNumber(std::string_view text) {
  const char* const end = text.data() + text.size();
  const bool isNegative = !text.empty() && text.front() == '-';
  const char* const start = text.data() + (isNegative ? 1 : 0);
  auto [number, at] = TakeDigits(start, end, 0);
  std::ptrdiff_t digits = at - start;
  std::ptrdiff_t decimals = 0;
  if (at != end && *at == '.') {
    const char* const point = at + 1;
    const TakenDigits all = TakeDigits(point, end, number);
    number = all.number;
    at = all.end;
    decimals = at - point;
    digits += decimals;
  }
  const bool isPlain = at == end && digits > 0 && digits <= std::ptrdiff_t{kExactDigits};
  if (!isPlain) return ReadLeadingNumber(text);
  // Of two exact doubles, so that the one rounding is the right one.
  const double magnitude = static_cast<double>(static_cast<std::int64_t>(number)) /
                           kExactPowersOfTen[static_cast<std::size_t>(decimals)];
  return isNegative ? -magnitude : magnitude;
}

}  // namespace kav
