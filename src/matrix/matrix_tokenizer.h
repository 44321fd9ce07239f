// Cuts matrix expressions into tokens.
#pragma once

#include <span>
#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"

namespace kav {

/// A function by the name that a text calls it by.
struct MatrixFunctionName {
  std::string_view name;
  MatrixFunction code;
};
std::span<const MatrixFunctionName> MatrixFunctionNames();

/// The tokens of `text` (UTF-8, lower case). Fails with the first number, name or character that
/// cannot stand, or where there are more than kMostMatrixTokens.
CalcResult<MatrixTokens> TokenizeMatrixExpression(std::string_view text);

}  // namespace kav
