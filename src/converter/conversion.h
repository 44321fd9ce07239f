// The arithmetic of the unit converter.
#pragma once

#include <span>
#include <string_view>

#include "converter/unit_tables.h"

namespace kav {

/// `value`, counted in `from`, counted in `to`, both of one category. The division comes first. A
/// unit converted to itself gives `value` to the last bit, whatever the rounding would do.
double ConvertUnits(double value, const Unit& from, const Unit& to);

/// One directed conversion between scales of temperature.
struct TemperatureConversion {
  std::u16string_view caption;  ///< "Celsius -> Fahrenheit"
  double (*convert)(double value);
};

/// All six, by their positions.
std::span<const TemperatureConversion> TemperatureConversions();

/// `rate` times `value`: what a conversion that the user defined does.
double ConvertByRate(double value, double rate);

}  // namespace kav
