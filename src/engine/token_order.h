// Which tokens may stand beside which.
#pragma once

#include <optional>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/calc_token.h"

namespace kav {

/// The first thing wrong with the order of `tokens`: unequal counts of parentheses, else a token
/// whose neighbours it cannot have; nullopt where there is none.
std::optional<CalcError> CheckOrder(const TokenArray& tokens, BaseMode base);

}  // namespace kav
