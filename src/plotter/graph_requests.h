// What the menu of the graph finds on the curves: the lines of the results list, and the x of each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plotter/graph_model.h"

namespace kav {

enum class GraphRequest : std::uint8_t { Roots, Extrema, Intersections, Slope, Area };

struct GraphFindings {
  std::vector<std::u16string> lines;   ///< at least one, which says if nothing was found
  std::vector<std::u16string> places;  ///< for "X =", one for each line; empty where there is none
};

/// The findings for the selected curve in the shown range. An intersection is one of the selected
/// curve with any other; the slope is that at `x`, the text of the "X =" field.
GraphFindings FindOnGraph(const GraphModel& model, GraphRequest request, std::u16string_view x);

}  // namespace kav
