// Roots, extrema, slopes and areas of curves, as exact as their formulas are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace kav {

/// The value at x, finite; nullopt where there is none.
using CurveFunction = std::function<std::optional<double>(double x)>;

enum class FeatureKind : std::uint8_t { Root, Minimum, Maximum };

struct CurveFeature {
  FeatureKind kind;
  double x;
  double y;
  std::optional<double> until{};  ///< the other end of a stretch of equal values
};

struct CurveFeatures {
  std::vector<CurveFeature> found;  ///< in the order of x
  bool areAll = true;               ///< else there are more than kMostFeatures
};

inline constexpr std::size_t kMostFeatures = 50;

// They look from `lower` to `upper`, closer than at each column of a plot. Poles and jumps are
// neither roots nor extrema; a curve that touches zero has a root there.

/// A root is the double on whose sides the sign changes: of the two, that with the value nearer 0.
CurveFeatures FindRoots(const CurveFunction& curve, double lower, double upper);
/// Extrema within the range; its ends are none.
CurveFeatures FindExtrema(const CurveFunction& curve, double lower, double upper);

/// The slope at `x`; nullopt where the curve has a gap, a corner or a jump. `width` is how far
/// around x the curve is worth looking at, such as the width of what is shown.
std::optional<double> SlopeAt(const CurveFunction& curve, double x, double width);

struct CurveArea {
  double value = 0;     ///< counted negative below y = 0
  bool isWhole = true;  ///< else the curve has gaps or poles, and they are left out
};
CurveArea AreaUnder(const CurveFunction& curve, double lower, double upper);

}  // namespace kav
