// Cuts decimal text into tokens.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_token.h"

namespace kav {

/// The variables a formula may use, by the numbers of its type.
enum class VariableType { X = 0, XY = 1, XYZ = 2 };

/// A function by the name that a text calls it by.
struct FunctionName {
  std::string_view name;
  FunctionCode code;
};
std::span<const FunctionName> FunctionNames();

/// Cuts `text` (not empty, lower case) into `tokens`. Fails with the first number, word or
/// character that cannot stand, or with the 152nd token; what was cut before it stays.
std::optional<CalcError> Tokenize(std::string_view text, TokenArray& tokens);

/// The same for a formula: "x", "y" and "z" become variable tokens. A variable that `type` lacks is
/// refused where it stands, one that `type` has and the formula does not use at the end.
std::optional<CalcError> TokenizeFormula(std::string_view text, VariableType type,
                                         TokenArray& tokens);

}  // namespace kav
