#include "plotter/curve_strokes.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

#include "engine/formula_runner.h"

namespace kav {
namespace {

/// How far a place that is left out may be from the line, in rows.
constexpr double kUnseen = 0.04;
/// The longest line, in samples: painted twice where two pieces of a stroke meet, a long one would
/// be seen to be wider.
constexpr double kLongestLine = 4;

/// Takes the places of a stroke in turn and keeps those that lines need.
class Thinner {
 public:
  void Add(CurvePlace place) {
    if (kept_.empty()) {
      kept_.push_back(place);
      return;
    }
    if (hasLast_ && !Reaches(place)) {
      kept_.push_back(last_);
      Widen();
    }
    Narrow(place);
    last_ = place;
    hasLast_ = true;
  }

  /// The stroke, if it has two places; a new one begins.
  CurveStroke Take() {
    if (hasLast_) kept_.push_back(last_);
    hasLast_ = false;
    Widen();
    CurveStroke stroke = std::exchange(kept_, {});
    if (stroke.size() < 2) stroke.clear();
    return stroke;
  }

 private:
  double Slope(CurvePlace place, double error) const {
    const CurvePlace& from = kept_.back();
    return (place.row + error - from.row) / (place.sample - from.sample);
  }
  /// Whether a line from the last kept place to `place` passes all between them.
  bool Reaches(CurvePlace place) const {
    const double slope = Slope(place, 0);
    return slope >= least_ && slope <= most_ && place.sample - kept_.back().sample <= kLongestLine;
  }
  void Narrow(CurvePlace place) {
    least_ = std::max(least_, Slope(place, -kUnseen));
    most_ = std::min(most_, Slope(place, kUnseen));
  }
  void Widen() {
    least_ = -std::numeric_limits<double>::infinity();
    most_ = std::numeric_limits<double>::infinity();
  }

  CurveStroke kept_;
  CurvePlace last_{};
  bool hasLast_ = false;
  double least_ = -std::numeric_limits<double>::infinity();
  double most_ = std::numeric_limits<double>::infinity();
};

/// Takes the values of the samples in turn.
class StrokeTracer {
 public:
  StrokeTracer(const PlotRange& range, PlotRows rows)
      : rows_(rows),
        firstInside_(LowestTruncatedTo(rows.top)),
        firstBelow_(LowestTruncatedTo(rows.bottom + 1.)),
        yMin_(range.yMin),
        rowsPerUnit_((static_cast<double>(rows.bottom) - rows.top) / (range.yMax - range.yMin)) {}

  void Fail() {
    End();
    last_ = Sample::Failed;
  }

  void Take(double sample, double y) {
    const double row = rows_.bottom - rowsPerUnit_ * (y - yMin_);
    if (row < firstInside_) {
      TakeOutside(sample, rows_.top);
    } else if (row >= firstBelow_) {
      TakeOutside(sample, rows_.bottom);
    } else if (row == row) {
      TakeInside(sample, row);
    } else {
      Fail();  // A range too high or too flat for double has no rows.
    }
  }

  std::vector<CurveStroke> Strokes() {
    End();
    return std::move(strokes_);
  }

 private:
  enum class Sample : std::uint8_t { Failed, Inside, OnBorder, Outside };

  void TakeOutside(double sample, double border) {
    const bool isLeaving = last_ == Sample::Inside;
    if (isLeaving) stroke_.Add({sample, border});
    if (!isLeaving) End();
    last_ = isLeaving ? Sample::OnBorder : Sample::Outside;
    outside_ = sample;
  }

  void TakeInside(double sample, double row) {
    const double middle = std::midpoint(rows_.top, rows_.bottom);
    if (last_ == Sample::Outside && row != middle) {
      stroke_.Add({outside_, static_cast<double>(row < middle ? rows_.top : rows_.bottom)});
    }
    // A pixel of the row begins at the number that truncation makes of `row`.
    constexpr double kToCentre = 0.5;
    stroke_.Add({sample, std::max<double>(row, rows_.top) - kToCentre});
    last_ = Sample::Inside;
  }

  void End() {
    CurveStroke stroke = stroke_.Take();
    if (!stroke.empty()) strokes_.push_back(std::move(stroke));
  }

  PlotRows rows_;
  double firstInside_;
  double firstBelow_;
  double yMin_;
  double rowsPerUnit_;
  Thinner stroke_;
  std::vector<CurveStroke> strokes_;
  double outside_ = 0;  ///< the last sample outside
  Sample last_ = Sample::Failed;
};

}  // namespace

std::vector<CurveStroke> SampleStrokes(const CheckedFormula& formula, const PlotRange& range,
                                       AngleUnit unit, PlotRows rows, int parts) {
  FormulaRunner runner(formula, unit);
  StrokeTracer tracer(range, rows);
  for (int i = 0; i <= (kSampleCount - 1) * parts; ++i) {
    const double sample = static_cast<double>(i) / parts;
    const auto y = runner.At({.x = SampleX(range, sample)});
    y ? tracer.Take(sample, *y) : tracer.Fail();
  }
  return tracer.Strokes();
}

}  // namespace kav
