#include "plotter/plotter_options_model.h"

#include <utility>

#include "line/shown_number.h"

namespace kav {

PlotterOptionsModel::PlotterOptionsModel(const PlotterOptions& options) : begin_(options) {
  for (const RangeField field : kRangeFields) {
    fields_[IndexOf(field)] =
        InsertedNumber(BoundOf(begin_.range, field), DisplayFormat{}, BaseMode::Decimal);
  }
}

Expected<PlotterOptions, Refusal<RangeField>> PlotterOptionsModel::Accept(
    const RangeTexts& typed, const GraphOptions& options) const {
  auto range = ReadRange(typed);
  if (!range) return std::move(range).error();
  PlotRange kept = begin_.range;
  for (const RangeField field : kRangeFields) {
    const std::size_t index = IndexOf(field);
    if (typed[index] == fields_[index]) BoundOf(*range, field) = BoundOf(kept, field);
  }
  if (auto refusal = RefuseRange(*range)) return *std::move(refusal);
  return PlotterOptions{*range, options};
}

}  // namespace kav
