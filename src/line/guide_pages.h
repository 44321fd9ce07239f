// The pages of the guide.
#pragma once

#include <string_view>

namespace kav {

/// What a page tells about, in the order of the guide.
enum class GuidePage {
  Scientific,
  Matrix,
  OneVariable,
  TwoVariable,
  Plotter,
  Graph,
  Converter,
  OwnUnits,
  Macros,
  Memory,
  Constants,
  Settings
};

/// The heading of `page`.
std::u16string_view HeadingOf(GuidePage page);

}  // namespace kav
