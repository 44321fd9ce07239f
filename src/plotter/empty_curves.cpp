#include "plotter/empty_curves.h"

#include <cstddef>
#include <optional>
#include <string>

#include "common/number_text.h"
#include "engine/expression_engine.h"
#include "plotter/equation_list.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

/// What the engine says of `curve`; nullopt if it has a value at any sample.
std::optional<std::u16string> FaultOf(const GraphCurve& curve, const GraphInput& input) {
  for (int i = 0; i < kSampleCount; ++i) {
    if (curve.formula.At({.x = SampleX(input.range, i)}, input.angle)) return std::nullopt;
  }
  const auto first = EvaluateFormula(curve.formula, {.x = input.range.xMin}, input.angle);
  return first ? std::nullopt : std::optional(Widen(first.error().message));
}

}  // namespace

GraphReading EmptyCurves(const GraphInput& input) {
  GraphReading reading;
  for (std::size_t i = 0; i < input.curves.size(); ++i) {
    const GraphCurve& curve = input.curves[i];
    const auto fault = FaultOf(curve, input);
    if (fault) reading.lines.push_back(CurveIsEmpty(PlaceOfLabel(curve.label, i), *fault));
  }
  reading.values.resize(reading.lines.size());
  return reading;
}

}  // namespace kav
