#include "plotter/empty_curves.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/graph_inputs.h"

namespace kav::empty_curves_test {
namespace {

using test::GraphOf;
using Lines = std::vector<std::u16string>;

TEST(EmptyCurves, ACurveWithoutAnyPointSaysWhy) {
  GraphInput input = GraphOf({"x", "2x", "sqrt(x)"});
  input.range = {-10, -1, -10, 10};
  const GraphReading reading = EmptyCurves(input);
  ASSERT_EQ(reading.lines.size(), 2U);
  EXPECT_EQ(reading.lines[0], u"G:F2(X): Expression error. (at every point)");
  EXPECT_TRUE(reading.lines[1].starts_with(u"B:F3(X): "));
  EXPECT_EQ(reading.values, (Lines{u"", u""}));
}

TEST(EmptyCurves, GapsAndCurvesBesideThePlotAreNotReported) {
  GraphInput input = GraphOf({"sqrt(x)", "1/x", "1000+0*x"});
  input.range = {-10, 10, -10, 10};
  EXPECT_EQ(EmptyCurves(input).lines, Lines{});
}

}  // namespace
}  // namespace kav::empty_curves_test
