// Everyday numbers as decimal integers, exactly rounded and fast: what number_text prints with.
#pragma once

#include <cstdint>
#include <optional>

namespace kav {

/// `magnitude` times 10^`power` rounded to an integer, ties to even as printf rounds them. nullopt
/// if `magnitude` is not positive or not finite, or if 128 bits do not make this exact. They do for
/// magnitudes from 2^-75 to 2^53 and powers from 0 to 22, as long as the integer is below 2^64.
std::optional<std::uint64_t> ScaledToInteger(double magnitude, int power);

/// A decimal number: `digits` with the point after the first digit, times 10^`exponent`.
struct SignificantDigits {
  std::uint64_t digits;
  int exponent;
};

/// `magnitude` rounded to `count` digits (1 or more): `digits` is from 10^(count - 1) to
/// 10^count - 1. nullopt as above, and for more than 17 digits.
std::optional<SignificantDigits> RoundToDigits(double magnitude, int count);

/// Writes `value` in decimal so that it ends before `end`, with leading zeros up to `leastDigits`
/// (1 to 40), and answers its first character. There must be room for 20 characters or
/// `leastDigits`, whichever is more.
char* WriteDecimal(std::uint64_t value, int leastDigits, char* end);

}  // namespace kav
