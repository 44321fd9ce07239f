#include "support/plain_format.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "support/plain_functions.h"

namespace kav::test {

std::string PlainPrint(const char* format, int precision, double value) {
  std::string text(512, ' ');
  text.resize(static_cast<std::size_t>(
      std::snprintf(text.data(), text.size(), format, precision, value)));  // NOLINT
  return text;
}

namespace {

std::string PlainFraction(double value, int decimals) {
  const std::string text = PlainPrint("%.*f", decimals, value);
  return text.substr(text.find('.') + 1);
}

/// How many decimals `value` has when it is written with 15 significant digits, without the zeros
/// at the end.
int PlainShownDecimals(double value) {
  const std::string scientific = PlainPrint("%.*e", 14, value);
  const int exponent = std::atoi(scientific.substr(scientific.find('e') + 1).c_str());
  const int decimals = 14 - exponent;
  if (decimals <= 0) return 0;
  // What is rounded to 15 digits already is printed whole: no second rounding.
  std::string digits = scientific.substr(scientific.find('.') + 1, 14);
  while (!digits.empty() && digits.back() == '0') digits.pop_back();
  return std::max(static_cast<int>(digits.size()) - exponent, 0);
}

std::string PlainGroups(std::string text) {
  const std::size_t start = text[0] == '-' ? 1 : 0;
  std::size_t at = std::min(text.find('.'), text.size());
  for (; at > start + 3; at -= 3) text.insert(at - 3, 1, ',');
  return text;
}

std::string PlainEngineering(double value, int precision) {
  const std::string text = PlainPrint("%.*e", 15, value);
  const std::size_t split = text.find('e');
  const double mantissa = std::strtod(text.substr(0, split).c_str(), nullptr);
  const double magnitude = std::fabs(value);
  const int e = magnitude >= 1 ? static_cast<int>(std::log10(magnitude))
                               : std::atoi(text.substr(split + 1).c_str());
  const int r = e % 3;
  const int k = r < 0 ? r + 3 : r;
  std::string digits = std::to_string(std::abs(e - k));
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return PlainPrint("%.*f", precision, mantissa * std::pow(10.0, k)) + "E" +
         (e - k < 0 ? "-" : "+") + digits;
}

std::string PlainInBase(double value, BaseMode base) {
  const unsigned radix = base == BaseMode::Hexadecimal ? 16 : base == BaseMode::Octal ? 8 : 2;
  std::string text;
  auto rest = static_cast<std::uint32_t>(PlainInt32(value));
  do {
    text.insert(text.begin(), "0123456789ABCDEF"[rest % radix]);
    rest /= radix;
  } while (rest > 0);
  return text;
}

}  // namespace

int PlainNaturalDecimals(double value) {
  if (value == 0) return 0;
  if (const int shown = PlainShownDecimals(value); shown < 12) return shown;
  const std::string fraction = PlainFraction(value, 13);
  int firstZero = -1, last = -1, previous = -1, nines = -1, run = 0;
  for (int i = 0; i < 13; ++i) {
    const char digit = fraction[static_cast<std::size_t>(i)];
    if (digit == '0' && firstZero < 0) firstZero = i;
    if (digit == '0') continue;
    previous = last;
    last = i;
    if (digit == '9') {
      const bool isNeighbour = run > 0 && nines + run == i;
      if (!isNeighbour) nines = i;
      run = isNeighbour ? run + 1 : 1;
    } else if (i != 12) {
      run = 0;
    }
  }
  if (previous >= 0 && last == 12 && 12 - previous < 4) {
    last = static_cast<int>(PlainFraction(value, 12).find_last_not_of('0'));
  }
  if (previous >= 0 && last - previous > 3) return previous + 1;
  const bool isPreviousBeforeZero = firstZero >= 0 && previous <= firstZero;
  if (run < 4 || isPreviousBeforeZero) return last + 1;
  return nines;
}

std::string PlainFormat(double value, DisplayFormat format, BaseMode base) {
  if (!std::isfinite(value)) return "Out of range(overflow or underflow)";
  if (base != BaseMode::Decimal) return PlainInBase(value, base);
  if (value == 0) value = 0;
  const double magnitude = std::fabs(value);
  const bool isBeyond =
      value != 0 && (magnitude >= 1 ? std::log10(magnitude) > 12.0 : std::log10(magnitude) < -12.0);
  const std::string exponentForm = PlainPrint("%.*e", format.precision, value);
  switch (format.type) {
    case DisplayType::FloatingPoint:
      return isBeyond ? exponentForm : PlainPrint("%.*f", PlainNaturalDecimals(value), value);
    case DisplayType::FixedPoint:
      return isBeyond ? exponentForm : PlainPrint("%.*f", format.precision, value);
    case DisplayType::ScientificNotation:
      return exponentForm;
    case DisplayType::Thousands:
      if (isBeyond) return exponentForm;
      return PlainGroups(PlainPrint("%.*f", PlainNaturalDecimals(value), value));
    default:
      return value == 0 ? exponentForm : PlainEngineering(value, format.precision);
  }
}

}  // namespace kav::test
