// Cuts matrix expressions into tokens.
#pragma once

#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"

namespace kav {

/// The tokens of `text` (UTF-8, lower case). Fails at the first number, name or character that is
/// malformed or unknown, and with CalcErrorCode::LengthLimit if there are more than
/// kMostMatrixTokens.
CalcResult<MatrixTokens> TokenizeMatrixExpression(std::string_view text);

}  // namespace kav
