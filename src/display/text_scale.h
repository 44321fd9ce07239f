// How large the user wants texts.
#pragma once

#include <cstdint>

namespace kav {

/// Of the usual size, in percent.
inline constexpr int kUsualTextScale = 100;
inline constexpr int kLeastTextScale = 50;
inline constexpr int kMostTextScale = 200;

enum class TextStep { Larger, Smaller, Usual };

/// The scale that a stored number stands for: the nearest that there is.
int TextScaleFromSetting(std::int32_t stored);

/// The scale after `percent` in that direction; the same at the end of the range.
int NextTextScale(int percent, TextStep step);

/// How much larger than usual texts begin on a desktop whose own have that many points. Desktops
/// differ a little in what is usual; that makes no difference.
double DesktopTextShare(double points);

}  // namespace kav
