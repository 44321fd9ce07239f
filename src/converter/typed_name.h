// Entries of a list that are found by typing their names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// `caption` without the number and the point in front of it; all of a caption without a number.
std::u16string_view WithoutNumber(std::u16string_view caption);

/// The index of the entry whose name begins with `typed`, the first from `start` on and around: of
/// "07. Length" the name is "Length". If there is none, of the first one with a later word that
/// begins so. Upper and lower case do not count. nullopt if there is none either.
std::optional<std::size_t> EntryNamed(const std::vector<std::u16string>& entries,
                                      std::u16string_view typed, std::size_t start);

}  // namespace kav
