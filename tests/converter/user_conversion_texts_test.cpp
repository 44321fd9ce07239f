// Reading the texts of conversions that the user defined.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "common/number_text.h"
#include "converter/user_conversions.h"

namespace kav::user_conversion_texts_test {
namespace {

TEST(UserConversionText, IsSplitAtItsFirstArrow) {
  struct Row {
    std::u16string_view text;
    std::u16string_view source;
    std::u16string_view target;
  };
  const Row rows[] = {
      {u"inch -> cm", u"inch", u"cm"},
      {u"a b -> c d", u"a b", u"c d"},
      {u"a  ->  b", u"a ", u" b"},
      {u"a->b", u"a", u""},
      {u"a->bc", u"a", u"c"},
      {u"a -> b -> c", u"a", u"b -> c"},
      {u"->", u"", u""},
      {u"-> ", u"", u""},
      {u" -> ", u"", u""},
      {u"a ->", u"a", u""},
      {u"", u"", u""},
      {u"inch", u"inch", u""},
      {u"a - > b", u"a - > b", u""},
  };
  for (const Row& row : rows) {
    const UnitNames names = SplitConversion(row.text);
    EXPECT_EQ(names.source, row.source) << Narrow(row.text);
    EXPECT_EQ(names.target, row.target) << Narrow(row.text);
  }
}

TEST(ReadingRates, TakesTheNumbersThatTheEngineTakes) {
  struct Row {
    std::u16string_view text;
    double rate;
  };
  const Row rows[] = {
      {u"2.54", 2.54},
      {u"1", 1},
      {u"+1", 1},
      {u"-1", -1},
      {u"  7  ", 7},
      {u"1e-300", 1e-300},
      {u"1E-300", 1e-300},
      {u"1e+3", 1000},
      {u"1e3", 1000},
      {u".5", 0.5},
      {u"5.", 5},
      {u"-.5e-1", -0.05},
      {u"0", 0},
      {u"-0.0", 0},
      {u"1e-999", 0},
      {u"007", 7},
      {u"1e308", 1e308},
      {u"123456789012345678901234567890", 1.2345678901234568e29},
      {u"-123456789012345678901234567890", -1.2345678901234568e29},
  };
  for (const Row& row : rows) {
    const auto rate = ReadRate(row.text);
    ASSERT_TRUE(rate) << Narrow(row.text);
    EXPECT_EQ(*rate, row.rate) << Narrow(row.text);
  }
}

TEST(ReadingRates, TakesNothingElse) {
  const std::u16string_view rows[] = {
      u"",
      u"  ",
      u"0x10",
      u"0X1P3",
      u"inf",
      u"-inf",
      u"infinity",
      u"INF",
      u"nan",
      u"NaN",
      u"-nan",
      u"1,000",
      u"1,5",
      u"1e",
      u"1e+",
      u"1e1.5",
      u"1.2.3",
      u".",
      u"-",
      u"+",
      u"--1",
      u"+-1",
      u"- 1",
      u"1 000",
      u"1 e3",
      u"2*3",
      u"1+1",
      u"(1)",
      u"pi",
      u"2.54x",
      u"1e999",
      u"e5",
      u"1d3",
      u"5%",
      u"3!",
      u"-1e999",
      u"１",
      u"1\t",
      u"1'000",
      u"½",
      u"12e3e4",
      u"1234567890123456789012345678901",
      u"0.00000000000000000000000000001",
      u"-1234567890123456789012345678901",
  };
  for (const auto text : rows) EXPECT_FALSE(ReadRate(text)) << Narrow(text);
  EXPECT_FALSE(ReadRate(std::u16string(10000, u'1')));
  EXPECT_FALSE(ReadRate(std::u16string(u"1\0002", 3)));
}

}  // namespace
}  // namespace kav::user_conversion_texts_test
