// From a formula to the points of its curve.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>

#include "engine/calc_modes.h"
#include "engine/formula_checker.h"
#include "plotter/plot_range.h"

namespace kav {

inline constexpr int kSampleCount = 230;

/// The rows of pixels of a plot area, top <= bottom: y max stands in the row `top`, y min in
/// `bottom`, below it.
struct PlotRows {
  int top = 0;
  int bottom = kSampleCount - 1;
};

/// Where sample i, from 0 to kSampleCount - 1, of `range` stands.
double SampleX(const PlotRange& range, int i);

/// The row of each sample; nullopt where the curve has no point.
class CurveRows {
 public:
  using Rows = std::array<std::optional<int>, kSampleCount>;

  const std::optional<int>& operator[](std::size_t i) const { return rows_[i]; }
  static constexpr std::size_t size() { return kSampleCount; }
  Rows::const_iterator begin() const { return rows_.begin(); }
  Rows::const_iterator end() const { return rows_.end(); }

  /// Whether the curve goes on from sample i to the next one: both have points, and not the one
  /// because the curve leaves the plot there and the other because it comes back.
  bool IsJoinedToNext(std::size_t i) const {
    return i + 1 < size() && rows_[i] && rows_[i + 1] && !leavesForGood_[i];
  }

  bool operator==(const CurveRows&) const = default;

 private:
  friend class CurveTracer;

  Rows rows_;
  std::bitset<kSampleCount> leavesForGood_;  ///< at i, and comes back at i + 1
};

/// Evaluates `formula` for each sample. A point outside of the rows is none, except that a curve
/// runs to the border where it leaves, and from the border where it enters. No sample that fails
/// has a point.
CurveRows SampleCurve(const CheckedFormula& formula, const PlotRange& range, AngleUnit unit,
                      PlotRows rows);

}  // namespace kav
