// What a grid says to those who do not see it.
#pragma once

#include <string_view>

namespace kav {

/// Of a cell in the colour that says: look here.
inline constexpr std::u16string_view kMarkedCell = u"marked";

// The place of a cell, before the texts of its headers.
inline constexpr std::u16string_view kRowOfCell = u"row ";
inline constexpr std::u16string_view kColumnOfCell = u"column ";

}  // namespace kav
