#include "plotter/range_fields.h"

#include <gtest/gtest.h>

#include "common/number_text.h"

namespace kav::range_fields_test {
namespace {

TEST(RangeFields, AreCalledAsTheScreenShowsThem) {
  EXPECT_EQ(CaptionOf(RangeField::XMin), u"X min");
  EXPECT_EQ(CaptionOf(RangeField::XMax), u"X max");
  EXPECT_EQ(CaptionOf(RangeField::YMin), u"Y min");
  EXPECT_EQ(CaptionOf(RangeField::YMax), u"Y max");
}

TEST(RangeFields, EachIsAboutItsBound) {
  PlotRange range;
  double value = 1;
  for (const RangeField field : kRangeFields) range.*BoundOf(field) = value++;
  EXPECT_EQ(range, (PlotRange{1, 2, 3, 4}));
}

TEST(RangeFields, NumbersAreReadAsEveryDisplayTypeShowsThem) {
  const auto range = ReadRange({u"-1,234.5", u" 2e3 ", u"-.5", u"+7."});
  ASSERT_TRUE(range);
  EXPECT_EQ(*range, (PlotRange{-1234.5, 2000, -0.5, 7}));
}

TEST(RangeFields, NumbersOutOfOrderAreRead) {
  const auto range = ReadRange({u"3", u"3", u"2", u"1"});
  ASSERT_TRUE(range);
  EXPECT_EQ(*range, (PlotRange{3, 3, 2, 1}));
}

TEST(RangeFields, WhatIsNoNumberIsRefusedWithWhatIsAllowed) {
  struct Row {
    RangeTexts texts;
    RangeField field;
    std::u16string_view message;
  };
  const std::vector<Row> rows{
      {{u"", u"1", u"0", u"1"},
       RangeField::XMin,
       u"X min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size; it is empty."},
      {{u"0", u"  ", u"0", u"1"},
       RangeField::XMax,
       u"X max takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size; it is empty."},
      {{u"0", u"1", u"2*x", u"1"},
       RangeField::YMin,
       u"Y min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not \"2*x\"."},
      {{u"0", u"1,5", u"0", u"1"},
       RangeField::XMax,
       u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15."},
      {{u"0", u"1", u"0", u"1e999"},
       RangeField::YMax,
       u"Y max takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not "
       u"\"1e999\"."},
  };
  for (const Row& row : rows) {
    const auto range = ReadRange(row.texts);
    ASSERT_FALSE(range) << Narrow(row.message);
    EXPECT_EQ(range.error().text, row.message);
    EXPECT_EQ(range.error().focus, row.field);
  }
}

TEST(RangeFields, OtherTextsThatAreNoNumbersAreRefused) {
  for (const std::u16string_view text : {u"inf", u"-inf", u"nan", u"0x10", u"1,5", u"1 2", u"--1",
                                         u"2*", u"1e", u"-", u".", u"１"}) {
    EXPECT_FALSE(ReadRange({std::u16string(text), u"1", u"0", u"1"})) << Narrow(text);
  }
}

TEST(RangeFields, ExpressionsAreReadWithTheAnglesOfTheScreen) {
  const RangeTexts texts{u"-2*Pi", u"sqrt(4)", u"sin(30)", u"2^3"};
  const auto degrees = ReadRange(texts, AngleUnit::Degrees);
  ASSERT_TRUE(degrees);
  EXPECT_DOUBLE_EQ(degrees->xMin, -6.283185307179586);
  EXPECT_EQ(degrees->xMax, 2);
  EXPECT_DOUBLE_EQ(degrees->yMin, 0.5);
  EXPECT_EQ(degrees->yMax, 8);
  const auto radians = ReadRange(texts, AngleUnit::Radians);
  ASSERT_TRUE(radians);
  EXPECT_DOUBLE_EQ(radians->yMin, -0.9880316240928618);
}

TEST(RangeFields, TheFirstFieldThatIsNoNumberIsNamed) {
  const auto range = ReadRange({u"0", u"a", u"b", u"c"});
  ASSERT_FALSE(range);
  EXPECT_EQ(range.error().focus, RangeField::XMax);
}

TEST(RangeFields, AMessageShowsTheBeginningOfALongText) {
  const auto range = ReadRange({std::u16string(1'000'000, u'z'), u"1", u"0", u"1"});
  ASSERT_FALSE(range);
  EXPECT_LT(range.error().text.size(), 200U);
}

TEST(RangeFields, EqualAndReversedBoundsAreRefusedXFirst) {
  struct Row {
    PlotRange range;
    RangeField field;
    std::u16string_view message;
  };
  constexpr std::u16string_view kX =
      u"The maximum value of X should be bigger than the minimum value of X.";
  constexpr std::u16string_view kY =
      u"The maximum value of Y should be bigger than the minimum value of Y.";
  for (const Row& row :
       {Row{{1, 1, 0, 1}, RangeField::XMax, kX}, Row{{2, 1, 0, 1}, RangeField::XMax, kX},
        Row{{1, 1, 1, 1}, RangeField::XMax, kX}, Row{{0, 1, 1, 1}, RangeField::YMax, kY},
        Row{{0, 1, 2, 1}, RangeField::YMax, kY}}) {
    const auto refusal = RefuseRange(row.range);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->text, row.message);
    EXPECT_EQ(refusal->focus, row.field);
  }
  EXPECT_FALSE(RefuseRange({0, 1, 0, 1}));
}

TEST(RangeFields, BoundsWhoseDistanceIsNoNumberAreRefusedAtTheirAxis) {
  const auto x = RefuseRange({-1e308, 1e308, 0, 1});
  ASSERT_TRUE(x);
  EXPECT_EQ(x->focus, RangeField::XMax);
  const auto y = RefuseRange({0, 1, -1e308, 1e308});
  ASSERT_TRUE(y);
  EXPECT_EQ(y->focus, RangeField::YMax);
}

}  // namespace
}  // namespace kav::range_fields_test
