#include "converter/conversion.h"

namespace kav {
namespace {

// Celsius and Fahrenheit read the same at -40. So these formulas add 40, scale, and subtract 40.
// With the offset of 32, or in another order, results would be rounded differently.

double CelsiusToFahrenheit(double value) {
  return (value + 40) * 1.8 - 40;
}

double FahrenheitToCelsius(double value) {
  return (value + 40) * 5 / 9 - 40;
}

double CelsiusToKelvin(double value) {
  return value + 273.15;
}

double KelvinToCelsius(double value) {
  return value - 273.15;
}

double FahrenheitToKelvin(double value) {
  return CelsiusToKelvin(FahrenheitToCelsius(value));
}

double KelvinToFahrenheit(double value) {
  return CelsiusToFahrenheit(KelvinToCelsius(value));
}

constexpr TemperatureConversion kTemperatureConversions[] = {
    {u"Celsius -> Fahrenheit", CelsiusToFahrenheit}, {u"Celsius -> Kelvin", CelsiusToKelvin},
    {u"Fahrenheit -> Celsius", FahrenheitToCelsius}, {u"Fahrenheit -> Kelvin", FahrenheitToKelvin},
    {u"Kelvin -> Celsius", KelvinToCelsius},         {u"Kelvin -> Fahrenheit", KelvinToFahrenheit},
};

}  // namespace

double ConvertUnits(double value, const Unit& from, const Unit& to) {
  // Calculated, the result could differ in its last bit, or leave the range of double on the way.
  if (from.name == to.name) return value;
  return value / to.rate * from.rate;
}

std::span<const TemperatureConversion> TemperatureConversions() {
  return kTemperatureConversions;
}

double ConvertByRate(double value, double rate) {
  return rate * value;
}

}  // namespace kav
