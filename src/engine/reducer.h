// Finds the order in which the tokens of a text are calculated.
#pragma once

#include "engine/calc_modes.h"
#include "engine/calc_token.h"
#include "engine/steps.h"

namespace kav {

/// Walks `tokens` (in checked order) as reduction consumes them, in place: innermost parentheses
/// first, and inside them one sweep a level of precedence. What is done to the values is written
/// into `steps` instead of being done; which tokens live on never depends on it. Ends with Finish,
/// or with a failing step where an operator finds no live operand or more than one value is left.
/// Afterwards no token but the answer's is live; the values are untouched.
void Reduce(TokenArray& tokens, BaseMode base, StepList& steps);

}  // namespace kav
