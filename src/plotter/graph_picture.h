// A graph as a list of shapes, in the order of painting.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "plotter/graph_model.h"

namespace kav {

/// 0xRRGGBB.
using GraphColour = std::uint32_t;

namespace graph_colour {
inline constexpr GraphColour kPaper = 0xFFFFFF;
inline constexpr GraphColour kInk = 0x000000;
inline constexpr GraphColour kGrid = 0xC0C0C0;
inline constexpr GraphColour kAxis = 0x008284;
inline constexpr GraphColour kDisc = 0x0000FF;
inline constexpr GraphColour kMarker = 0xFF8000;
inline constexpr std::array<GraphColour, kMostCurves> kCurves{0xFF0000, 0x00FF00, 0x0000FF};
}  // namespace graph_colour

/// How shapes are drawn, in pixels of a plot 230 pixels wide: the same in windows and in files.
namespace graph_measures {
inline constexpr double kTextHeight = 11;
inline constexpr double kDescent = 2.75;
// Lines grow more slowly than the plot: in proportion to it they would look coarse.
inline constexpr double kStrokeGrowth = 0.65;
inline constexpr double kRuleGrowth = 0.5;
// A little more than the square root of 2: a stroke of any slope then covers the pixels in its
// middle wholly, and they have its exact colour.
inline constexpr double kNarrowestStroke = 1.5;
/// Curves are still seen behind the labels of the range, but do not make them hard to read.
inline constexpr double kBackingOpacity = 0.8;
}  // namespace graph_measures

// Places are in pixels of the view; whole numbers are the centres of pixels. Sizes are in pixels of
// a plot 230 pixels wide.
struct GraphFrame {
  PlotArea area;
};
/// A straight line along a row or a column of pixels.
struct GraphRule {
  GraphPlace from;
  GraphPlace to;
  GraphColour colour;
};
/// A stroke through consecutive places, antialiased.
struct GraphStroke {
  std::vector<GraphPlace> places;
  GraphColour colour;
};
struct GraphDot {
  GraphPlace place;
  GraphColour colour;
};
struct GraphDisc {
  GraphPlace place;
  double radius;
  GraphColour colour;
};
/// A filled box, with the pixels of both corners.
struct GraphBar {
  GraphPlace from;
  GraphPlace to;
  GraphColour colour;
};
/// Which part of a text is at its place.
enum class TextAnchor : std::uint8_t { Start, Middle, End };
/// A text whose lower edge is at `place`, in letters of the size of PlotArea::TextScale.
struct GraphText {
  GraphPlace place;
  std::u16string text;
  double backing = 0;  ///< the height in pixels of the light box behind it; 0: none
  TextAnchor anchor = TextAnchor::Start;
  GraphColour colour = graph_colour::kInk;
};
using GraphShape =
    std::variant<GraphFrame, GraphRule, GraphStroke, GraphDot, GraphDisc, GraphText, GraphBar>;
using GraphPicture = std::vector<GraphShape>;

/// The picture of `model` in its area: the frame, the grid, the axes and their labels, the curves,
/// the discs of the data points, the labels of the range. Discs that would change no pixel are left
/// out.
GraphPicture BuildPicture(const GraphModel& model);

/// The trace marker, which is painted over the picture and never saved: a line at the traced x. If
/// the selected curve has a point there, also a line across and a disc. Empty without a marker.
GraphPicture BuildMarker(const GraphModel& model);

}  // namespace kav
