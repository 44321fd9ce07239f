// The engine a second time, as plainly as its rules read: values are reduced in place, one
// sweep after another. Slow and easy to compare with the rules; what tests hold the engine against.
#pragma once

#include <string>
#include <string_view>

#include "engine/calc_modes.h"
#include "support/plain_tokens.h"

namespace kav::test {

/// `message` is empty if there is a value.
struct PlainAnswer {
  double value = 0;
  std::string message;
};

/// Which signs belong to the operand behind them: only those before the first binary one, or, if
/// these leave an operator without an operand, all behind operators, unless values stand side by
/// side.
enum class PlainSigns { BeforeABinaryOne, All };

/// What `text`, with its case folded already, comes to; with `variables` it may use x, y and z.
PlainAnswer PlainEvaluate(std::string_view text, CalcModes modes,
                          const PlainVariables* variables = nullptr,
                          PlainSigns signs = PlainSigns::All);

}  // namespace kav::test
