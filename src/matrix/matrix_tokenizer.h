// Cuts matrix expressions into tokens.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"

namespace kav {

/// The tokens of `text` (UTF-8, lower case). Fails at the first number, name or character that is
/// malformed or unknown, and with CalcErrorCode::LengthLimit if there are more than
/// kMostMatrixTokens; either with its place. The word "ans" is the number `answer`, if there is
/// one.
CalcResult<MatrixTokens> TokenizeMatrixExpression(std::string_view text,
                                                  std::optional<double> answer = {});

/// Where the token of the number `token` stands in a text that can be cut; nullopt if it has fewer.
std::optional<TextPlace> PlaceOfMatrixToken(std::string_view text, std::size_t token);

}  // namespace kav
