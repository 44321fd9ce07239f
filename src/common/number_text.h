// The only reading and printing of numbers, and the only bridges between the 8-bit texts of the
// engine and the 16-bit texts of the screens. Independent of the locale: '.' is the point.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "common/ascii.h"
#include "common/powers_of_ten.h"

namespace kav {

/// The decimal integer that `text` is as a whole: digits, with a '-' before them if Integer is
/// signed. nullopt for anything else, and for an integer beyond the range of Integer.
template <class Integer>
std::optional<Integer> ReadInteger(std::string_view text) {
  Integer value = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return value;
}

/// Up to this many decimal digits make an exact double, as an integer and as a power of ten.
inline constexpr std::size_t kExactDigits = 15;

/// `digits`, at most 2^53, divided by 10^`decimals`, at most kExactDigits: correctly rounded.
inline double DecimalValue(std::uint64_t digits, std::size_t decimals) {
  // A signed integer is the faster one to convert.
  const auto whole = static_cast<double>(static_cast<std::int64_t>(digits));
  // Of two exact doubles, so that the one rounding is the right one.
  return decimals == 0 ? whole : whole / kPowersOfTen<double, kExactDigits>[decimals];
}

/// Decimal digits as one integer, which overflows silently, and where they end.
struct TakenDigits {
  std::uint64_t number;
  const char* end;
};

/// Appends the digits from `at` on to `number`.
inline TakenDigits TakeDigits(const char* at, const char* end, std::uint64_t number) {
  for (; at != end; ++at) {
    const unsigned digit = static_cast<unsigned char>(*at) - unsigned{'0'};
    if (digit > 9) break;
    number = number * 10 + digit;
  }
  return {number, at};
}

/// The digits at the start of a text, with at most one point before, among or after them.
struct PlainNumber {
  std::uint64_t digits;  ///< as one integer, which overflows silently
  std::size_t count;     ///< of the digits
  std::size_t decimals;  ///< how many of the digits stand behind the point
  const char* end;       ///< of what was read

  bool IsExact() const { return count <= kExactDigits; }
  /// Only if IsExact.
  double Value() const { return DecimalValue(digits, decimals); }
};

inline PlainNumber ReadPlainNumber(const char* start, const char* end) {
  const auto [whole, point] = TakeDigits(start, end, 0);
  const auto count = static_cast<std::size_t>(point - start);
  if (point == end || *point != '.') return {whole, count, 0, point};
  const auto [all, last] = TakeDigits(point + 1, end, whole);
  const auto decimals = static_cast<std::size_t>(last - point) - 1;
  return {all, count + decimals, decimals, last};
}

/// What ReadLeadingNumber calls for texts that are not short plain numbers; answers the same for
/// any text.
double ReadLeadingNumberSlowly(std::string_view text);

/// The number that opens `text`, 0 if there is none: blanks, a sign, decimal digits with an
/// optional point and an optional exponent; what follows is ignored ("1e" is 1, "." is 0). A
/// magnitude beyond the range of double reads as infinity, one below it as 0.
inline double ReadLeadingNumber(std::string_view text) {
  const char* const end = text.data() + text.size();
  const bool isNegative = text.starts_with('-');
  const PlainNumber number = ReadPlainNumber(text.data() + (isNegative ? 1 : 0), end);
  if (number.end != end || number.count == 0 || !number.IsExact()) {
    return ReadLeadingNumberSlowly(text);
  }
  return isNegative ? -number.Value() : number.Value();
}

/// The number that `text` is as a whole, blanks around it aside; "inf", "-inf" and "nan" in any
/// case are numbers. nullopt for anything else.
std::optional<double> ReadWholeNumber(std::string_view text);

/// `value` with exactly `decimals` (0 to 99) digits after the point, never an exponent, added to
/// `out`; the same text as C's "%.{decimals}f".
void AppendFixed(std::string& out, double value, int decimals);

/// `value` as one digit, `decimals` (0 to 99) digits after the point and an exponent of two digits
/// or more; the same text as C's "%.{decimals}e".
void AppendScientific(std::string& out, double value, int decimals);

/// `value` with 17 significant digits, enough to read the very same double back; the same text as
/// C's "%.17g".
void AppendRoundTrip(std::string& out, double value);

/// The fewest digits that read back as `value`, without an exponent for any magnitude; added to
/// `out`.
void AppendShortestPlain(std::string& out, double value);

std::string PrintFixed(double value, int decimals);
std::string PrintScientific(double value, int decimals);
std::string PrintRoundTrip(double value);
std::string PrintInteger(std::int64_t value);

/// `value`'s digits in `radix` 2 to 16, lower case, unsigned.
std::string PrintInRadix(std::uint32_t value, int radix);

/// `value` truncated toward zero and taken modulo 2^32 into the signed range; 0 if it is not
/// finite. The only conversion of values to integers of 32 bits.
std::int32_t ToInt32(double value);

constexpr bool IsInt32(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return value >= Limits::min() && value <= Limits::max();
}

/// UTF-8 to UTF-16; a byte that is not part of a well-formed character becomes U+FFFD.
std::u16string Widen(std::string_view text);

/// UTF-16 to UTF-8; half of a surrogate pair becomes U+FFFD.
std::string Narrow(std::u16string_view text);

/// The number of bytes of the UTF-8 character that opens `text` (not empty): 1 to 4, and 1 if the
/// bytes are not well formed.
std::size_t Utf8Length(std::string_view text);

/// `text` without the blanks (' ' only) at both ends.
std::string_view TrimBlanks(std::string_view text);
std::u16string_view TrimBlanks(std::u16string_view text);

/// `text` with a blank in place of each control character, such as line breaks and tabs.
std::u16string OnOneLine(std::u16string text);

/// The first `most` UTF-16 units of `text`, never half a character, on one line; an ellipsis
/// follows if they are not all. For texts of any length in boxes and lists of limited room.
std::u16string Shortened(std::u16string_view text, std::size_t most);

}  // namespace kav
