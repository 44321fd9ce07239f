// The dialog of a graph's range and options, without its pixels.
#pragma once

#include "common/expected.h"
#include "common/refusal.h"
#include "plotter/graph_input.h"
#include "plotter/range_fields.h"

namespace kav {

struct PlotterOptions {
  PlotRange range;
  GraphOptions options;

  bool operator==(const PlotterOptions&) const = default;
};

class PlotterOptionsModel {
 public:
  explicit PlotterOptionsModel(const PlotterOptions& options);

  /// What the fields begin with.
  const RangeTexts& Fields() const { return fields_; }
  const GraphOptions& Options() const { return begin_.options; }

  /// What was made of them, or why that cannot be: the text and the field that gets the focus. A
  /// bound whose field was left as it was keeps its value, of which the field may show less.
  Expected<PlotterOptions, Refusal<RangeField>> Accept(const RangeTexts& typed,
                                                       const GraphOptions& options) const;

 private:
  PlotterOptions begin_;
  RangeTexts fields_;
};

}  // namespace kav
