// Which tokens may stand beside which.
#pragma once

#include <optional>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/calc_token.h"

namespace kav {

/// The first thing wrong with the order of `tokens`: unequal counts of '(' and ')', else a token
/// that cannot have its neighbours; nullopt if there is none.
std::optional<CalcError> CheckOrder(const TokenArray& tokens, BaseMode base);

/// The token that a failure of CheckOrder is about: the first '(' that is never closed or the ')'
/// that closes none, an operator without an operand, or one that does not fit what is before it;
/// -1 if nothing fails.
int FaultyToken(const TokenArray& tokens, BaseMode base);

}  // namespace kav
