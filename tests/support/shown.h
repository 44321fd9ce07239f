// What the engine says to a text, in one string: tables of tests compare it.
#pragma once

#include <string>
#include <string_view>

#include "common/number_text.h"
#include "engine/expression_engine.h"

namespace kav::test {

inline constexpr CalcModes kDegrees{AngleUnit::Degrees, BaseMode::Decimal};
inline constexpr CalcModes kRadians{AngleUnit::Radians, BaseMode::Decimal};
inline constexpr CalcModes kHexadecimal{AngleUnit::Degrees, BaseMode::Hexadecimal};
inline constexpr CalcModes kBinary{AngleUnit::Degrees, BaseMode::Binary};
inline constexpr CalcModes kOctal{AngleUnit::Degrees, BaseMode::Octal};

/// The value with 17 significant digits, or the message.
inline std::string Shown(const CalcResult<double>& answer) {
  return answer ? PrintRoundTrip(*answer) : answer.error().message;
}

/// The same for a text as the engine itself takes it, with its case as it stands.
inline std::string Shown(std::string_view text, CalcModes modes = kDegrees) {
  ExpressionEngine engine;
  engine.SetAngleUnit(modes.angleUnit);
  engine.SetBaseMode(modes.baseMode);
  engine.Evaluate(text);
  return engine.HasError() ? std::string(engine.GetErrorText())
                           : PrintRoundTrip(engine.GetResult());
}

}  // namespace kav::test
