#include "common/ascii.h"

#include <gtest/gtest.h>

#include <string_view>

namespace kav::ascii_test {
namespace {

constexpr std::string_view kLower = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kUpper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexadecimal = "0123456789abcdef";

TEST(Ascii, KnowsItsOwnLettersAndDigitsOnly) {
  for (int i = -128; i < 128; ++i) {
    const char c = static_cast<char>(i);
    const bool isLower = kLower.find(c) != kLower.npos;
    const bool isUpper = kUpper.find(c) != kUpper.npos;
    EXPECT_EQ(IsLower(c), isLower) << i;
    EXPECT_EQ(IsUpper(c), isUpper) << i;
    EXPECT_EQ(IsLetter(c), isLower || isUpper) << i;
    EXPECT_EQ(IsDigit(c), kDigits.find(c) != kDigits.npos) << i;
    EXPECT_EQ(LowerCase(c), isUpper ? kLower[kUpper.find(c)] : c) << i;
    EXPECT_EQ(UpperCase(c), isLower ? kUpper[kLower.find(c)] : c) << i;
    const std::size_t value = kHexadecimal.find(c);
    EXPECT_EQ(DigitValue(c), value == kHexadecimal.npos ? 16 : static_cast<int>(value)) << i;
  }
}

TEST(Ascii, LettersOf16BitsBeyondItAreNone) {
  for (int i = 128; i < 65536; ++i) {
    const auto c = static_cast<char16_t>(i);
    ASSERT_FALSE(IsLetter(c) || IsDigit(c)) << i;
    ASSERT_EQ(LowerCase(c), c) << i;
    ASSERT_EQ(UpperCase(c), c) << i;
    ASSERT_EQ(DigitValue(c), 16) << i;
  }
  EXPECT_TRUE(IsLetter(u'Z') && IsDigit(u'9'));
  EXPECT_EQ(LowerCase(u'Q'), u'q');
  EXPECT_EQ(DigitValue(u'f'), 15);
}

TEST(EqualsIgnoringCase, ComparesWholeTextsOfBothKinds) {
  EXPECT_TRUE(EqualsIgnoringCase(std::string_view("Sin"), std::string_view("sIN")));
  EXPECT_TRUE(EqualsIgnoringCase(std::u16string_view(u"Sin"), std::string_view("sin")));
  EXPECT_TRUE(EqualsIgnoringCase(std::string_view(), std::string_view()));
  EXPECT_FALSE(EqualsIgnoringCase(std::string_view("sin"), std::string_view("sinh")));
  EXPECT_FALSE(EqualsIgnoringCase(std::string_view("@"), std::string_view("`")));
}

}  // namespace
}  // namespace kav::ascii_test
