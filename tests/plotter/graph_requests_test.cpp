#include "plotter/graph_requests.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/graph_inputs.h"

namespace kav::graph_requests_test {
namespace {

using Texts = std::vector<std::u16string>;

GraphFindings Found(std::initializer_list<std::string_view> formulas, GraphRequest request,
                    std::u16string_view x = u"") {
  GraphInput input = test::GraphOf(formulas);
  input.format.type = DisplayType::FloatingPoint;
  return FindOnGraph(GraphModel(input), request, x);
}

TEST(GraphRequestsTest, EachFindingIsALineWithItsX) {
  const GraphFindings roots = Found({"x^2-4"}, GraphRequest::Roots);
  EXPECT_EQ(roots.lines, Texts({u"Root: x = -2", u"Root: x = 2"}));
  EXPECT_EQ(roots.places, Texts({u"-2", u"2"}));
  EXPECT_EQ(Found({"x^2-4"}, GraphRequest::Extrema).lines, Texts({u"Minimum: x = 0, y = -4"}));
  EXPECT_EQ(Found({"x", "2-x", "0*x+5"}, GraphRequest::Intersections).lines,
            Texts({u"G:F2: x = 1, y = 1", u"B:F3: x = 5, y = 5"}));
}

TEST(GraphRequestsTest, SlopeIsThatAtX) {
  EXPECT_EQ(Found({"2*x+1"}, GraphRequest::Slope, u" 3 ").lines, Texts({u"Slope: x = 3: 2"}));
  EXPECT_EQ(Found({"abs(x)"}, GraphRequest::Slope, u"0").lines, Texts({u"Slope: x = 0: none"}));
  EXPECT_EQ(Found({"x"}, GraphRequest::Slope).lines,
            Texts({u"Put the x of the slope into \"X =\"."}));
}

TEST(GraphRequestsTest, AreaIsThatOfTheRangeAndTellsGaps) {
  EXPECT_EQ(Found({"0*x+3"}, GraphRequest::Area).lines, Texts({u"Area: x = -10 to 10: 60"}));
  EXPECT_TRUE(Found({"1/x"}, GraphRequest::Area).lines.front().ends_with(u" (gaps left out)"));
}

TEST(GraphRequestsTest, NothingIsToldAsWell) {
  const GraphFindings none = Found({"x^2+1"}, GraphRequest::Roots);
  EXPECT_EQ(none.lines, Texts({u"None in this range"}));
  EXPECT_EQ(none.places, Texts({u""}));
}

}  // namespace
}  // namespace kav::graph_requests_test
