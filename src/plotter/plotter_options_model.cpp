#include "plotter/plotter_options_model.h"

#include <utility>

namespace kav {

PlotterOptionsModel::PlotterOptionsModel(const PlotterOptions& options)
    : begin_(options), fields_(TextsOf(options.range)) {}

Expected<PlotterOptions, Refusal<RangeField>> PlotterOptionsModel::Accept(
    const RangeTexts& typed, const GraphOptions& options) const {
  auto range = ReadRange(typed, begin_.angle);
  if (!range) return std::move(range).error();
  for (const RangeField field : kRangeFields) {
    const bool isUntouched = typed[IndexOf(field)] == fields_[IndexOf(field)];
    if (isUntouched) (*range).*BoundOf(field) = begin_.range.*BoundOf(field);
  }
  if (auto refusal = RefuseRange(*range)) return *std::move(refusal);
  return PlotterOptions{*range, options, begin_.angle};
}

}  // namespace kav
