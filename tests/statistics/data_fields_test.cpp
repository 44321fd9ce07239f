#include "statistics/data_fields.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "common/number_text.h"

namespace kav::data_fields_test {
namespace {

Expected<FieldNumbers, Refusal<DataField>> Read(std::u16string_view x, std::u16string_view y,
                                                std::u16string_view count) {
  return ReadTypedRow({std::u16string(x), std::u16string(y), std::u16string(count)},
                      DataShape::TwoVariables);
}

TEST(DataFields, FreshFieldsAreEmptyButForACountOfOne) {
  const TypedRow fresh;
  EXPECT_EQ(fresh.x, u"");
  EXPECT_EQ(fresh.y, u"");
  EXPECT_EQ(fresh.count, u"1");
}

TEST(DataFields, NumbersAreReadAsTheyAreTypedAndShown) {
  struct Row {
    std::u16string_view text;
    double value;
  };
  for (const Row& row :
       {Row{u"0", 0}, Row{u"-12.5", -12.5}, Row{u"1.5e-3", 0.0015}, Row{u"1.5E3", 1500},
        Row{u"  7  ", 7}, Row{u"+.5", 0.5}, Row{u"1,234,567.5", 1234567.5}, Row{u"1e308", 1e308}}) {
    const auto read = Read(row.text, row.text, u"3");
    ASSERT_TRUE(read) << Narrow(row.text);
    EXPECT_EQ(read->x, row.value) << Narrow(row.text);
    EXPECT_EQ(read->y, row.value) << Narrow(row.text);
    EXPECT_EQ(read->count, 3);
  }
}

TEST(DataFields, WhatIsNoNumberIsRefusedWithTheNameOfItsField) {
  for (const std::u16string_view text :
       {u"", u" ", u"abc", u"1,5.2", u"1 2", u"1e", u"--1", u"inf", u"nan", u"0x10", u"\u0663"}) {
    const auto x = Read(text, u"1", u"1");
    ASSERT_FALSE(x) << Narrow(text);
    EXPECT_EQ(x.error().text, u"X must be a number such as -12.5 or 1.5e-3.");
    EXPECT_EQ(x.error().focus, DataField::X);

    const auto y = Read(u"1", text, u"1");
    ASSERT_FALSE(y) << Narrow(text);
    EXPECT_EQ(y.error().text, u"Y must be a number such as -12.5 or 1.5e-3.");
    EXPECT_EQ(y.error().focus, DataField::Y);
  }
}

TEST(DataFields, ACommaThatCouldBeADecimalOneIsRefused) {
  const std::u16string refusal = u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15.";
  EXPECT_EQ(Read(u"1,5", u"1", u"1").error().text, refusal);
  EXPECT_EQ(Read(u"1", u"1,5", u"1").error().focus, DataField::Y);
  EXPECT_EQ(Read(u"1", u"1,5", u"1").error().text, refusal);
  EXPECT_EQ(Read(u"1", u"1", u"1,5").error().focus, DataField::Count);
  EXPECT_EQ(Read(u"1", u"1", u"1,5").error().text, refusal);
  EXPECT_EQ(Read(u"1", u"1", u"1,000").error().text,
            u"The comma in \"1,000\" can be read in two ways. Write 1.000 or 1000.");
}

TEST(DataFields, NumbersBeyondThoseOfTheMachineAreRefused) {
  for (const std::u16string_view text : {u"1e309", u"-1e309"}) {
    const auto x = Read(text, u"1", u"1");
    ASSERT_FALSE(x);
    EXPECT_EQ(x.error().text, u"X is too large: it must be a number from -1.79e308 to 1.79e308.");
    const auto y = Read(u"1", text, u"1");
    ASSERT_FALSE(y);
    EXPECT_EQ(y.error().text, u"Y is too large: it must be a number from -1.79e308 to 1.79e308.");
  }
}

TEST(DataFields, CountsAreWholeNumbersFromOneToTenThousand) {
  struct Row {
    std::u16string_view text;
    std::int32_t count;
  };
  for (const Row& row : {Row{u"1", 1}, Row{u"10000", 10000}, Row{u"10,000", 10000},
                         Row{u"1e4", 10000}, Row{u" 5.0 ", 5}}) {
    EXPECT_EQ(ReadCount(row.text), row.count) << Narrow(row.text);
  }
  for (const std::u16string_view text :
       {u"0", u"10001", u"-1", u"1.5", u"0.9999", u"10000.0001", u"", u"x", u"1e309", u"inf"}) {
    EXPECT_FALSE(ReadCount(text)) << Narrow(text);
    const auto read = Read(u"1", u"2", text);
    ASSERT_FALSE(read) << Narrow(text);
    EXPECT_EQ(read.error().text, u"Count must be a whole number from 1 to 10000.");
    EXPECT_EQ(read.error().focus, DataField::Count);
  }
}

TEST(DataFields, ExpressionsAreReadToo) {
  const auto read = Read(u"2*Pi", u"-sqrt(2)", u"2^3");
  ASSERT_TRUE(read);
  EXPECT_DOUBLE_EQ(read->x, 6.283185307179586);
  EXPECT_DOUBLE_EQ(read->y, -1.4142135623730951);
  EXPECT_EQ(read->count, 8);
  EXPECT_EQ(Read(u"1", u"1", u"5/2").error().text,
            u"Count must be a whole number from 1 to 10000.");
  EXPECT_EQ(Read(u"1", u"1", u"100^3").error().focus, DataField::Count);
  EXPECT_EQ(Read(u"1/0", u"1", u"1").error().text, u"X must be a number such as -12.5 or 1.5e-3.");
}

TEST(DataFields, AnglesOfExpressionsAreThoseOfTheScreen) {
  const TypedRow typed{u"cos(60)", u"", u"1"};
  EXPECT_DOUBLE_EQ(ReadTypedRow(typed, DataShape::OneVariable, AngleUnit::Degrees)->x, 0.5);
  EXPECT_DOUBLE_EQ(ReadTypedRow(typed, DataShape::OneVariable, AngleUnit::Radians)->x,
                   -0.9524129804151563);
}

TEST(DataFields, FirstBadFieldIsTheOneThatIsRefused) {
  EXPECT_EQ(Read(u"", u"", u"").error().focus, DataField::X);
  EXPECT_EQ(Read(u"1", u"", u"").error().focus, DataField::Y);
  EXPECT_EQ(Read(u"1", u"1", u"").error().focus, DataField::Count);
}

TEST(DataFields, OneVariableHasNoY) {
  const auto read = ReadTypedRow({u"2.5", u"not asked", u"4"}, DataShape::OneVariable);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->x, 2.5);
  EXPECT_EQ(read->y, 0);
  EXPECT_EQ(read->count, 4);
}

}  // namespace
}  // namespace kav::data_fields_test
