// Whether the tokens of a matrix expression stand in an order that can be calculated.
#pragma once

#include <optional>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"

namespace kav {

/// Fails with CalcErrorCode::UnmatchedParentheses where there are not as many of both, and with
/// CalcErrorCode::Expression where two neighbours cannot be. Values side by side pass.
std::optional<CalcError> CheckMatrixOrder(const MatrixTokens& tokens);

}  // namespace kav
