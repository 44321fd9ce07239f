#include "common/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/effort.h"
#include "support/locales.h"
#include "support/plain_format.h"
#include "support/random.h"

namespace kav::number_text_test {
namespace {

using test::BitsOf;
using test::PlainPrint;
using test::Random;
using test::Tries;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();

TEST(ReadLeadingNumber, TakesTheNumberThatOpensTheText) {
  const std::vector<std::pair<std::string_view, double>> rows{
      {"0", 0},           {"30", 30},     {"-2.5", -2.5}, {"+.5", 0.5},    {"5.", 5},
      {"  7.25  ", 7.25}, {"1e3", 1000},  {"1E3", 1000},  {"1e-3", 0.001}, {"2.5e+2", 250},
      {"007", 7},         {"12abc", 12},  {"1 2", 1},     {"1.2.3", 1.2},  {"1,5", 1},
      {"1e2.5", 100},     {"3e2e1", 300}, {"1e", 1},      {"1e+", 1},      {"1e-", 1},
      {"1ex", 1},         {".e5", 0},     {".", 0},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_EQ(BitsOf(ReadLeadingNumber(text)), BitsOf(value)) << text;
  }
}

TEST(ReadLeadingNumber, TextsThatNoNumberOpensAre0) {
  for (const std::string_view text :
       {"", " ", "abc", "-", "+", "- 5", "--5", "0x10", "inf", "nan"}) {
    EXPECT_EQ(BitsOf(ReadLeadingNumber(text)), BitsOf(0)) << text;
  }
}

TEST(ReadLeadingNumber, LongAndExtremeNumbersAreTheNearestDoubles) {
  const std::vector<std::pair<std::string_view, double>> rows{
      {"9007199254740993", 9007199254740992.0},
      {"0.1", 0.1},
      {"123456789012345.678", 123456789012345.678},
      {"123456789012345678901234567890", 1.2345678901234568e29},
      {"0.00000000000000000000000000000000000000000001", 1e-44},
      {"1.7976931348623157e308", kLargest},
      {"4.9406564584124654e-324", kSmallest},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_EQ(BitsOf(ReadLeadingNumber(text)), BitsOf(value)) << text;
  }
}

TEST(ReadLeadingNumber, NumbersBeyondTheRangeAreInfiniteOrZero) {
  const std::vector<std::pair<std::string, double>> rows{
      {"1e309", kInfinity},
      {"-1e309", -kInfinity},
      {"1.7976931348623159e308", kInfinity},
      {"1e99999999999999999999", kInfinity},
      {"123e9223372036854775807", kInfinity},
      {"0.001e9223372036854775807", kInfinity},
      {std::string(400, '9'), kInfinity},
      {"0." + std::string(400, '0') + "1e+800", kInfinity},
      {"3e-324", kSmallest},
      {"2e-324", 0},
      {"-2e-324", -0.0},
      {"1e-320", 1e-320},
      {"1e-99999999999999999999", 0},
      {"0.0001e-9223372036854775808", 0},
      {"0." + std::string(400, '0') + "1", 0},
      {std::string(400, '9') + "e-800", 0},
      {"0e999", 0},
      {"0.000e99999999999999999999", 0},
      {"-0", -0.0},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_EQ(BitsOf(ReadLeadingNumber(text)), BitsOf(value)) << text;
  }
}

TEST(ReadWholeNumber, TakesNothingButANumber) {
  const std::vector<std::pair<std::string_view, double>> numbers{
      {"0", 0},
      {" 12 ", 12},
      {"-1.5e2", -150},
      {"+3", 3},
      {".5", 0.5},
      {"5.", 5},
      {"1E2", 100},
      {"inf", kInfinity},
      {"INF", kInfinity},
      {"-inf", -kInfinity},
      {" -Inf ", -kInfinity},
      {"-0", -0.0},
  };
  for (const auto& [text, value] : numbers) {
    const auto read = ReadWholeNumber(text);
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(BitsOf(*read), BitsOf(value)) << text;
  }
  for (const std::string_view text : {"nan", "NaN", " NAN "}) {
    const auto read = ReadWholeNumber(text);
    ASSERT_TRUE(read) << text;
    EXPECT_TRUE(std::isnan(*read)) << text;
  }
  for (const std::string_view text :
       {"",    " ",   ".",   "-",   "e5",   "1e",       "1e+", "1.2.3", "12a", "a12",
        "1 2", "- 5", "--5", "1,5", "0x10", "infinity", "in",  "nanx",  "\t1", "1\n"}) {
    EXPECT_FALSE(ReadWholeNumber(text)) << text;
  }
}

/// Doubles of all kinds: any bits at all, everyday sizes, few digits, whole ones.
double SomeDouble(Random& random) {
  switch (random.Below(4)) {
    case 0:
      return random.AnyDouble();
    case 1:
      return (random.Fraction() - 0.5) * std::pow(10.0, static_cast<double>(random.Below(40)) - 20);
    case 2:
      return static_cast<double>(random.Below(100000)) / std::pow(10.0, random.Below(12));
    default:
      return static_cast<double>(random.Below(1U << 20U)) / 4096 * (random.Below(2) == 0 ? 1 : -1);
  }
}

TEST(PrintFixedAndScientific, PrintWhatTheCLibraryPrints) {
  Random random(1);
  for (int i = 0; i < Tries(300000); ++i) {
    const double value = SomeDouble(random);
    if (!std::isfinite(value)) continue;
    const int decimals = random.Below(50) == 0 ? 99 : static_cast<int>(random.Below(25));
    ASSERT_EQ(PrintFixed(value, decimals), PlainPrint("%.*f", decimals, value));
    ASSERT_EQ(PrintScientific(value, decimals), PlainPrint("%.*e", decimals, value));
    ASSERT_EQ(PrintRoundTrip(value), PlainPrint("%.*g", 17, value));
  }
}

TEST(PrintFixedAndScientific, RoundTiesToEvenAndCarry) {
  const std::vector<std::pair<std::string, std::string_view>> rows{
      {PrintFixed(0.5, 0), "0"},
      {PrintFixed(1.5, 0), "2"},
      {PrintFixed(2.5, 0), "2"},
      {PrintFixed(0.125, 2), "0.12"},
      {PrintFixed(0.375, 2), "0.38"},
      {PrintFixed(-0.001, 2), "-0.00"},
      {PrintFixed(-0.0, 1), "-0.0"},
      {PrintFixed(999.9996, 3), "1000.000"},
      {PrintFixed(1e22, 0), "10000000000000000000000"},
      {PrintFixed(0.1, 20), "0.10000000000000000555"},
      {PrintScientific(0, 0), "0e+00"},
      {PrintScientific(0, 3), "0.000e+00"},
      {PrintScientific(-0.0, 1), "-0.0e+00"},
      {PrintScientific(12345.678, 3), "1.235e+04"},
      {PrintScientific(9.9996, 3), "1.000e+01"},
      {PrintScientific(2.5, 0), "2e+00"},
      {PrintScientific(1e-100, 2), "1.00e-100"},
      {PrintScientific(kSmallest, 2), "4.94e-324"},
      {PrintRoundTrip(0.1), "0.10000000000000001"},
      {PrintRoundTrip(0.5), "0.5"},
      {PrintRoundTrip(100), "100"},
      {PrintRoundTrip(1e-5), "1.0000000000000001e-05"},
      {PrintRoundTrip(0.0001), "0.0001"},
      {PrintRoundTrip(1e16), "10000000000000000"},
      {PrintRoundTrip(1e17), "1e+17"},
      {PrintRoundTrip(-0.0), "-0"},
      {PrintRoundTrip(kLargest), "1.7976931348623157e+308"},
      {PrintRoundTrip(kInfinity), "inf"},
      {PrintRoundTrip(-kInfinity), "-inf"},
  };
  for (const auto& [printed, text] : rows) EXPECT_EQ(printed, text);
  EXPECT_EQ(PrintFixed(kLargest, 99).size(), 309U + 1 + 99);
}

TEST(AppendShortestPlain, PrintsTheFewestDigitsThatReadBack) {
  const std::vector<std::pair<double, std::string_view>> rows{
      {0, "0"},
      {0.1, "0.1"},
      {1e-12, "0.000000000001"},
      {-2.5, "-2.5"},
      {0.30000000000000004, "0.30000000000000004"},
      {1e12, "1000000000000"},
      {1e21, "1000000000000000000000"},
  };
  for (const auto& [value, text] : rows) {
    std::string out = "=";
    AppendShortestPlain(out, value);
    EXPECT_EQ(out, "=" + std::string(text));
  }
  Random random(2);
  for (int i = 0; i < Tries(20000); ++i) {
    const double value = SomeDouble(random);
    if (!std::isfinite(value)) continue;
    std::string text;
    AppendShortestPlain(text, value);
    EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
    // The fewest digits found by trying one more at a time.
    int digits = 1;
    while (std::strtod(PlainPrint("%.*e", digits - 1, value).c_str(), nullptr) != value) ++digits;
    std::string significant;
    for (const char c : text) significant += c >= '0' && c <= '9' ? std::string(1, c) : "";
    significant.erase(0, std::min(significant.find_first_not_of('0'), significant.size()));
    if (text.find('.') != text.npos) {
      EXPECT_LE(static_cast<int>(significant.size()), digits) << text;
    }
  }
}

TEST(Append, AddsBehindWhatIsThere) {
  std::string out = "a";
  AppendFixed(out, 1.25, 1);
  AppendScientific(out, 1.25, 1);
  AppendRoundTrip(out, 1.25);
  EXPECT_EQ(out, "a1.21.2e+001.25");
}

TEST(PrintInteger, PrintsTheWholeRange) {
  EXPECT_EQ(PrintInteger(0), "0");
  EXPECT_EQ(PrintInteger(-17), "-17");
  EXPECT_EQ(PrintInteger(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
  EXPECT_EQ(PrintInteger(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(PrintInRadix, PrintsUnsignedDigitsInLowerCase) {
  EXPECT_EQ(PrintInRadix(0, 2), "0");
  EXPECT_EQ(PrintInRadix(10, 2), "1010");
  EXPECT_EQ(PrintInRadix(255, 16), "ff");
  EXPECT_EQ(PrintInRadix(4294967295U, 16), "ffffffff");
  EXPECT_EQ(PrintInRadix(4294967295U, 8), "37777777777");
  EXPECT_EQ(PrintInRadix(4294967295U, 2), std::string(32, '1'));
  EXPECT_EQ(PrintInRadix(120, 11), "aa");
}

/// The last 32 bits of the whole part of `value`, from the bits that it is made of.
std::int32_t LowBits(double value) {
  int exponent = 0;
  const double mantissa = std::frexp(std::fabs(value), &exponent);  // in [0.5, 1), 53 bits
  auto whole = static_cast<std::uint64_t>(std::ldexp(mantissa, 53));
  const int shift = exponent - 53;
  if (shift <= -64 || shift >= 32) return 0;
  whole = shift < 0 ? whole >> -shift : whole << shift;
  const auto low = static_cast<std::uint32_t>(whole);
  return static_cast<std::int32_t>(value < 0 ? 0U - low : low);
}

TEST(ToInt32, TruncatesAndWrapsAround) {
  const std::vector<std::pair<double, std::int32_t>> rows{
      {0, 0},
      {-0.0, 0},
      {2.9, 2},
      {-2.9, -2},
      {0.999, 0},
      {2147483647, 2147483647},
      {2147483647.9, 2147483647},
      {2147483648, -2147483647 - 1},
      {-2147483648, -2147483647 - 1},
      {-2147483648.9, -2147483647 - 1},
      {-2147483649, 2147483647},
      {4294967295, -1},
      {4294967296, 0},
      {4294967297.5, 1},
      {8589934591, -1},
      {-4294967295, 1},
      {1e300, 0},
      {kInfinity, 0},
      {-kInfinity, 0},
      {std::nan(""), 0},
  };
  for (const auto& [value, integer] : rows) EXPECT_EQ(ToInt32(value), integer) << value;
}

TEST(ToInt32, KeepsTheLowBitsOfAnyDouble) {
  Random random(3);
  for (int i = 0; i < Tries(1000000); ++i) {
    const double value =
        i % 2 == 0 ? random.AnyDouble()
                   : (random.Fraction() - 0.5) * std::exp2(static_cast<double>(random.Below(90)));
    if (!std::isfinite(value)) continue;
    ASSERT_EQ(ToInt32(value), LowBits(value)) << value;
  }
}

TEST(Numbers, AreReadAndPrintedWithAPointInEveryLocale) {
  for (const char* name : test::kLocales) {
    const test::LocaleInForce locale(name);
    if (!locale.IsThere()) continue;
    EXPECT_EQ(ReadLeadingNumber("1.5"), 1.5) << name;
    EXPECT_EQ(ReadLeadingNumber("1,5"), 1) << name;
    EXPECT_EQ(ReadWholeNumber("2.25"), 2.25) << name;
    EXPECT_TRUE(ReadWholeNumber("INF")) << name;
    EXPECT_EQ(PrintFixed(1234.5, 25), "1234.5" + std::string(24, '0')) << name;
    EXPECT_EQ(PrintScientific(1234.5, 20), "1.23450000000000000000e+03") << name;
    EXPECT_EQ(PrintRoundTrip(1.5), "1.5") << name;
    std::string shortest;
    AppendShortestPlain(shortest, 1234567.25);
    EXPECT_EQ(shortest, "1234567.25") << name;
  }
}

}  // namespace
}  // namespace kav::number_text_test
