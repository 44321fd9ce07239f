// Cuts decimal text into tokens.
#pragma once

#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_token.h"

namespace kav {

/// The variables of a formula, by the numbers of its type.
enum class VariableType { X = 0, XY = 1, XYZ = 2 };

/// Cuts `text` (in lower case) into tokens. Fails if it is empty, or with the first number, word or
/// character that cannot stand, or with the 152nd token. The word "ans" is `answer`, if there is
/// one.
CalcResult<TokenArray> Tokenize(std::string_view text, std::optional<double> answer = {});

/// The same for a formula: "x", "y" and "z" become variable tokens. A variable that `type` lacks is
/// refused where it stands, one that `type` has and the formula does not use at the end.
CalcResult<TokenArray> TokenizeFormula(std::string_view text, VariableType type);

/// Where the token of the number `token` stands in a text or formula that can be cut; nullopt if it
/// has fewer.
std::optional<TextPlace> PlaceOfToken(std::string_view text, int token);

}  // namespace kav
