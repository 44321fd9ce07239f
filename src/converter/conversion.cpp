#include "converter/conversion.h"

namespace kav {
namespace {

// Between Celsius and Fahrenheit every way leads over -40, where both scales read the same: add 40,
// scale, subtract 40. The offset of 32 would round differently, and so would any other order of
// these operations.

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
  // The quotient times the same rate can be one bit off, and beyond the range of double.
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
