#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::plain_number_test {
namespace {

using test::BitsOf;

TEST(PowersOfTen, AreExact) {
  std::uint64_t power = 1;
  for (const double exact : kPowersOfTen<double, kExactDigits>) {
    EXPECT_EQ(static_cast<std::uint64_t>(exact), power);
    power *= 10;
  }
  EXPECT_EQ((kPowersOfTen<double, 22>.back()), 1e22);
  EXPECT_EQ((kPowersOfTen<std::uint64_t, 19>.back()), 10'000'000'000'000'000'000U);
}

TEST(TakeDigits, AppendsDigitsAsFarAsTheyGo) {
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

PlainNumber Plain(std::string_view text) {
  return ReadPlainNumber(text.data(), text.data() + text.size());
}

TEST(ReadPlainNumber, TakesDigitsAndAPointAsFarAsTheyGo) {
  const std::string_view text = "0123.45.6";
  const PlainNumber number = Plain(text);
  EXPECT_EQ(number.digits, 12345U);
  EXPECT_EQ(number.count, 6U);
  EXPECT_EQ(number.decimals, 2U);
  EXPECT_EQ(number.end, text.data() + 7);
  EXPECT_TRUE(number.IsExact());
  EXPECT_EQ(number.Value(), 123.45);
  EXPECT_EQ(Plain("7e3").Value(), 7);
  EXPECT_EQ(Plain("7e3").count, 1U);
  EXPECT_FALSE(Plain("1234567890.123456").IsExact());
}

TEST(ReadPlainNumber, AnswersNoDigitsIfThereAreNone) {
  for (const std::string_view text : {"", "-1", "e5", " 8"}) {
    EXPECT_EQ(Plain(text).end, text.data()) << text;
    EXPECT_EQ(Plain(text).count, 0U) << text;
  }
  const std::string_view point = ".";
  EXPECT_EQ(Plain(point).end, point.data() + 1);
  EXPECT_EQ(Plain(point).count, 0U);
  EXPECT_EQ(Plain(point).Value(), 0);
}

TEST(ReadLeadingNumber, ReadsNumbersThatAreNotPlainAsFarAsTheyGo) {
  EXPECT_EQ(ReadLeadingNumber("-12.50e3"), -12'500);
  EXPECT_EQ(ReadLeadingNumber("12.5.7"), 12.5);
  EXPECT_EQ(ReadLeadingNumber("3-4"), 3);
  EXPECT_EQ(ReadLeadingNumber("--3"), 0);
  EXPECT_EQ(ReadLeadingNumber("-."), 0);
  EXPECT_EQ(ReadLeadingNumber("e"), 0);
  EXPECT_EQ(ReadLeadingNumber("1234567890123456"), 1234567890123456.0);
  EXPECT_EQ(ReadLeadingNumber("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(ReadLeadingNumber("0.0000000000000001"), 1e-16);
  EXPECT_EQ(ReadLeadingNumber("18446744073709551617"), 18446744073709551616.0);
}

TEST(ReadLeadingNumber, ShortPlainNumbersAreTheNearestDoubles) {
  EXPECT_EQ(ReadLeadingNumber("12.5"), 12.5);
  EXPECT_EQ(ReadLeadingNumber("-0.1"), -0.1);
  EXPECT_EQ(ReadLeadingNumber("7"), 7);
  EXPECT_EQ(ReadLeadingNumber(".5"), 0.5);
  EXPECT_EQ(ReadLeadingNumber("5."), 5);
  EXPECT_EQ(ReadLeadingNumber("123456789012345"), 123456789012345.0);
  EXPECT_EQ(ReadLeadingNumber("1.00000000000001"), 1.00000000000001);
  EXPECT_EQ(ReadLeadingNumber("1e3"), 1000);
  EXPECT_EQ(ReadLeadingNumber("+4"), 4);
  EXPECT_EQ(ReadLeadingNumber(""), 0);
  EXPECT_EQ(ReadLeadingNumber("-"), 0);
  EXPECT_EQ(ReadLeadingNumber("."), 0);
  EXPECT_EQ(ReadLeadingNumber(" 8"), 8);
  EXPECT_EQ(BitsOf(ReadLeadingNumber("-0")), BitsOf(-0.0));
}

// None of these characters makes a number of another kind for the C library.
TEST(ReadLeadingNumber, AnyTextReadsAsForTheCLibrary) {
  static constexpr std::string_view kCharacters = "0123456789012345678901234567890123456789.e+- ";
  test::Random random(5);
  for (int i = 0; i < test::Tries(500'000); ++i) {
    std::string text;
    for (std::size_t n = random.Below(24); n > 0; --n) text += random.Of(kCharacters);
    const double value = std::strtod(text.c_str(), nullptr);
    ASSERT_EQ(BitsOf(ReadLeadingNumber(text)), BitsOf(value)) << text;
    ASSERT_EQ(BitsOf(ReadLeadingNumberSlowly(text)), BitsOf(value)) << text;
  }
}

TEST(ReadInteger, TakesNothingButAnInteger) {
  EXPECT_EQ(ReadInteger<int>("0"), 0);
  EXPECT_EQ(ReadInteger<int>("007"), 7);
  EXPECT_EQ(ReadInteger<int>("-17"), -17);
  EXPECT_EQ(ReadInteger<std::uint16_t>("65535"), 65535);
  for (const std::string_view text :
       {"", "-", "+1", " 1", "1 ", "1.0", "1e3", "1a", "a", "--1", "0x1"}) {
    EXPECT_FALSE(ReadInteger<int>(text)) << text;
  }
  EXPECT_FALSE(ReadInteger<std::uint16_t>("-0"));
}

TEST(ReadInteger, RefusesWhatItsTypeCannotHold) {
  EXPECT_EQ(ReadInteger<std::int32_t>("2147483647"), 2147483647);
  EXPECT_EQ(ReadInteger<std::int32_t>("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_FALSE(ReadInteger<std::int32_t>("2147483648"));
  EXPECT_FALSE(ReadInteger<std::int32_t>("-2147483649"));
  EXPECT_FALSE(ReadInteger<std::uint16_t>("65536"));
  EXPECT_FALSE(ReadInteger<std::size_t>("99999999999999999999"));
}

TEST(IsInt32, KnowsTheEndsOfTheRange) {
  EXPECT_TRUE(IsInt32(0));
  EXPECT_TRUE(IsInt32(2147483647));
  EXPECT_TRUE(IsInt32(-2147483648));
  EXPECT_FALSE(IsInt32(2147483648));
  EXPECT_FALSE(IsInt32(-2147483649));
}

}  // namespace
}  // namespace kav::plain_number_test
