// What screen readers say of a grid.
#pragma once

#include <string_view>

namespace kav {

/// Describes a cell whose format is marked.
inline constexpr std::u16string_view kMarkedCell = u"marked";

// The place of a cell, before the texts of its headers.
inline constexpr std::u16string_view kRowOfCell = u"row ";
inline constexpr std::u16string_view kColumnOfCell = u"column ";

}  // namespace kav
