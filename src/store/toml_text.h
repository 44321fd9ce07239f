// TOML as text: how a key and a string are written, and which texts are worth reading at all.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// Adds `text` (UTF-8) in quotes on one line, so that any characters read back as they are.
void AppendTomlString(std::string& out, std::string_view text);

/// Adds `key` bare where TOML allows that, in quotes otherwise.
void AppendTomlKey(std::string& out, std::string_view key);

/// The most dots in one dotted key that a modest document has.
inline constexpr int kMostDotsInAKey = 32;
/// The most marks of structure (= , . [ {) outside strings and comments that a modest document has.
inline constexpr int kMostTomlMarks = 50'000;

/// Whether reading `toml` takes stack, memory and time within reason. Each dot of a key is a level
/// of tables to recurse through, and each mark may cost memory and a search through those before
/// it; the parser puts no bound to either. Settings have some hundred marks and keys without dots.
/// Promises nothing about a text that is not TOML.
bool IsModestToml(std::string_view toml);

}  // namespace kav
