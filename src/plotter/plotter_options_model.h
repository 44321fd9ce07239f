// The dialog of a graph's range and options without its widgets.
#pragma once

#include "common/expected.h"
#include "common/refusal.h"
#include "engine/calc_modes.h"
#include "plotter/graph_input.h"
#include "plotter/range_fields.h"

namespace kav {

struct PlotterOptions {
  PlotRange range;
  GraphOptions options;
  AngleUnit angle = AngleUnit::Degrees;  ///< of the expressions in the fields

  bool operator==(const PlotterOptions&) const = default;
};

class PlotterOptionsModel {
 public:
  explicit PlotterOptionsModel(const PlotterOptions& options);

  /// The texts that the fields begin with.
  const RangeTexts& Fields() const { return fields_; }
  const GraphOptions& Options() const { return begin_.options; }

  /// The range and the options that the user chose, or why `typed` is no range. A bound whose field
  /// was left alone keeps its value, of which the field may show fewer digits.
  Expected<PlotterOptions, Refusal<RangeField>> Accept(const RangeTexts& typed,
                                                       const GraphOptions& options) const;

 private:
  PlotterOptions begin_;
  RangeTexts fields_;
};

}  // namespace kav
