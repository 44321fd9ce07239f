// The only reading and printing of numbers, and the only bridges between the 8-bit texts of the
// engine and the 16-bit texts of the screens. Nothing here looks at the locale: '.' is the point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// The number that opens `text`, 0 where there is none: blanks, a sign, decimal digits with an
/// optional point and an optional exponent; what follows is ignored ("1e" is 1, "." is 0). A
/// magnitude beyond the range of double reads as infinity, one below it as 0.
double ReadLeadingNumber(std::string_view text);

/// Up to this many decimal digits make an exact double, as an integer and as a power of ten.
inline constexpr std::size_t kExactDigits = 15;

/// `digits`, at most 2^53, divided by 10^`decimals`, at most kExactDigits: correctly rounded.
double DecimalValue(std::uint64_t digits, std::size_t decimals);

/// `text` as a number where the whole of it is one (blanks around it allowed), "inf", "-inf" and
/// "nan" in any case included; nullopt for anything else.
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

/// The fewest digits that read back as `value`, in plain notation whatever its magnitude.
void AppendShortestPlain(std::string& out, double value);

std::string PrintFixed(double value, int decimals);
std::string PrintScientific(double value, int decimals);
std::string PrintRoundTrip(double value);
std::string PrintInteger(std::int64_t value);

/// `value`'s digits in `radix` 2 to 16, lower case, unsigned.
std::string PrintInRadix(std::uint32_t value, int radix);

/// `value` truncated toward zero and taken modulo 2^32 into the signed range; 0 where it is not
/// finite. Where integers of 32 bits are asked for, this is the one way to get them.
std::int32_t ToInt32(double value);

/// UTF-8 to UTF-16; a byte that is not part of a well-formed character becomes U+FFFD.
std::u16string Widen(std::string_view text);

/// UTF-16 to UTF-8; half of a surrogate pair becomes U+FFFD.
std::string Narrow(std::u16string_view text);

/// The number of bytes of the UTF-8 character that opens `text` (not empty): 1 to 4, and 1 where
/// the bytes are not well formed.
std::size_t Utf8Length(std::string_view text);

/// `text` without the blanks (' ' only) at both ends.
std::string_view TrimBlanks(std::string_view text);
std::u16string_view TrimBlanks(std::u16string_view text);

/// `text` with a blank in the place of each line break, tab and other control character.
std::u16string OnOneLine(std::u16string text);

/// The first `most` UTF-16 units of `text`, never half a character, on one line; behind them an
/// ellipsis where they are not all. For texts of any length in boxes and lists that have an end.
std::u16string Shortened(std::u16string_view text, std::size_t most);

}  // namespace kav
