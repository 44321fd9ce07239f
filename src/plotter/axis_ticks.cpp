#include "plotter/axis_ticks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "common/number_text.h"

namespace kav {
namespace {

/// `digit` times ten to the power of `exponent`.
struct TickStep {
  int digit;
  int exponent;
};

// Numbers beyond these are shorter, or easier to count the zeros of, with an exponent.
constexpr int kLeastPlainExponent = -5;
constexpr int kMostPlainExponent = 6;

/// `number` times ten to the power of `exponent`. Made of digits, not of a double: 3 times 0.1 is
/// 0.3 then.
std::string TextOf(std::int64_t number, int exponent) {
  if (number == 0) return "0";
  for (; number % 10 == 0; number /= 10) ++exponent;
  std::string digits = PrintInteger(number < 0 ? -number : number);
  const std::string sign = number < 0 ? "-" : "";
  const int first = exponent + static_cast<int>(digits.size()) - 1;
  if (first < kLeastPlainExponent || first > kMostPlainExponent) {
    if (digits.size() > 1) digits.insert(1, ".");
    return sign + digits + "e" + PrintInteger(first);
  }
  if (exponent >= 0) return sign + digits + std::string(static_cast<std::size_t>(exponent), '0');
  if (first < 0) digits.insert(0, static_cast<std::size_t>(-first), '0');
  digits.insert(digits.size() - static_cast<std::size_t>(-exponent), ".");
  return sign + digits;
}

double ValueOf(const TickStep& step) {
  return ReadLeadingNumber(TextOf(step.digit, step.exponent));
}

/// How often ten to the power of `exponent` goes into `value`, give or take one. Exact however
/// large the two are: a quotient of doubles would not be.
std::int64_t PowersIn(double value, int exponent) {
  const auto exponentOf = [](const std::string& text) {
    std::string_view digits = std::string_view(text).substr(text.find('e') + 1);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    return ReadInteger<int>(digits).value_or(0);
  };
  const int decimals = exponentOf(PrintScientific(value, 0)) - exponent;
  if (value == 0 || decimals < 0) return 0;
  std::string text = PrintScientific(value, decimals);
  const int last = exponentOf(text) - decimals;
  text.resize(text.find('e'));
  std::erase(text, '.');
  auto number = ReadInteger<std::int64_t>(text).value_or(0);
  // Rounding to one digit may have raised the exponent, as of 9.96, or rounding to all of them.
  for (int i = exponent; i < last; ++i) number *= 10;
  for (int i = last; i < exponent; ++i) number /= 10;
  return number;
}

/// The multiples of `step` in the range; nullopt if they are more than `most`.
std::optional<std::vector<AxisTick>> Multiples(const TickStep& step, double lower, double upper,
                                               std::size_t most) {
  std::vector<AxisTick> ticks;
  ticks.reserve(most);
  constexpr std::int64_t kBefore = 2;
  for (std::int64_t i = PowersIn(lower, step.exponent) / step.digit - kBefore;; ++i) {
    const std::string text = TextOf(i * step.digit, step.exponent);
    const double value = ReadLeadingNumber(text);
    if (value > upper || !(value <= std::numeric_limits<double>::max())) return ticks;
    if (value < lower) continue;
    if (ticks.size() == most) return std::nullopt;
    ticks.push_back({value, Widen(text)});
  }
}

/// The distance of the doubles at the larger of the bounds.
double Resolution(double lower, double upper) {
  const double largest = std::max(std::fabs(lower), std::fabs(upper));
  return largest - std::nextafter(largest, 0.);
}

}  // namespace

std::vector<AxisTick> AxisTicks(double lower, double upper, int most) {
  if (!std::isfinite(lower) || !std::isfinite(upper) || !(lower < upper) || most < 1) return {};
  const double resolution = Resolution(lower, upper);
  // The distance of the bounds may be too large for a double; its parts are not.
  const double least = std::max(upper / most - lower / most, resolution);
  constexpr std::array kDigits{1, 2, 5};
  for (int exponent = static_cast<int>(std::floor(std::log10(least))) - 1;; ++exponent) {
    for (const int digit : kDigits) {
      const TickStep step{digit, exponent};
      if (ValueOf(step) < resolution) continue;
      const auto ticks = Multiples(step, lower, upper, static_cast<std::size_t>(most));
      if (ticks) return *ticks;
    }
  }
}

}  // namespace kav
