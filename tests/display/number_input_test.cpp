#include "display/number_input.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "display/number_format.h"

namespace kav::number_input_test {
namespace {

using namespace std::string_view_literals;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Row {
  std::string_view text;
  double value;
};

TEST(ReadShownNumber, TakesNumbersAsEveryDisplayTypeShowsThem) {
  const std::vector<Row> rows{
      {"0", 0},
      {"212", 212},
      {"-40", -40},
      {"1.609344", 1.609344},
      {"0.333333333333", 0.333333333333},
      {"2.5000000", 2.5},
      {"1.2345679e+15", 1.2345679e15},
      {"-1e-13", -1e-13},
      {"12.346E+003", 12346},
      {"1.5E-012", 1.5e-12},
      {"1,234", 1234},
      {"-1,234", -1234},
      {"1,234,567.25", 1234567.25},
      {"12,345", 12345},
      {"123,456,789", 123456789},
      {"100,000.5", 100000.5},
  };
  for (const auto& [text, value] : rows) EXPECT_EQ(ReadShownNumber(text), value) << text;
}

TEST(ReadShownNumber, TakesWhatIsTypedBesides) {
  const std::vector<Row> rows{
      {"  7.25 ", 7.25}, {"+5", 5},         {"+1,000", 1000},    {".5", 0.5},
      {"-.5", -0.5},     {"5.", 5},         {"1,234.", 1234},    {"007", 7},
      {"1E3", 1000},     {" -1e3 ", -1000}, {"1,234e2", 123400}, {"1,234.5E+1", 12345},
  };
  for (const auto& [text, value] : rows) EXPECT_EQ(ReadShownNumber(text), value) << text;
}

TEST(ReadShownNumber, TextsThatAreNoNumbersAreNone) {
  const std::vector<std::string_view> texts{
      "",
      " ",
      ".",
      "-",
      "+",
      "+-5",
      "--5",
      "- 5",
      "5 5",
      "abc",
      "5x",
      "x5",
      "1e",
      "1e+",
      "e5",
      ".e5",
      "1.2.3",
      "0x10",
      "0x1p3",
      "1e2.5",
      "5-",
      "1'000",
      "1 000",
      "\t5",
      "5\n",
      "5\0"sv,
      "\xC3\xA4",
      "inf",
      "-inf",
      "+inf",
      "INF",
      "infinity",
      "nan",
      "-NaN",
      "1\xC2\xA0"
      "000",
  };
  for (const auto text : texts) EXPECT_EQ(ReadShownNumber(text), std::nullopt) << text;
}

TEST(ReadShownNumber, SeparatorsAnywhereElseMakeItNone) {
  const std::vector<std::string_view> texts{
      "1,2",     "1,23",    "1,2345",   "12,34,567", "1234,567",  ",123",   "1,",
      ",",       "-,123",   "1,,234",   "1,234,",    "1,234,56",  "1,234e", "1,234.5,6",
      "1.234,5", "1.5,000", "1e1,000",  "1,234e1,0", "1,234 567", "1, 234", "1,-234",
      "1,234-",  "1,23x",   "1,234.5e", "1,234..5",  "1,2e4",     "1234,5", "+,",
  };
  for (const auto text : texts) EXPECT_EQ(ReadShownNumber(text), std::nullopt) << text;
}

// "0,125" is an eighth to many; as a group of thousands no number begins with 0.
TEST(ReadShownNumber, ACommaBehindAZeroIsNoSeparator) {
  for (const auto text : {"0,125", "-0,125", "00,125", "0,125,000", "012,345"}) {
    EXPECT_EQ(ReadShownNumber(text), std::nullopt) << text;
  }
}

TEST(ReadShownNumber, BeyondTheRangeOfDoubleIsInfinityAndBelowItZero) {
  EXPECT_EQ(ReadShownNumber("1e309"), kInfinity);
  EXPECT_EQ(ReadShownNumber("-1e309"), -kInfinity);
  EXPECT_EQ(ReadShownNumber("1e-400"), 0.0);
  EXPECT_EQ(ReadShownNumber("1e-300"), 1e-300);
}

TEST(ReadNumberField, RefusesACommaThatCouldBeADecimalOneAndWhatIsNoNumber) {
  constexpr auto kNone = u"none"sv;
  EXPECT_EQ(*ReadNumberField(u" -1.5 ", kNone), -1.5);
  EXPECT_EQ(*ReadNumberField(u"1,234.5", kNone), 1234.5);
  EXPECT_EQ(*ReadNumberField(u"1,234,567", kNone), 1234567);
  EXPECT_EQ(*ReadNumberField(u"1e999", kNone), kInfinity);
  EXPECT_EQ(ReadNumberField(u"1,5", kNone).error(),
            u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15.");
  EXPECT_EQ(ReadNumberField(u"1,234", kNone).error(),
            u"The comma in \"1,234\" can be read in two ways. Write 1.234 or 1234.");
  for (const auto text : {u""sv, u"x"sv, u"1,2,3"sv, u"inf"sv}) {
    EXPECT_EQ(ReadNumberField(text, kNone).error(), kNone);
  }
}

TEST(ReadShownNumber, TextsMayBeOfAnyLength) {
  const std::string zeros(100000, '0');
  EXPECT_EQ(ReadShownNumber(zeros + "5"), 5.0);
  EXPECT_EQ(ReadShownNumber("0." + zeros + "1"), 0.0);
  EXPECT_EQ(ReadShownNumber(zeros + ",5"), std::nullopt);
  std::string grouped = "1";
  for (int i = 0; i < 100000; ++i) grouped += ",000";
  EXPECT_EQ(ReadShownNumber(grouped), kInfinity);
  EXPECT_EQ(ReadShownNumber(grouped + "0"), std::nullopt);
}

// What is shown with all its digits comes back to the last bit.
TEST(ReadShownNumber, ReadsBackWhatEveryDisplayTypeShows) {
  constexpr std::array kValues{0.0,    1.0,          -40.0,        1234567.25, -999999.5,
                               1e12,   1234567890.0, 0.0009765625, 1.5e-13,    -2.5e300,
                               1000.0, -1000.0,      100000.0,     999.0,      5e-324};
  for (int type = 0; type <= 4; ++type) {
    const DisplayFormat format{static_cast<DisplayType>(type), 17};
    for (const double value : kValues) {
      const auto shown = FormatNumber(value, format);
      ASSERT_TRUE(shown);
      EXPECT_EQ(ReadShownNumber(*shown), value) << *shown;
    }
  }
}

TEST(ReadNumberOrExpression, ReadsWhatNeedsWork) {
  struct Field {
    std::u16string_view text;
    double value;
  };
  for (const auto& [text, value] :
       {Field{u"2*3", 6}, Field{u"2-3", -1}, Field{u"-(2)", -2}, Field{u"5!", 120},
        Field{u" 1e2 / 8 ", 12.5}, Field{u"1,234,567+1", 1234568}, Field{u"SQRT(9)", 3},
        Field{u"sin(90)", 1}, Field{u"1e3-1", 999}}) {
    const auto read = ReadNumberOrExpression(text, u"no", AngleUnit::Degrees);
    ASSERT_TRUE(read) << Narrow(text);
    EXPECT_DOUBLE_EQ(*read, value) << Narrow(text);
  }
}

TEST(ReadNumberOrExpression, NumbersAreReadAsBefore) {
  for (const std::u16string_view text : {u"1e999", u"-1e-400", u" 0.1 ", u"1,234,567"}) {
    EXPECT_EQ(*ReadNumberOrExpression(text, u"no", AngleUnit::Degrees),
              *ReadNumberField(text, u"no"))
        << Narrow(text);
  }
}

TEST(ReadNumberOrExpression, WhatIsNeitherFailsAsANumberDoes) {
  for (const std::u16string_view text :
       {u"", u" ", u".", u"2e", u"--1", u"1.2.3", u"1 2", u"1e3.5", u"x", u"ans", u"2*", u"(2",
        u"1/0", u"inf", u"10^999", u"\uFF11", u"-", u"2e+"}) {
    const auto read = ReadNumberOrExpression(text, u"no", AngleUnit::Radians);
    ASSERT_FALSE(read) << Narrow(text);
    EXPECT_EQ(read.error(), u"no");
  }
  EXPECT_EQ(ReadNumberOrExpression(u"2*1,5", u"no", AngleUnit::Radians).error(),
            ReadNumberField(u"2*1,5", u"no").error());
}

}  // namespace
}  // namespace kav::number_input_test
