// TOML as text: how a key and a string are written, and which texts are safe to read.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// Adds `text` (UTF-8) to `out`, in quotes and on one line; all characters read back as they are.
void AppendTomlString(std::string& out, std::string_view text);

/// Adds `key` (UTF-8) to `out`: bare if TOML allows that, in quotes otherwise.
void AppendTomlKey(std::string& out, std::string_view key);

/// The most dots in one dotted key that a modest document has.
inline constexpr int kMostDotsInAKey = 32;
/// The most marks of structure (= , . [ {) outside strings and comments that a modest document has.
inline constexpr int kMostTomlMarks = 50'000;

/// Whether `toml` can be read with little stack, memory and time. Each dot of a key is a level of
/// tables to recurse through, and each mark may cost memory and a search through those before it;
/// the parser limits neither. Settings have some hundred marks and keys without dots. Promises
/// nothing about a text that is not TOML.
bool IsModestToml(std::string_view toml);

}  // namespace kav
