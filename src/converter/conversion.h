// The arithmetic of the unit converter.
#pragma once

#include <span>
#include <string_view>

#include "converter/unit_tables.h"

namespace kav {

/// `value` units `from` in units `to`: value / to.rate * from.rate, in this order. Both units are
/// of one category. A unit converted to itself gives exactly `value`. Infinite or 0 beyond the
/// range of double.
double ConvertUnits(double value, const Unit& from, const Unit& to);

/// A conversion from one scale of temperature to another.
struct TemperatureConversion {
  std::u16string_view caption;  ///< "Celsius -> Fahrenheit"
  double (*convert)(double value);
};

/// All six, in the order in which they are offered.
std::span<const TemperatureConversion> TemperatureConversions();

/// `rate` times `value`, as conversions that the user defined calculate.
double ConvertByRate(double value, double rate);

}  // namespace kav
