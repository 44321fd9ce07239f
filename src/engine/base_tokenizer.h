// Cuts text of the binary, octal and hexadecimal modes into tokens.
#pragma once

#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/calc_token.h"

namespace kav {

/// Cuts `text` into tokens by the digits of `base` (not decimal): numbers, the four
/// operators, shifts, parentheses and the words "and", "or", "xor", "xnor", "not". In hexadecimal
/// the letters a to f read as digits first, so "and" has to be written "AND" there. The word "ans"
/// is `answer`, if there is one. Fails as Tokenize does.
CalcResult<TokenArray> TokenizeInBase(std::string_view text, BaseMode base,
                                      std::optional<double> answer = {});

/// Where the token of the number `token` stands in a text that can be cut; nullopt if it has fewer.
std::optional<TextPlace> PlaceOfTokenInBase(std::string_view text, int token, BaseMode base);

}  // namespace kav
