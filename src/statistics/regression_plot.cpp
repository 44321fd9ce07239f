#include "statistics/regression_plot.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "engine/calc_error.h"
#include "engine/formula_checker.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The room on each side of the data, as a part of their own extent.
constexpr double kMargin = 0.3;

std::optional<std::vector<DataPoint>> PointsOf(const DataList& list) {
  try {
    std::vector<DataPoint> points(list.RowCount());
    for (std::size_t row = 0; row < points.size(); ++row) {
      points[row] = {list.Value(row, 0), list.Value(row, 1)};
    }
    return points;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

/// From the least to the most of both coordinates.
PlotRange ExtentOf(const std::vector<DataPoint>& points) {
  const DataPoint& first = points.front();
  PlotRange extent{first.x, first.x, first.y, first.y};
  for (const DataPoint& point : points) {
    extent.xMin = std::min(extent.xMin, point.x);
    extent.xMax = std::max(extent.xMax, point.x);
    extent.yMin = std::min(extent.yMin, point.y);
    extent.yMax = std::max(extent.yMax, point.y);
  }
  return extent;
}

PlotRange Widened(const PlotRange& extent) {
  const double x = kMargin * (extent.xMax - extent.xMin);
  const double y = kMargin * (extent.yMax - extent.yMin);
  return {extent.xMin - x, extent.xMax + x, extent.yMin - y, extent.yMax + y};
}

/// Whether the places between the bounds are numbers, too.
bool IsFinite(const PlotRange& range) {
  return std::isfinite(range.xMax - range.xMin) && std::isfinite(range.yMax - range.yMin);
}

/// What is told where `extent` is that of no graph; empty where it can be shown.
std::u16string RefusalOf(const PlotRange& extent) {
  if (extent.xMin == extent.xMax) return std::u16string(kXMaximumIsNotBigger);
  if (extent.yMin == extent.yMax) return std::u16string(kYMaximumIsNotBigger);
  if (IsFinite(Widened(extent))) return {};
  return Widen(MakeError(CalcErrorCode::OutOfRange).message);
}

}  // namespace

Expected<GraphInput, std::u16string> BuildRegressionPlot(const DataList& list,
                                                         const FittedCurve& curve,
                                                         DisplayFormat format, AngleUnit angle) {
  auto points = PointsOf(list);
  if (!points) return std::u16string(kNoMemoryForGraph);
  const PlotRange extent = ExtentOf(*points);
  if (std::u16string refusal = RefusalOf(extent); !refusal.empty()) return refusal;
  const std::string equation = EquationText(curve.model, curve.coefficients, format);
  const auto formula = CheckFormula(equation, VariableType::X);
  if (!formula) return EquationIsUnreadable(Widen(formula.error().message), Widen(equation));

  GraphInput input;
  input.curves.push_back({std::u16string(kFittedCurvePrefix) + Widen(equation), *formula});
  input.range = Widened(extent);
  input.angle = angle;
  input.format = format;
  input.points = *std::move(points);
  return input;
}

}  // namespace kav
