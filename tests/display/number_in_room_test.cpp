#include "display/number_in_room.h"

#include <gtest/gtest.h>

#include "common/number_text.h"

namespace kav::number_in_room_test {
namespace {

std::u16string InRoom(std::u16string_view text, std::size_t most) {
  const auto number = ReadDecimalDigits(text);
  return number ? NumberInRoom(*number, most) : u"no number";
}

TEST(NumberInRoom, KeepsItsMagnitudeAndAsManyDigitsAsFit) {
  struct Row {
    std::u16string_view text;
    std::size_t most;
    std::u16string_view shown;
  };
  for (const Row& row : {
           Row{u"2.000000000000e+300", 8, u"2e+300"},
           Row{u"-1.234567890123e+300", 12, u"-1.234…e+300"},
           Row{u"1.234567890123e-15", 7, u"1…e-15"},
           Row{u"1.234567890123e-15", 8, u"1.2…e-15"},
           Row{u"1.234567890123e-15", 9, u"1.23…e-15"},
           Row{u"1.234567890123e-15", 5, u""},
           Row{u"0.333333333333", 8, u"0.33333…"},
           Row{u"-0.333333333333", 8, u"-0.3333…"},
           Row{u"1.00000000001", 8, u"1.00000…"},
           Row{u"123456789012", 9, u"1.23…e+11"},
           Row{u"123456789012", 12, u"123456789012"},
           Row{u"120000000000", 8, u"1.2e+11"},
           Row{u"0.000000000012", 8, u"1.2e-11"},
           // A point without a digit behind it would say nothing.
           Row{u"12345.678", 7, u"1…e+04"},
           Row{u"12345.678", 8, u"12345.6…"},
           Row{u"1.5000", 3, u"1.5"},
           Row{u"7", 1, u"7"},
           Row{u"-7", 1, u""},
           Row{u"0.000", 1, u"0"},
           Row{u"1E3", 4, u"1000"},
       }) {
    EXPECT_EQ(InRoom(row.text, row.most), row.shown) << Narrow(row.text) << " " << row.most;
  }
}

TEST(ReadDecimalDigits, OnlyWholeDecimalNumbersAreOne) {
  for (const std::u16string_view text :
       {u"", u" ", u"x", u"1x", u"1e", u"1e+", u"1e+-3", u"--1", u"1.2.3", u"1,5", u"inf", u".",
        u"1e9999999", u"Out of range(overflow or underflow)"}) {
    EXPECT_FALSE(ReadDecimalDigits(text)) << Narrow(text);
  }
  EXPECT_EQ(InRoom(u" +.5 ", 9), u"0.5");
}

}  // namespace
}  // namespace kav::number_in_room_test
