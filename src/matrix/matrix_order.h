// Which tokens of a matrix expression may stand beside which.
#pragma once

#include <cstddef>
#include <optional>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"

namespace kav {

/// The first thing wrong with the order of `tokens`, none of which is used up: UnmatchedParentheses
/// for unequal counts of "(" and ")", else Expression for two neighbours that cannot be. nullopt if
/// the order is right. Two values side by side pass; the reduction refuses them.
std::optional<CalcError> CheckMatrixOrder(const MatrixTokens& tokens);

/// The token that a failure of CheckMatrixOrder is about: the first "(" that is never closed or the
/// ")" that closes none, an operator without an operand, or one that does not fit what is before
/// it.
std::size_t FaultyMatrixToken(const MatrixTokens& tokens);

}  // namespace kav
