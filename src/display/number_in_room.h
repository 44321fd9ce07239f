// Numbers in places that are too narrow for them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// A decimal number as its text has it, digit by digit.
struct DecimalDigits {
  std::u16string sign;    ///< "-" or nothing
  std::u16string digits;  ///< without zeros before the first and behind the last; empty for zero
  int exponent = 0;       ///< of ten, for a point behind the first digit
};

/// nullopt if `text` is no decimal number as a whole, or one beyond 99999 digits.
std::optional<DecimalDigits> ReadDecimalDigits(std::u16string_view text);

/// `number` in `most` characters or fewer: as many of its digits as there is room for, with an
/// ellipsis behind them if they are not all, plain or with an exponent, whichever shows more.
/// Always of the very magnitude; empty if there is no room for one digit of it.
std::u16string NumberInRoom(const DecimalDigits& number, std::size_t most);

}  // namespace kav
