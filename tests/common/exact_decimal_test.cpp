#include "common/exact_decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "common/number_text.h"

namespace kav::exact_decimal_test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(ScaledToInteger, RoundsToTheNearestAndTiesToEven) {
  const struct {
    double magnitude;
    int power;
    std::uint64_t integer;
  } rows[] = {
      {1, 0, 1},
      {1, 19, 10000000000000000000U},
      {0.5, 0, 0},
      {1.5, 0, 2},
      {2.5, 0, 2},
      {0.125, 2, 12},
      {0.375, 2, 38},
      {2.675, 2, 267},  // The double is a little less.
      {1.005, 2, 100},
      {0.1, 17, 10000000000000001},  // 0.1 is 0.1000000000000000055...
      {0.1, 18, 100000000000000006},
      {9007199254740991, 0, 9007199254740991},
      {9007199254740991, 3, 9007199254740991000},
      {0x1p-75, 0, 0},
      {0x1p-75, 22, 0},
      {0x1.8p-73, 22, 2},  // 1.588...
  };
  for (const auto& row : rows) {
    const auto integer = ScaledToInteger(row.magnitude, row.power);
    ASSERT_TRUE(integer) << row.magnitude;
    EXPECT_EQ(*integer, row.integer) << row.magnitude;
  }
}

TEST(ScaledToInteger, RefusesWhatItCannotDoExactly) {
  const struct {
    double magnitude;
    int power;
  } rows[] = {{0, 0},    {-0.0, 0},    {-1, 0},     {kInfinity, 0}, {-kInfinity, 0},
              {kNan, 0}, {0x1p-76, 0}, {0x1p53, 0}, {1, 23},        {1, -1},
              {2, 19},   {1, 99},      {5e-324, 0}, {1e-300, 22},   {1e300, 0}};
  for (const auto& row : rows) EXPECT_FALSE(ScaledToInteger(row.magnitude, row.power));
}

TEST(RoundToDigits, FindsTheExponentToo) {
  const struct {
    double magnitude;
    int count;
    std::uint64_t digits;
    int exponent;
  } rows[] = {
      {1, 1, 1, 0},
      {1, 17, 10000000000000000, 0},
      {0.1, 17, 10000000000000001, -1},
      {9.5, 2, 95, 0},
      {8.5, 1, 8, 0},
      {9.4, 1, 9, 0},
      {99.96, 4, 9996, 1},
      {99.96, 3, 100, 2},
      {0.0001, 3, 100, -4},
      {123456789, 9, 123456789, 8},
      {9007199254740991, 17, 90071992547409910, 15},
      {0.00001, 17, 10000000000000001, -5},
  };
  for (const auto& row : rows) {
    const auto rounded = RoundToDigits(row.magnitude, row.count);
    ASSERT_TRUE(rounded) << row.magnitude;
    EXPECT_EQ(rounded->digits, row.digits) << row.magnitude;
    EXPECT_EQ(rounded->exponent, row.exponent) << row.magnitude;
  }
}

TEST(RoundToDigits, RefusesWhatItCannotDoExactly) {
  for (const double magnitude : {0.0, -1.0, kInfinity, kNan, 1e16, 1e-40}) {
    EXPECT_FALSE(RoundToDigits(magnitude, 5)) << magnitude;
  }
  EXPECT_FALSE(RoundToDigits(1, 18));
  // These would have to be divided.
  EXPECT_FALSE(RoundToDigits(123, 2));
  EXPECT_FALSE(RoundToDigits(9.5, 1));
}

TEST(WriteDecimal, WritesBackwardsWithZerosInFront) {
  const struct {
    std::uint64_t value;
    int least;
    const char* text;
  } rows[] = {{0, 1, "0"},
              {0, 3, "000"},
              {7, 1, "7"},
              {42, 1, "42"},
              {42, 2, "42"},
              {42, 5, "00042"},
              {100, 1, "100"},
              {1009, 4, "1009"},
              {18446744073709551615U, 1, "18446744073709551615"},
              {5, 40, "0000000000000000000000000000000000000005"}};
  for (const auto& row : rows) {
    std::array<char, 40> buffer;
    char* const end = buffer.data() + buffer.size();
    EXPECT_EQ(std::string(WriteDecimal(row.value, row.least, end), end), row.text);
  }
}

/// What the C library prints; these tests run in the C locale.
std::string Printed(const char* format, int precision, double value) {
  std::array<char, 512> buffer;
  const int length = std::snprintf(buffer.data(), buffer.size(), format, precision, value);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

/// Values of every kind: of all magnitudes, everyday ones, ties, whole ones, and a bit beside each.
class Values {
 public:
  double Next() {
    switch (random_() % 6) {
      case 0:
        return std::bit_cast<double>(random_());
      case 1:
        return std::ldexp(static_cast<double>(random_() >> 11U),
                          -static_cast<int>(random_() % 130));
      case 2:  // Decimals as they are typed.
        return static_cast<double>(random_() % 100000000) / std::pow(10.0, random_() % 9);
      case 3:  // Halfway between two decimals.
        return static_cast<double>(random_() % 1000000) +
               1.0 / static_cast<double>(2U << random_() % 8);
      case 4:
        return Beside(std::pow(10.0, static_cast<int>(random_() % 40) - 20));
      default:
        return Beside(static_cast<double>(random_() % 1000));
    }
  }

 private:
  double Beside(double value) {
    const auto way = random_() % 3;
    return way == 0 ? value : std::nextafter(value, way == 1 ? -1e300 : 1e300);
  }
  std::mt19937_64 random_{20};
};

TEST(ExactDecimal, AllTextsAreThoseOfTheCLibrary) {
  Values values;
  for (int i = 0; i < 300000; ++i) {
    const double value = (i % 2 == 0 ? 1 : -1) * values.Next();
    if (!std::isfinite(value)) continue;
    const int decimals = i % 20;
    ASSERT_EQ(PrintRoundTrip(value), Printed("%.*g", 17, value));
    ASSERT_EQ(PrintFixed(value, decimals), Printed("%.*f", decimals, value));
    ASSERT_EQ(PrintScientific(value, decimals), Printed("%.*e", decimals, value));
  }
}

}  // namespace
}  // namespace kav::exact_decimal_test
