// The pages of the guide.
#pragma once

namespace kav {

/// What a page tells about. The guide's own order is that of its text.
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

}  // namespace kav
