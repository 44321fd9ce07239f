// What a calculation depends on besides its text: the angle unit, the number base, the last answer.
#pragma once

#include <cstdint>
#include <optional>

namespace kav {

/// How sin, cos, tan and their inverses take angles. The numbers are those of the settings.
enum class AngleUnit : std::int32_t { Degrees = 1, Radians = 2 };

/// The base numbers are typed and shown in. The numbers are those of the settings.
enum class BaseMode : std::int32_t { Decimal = 1, Hexadecimal = 2, Binary = 3, Octal = 4 };

/// The unit that a stored integer stands for: 1 is degrees, anything else radians.
constexpr AngleUnit AngleUnitFromSetting(std::int32_t stored) {
  return stored == 1 ? AngleUnit::Degrees : AngleUnit::Radians;
}

/// The unit that the angle key switches to from `unit`.
constexpr AngleUnit OtherAngleUnit(AngleUnit unit) {
  return unit == AngleUnit::Degrees ? AngleUnit::Radians : AngleUnit::Degrees;
}

/// The base that a stored integer stands for: 2 to 4 as enumerated, anything else decimal.
constexpr BaseMode BaseModeFromSetting(std::int32_t stored) {
  return stored >= 2 && stored <= 4 ? static_cast<BaseMode>(stored) : BaseMode::Decimal;
}

struct CalcModes {
  AngleUnit angleUnit = AngleUnit::Degrees;
  BaseMode baseMode = BaseMode::Decimal;
  /// The number that the word "ans" stands for; without one, "ans" is a word like any unknown one.
  std::optional<double> answer = {};
};

}  // namespace kav
