// Everyday numbers as decimal integers, exactly rounded and quickly: what number_text prints by.
#pragma once

#include <cstdint>
#include <optional>

namespace kav {

/// `magnitude` times 10^`power` rounded to an integer, ties to even as printf has them.
/// nullopt where it is not positive, not finite or beyond the 128 bits that make this exact: within
/// are magnitudes from 2^-75 to 2^53 and powers from 0 to 22, as long as the integer is below 2^64.
std::optional<std::uint64_t> ScaledToInteger(double magnitude, int power);

/// A decimal number of `count` digits: `digits`, from 10^(count - 1) to 10^count - 1, with the
/// point behind the first of them, times 10^`exponent`.
struct SignificantDigits {
  std::uint64_t digits;
  int exponent;
};

/// `magnitude` rounded to `count` digits (1 or more); nullopt as above, and for more than 17
/// digits.
std::optional<SignificantDigits> RoundToDigits(double magnitude, int count);

/// Writes `value` in decimal so that it ends before `end`, with zeros in front up to `leastDigits`
/// (1 to 40); answers where it begins. There must be room for it, 20 characters or `leastDigits`.
char* WriteDecimal(std::uint64_t value, int leastDigits, char* end);

}  // namespace kav
