#include "display/natural_decimals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/plain_format.h"
#include "support/random.h"

namespace kav::natural_decimals_test {
namespace {

using test::Random;
using test::Tries;

struct DecimalsRow {
  double value;
  int decimals;
  std::string shown;
};

void ExpectDecimals(const std::vector<DecimalsRow>& rows) {
  for (const DecimalsRow& row : rows) {
    for (const double sign : {1.0, -1.0}) {
      const double value = sign * row.value;
      EXPECT_EQ(NaturalDecimals(value), row.decimals) << row.shown;
      const std::string minus = value < 0 ? "-" : "";
      EXPECT_EQ(PrintFixed(value, NaturalDecimals(value)), minus + row.shown);
      EXPECT_EQ(RoundToNaturalDecimals(value), ReadLeadingNumber(minus + row.shown));
    }
  }
}

TEST(NaturalDecimals, WholeNumbersHaveNone) {
  EXPECT_EQ(NaturalDecimals(0), 0);
  EXPECT_EQ(NaturalDecimals(-0.0), 0);
  ExpectDecimals({{1, 0, "1"},
                  {30, 0, "30"},
                  {1234567890, 0, "1234567890"},
                  {1e12, 0, "1000000000000"},
                  {999999999999, 0, "999999999999"}});
}

TEST(NaturalDecimals, UpTo11DecimalsShowAsTheyAre) {
  ExpectDecimals({{0.5, 1, "0.5"},
                  {1234.5, 1, "1234.5"},
                  {0.05, 2, "0.05"},
                  {3.14159, 5, "3.14159"},
                  {0.00001, 5, "0.00001"},
                  {0.000010002, 9, "0.000010002"},
                  {0.99999, 5, "0.99999"},
                  {0.1000000001, 10, "0.1000000001"},
                  {0.30000000001, 11, "0.30000000001"},
                  {0.99999999999, 11, "0.99999999999"},
                  {0.00000000001, 11, "0.00000000001"},
                  {1234.56789012345, 11, "1234.56789012345"},
                  {123456789012.5, 1, "123456789012.5"}});
}

TEST(NaturalDecimals, NoiseBehindThe15thDigitIsDropped) {
  ExpectDecimals({{0.1 + 0.2, 1, "0.3"},
                  {0.1 * 3, 1, "0.3"},
                  {1.1 + 2.2, 1, "3.3"},
                  {0.49999999999999994, 1, "0.5"},
                  {1 - 0.9, 1, "0.1"},
                  {4.35 * 100, 0, "435"},
                  {1000000000000.001, 0, "1000000000000"}});
}

TEST(NaturalDecimals, EndlessFractionsShow12) {
  ExpectDecimals({{1.0 / 3, 12, "0.333333333333"},
                  {2.0 / 3, 12, "0.666666666667"},
                  {1.0 / 7, 12, "0.142857142857"},
                  {100.0 / 7, 12, "14.285714285714"},
                  {2.718281828459045, 12, "2.718281828459"},
                  {3.141592653589793, 11, "3.14159265359"}});
}

TEST(NaturalDecimals, TheSmallestShowTheirDigits) {
  ExpectDecimals({{1e-12, 12, "0.000000000001"},
                  {2e-12, 12, "0.000000000002"},
                  {1.23e-11, 12, "0.000000000012"},
                  {5.000000000001, 12, "5.000000000001"},
                  {5.0000000000001, 13, "5.0000000000001"}});
}

TEST(NaturalDecimals, ALoneDigitFarBehindIsNoise) {
  ExpectDecimals({{0.3000000000001, 1, "0.3"},
                  {0.300000000001, 1, "0.3"},
                  {0.5000000000009, 1, "0.5"},
                  {0.10000000010001, 1, "0.1"},
                  {0.999900000001, 4, "0.9999"},
                  {12.2500000000001, 2, "12.25"},
                  {0.9999000900003, 8, "0.99990009"}});
}

TEST(NaturalDecimals, ARunOfNinesIsRoundedAway) {
  ExpectDecimals({{0.9999999999999, 0, "1"},
                  {12.9999999999999, 0, "13"},
                  {0.2999999999999, 1, "0.3"},
                  {0.0999999999999, 1, "0.1"},
                  {0.1234567899995, 8, "0.12345679"},
                  {0.0000000009999, 9, "0.000000001"}});
}

TEST(NaturalDecimals, ThirteenDecimalsMayRoundTheNinesAwayThemselves) {
  ExpectDecimals(
      {{9.99999999999999, 0, "10"}, {1.00000000000001, 0, "1"}, {0.09999999999999, 1, "0.1"}});
}

// The digit before the last one stands before the first zero: the nines are real.
TEST(NaturalDecimals, NinesBeforeTheFirstZeroStay) {
  ExpectDecimals({{0.19999000000001, 5, "0.19999"}});
}

// A zero between two runs of nines joins them no more than another digit does.
TEST(NaturalDecimals, RunsOfNinesAreOfNeighbours) {
  ExpectDecimals({{1.0 / 11, 12, "0.090909090909"},
                  {11.0 / 111, 12, "0.099099099099"},
                  {0.990990990991, 12, "0.990990990991"}});
}

// With no zero at all among the decimals, no digit stands before the first of them.
TEST(NaturalDecimals, WithoutAZeroTheNinesAreRoundedAway) {
  ExpectDecimals({{0.4999999999999, 1, "0.5"}, {1.2345999999999, 4, "1.2346"}});
}

// The 13th decimal is a 5 that stands for itself, and is cut all the same.
TEST(NaturalDecimals, PowersOfTwoLoseTheir13thDecimal) {
  ExpectDecimals({{0.0001220703125, 12, "0.000122070312"}, {0.000244140625, 12, "0.000244140625"}});
}

double SomeValue(Random& random) {
  const auto below = [&](std::size_t count) { return static_cast<double>(random.Below(count)); };
  switch (random.Below(8)) {
    case 0:
      return (random.Fraction() - 0.5) * std::pow(10.0, below(24) - 11);
    case 1:  // few digits
      return below(1000000) / std::pow(10.0, below(18));
    case 2:  // endless fractions
      return below(1000) / (1 + below(1000));
    case 3:  // about 13 decimals
      return std::round(random.Fraction() * 1e13) / 1e13;
    case 4:  // powers of two and their sums
      return below(1U << 20U) / 8192 / std::exp2(below(10));
    case 5:  // few digits with noise
      return below(1000) / std::pow(10.0, below(12)) * (1 + below(9) * 1e-16);
    case 6:  // nines, zeros and a last digit somewhere about the 13th decimal
      return below(100) / std::pow(10.0, below(5)) +
             (below(40) - 20) * std::pow(10.0, -12 - below(3));
    default: {
      std::string digits = "0.";
      for (int i = 0; i < 15; ++i) digits += "0009991"[random.Below(7)];
      return ReadLeadingNumber(digits) + below(20);
    }
  }
}

TEST(NaturalDecimals, AreThoseOfTheRules) {
  Random random(61);
  for (int i = 0; i < Tries(300000); ++i) {
    const double value = SomeValue(random);
    const double size = std::fabs(value);
    if (size != 0 && (size < 1e-12 || size > 1e12)) continue;
    ASSERT_EQ(NaturalDecimals(value), test::PlainNaturalDecimals(value)) << PrintRoundTrip(value);
    ASSERT_EQ(NaturalDecimals(-value), test::PlainNaturalDecimals(-value)) << PrintRoundTrip(value);
    const std::string shown = test::PlainPrint("%.*f", test::PlainNaturalDecimals(value), value);
    ASSERT_EQ(RoundToNaturalDecimals(value), ReadLeadingNumber(shown)) << PrintRoundTrip(value);
  }
}

}  // namespace
}  // namespace kav::natural_decimals_test
