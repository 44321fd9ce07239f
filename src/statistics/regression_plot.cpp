#include "statistics/regression_plot.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "plotter/equation_list.h"
#include "statistics/statistics_menus.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The room on each side of the points, as a part of their extent.
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

/// The smallest range that holds all points.
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

/// The range of a graph that shows all points, with room around them.
PlotRange RangeAround(const std::vector<DataPoint>& points) {
  const PlotRange extent = ExtentOf(points);
  const double x = kMargin * (extent.xMax - extent.xMin);
  const double y = kMargin * (extent.yMax - extent.yMin);
  return {extent.xMin - x, extent.xMax + x, extent.yMin - y, extent.yMax + y};
}

/// Whether the model has such a curve: one whose coefficients are numbers that can be written.
bool IsCurve(const FittedCurve& curve, DisplayFormat format) {
  const auto& [a, b, c] = curve.coefficients;
  const auto isNumber = [format](double value) {
    return static_cast<bool>(FormatForInsertion(value, format));
  };
  return isNumber(a) && isNumber(b) && (curve.model != RegressionModel::Quadratic || isNumber(c));
}

}  // namespace

Expected<GraphInput, std::u16string> BuildRegressionPlot(const DataList& list,
                                                         const FittedCurve& curve,
                                                         DisplayFormat format, AngleUnit angle) {
  auto points = PointsOf(list);
  if (!points) return std::u16string(kNoMemoryForGraph);
  const PlotRange range = RangeAround(*points);
  if (const auto refusal = RangeRefusal(range)) return std::u16string(*refusal);
  if (!IsCurve(curve, format)) return ModelHasNoCurve(ModelItem(curve.model));
  const std::string equation = EquationText(curve.model, curve.coefficients, format);
  const auto formula = CheckFormula(equation, VariableType::X);
  if (!formula) return EquationIsUnreadable(Widen(formula.error().message), Widen(equation));

  GraphInput input;
  input.curves.push_back({CurveLabel(0, Widen(equation)), *formula});
  input.range = range;
  input.angle = angle;
  input.format = format;
  input.points = *std::move(points);
  return input;
}

}  // namespace kav
