// Samples the curve of a formula.
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

/// The first and the last row of pixels of a plot, top <= bottom. y max is in the row `top`, y min
/// in the row `bottom`.
struct PlotRows {
  int top = 0;
  int bottom = kSampleCount - 1;
};

/// The x of sample `i`, from 0 to kSampleCount - 1, or of a place between two samples.
double SampleX(const PlotRange& range, double i);

/// The lowest number that is `integer` when truncated toward zero. Rows are compared with such
/// numbers before they are converted, because some are too large for an integer.
double LowestTruncatedTo(double integer);

/// The row of each sample of a curve; nullopt for a sample without a point.
class CurveRows {
 public:
  using Rows = std::array<std::optional<int>, kSampleCount>;

  const std::optional<int>& operator[](std::size_t i) const { return rows_[i]; }
  static constexpr std::size_t size() { return kSampleCount; }
  Rows::const_iterator begin() const { return rows_.begin(); }
  Rows::const_iterator end() const { return rows_.end(); }

  /// Whether a line joins sample `i` to the next. Both must have points, and the curve must not
  /// leave the plot at the first and come back at the second.
  bool IsJoinedToNext(std::size_t i) const {
    return i + 1 < size() && rows_[i] && rows_[i + 1] && !leavesForGood_[i];
  }

  bool operator==(const CurveRows&) const = default;

 private:
  friend class CurveTracer;

  Rows rows_;
  std::bitset<kSampleCount> leavesForGood_;  ///< at i, and comes back at i + 1
};

/// Evaluates `formula` for each sample. A sample that fails has no point. A sample outside the rows
/// has none either, with two exceptions: when the curve leaves the plot, the first sample outside
/// is put on the border; when it enters, the last sample outside is.
CurveRows SampleCurve(const CheckedFormula& formula, const PlotRange& range, AngleUnit unit,
                      PlotRows rows);

}  // namespace kav
