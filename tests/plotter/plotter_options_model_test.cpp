#include "plotter/plotter_options_model.h"

#include <gtest/gtest.h>

namespace kav::plotter_options_model_test {
namespace {

PlotterOptionsModel ModelOf(const PlotRange& range) {
  return PlotterOptionsModel({range, {}});
}

TEST(PlotterOptionsModel, BeginsWithTheRangeAndTheOptions) {
  const PlotterOptionsModel model({{-10, 10, -1234.5, 0.25}, {false, true, false}});
  EXPECT_EQ(model.Fields(), (RangeTexts{u"-10", u"10", u"-1234.5", u"0.25"}));
  EXPECT_EQ(model.Options(), (GraphOptions{false, true, false}));
}

TEST(PlotterOptionsModel, NumbersStandInTheFieldsWithoutSeparators) {
  EXPECT_EQ(ModelOf({-1e6, 1e6, 0, 1e13}).Fields(),
            (RangeTexts{u"-1000000", u"1000000", u"0", u"1.0000000e+13"}));
}

TEST(PlotterOptionsModel, HandsBackWhatWasTyped) {
  const auto accepted =
      ModelOf({}).Accept({u"-2.5", u"1e2", u"-1,000.0", u" 3 "}, {true, false, false});
  ASSERT_TRUE(accepted);
  EXPECT_EQ(*accepted, (PlotterOptions{{-2.5, 100, -1000, 3}, {true, false, false}}));
}

TEST(PlotterOptionsModel, ABoundWhoseFieldWasLeftAsItWasKeepsItsValue) {
  // Each field shows fewer digits than its bound has.
  const PlotRange range{0.1 + 0.2, 1.0 / 3 + 1, 1.23456789012e-14, 2.0 / 3};
  const PlotterOptionsModel model = ModelOf(range);
  const auto accepted = model.Accept(model.Fields(), {});
  ASSERT_TRUE(accepted);
  EXPECT_EQ(accepted->range, range);
  RangeTexts typed = model.Fields();
  typed[3] = u"5";
  const auto changed = model.Accept(typed, {});
  ASSERT_TRUE(changed);
  EXPECT_EQ(changed->range, (PlotRange{range.xMin, range.xMax, range.yMin, 5}));
}

TEST(PlotterOptionsModel, BoundsThatShowAlikeAreStillApart) {
  const PlotRange range{1e-14, 1.00000001e-14, 0, 1};
  const PlotterOptionsModel model = ModelOf(range);
  EXPECT_EQ(model.Fields()[0], model.Fields()[1]);
  EXPECT_TRUE(model.Accept(model.Fields(), {}));
}

TEST(PlotterOptionsModel, WhatIsNoNumberIsRefused) {
  const auto refused = ModelOf({}).Accept({u"0", u"1", u"0", u"ten"}, {});
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().text,
            u"Y max takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not "
            u"\"ten\".");
  EXPECT_EQ(refused.error().focus, RangeField::YMax);
}

TEST(PlotterOptionsModel, EqualAndReversedBoundsAreRefused) {
  const auto x = ModelOf({}).Accept({u"5", u"5", u"0", u"1"}, {});
  ASSERT_FALSE(x);
  EXPECT_EQ(x.error().text,
            u"The maximum value of X should be bigger than the minimum value of X.");
  const auto y = ModelOf({}).Accept({u"0", u"5", u"2", u"1"}, {});
  ASSERT_FALSE(y);
  EXPECT_EQ(y.error().text,
            u"The maximum value of Y should be bigger than the minimum value of Y.");
  EXPECT_EQ(y.error().focus, RangeField::YMax);
}

}  // namespace
}  // namespace kav::plotter_options_model_test
