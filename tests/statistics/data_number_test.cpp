#include "statistics/data_number.h"

#include <gtest/gtest.h>

#include <string>

#include "support/effort.h"
#include "support/random.h"

namespace kav {
namespace {

TEST(DataNumber, DigitsAreAppendedAsFarAsTheyGo) {
  const std::string_view text = "0123.5";
  const char* const start = text.data();
  const char* const end = start + text.size();
  const TakenDigits whole = TakeDigits(start, end, 4);
  EXPECT_EQ(whole.number, 40123U);
  EXPECT_EQ(whole.end, start + 4);
  const TakenDigits none = TakeDigits(start + 4, end, 7);
  EXPECT_EQ(none.number, 7U);
  EXPECT_EQ(none.end, start + 4);
  const TakenDigits last = TakeDigits(start + 5, end, 40123);
  EXPECT_EQ(last.number, 401235U);
  EXPECT_EQ(last.end, end);
}

TEST(DataNumber, ThePowersOfTenAreExact) {
  std::uint64_t power = 1;
  for (const double exact : kExactPowersOfTen) {
    EXPECT_EQ(static_cast<std::uint64_t>(exact), power);
    power *= 10;
  }
  EXPECT_EQ(kExactPowersOfTen.back(), 1e15);
}

TEST(DataNumber, NumbersThatAreNotPlainAreReadAsFarAsTheyGo) {
  EXPECT_EQ(ReadDataNumber("-12.50e3"), -12'500);
  EXPECT_EQ(ReadDataNumber("12.5.7"), 12.5);
  EXPECT_EQ(ReadDataNumber("3-4"), 3);
  EXPECT_EQ(ReadDataNumber("--3"), 0);
  EXPECT_EQ(ReadDataNumber("-."), 0);
  EXPECT_EQ(ReadDataNumber("e"), 0);
  EXPECT_EQ(ReadDataNumber("1234567890123456"), 1234567890123456.0);
  EXPECT_EQ(ReadDataNumber("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(ReadDataNumber("0.0000000000000001"), 1e-16);
  EXPECT_EQ(ReadDataNumber("18446744073709551617"), 18446744073709551616.0);
}

TEST(DataNumber, ShortPlainNumbersAreTheNearestDoubles) {
  EXPECT_EQ(ReadDataNumber("12.5"), 12.5);
  EXPECT_EQ(ReadDataNumber("-0.1"), -0.1);
  EXPECT_EQ(ReadDataNumber("7"), 7);
  EXPECT_EQ(ReadDataNumber(".5"), 0.5);
  EXPECT_EQ(ReadDataNumber("5."), 5);
  EXPECT_EQ(ReadDataNumber("123456789012345"), 123456789012345.0);
  EXPECT_EQ(ReadDataNumber("1.00000000000001"), 1.00000000000001);
  EXPECT_EQ(ReadDataNumber("1e3"), 1000);
  EXPECT_EQ(ReadDataNumber("+4"), 4);
  EXPECT_EQ(ReadDataNumber(""), 0);
  EXPECT_EQ(ReadDataNumber("-"), 0);
  EXPECT_EQ(ReadDataNumber("."), 0);
  EXPECT_EQ(ReadDataNumber(" 8"), 8);
  EXPECT_EQ(test::BitsOf(ReadDataNumber("-0")), test::BitsOf(-0.0));
}

TEST(DataNumber, AnyTextReadsAsTheNumberThatOpensIt) {
  static constexpr std::string_view kCharacters = "0123456789012345678901234567890123456789.e+- ";
  test::Random random(5);
  for (int i = 0; i < test::Tries(500'000); ++i) {
    std::string text;
    for (std::size_t n = random.Below(24); n > 0; --n) text += random.Of(kCharacters);
    ASSERT_EQ(test::BitsOf(ReadDataNumber(text)), test::BitsOf(ReadLeadingNumber(text))) << text;
  }
}

}  // namespace
}  // namespace kav
