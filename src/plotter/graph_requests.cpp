#include "plotter/graph_requests.h"

#include <cmath>
#include <cstddef>
#include <optional>

#include "common/number_text.h"
#include "display/number_input.h"
#include "engine/calc_modes.h"
#include "line/shown_number.h"
#include "plotter/curve_features.h"
#include "plotter/equation_list.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

CurveFunction FunctionOf(const GraphModel& model, std::size_t index) {
  const GraphInput& input = model.Input();
  return [&formula = input.curves[index].formula,
          angle = input.angle](double x) -> std::optional<double> {
    const auto y = formula.At({.x = x}, angle);
    return y ? std::optional(*y) : std::nullopt;
  };
}

std::u16string Shown(const GraphModel& model, double value) {
  return ShownNumber(value, model.Input().format, BaseMode::Decimal);
}

std::u16string_view NameOf(FeatureKind kind) {
  switch (kind) {
    case FeatureKind::Root:
      return kRootName;
    case FeatureKind::Minimum:
      return kMinimumName;
    case FeatureKind::Maximum:
      return kMaximumName;
  }
  return {};
}

void AddFeatures(const GraphModel& model, const CurveFeatures& features, std::u16string_view name,
                 GraphFindings& findings) {
  for (const CurveFeature& feature : features.found) {
    std::u16string line(name.empty() ? NameOf(feature.kind) : name);
    line.append(kFoundX).append(Shown(model, feature.x));
    if (feature.until) line.append(kFoundUntil).append(Shown(model, *feature.until));
    if (feature.kind != FeatureKind::Root || !name.empty()) {
      line.append(kFoundY).append(Shown(model, feature.y));
    }
    findings.lines.push_back(std::move(line));
    findings.places.push_back(InsertedNumber(feature.x, model.Input().format, BaseMode::Decimal));
  }
  if (features.areAll) return;
  findings.lines.emplace_back(kMoreAreThere);
  findings.places.emplace_back();
}

void AddIntersections(const GraphModel& model, GraphFindings& findings) {
  const PlotRange& range = model.Range();
  const auto selected = static_cast<std::size_t>(model.Selected());
  const CurveFunction curve = FunctionOf(model, selected);
  for (std::size_t i = 0; i < model.Input().curves.size(); ++i) {
    if (i == selected) continue;
    const CurveFunction other = FunctionOf(model, i);
    CurveFeatures features = FindRoots(
        [&](double x) -> std::optional<double> {
          const auto a = curve(x);
          const auto b = other(x);
          return a && b ? std::optional(*a - *b) : std::nullopt;
        },
        range.xMin, range.xMax);
    for (CurveFeature& feature : features.found) feature.y = curve(feature.x).value_or(0);
    const std::size_t place = PlaceOfLabel(model.Input().curves[i].label, i);
    AddFeatures(model, features, kShortCurveNames[place], findings);
  }
}

void AddSlope(const GraphModel& model, const CurveFunction& curve, std::u16string_view text,
              GraphFindings& findings) {
  const auto x = ReadNumberOrExpression(text, kSlopeNeedsX, model.Input().angle);
  if (!x || !std::isfinite(*x)) {
    findings.lines.emplace_back(kSlopeNeedsX);
    findings.places.emplace_back();
    return;
  }
  const PlotRange& range = model.Range();
  const auto slope = SlopeAt(curve, *x, range.xMax - range.xMin);
  std::u16string line(kSlopeName);
  line.append(kFoundX).append(Shown(model, *x)).append(kFoundIs);
  findings.lines.push_back(line.append(slope ? Shown(model, *slope) : std::u16string(kNoSlope)));
  findings.places.emplace_back(TrimBlanks(text));
}

void AddArea(const GraphModel& model, const CurveFunction& curve, GraphFindings& findings) {
  const PlotRange& range = model.Range();
  const CurveArea area = AreaUnder(curve, range.xMin, range.xMax);
  std::u16string line(kAreaName);
  line.append(kFoundX).append(Shown(model, range.xMin)).append(kFoundUntil);
  line.append(Shown(model, range.xMax)).append(kFoundIs).append(Shown(model, area.value));
  if (!area.isWhole) line.append(kWithoutGaps);
  findings.lines.push_back(std::move(line));
  findings.places.emplace_back();
}

}  // namespace

GraphFindings FindOnGraph(const GraphModel& model, GraphRequest request, std::u16string_view x) {
  GraphFindings findings;
  const PlotRange& range = model.Range();
  const CurveFunction curve = FunctionOf(model, static_cast<std::size_t>(model.Selected()));
  switch (request) {
    case GraphRequest::Roots:
      AddFeatures(model, FindRoots(curve, range.xMin, range.xMax), {}, findings);
      break;
    case GraphRequest::Extrema:
      AddFeatures(model, FindExtrema(curve, range.xMin, range.xMax), {}, findings);
      break;
    case GraphRequest::Intersections:
      AddIntersections(model, findings);
      break;
    case GraphRequest::Slope:
      AddSlope(model, curve, x, findings);
      break;
    case GraphRequest::Area:
      AddArea(model, curve, findings);
      break;
  }
  if (findings.lines.empty()) {
    findings.lines.emplace_back(kNothingIsFound);
    findings.places.emplace_back();
  }
  return findings;
}

}  // namespace kav
