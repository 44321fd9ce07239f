#include "plotter/curve_sampling.h"

#include <cmath>
#include <cstdint>
#include <numeric>

#include "engine/formula_runner.h"

namespace kav {
namespace {

/// 1/229, rounded as it always was: its bits decide the bits of every sample.
constexpr double kStepFactor = 0.004366812227074236;

double StepOf(const PlotRange& range) {
  return (range.xMax - range.xMin) * kStepFactor;
}

double SampleAt(const PlotRange& range, double step, double i) {
  return range.xMin + i * step;
}

}  // namespace

double LowestTruncatedTo(double integer) {
  return integer > 0 ? integer : std::nextafter(integer - 1, integer);
}

/// Takes the values of the samples in turn and writes their rows into `curve`, which must outlive
/// it.
class CurveTracer {
 public:
  CurveTracer(const PlotRange& range, PlotRows rows, CurveRows& curve)
      : rows_(rows),
        firstInside_(LowestTruncatedTo(rows.top)),
        firstBelow_(LowestTruncatedTo(rows.bottom + 1.)),
        yMin_(range.yMin),
        rowsPerUnit_((static_cast<double>(rows.bottom) - rows.top) / (range.yMax - range.yMin)),
        curve_(curve) {}

  void Fail() {
    last_ = Sample::Failed;
    ++next_;
  }

  void Take(double y) {
    const double row = rows_.bottom - rowsPerUnit_ * (y - yMin_);
    if (row < firstInside_) {
      TakeOutside(rows_.top);
    } else if (row >= firstBelow_) {
      TakeOutside(rows_.bottom);
    } else if (row == row) {
      TakeInside(static_cast<int>(row));
    } else {
      Fail();  // A range too high or too flat for double has no rows.
    }
  }

 private:
  enum class Sample : std::uint8_t { Failed, Inside, OnBorder, Outside };

  void TakeOutside(int border) {
    const bool isLeaving = last_ == Sample::Inside;
    if (isLeaving) curve_.rows_[next_] = border;
    last_ = isLeaving ? Sample::OnBorder : Sample::Outside;
    ++next_;
  }

  void TakeInside(int row) {
    if (last_ == Sample::Outside) Enter(row);
    curve_.rows_[next_] = row;
    last_ = Sample::Inside;
    ++next_;
  }

  /// Puts the last sample on the border nearest to `row`, in which the next one is.
  void Enter(int row) {
    const int middle = std::midpoint(rows_.top, rows_.bottom);
    if (row == middle) return;
    curve_.rows_[next_ - 1] = row < middle ? rows_.top : rows_.bottom;
    // If the sample before that has a point, the curve left there. A line between the two would
    // cross a pole.
    if (next_ >= 2 && curve_.rows_[next_ - 2]) curve_.leavesForGood_.set(next_ - 2);
  }

  PlotRows rows_;
  double firstInside_;
  double firstBelow_;
  double yMin_;
  double rowsPerUnit_;
  CurveRows& curve_;
  std::size_t next_ = 0;
  Sample last_ = Sample::Failed;
};

double SampleX(const PlotRange& range, double i) {
  return SampleAt(range, StepOf(range), i);
}

CurveRows SampleCurve(const CheckedFormula& formula, const PlotRange& range, AngleUnit unit,
                      PlotRows rows) {
  FormulaRunner runner(formula, unit);
  CurveRows curve;
  CurveTracer tracer(range, rows, curve);
  const double step = StepOf(range);
  for (int i = 0; i < kSampleCount; ++i) {
    const auto y = runner.At({.x = SampleAt(range, step, i)});
    y ? tracer.Take(*y) : tracer.Fail();
  }
  return curve;
}

}  // namespace kav
