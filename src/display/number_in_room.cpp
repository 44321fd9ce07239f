#include "display/number_in_room.h"

#include <algorithm>

#include "common/ascii.h"
#include "common/number_text.h"

namespace kav {
namespace {

constexpr char16_t kEllipsis = u'…';
constexpr int kLargestExponent = 99999;

/// A text and how many digits it shows of a number.
struct Shown {
  std::u16string text;
  std::size_t digits = 0;
};

std::u16string_view TakeSome(std::u16string_view& text) {
  const auto end =
      std::find_if_not(text.begin(), text.end(), [](char16_t c) { return IsDigit(c); });
  const std::u16string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  return digits;
}

std::u16string_view TakeSign(std::u16string_view& text) {
  const bool hasSign = text.starts_with(u'-') || text.starts_with(u'+');
  const std::u16string_view sign = text.substr(0, hasSign ? 1 : 0);
  text.remove_prefix(sign.size());
  return sign == u"-" ? sign : sign.substr(0, 0);
}

/// The exponent that `rest` is, or 0 for nothing.
std::optional<int> ReadExponent(std::u16string_view rest) {
  if (rest.empty()) return 0;
  if (rest.front() != u'e' && rest.front() != u'E') return std::nullopt;
  rest.remove_prefix(1);
  const bool isNegative = !TakeSign(rest).empty();
  const auto value = ReadInteger<int>(Narrow(rest));
  if (!value || rest.front() == u'-' || *value > kLargestExponent) return std::nullopt;
  return isNegative ? -*value : *value;
}

/// Without an exponent.
Shown Plain(const DecimalDigits& number, std::size_t most) {
  const std::size_t zeros = number.exponent < 0 ? static_cast<std::size_t>(-number.exponent) : 0;
  const std::size_t whole = number.exponent < 0 ? 1 : static_cast<std::size_t>(number.exponent) + 1;
  if (zeros > most || whole > most) return {};
  std::u16string all = std::u16string(zeros, u'0') + number.digits;
  if (all.size() < whole) all.append(whole - all.size(), u'0');
  if (all.size() > whole) all.insert(whole, u".");
  const std::u16string text = number.sign + all;
  if (text.size() <= most) return {text, number.digits.size()};
  // The whole part, the point and a digit behind it.
  const std::size_t before = number.sign.size() + whole + 1;
  if (most < before + 2) return {};
  const std::size_t behind = most - 1 - before;
  const std::size_t digits = behind + whole;
  return {text.substr(0, most - 1) + kEllipsis, digits > zeros ? digits - zeros : 0};
}

Shown WithExponent(const DecimalDigits& number, std::size_t most) {
  const bool isNegative = number.exponent < 0;
  std::u16string power = Widen(PrintInteger(isNegative ? -number.exponent : number.exponent));
  if (power.size() < 2) power.insert(0, 1, u'0');
  power.insert(0, isNegative ? u"e-" : u"e+");
  std::u16string digits = number.digits;
  if (digits.size() > 1) digits.insert(1, u".");
  const std::size_t around = number.sign.size() + power.size();
  if (around + digits.size() <= most) return {number.sign + digits + power, number.digits.size()};
  if (around + 2 > most) return {};
  digits.resize(most - around - 1);
  if (digits.ends_with(u'.')) digits.pop_back();
  const std::size_t shown = digits.size() > 1 ? digits.size() - 1 : 1;
  return {number.sign + digits + kEllipsis + power, shown};
}

}  // namespace

std::optional<DecimalDigits> ReadDecimalDigits(std::u16string_view text) {
  text = TrimBlanks(text);
  DecimalDigits number;
  number.sign = TakeSign(text);
  const std::u16string_view whole = TakeSome(text);
  number.digits = whole;
  if (text.starts_with(u'.')) {
    text.remove_prefix(1);
    number.digits += TakeSome(text);
  }
  const auto exponent = ReadExponent(text);
  if (number.digits.empty() || number.digits.size() > kLargestExponent || !exponent) {
    return std::nullopt;
  }
  const std::size_t zeros = std::min(number.digits.find_first_not_of(u'0'), number.digits.size());
  number.exponent = static_cast<int>(whole.size()) - 1 - static_cast<int>(zeros) + *exponent;
  number.digits.erase(0, zeros);
  number.digits.resize(number.digits.find_last_not_of(u'0') + 1);
  return number;
}

std::u16string NumberInRoom(const DecimalDigits& number, std::size_t most) {
  if (number.digits.empty()) return most > 0 ? u"0" : u"";
  Shown plain = Plain(number, most);
  Shown exponent = WithExponent(number, most);
  return exponent.digits > plain.digits ? exponent.text : plain.text;
}

}  // namespace kav
