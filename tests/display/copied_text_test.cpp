#include "display/copied_text.h"

#include <gtest/gtest.h>

namespace kav::copied_text_test {
namespace {

TEST(CopiedText, NumbersAreCopiedWithoutWhatGroupsThem) {
  struct Row {
    const char16_t* shown;
    const char16_t* copied;
  };
  const Row rows[] = {
      {u"0", u"0"},
      {u"-1,234.5", u"-1234.5"},
      {u"1,234,567", u"1234567"},
      {u"999,999,999,999.25", u"999999999999.25"},
      {u"1.2345670e+20", u"1.2345670e+20"},
      {u"12.346E+003", u"12.346E+003"},
      {u"FFFFFFFF", u"FFFFFFFF"},
      {u"-0.0001", u"-0.0001"},
      {u"", u""},
      // What is no number keeps its commas.
      {u"a, b", u"a, b"},
      {u"1,2", u"1,2"},
      {u"1,2345", u"1,2345"},
      {u",123", u",123"},
      {u"1,", u"1,"},
  };
  for (const Row& row : rows) EXPECT_EQ(PlainDigits(row.shown), row.copied);
}

TEST(CopiedText, ALineStandsBeforeItsResult) {
  EXPECT_EQ(LineAndResult(u"2*sin(30)+3!", u"7"), u"2*sin(30)+3! = 7");
  EXPECT_EQ(LineAndResult(u"  1000*1000 ", u"1,000,000"), u"1000*1000 = 1000000");
}

}  // namespace
}  // namespace kav::copied_text_test
