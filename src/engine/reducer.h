// Finds the order in which the tokens of a text are calculated.
#pragma once

#include "engine/calc_modes.h"
#include "engine/calc_token.h"
#include "engine/steps.h"

namespace kav {

/// Consumes `tokens` (in checked order) in place: innermost parentheses first, and inside them one
/// sweep for each level of precedence. Answers what is done to the values as steps instead of doing
/// it; which tokens stay live never depends on the values. The last step is Finish, or one that
/// fails if an operator finds no live operand or more than one value is left. Signs up to the first
/// binary one belong to the operand behind them, and if that fails, all behind operators. Afterwards no token
/// but the answer's is live; the values are untouched.
StepList Reduce(TokenArray& tokens, BaseMode base);

}  // namespace kav
