// Finds the order in which the tokens of a text are calculated.
#pragma once

#include <cstdint>

#include "engine/calc_modes.h"
#include "engine/calc_token.h"
#include "engine/steps.h"

namespace kav {

/// The signs that are taken as those of the operand behind them: up to the first binary '-' or '+',
/// or all that stand behind an operator.
enum class Signs : std::uint8_t { BeforeBinaryOne, All };

/// Consumes `tokens` (in checked order) in place: innermost parentheses first, and inside them one
/// sweep for each level of precedence. Answers what is done to the values as steps instead of doing
/// it; which tokens stay live never depends on the values. The last step is Finish, or one that
/// fails if an operator finds no live operand or more than one value is left. Afterwards no token
/// but the answer's is live; the values are untouched.
StepList Reduce(TokenArray& tokens, BaseMode base, Signs signs);

/// The same with the signs that give the text a meaning: what has one by those before a binary sign
/// keeps it, and 5--3 and 10-3^-2 have none but by all.
StepList Reduce(TokenArray& tokens, BaseMode base);

/// Whether `steps` end since an operator finds no operand or values are left over.
inline bool LacksOperand(const StepList& steps) {
  return steps.Last().operation == Operation::FailExpression;
}

/// The second half of that for whoever can cut the text once more, which spares all others a copy:
/// `steps`, which lack an operand by the signs before a binary one, or those by all of `tokens`.
StepList ReduceAgain(TokenArray& tokens, BaseMode base, const StepList& steps);

}  // namespace kav
