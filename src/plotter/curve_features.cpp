#include "plotter/curve_features.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace kav {
namespace {

// More than a plot has columns; in round ranges the samples are round.
constexpr std::size_t kParts = 2000;
constexpr double kEpsilon = std::numeric_limits<double>::epsilon();

struct Sample {
  double x;
  std::optional<double> y;
};

std::vector<Sample> SamplesOf(const CurveFunction& curve, double lower, double upper) {
  std::vector<Sample> samples;
  samples.reserve(kParts + 1);
  for (std::size_t i = 0; i <= kParts; ++i) {
    const double x = lower + static_cast<double>(i) * (upper - lower) / kParts;
    samples.push_back({x, curve(x)});
  }
  return samples;
}

bool HaveOppositeSigns(double a, double b) {
  return (a < 0 && b > 0) || (a > 0 && b < 0);
}

/// The roundest number so near to `x` that the curve is no worse there.
double Rounded(const CurveFunction& curve, double x, double width, double sign) {
  constexpr double kNear = 1e-8;
  constexpr int kMostDigits = 15;
  const auto at = curve(x);
  if (!at) return x;
  const double whole = std::pow(10, -std::floor(std::log10(width)));
  if (!std::isfinite(whole) || whole == 0) return x;
  double part = whole;
  for (int digits = 0; digits < kMostDigits; ++digits, part *= 10) {
    const double round = std::round(x * part) / part;
    if (!(std::fabs(round - x) <= kNear * width)) continue;
    const auto y = curve(round);
    if (y && sign * *y <= sign * *at) return round;
  }
  return x;
}

/// A root at or beside `root`. Where many doubles have the same least value, the roundest is meant.
CurveFeature RoundedRoot(const CurveFunction& curve, double root, double width) {
  const auto size = [&](double x) -> std::optional<double> {
    const auto y = curve(x);
    return y ? std::optional(std::fabs(*y)) : std::nullopt;
  };
  const double x = Rounded(size, root, width, 1);
  return {FeatureKind::Root, x, curve(x).value_or(0)};
}

/// Halves the bracket until its ends are neighbours among doubles. nullopt for a pole or a jump.
std::optional<CurveFeature> RootBetween(const CurveFunction& curve, Sample a, Sample b) {
  // At a root the values come down to almost nothing; at a jump they do not.
  constexpr double kAlmostNothing = 1e-3;
  const double largest = std::max(std::fabs(*a.y), std::fabs(*b.y));
  const double width = b.x - a.x;
  while (true) {
    const double x = std::midpoint(a.x, b.x);
    if (x == a.x || x == b.x) break;
    const auto y = curve(x);
    if (!y) return std::nullopt;
    if (*y == 0) return RoundedRoot(curve, x, width);
    (HaveOppositeSigns(*y, *a.y) ? b : a) = {x, y};
  }
  const Sample& best = std::fabs(*a.y) <= std::fabs(*b.y) ? a : b;
  if (std::fabs(*best.y) > kAlmostNothing * largest) return std::nullopt;
  return RoundedRoot(curve, best.x, width);
}

/// A slope at x from differences over shrinking distances, extrapolated to a distance of 0.
std::optional<double> Extrapolated(const CurveFunction& curve, double x, double distance) {
  constexpr std::size_t kRows = 8;
  std::array<double, kRows> row{};
  double best = 0;
  double error = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < kRows; ++i, distance /= 2) {
    const double right = x + distance;
    const double left = x - distance;
    const auto upper = curve(right);
    const auto lower = curve(left);
    if (!upper || !lower || !(right > left)) return std::nullopt;
    double next = (*upper - *lower) / (right - left);
    double factor = 4;
    for (std::size_t k = 0; k < i; ++k, factor *= 4) {
      const double finer = next + (next - row[k]) / (factor - 1);
      const double change = std::max(std::fabs(finer - next), std::fabs(finer - row[k]));
      row[k] = next;
      next = finer;
      if (change <= error) {
        error = change;
        best = finer;
      }
    }
    row[i] = next;
  }
  return best;
}

/// Looks for the lowest value of `sign` times the curve, by golden sections.
double LowestBetween(const CurveFunction& curve, double a, double b, double sign) {
  constexpr double kGolden = 0.6180339887498949;
  constexpr int kSteps = 60;
  const auto value = [&](double x) {
    const auto y = curve(x);
    return y ? sign * *y : std::numeric_limits<double>::infinity();
  };
  double c = b - kGolden * (b - a);
  double d = a + kGolden * (b - a);
  double atC = value(c);
  double atD = value(d);
  for (int i = 0; i < kSteps; ++i) {
    if (atC <= atD) {
      b = std::exchange(d, c);
      atD = atC;
      c = b - kGolden * (b - a);
      atC = value(c);
    } else {
      a = std::exchange(c, d);
      atC = atD;
      d = a + kGolden * (b - a);
      atD = value(d);
    }
  }
  return atC <= atD ? c : d;
}

/// Values near an extremum differ by less than doubles tell apart; the slopes there do not. So the
/// place is where the slope changes its sign, if that is near.
double WhereLevel(const CurveFunction& curve, double x, double near) {
  double a = x - near;
  double b = x + near;
  const auto slopeAt = [&](double at) { return Extrapolated(curve, at, near / 2); };
  const auto first = slopeAt(a);
  const auto last = slopeAt(b);
  if (!first || !last || !HaveOppositeSigns(*first, *last)) return x;
  while (true) {
    const double middle = std::midpoint(a, b);
    if (middle == a || middle == b || b - a <= kEpsilon * kEpsilon * near) return middle;
    const auto slope = slopeAt(middle);
    if (!slope || *slope == 0) return slope ? middle : x;
    (HaveOppositeSigns(*slope, *first) ? b : a) = middle;
  }
}

/// `sign` is 1 for a minimum, -1 for a maximum. nullopt beside a pole or at a jump.
std::optional<CurveFeature> ExtremumBetween(const CurveFunction& curve, const Sample& before,
                                            const Sample& after, double sign, double depth) {
  const double width = after.x - before.x;
  const double lowest = LowestBetween(curve, before.x, after.x, sign);
  const double level = WhereLevel(curve, lowest, width / 8);
  const auto atLevel = curve(level);
  const auto atLowest = curve(lowest);
  constexpr double kSmall = 64 * kEpsilon;
  const bool isAsLow =
      atLevel && atLowest &&
      sign * (*atLevel - *atLowest) <= kSmall * std::fabs(*atLowest) + depth * 1e-9;
  const double x = Rounded(curve, isAsLow ? level : lowest, width, sign);
  const auto y = curve(x);
  if (!y) return std::nullopt;
  // Nearly the same height on both sides, else it is the edge of a jump.
  for (const double beside : {x - width * 1e-6, x + width * 1e-6}) {
    const auto there = curve(beside);
    if (!there || std::fabs(*there - *y) > depth * 1e-2 + kSmall * std::fabs(*y)) {
      return std::nullopt;
    }
  }
  return CurveFeature{sign > 0 ? FeatureKind::Minimum : FeatureKind::Maximum, x, *y};
}

/// Takes the feature unless there are too many; returns whether to look on.
bool Add(CurveFeatures& features, CurveFeature feature) {
  if (features.found.size() == kMostFeatures) return features.areAll = false;
  features.found.push_back(feature);
  return true;
}

/// The last sample from `i` on with the value of sample `i`.
std::size_t EndOfLevel(const std::vector<Sample>& samples, std::size_t i) {
  while (i + 1 < samples.size() && samples[i + 1].y && *samples[i + 1].y == *samples[i].y) ++i;
  return i;
}

/// The extremum at the samples `first` to `last`, which have one value.
std::optional<CurveFeature> ExtremumAt(const CurveFunction& curve,
                                       const std::vector<Sample>& samples, std::size_t first,
                                       std::size_t last) {
  if (first == 0 || last + 1 >= samples.size()) return std::nullopt;
  const Sample& before = samples[first - 1];
  const Sample& after = samples[last + 1];
  if (!before.y || !after.y) return std::nullopt;
  const double y = *samples[first].y;
  const double left = *before.y - y;
  const double right = *after.y - y;
  // Less than what rounding makes of a level curve.
  const double noise = 8 * kEpsilon * std::fabs(y);
  if (HaveOppositeSigns(left, right) || std::min(std::fabs(left), std::fabs(right)) <= noise) {
    return std::nullopt;
  }
  const double sign = left > 0 ? 1 : -1;
  const double depth = std::max(std::fabs(left), std::fabs(right));
  if (last - first < 2) return ExtremumBetween(curve, before, after, sign, depth);
  return CurveFeature{sign > 0 ? FeatureKind::Minimum : FeatureKind::Maximum, samples[first].x, y,
                      samples[last].x};
}

/// Whether the extremum is as near to 0 as the formula carries, beside values of size `around`.
bool Touches(const CurveFeature& extremum, double around) {
  constexpr double kTouching = 1e-13;
  return !extremum.until && std::fabs(extremum.y) <= kTouching * around;
}

/// The root at samples `first` to `last`, which have one value, or between `last` and the next.
std::optional<CurveFeature> RootAt(const CurveFunction& curve, const std::vector<Sample>& samples,
                                   std::size_t first, std::size_t last) {
  const double y = *samples[first].y;
  if (y == 0) {
    CurveFeature root{FeatureKind::Root, samples[first].x, 0};
    if (last > first) root.until = samples[last].x;
    return root;
  }
  if (last + 1 >= samples.size()) return std::nullopt;
  const Sample& next = samples[last + 1];
  if (next.y && HaveOppositeSigns(y, *next.y)) return RootBetween(curve, samples[last], next);
  auto touching = ExtremumAt(curve, samples, first, last);
  if (!touching || !Touches(*touching, std::fabs(*samples[first - 1].y))) return std::nullopt;
  touching->kind = FeatureKind::Root;
  return touching;
}

/// By how much the slopes on both sides of a place differ, and how much of that rounding may be.
struct Bend {
  double value;
  double noise;
};
std::optional<Bend> BendAt(const CurveFunction& curve, double x, double beside) {
  constexpr double kRounding = 32 * kEpsilon;
  const auto y = curve(x);
  const auto left = curve(x - beside);
  const auto right = curve(x + beside);
  if (!y || !left || !right) return std::nullopt;
  const double size = std::fabs(*y) + std::fabs(*left) + std::fabs(*right);
  return Bend{std::fabs(*right - *y - (*y - *left)) / beside, kRounding * size / beside};
}

}  // namespace

CurveFeatures FindRoots(const CurveFunction& curve, double lower, double upper) {
  CurveFeatures roots;
  const std::vector<Sample> samples = SamplesOf(curve, lower, upper);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (!samples[i].y) continue;
    const std::size_t first = std::exchange(i, EndOfLevel(samples, i));
    const auto root = RootAt(curve, samples, first, i);
    if (root && !Add(roots, *root)) break;
  }
  return roots;
}

CurveFeatures FindExtrema(const CurveFunction& curve, double lower, double upper) {
  CurveFeatures extrema;
  const std::vector<Sample> samples = SamplesOf(curve, lower, upper);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (!samples[i].y) continue;
    const std::size_t first = std::exchange(i, EndOfLevel(samples, i));
    const auto extremum = ExtremumAt(curve, samples, first, i);
    if (extremum && !Add(extrema, *extremum)) break;
  }
  return extrema;
}

std::optional<double> SlopeAt(const CurveFunction& curve, double x, double width) {
  constexpr double kPart = 1. / 512;
  constexpr double kWide = 1e-4;
  constexpr double kCloser = 16;
  const auto slope = Extrapolated(curve, x, width * kPart);
  const auto wide = BendAt(curve, x, width * kWide);
  const auto close = BendAt(curve, x, width * kWide / kCloser);
  if (!slope || !wide || !close) return std::nullopt;
  // Closer up, a curve looks straighter, but a corner does not.
  const bool isCorner = close->value > close->noise && close->value > wide->value / 2;
  return isCorner ? std::nullopt : slope;
}

namespace {

// The 15 nodes of Kronrod and, at the odd places, the 7 of Gauss.
constexpr std::array kNodes{
    0.991455371120812639206854697526329, 0.949107912342758524526189684047851,
    0.864864423359769072789712788640926, 0.741531185599394439863864773280788,
    0.586087235467691130294144691693013, 0.405845151377397166906606412076961,
    0.207784955007898467600689403773245, 0.};
constexpr std::array kKronrod{
    0.022935322010529224963732008058970, 0.063092092629978553290700663189204,
    0.104790010322250183839876322541518, 0.140653259715525918745189590510238,
    0.169004726639267902826583426598550, 0.190350578064785409913256402421014,
    0.204432940075298892414161999234649, 0.209482141084727828012999174891714};
constexpr std::array kGauss{
    0.129484966168869693270611432679082, 0.279705391489276667901467771423780,
    0.381830050505118944950369775488975, 0.417959183673469387755102040816327};

struct Part {
  double lower;
  double upper;
  int depth;
};
struct Estimate {
  double value = 0;
  double error = 0;
  bool isWhole = true;
};

Estimate EstimateOf(const CurveFunction& curve, const Part& part) {
  const double middle = std::midpoint(part.lower, part.upper);
  const double half = (part.upper - part.lower) / 2;
  Estimate estimate;
  double gauss = 0;
  for (std::size_t i = 0; i < kNodes.size(); ++i) {
    double sum = 0;
    for (const double side : {-1., 1.}) {
      if (i + 1 == kNodes.size() && side > 0) break;
      const auto y = curve(middle + side * half * kNodes[i]);
      estimate.isWhole = estimate.isWhole && y;
      sum += y.value_or(0);
    }
    estimate.value += kKronrod[i] * sum;
    if (i % 2 == 1) gauss += kGauss[i / 2] * sum;
  }
  estimate.value *= half;
  estimate.error = std::fabs(estimate.value - gauss * half);
  return estimate;
}

}  // namespace

CurveArea AreaUnder(const CurveFunction& curve, double lower, double upper) {
  constexpr int kParts0 = 16;
  constexpr int kDeepest = 40;
  constexpr int kMostParts = 4000;
  std::vector<Part> open;
  for (int i = 0; i < kParts0; ++i) {
    const double width = (upper - lower) / kParts0;
    open.push_back({lower + i * width, lower + (i + 1) * width, 0});
  }
  CurveArea area;
  double size = 0;
  for (int count = 0; !open.empty(); ++count) {
    const Part part = open.back();
    open.pop_back();
    const Estimate estimate = EstimateOf(curve, part);
    const double wanted = 1e-14 * std::max(size, std::fabs(estimate.value));
    const bool isDone = estimate.isWhole && estimate.error <= wanted;
    const bool isLast = part.depth == kDeepest || count > kMostParts;
    if (isDone || isLast) {
      size += std::fabs(estimate.value);
      const bool isSettled = estimate.isWhole && estimate.error <= 1e-9 * size;
      area.isWhole = area.isWhole && isSettled;
      if (isSettled) area.value += estimate.value;
      continue;
    }
    const double middle = std::midpoint(part.lower, part.upper);
    open.push_back({part.lower, middle, part.depth + 1});
    open.push_back({middle, part.upper, part.depth + 1});
  }
  return area;
}

}  // namespace kav
