// The case of the texts that the engine takes.
#pragma once

#include <string>
#include <string_view>

#include "engine/calc_modes.h"

namespace kav {

/// `text` as the engine and the checker take it: A to Z in lower case; in hexadecimal every "and"
/// as "AND", since "a" and "d" are digits there.
std::string FoldCase(std::string_view text, BaseMode base);

/// True only if FoldCase leaves `text` as it is; of a text with capital letters always false.
bool IsFolded(std::string_view text, BaseMode base);

}  // namespace kav
