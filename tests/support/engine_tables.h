// Tables of texts and what the engine says to them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/shown.h"

namespace kav::test {

using ValueRows = std::vector<std::pair<std::string, double>>;
using MessageRows = std::vector<std::pair<std::string, std::string>>;

/// The values, to 4 units in the last place; a 0 has to be exact.
inline void ExpectValues(CalcModes modes, const ValueRows& rows) {
  for (const auto& [text, value] : rows) {
    ExpressionEngine engine;
    engine.SetAngleUnit(modes.angleUnit);
    engine.SetBaseMode(modes.baseMode);
    engine.Evaluate(text);
    EXPECT_FALSE(engine.HasError()) << text << ": " << engine.GetErrorText();
    EXPECT_DOUBLE_EQ(engine.GetResult(), value) << text;
  }
}

inline void ExpectMessages(CalcModes modes, const MessageRows& rows) {
  for (const auto& [text, message] : rows) EXPECT_EQ(Shown(text, modes), message) << text;
}

}  // namespace kav::test
