#include "common/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "common/exact_decimal.h"

namespace kav {
namespace {

using namespace std::string_view_literals;

// The largest double has 309 digits before the point; 99 decimals, a sign and the point follow.
constexpr std::size_t kLongestNumber = 512;
constexpr char16_t kReplacement = 0xFFFD;

/// Where the exponent at `start` ends; `start` itself if there is none.
std::size_t ExponentEnd(std::string_view text, std::size_t start) {
  std::size_t end = start;
  if (end == text.size() || (text[end] != 'e' && text[end] != 'E')) return start;
  ++end;
  if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
  if (end == text.size() || !IsDigit(text[end])) return start;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end;
}

/// Whether a number beyond the range of double is too large rather than too small: the decimal
/// place of its first significant digit tells.
bool IsTooLarge(std::string_view number) {
  const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, mantissaEnd);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  long long exponent = 0;
  if (mantissaEnd < number.size()) {
    std::string_view digits = number.substr(mantissaEnd + 1);
    const bool negative = digits.front() == '-';
    if (digits.front() == '+') digits.remove_prefix(1);
    const auto read = ReadInteger<long long>(digits);
    if (!read) return !negative;  // It has more digits than an integer can hold.
    exponent = *read;
  }
  const auto place = static_cast<long long>(point) - static_cast<long long>(first);
  return exponent > -place;  // The sum could overflow.
}

double ConvertUnsigned(std::string_view number) {
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc{}) return value;
  return IsTooLarge(number) ? std::numeric_limits<double>::infinity() : 0.0;
}

struct UnsignedNumber {
  double value;
  std::size_t length;
};

/// The number without a sign that opens `text`.
std::optional<UnsignedNumber> ReadUnsigned(std::string_view text) {
  const PlainNumber plain = ReadPlainNumber(text.data(), text.data() + text.size());
  if (plain.count == 0) return std::nullopt;
  const auto length = static_cast<std::size_t>(plain.end - text.data());
  const std::size_t end = ExponentEnd(text, length);
  const bool isExact = plain.IsExact() && end == length;
  return UnsignedNumber{isExact ? plain.Value() : ConvertUnsigned(text.substr(0, end)), end};
}

template <class... Format>
void Append(std::string& out, double value, Format... format) {
  std::array<char, kLongestNumber> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format...);
  out.append(buffer.data(), end.ptr);
}

/// A short text that grows to the front: room for a sign, 41 digits, a point and an exponent.
class BackwardText {
 public:
  explicit BackwardText(double signedAs) : isNegative_(std::signbit(signedAs)) {}

  void PutDigits(std::uint64_t value, int leastDigits) {
    begin_ = WriteDecimal(value, leastDigits, begin_);
  }
  /// Puts a point before the last `behind` characters; none if that is 0.
  void PutPoint(std::ptrdiff_t behind) {
    if (behind == 0) return;
    std::copy(begin_, End() - behind, begin_ - 1);
    --begin_;
    *(End() - behind - 1) = '.';
  }
  void PutExponent(int exponent) {
    PutDigits(static_cast<std::uint64_t>(std::abs(exponent)), 2);
    *--begin_ = exponent < 0 ? '-' : '+';
    *--begin_ = 'e';
  }
  std::ptrdiff_t Length() { return End() - begin_; }
  void AppendTo(std::string& out) {
    if (isNegative_) *--begin_ = '-';
    // The other append, of a range, takes twice as long.
    out.append(begin_, static_cast<std::size_t>(Length()));
  }

 private:
  char* End() { return buffer_.data() + buffer_.size(); }

  std::array<char, 64> buffer_;
  char* begin_ = End();
  bool isNegative_;
};

template <class View>
View Trim(View text) {
  const auto isBlank = [](auto c) { return c == ' '; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view WithoutSign(std::string_view number) {
  if (number.starts_with('-') || number.starts_with('+')) number.remove_prefix(1);
  return number;
}

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

struct DecodedCharacter {
  char32_t codePoint;
  std::size_t length;
};

/// The character that opens `text`; U+FFFD of length 1 if the bytes are not well formed.
DecodedCharacter Decode(std::string_view text) {
  constexpr DecodedCharacter kMalformed{kReplacement, 1};
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return kMalformed;
  char32_t codePoint = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[i])) return kMalformed;
    codePoint = (codePoint << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kSmallestOfLength{0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (codePoint < kSmallestOfLength[length] || codePoint > 0x10FFFF || isSurrogate) {
    return kMalformed;
  }
  return {codePoint, length};
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto byte = [](char32_t bits) {
    return static_cast<char>(static_cast<unsigned char>(bits));
  };
  if (c < 0x80) {
    out += byte(c);
    return;
  }
  if (c < 0x800) {
    out += byte(0xC0U | (c >> 6U));
  } else {
    if (c < 0x10000) {
      out += byte(0xE0U | (c >> 12U));
    } else {
      out += byte(0xF0U | (c >> 18U));
      out += byte(0x80U | ((c >> 12U) & 0x3FU));
    }
    out += byte(0x80U | ((c >> 6U) & 0x3FU));
  }
  out += byte(0x80U | (c & 0x3FU));
}

}  // namespace

double ReadLeadingNumberSlowly(std::string_view text) {
  text = Trim(text);
  const bool isNegative = text.starts_with('-');
  const auto number = ReadUnsigned(WithoutSign(text));
  if (!number) return 0.0;
  return isNegative ? -number->value : number->value;
}

std::optional<double> ReadWholeNumber(std::string_view text) {
  text = Trim(text);
  const std::string_view magnitude = WithoutSign(text);
  const double sign = text.starts_with('-') ? -1.0 : 1.0;
  const auto number = ReadUnsigned(magnitude);
  if (number && number->length == magnitude.size()) return sign * number->value;
  if (EqualsIgnoringCase(magnitude, "inf"sv)) return sign * std::numeric_limits<double>::infinity();
  if (EqualsIgnoringCase(magnitude, "nan"sv)) return std::numeric_limits<double>::quiet_NaN();
  return std::nullopt;
}

void AppendFixed(std::string& out, double value, int decimals) {
  const auto scaled = ScaledToInteger(std::fabs(value), decimals);
  if (!scaled) return Append(out, value, std::chars_format::fixed, decimals);
  BackwardText text(value);
  text.PutDigits(*scaled, decimals + 1);
  text.PutPoint(decimals);
  text.AppendTo(out);
}

void AppendScientific(std::string& out, double value, int decimals) {
  const auto rounded = RoundToDigits(std::fabs(value), decimals + 1);
  if (!rounded) return Append(out, value, std::chars_format::scientific, decimals);
  BackwardText text(value);
  text.PutExponent(rounded->exponent);
  const std::ptrdiff_t exponentLength = text.Length();
  text.PutDigits(rounded->digits, 1);
  if (decimals != 0) text.PutPoint(decimals + exponentLength);
  text.AppendTo(out);
}

void AppendRoundTrip(std::string& out, double value) {
  constexpr int kDigits = std::numeric_limits<double>::max_digits10;
  const auto rounded = RoundToDigits(std::fabs(value), kDigits);
  // Outside of these exponents the text has one as well.
  if (!rounded || rounded->exponent < -4 || rounded->exponent >= kDigits) {
    return Append(out, value, std::chars_format::general, kDigits);
  }
  std::uint64_t digits = rounded->digits;
  int decimals = kDigits - 1 - rounded->exponent;
  for (; decimals > 0 && digits % 10 == 0; --decimals) digits /= 10;
  BackwardText text(value);
  text.PutDigits(digits, decimals + 1);
  text.PutPoint(decimals);
  text.AppendTo(out);
}

void AppendShortestPlain(std::string& out, double value) {
  Append(out, value, std::chars_format::fixed);
}

std::string PrintFixed(double value, int decimals) {
  std::string out;
  AppendFixed(out, value, decimals);
  return out;
}

std::string PrintScientific(double value, int decimals) {
  std::string out;
  AppendScientific(out, value, decimals);
  return out;
}

std::string PrintRoundTrip(double value) {
  std::string out;
  AppendRoundTrip(out, value);
  return out;
}

std::string PrintInteger(std::int64_t value) {
  return std::to_string(value);
}

std::string PrintInRadix(std::uint32_t value, int radix) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, radix);
  return {buffer.data(), end.ptr};
}

std::int32_t ToInt32(double value) {
  constexpr double kModulus = 4294967296.0;
  if (!std::isfinite(value)) return 0;
  // Most values fit, and for them the conversion of the processor is the truncation asked for.
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
  double residue = std::fmod(std::trunc(value), kModulus);
  if (residue < 0) residue += kModulus;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(residue));
}

std::u16string Widen(std::string_view text) {
  std::u16string wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const auto [codePoint, length] = Decode(text);
    if (codePoint < 0x10000) {
      wide += static_cast<char16_t>(codePoint);
    } else {
      wide += static_cast<char16_t>(0xD800U + ((codePoint - 0x10000U) >> 10U));
      wide += static_cast<char16_t>(0xDC00U + ((codePoint - 0x10000U) & 0x3FFU));
    }
    text.remove_prefix(length);
  }
  return wide;
}

std::string Narrow(std::u16string_view text) {
  const auto isHigh = [](char16_t c) { return c >= 0xD800 && c <= 0xDBFF; };
  const auto isLow = [](char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; };
  std::string narrow;
  narrow.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (isHigh(text[i]) && i + 1 < text.size() && isLow(text[i + 1])) {
      c = 0x10000U + ((c - 0xD800U) << 10U) + (text[i + 1] - 0xDC00U);
      ++i;
    } else if (isHigh(text[i]) || isLow(text[i])) {
      c = kReplacement;
    }
    AppendUtf8(narrow, c);
  }
  return narrow;
}

std::size_t Utf8Length(std::string_view text) {
  return Decode(text).length;
}

std::string_view TrimBlanks(std::string_view text) {
  return Trim(text);
}

std::u16string_view TrimBlanks(std::u16string_view text) {
  return Trim(text);
}

std::u16string OnOneLine(std::u16string text) {
  std::replace_if(
      text.begin(), text.end(), [](char16_t c) { return c < u' '; }, u' ');
  return text;
}

std::u16string Shortened(std::u16string_view text, std::size_t most) {
  if (text.size() <= most) return OnOneLine(std::u16string(text));
  const bool cutsCharacter = most > 0 && (text[most - 1] & 0xFC00U) == 0xD800U;
  return OnOneLine(std::u16string(text.substr(0, cutsCharacter ? most - 1 : most))) + u'…';
}

}  // namespace kav
