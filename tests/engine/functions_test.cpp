#include "engine/functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "support/effort.h"
#include "support/plain_functions.h"
#include "support/random.h"

namespace kav::functions_test {
namespace {

using test::BitsOf;
using test::Random;
using test::Tries;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
constexpr double kSmallestNormal = std::numeric_limits<double>::min();
constexpr AngleUnit kUnits[] = {AngleUnit::Degrees, AngleUnit::Radians};

constexpr double kSpecial[] = {0.0,
                               -0.0,
                               1.0,
                               -1.0,
                               0.5,
                               2.0,
                               -2.0,
                               1.5,
                               3.0,
                               0.1,
                               1e-200,
                               1e-160,
                               1e-100,
                               1e100,
                               1e150,
                               1e200,
                               kLargest,
                               -kLargest,
                               kSmallest,
                               -kSmallest,
                               kSmallestNormal,
                               -kSmallestNormal,
                               kInfinity,
                               -kInfinity,
                               kNaN};

/// pow of the C library, by an exponent that the compiler cannot know: for 2 it would write x*x.
double PowOf(double x, double y) {
  const volatile double exponent = y;
  return std::pow(x, exponent);
}

/// The bits of `value`, all not-a-numbers alike.
std::uint64_t Bits(double value) {
  return BitsOf(std::isnan(value) ? kNaN : value);
}

TEST(Power, SpecialValuesAreThoseOfPow) {
  for (const double x : kSpecial) {
    for (const double y : kSpecial) {
      ASSERT_EQ(Bits(Power(x, y)), Bits(PowOf(x, y))) << x << " ^ " << y;
    }
  }
}

TEST(Power, SquaresAndRootsHaveTheBitsOfPow) {
  Random random(21);
  const auto check = [](double x) {
    for (const double y : {2.0, 0.5}) {
      ASSERT_EQ(Bits(Power(x, y)), Bits(PowOf(x, y))) << std::hexfloat << x << " ^ " << y;
    }
  };
  for (int i = 0; i < Tries(1000000); ++i) {
    check(random.AnyDouble());               // of any size, subnormal ones among them
    check(1 + random.Fraction());            // of one size, where ties are found
    check((random.Fraction() - 0.5) * 1e4);  // as they are calculated with
    check(static_cast<double>(i) / 64);      // of few digits, with exact squares
    if (HasFatalFailure()) return;
  }
  for (int i = 0; i < Tries(200000); ++i) {
    check(random.Fraction() * kSmallestNormal);               // subnormal
    check(std::ldexp(1 + random.Fraction(), 511));            // squares at the upper end
    check(std::ldexp(1 + random.Fraction(), -511 - i % 28));  // and at the lower one
    check(std::ldexp(1 + random.Fraction(), 1023));
    if (HasFatalFailure()) return;
  }
}

TEST(Power, SquaresOfNeighboursOfRootsHaveTheBitsOfPow) {
  for (int i = 1; i < Tries(100000); ++i) {
    double x = std::sqrt(static_cast<double>(i));
    for (int step = -2; step <= 2; ++step, x = std::nextafter(x, kInfinity)) {
      ASSERT_EQ(BitsOf(Power(x, 2)), BitsOf(PowOf(x, 2))) << std::hexfloat << x;
      ASSERT_EQ(BitsOf(Power(i * x, 0.5)), BitsOf(PowOf(i * x, 0.5))) << std::hexfloat << i * x;
    }
  }
}

TEST(Power, OtherExponentsAreThoseOfPow) {
  Random random(22);
  for (const double y : {0.0, 0.25, 1.0 / 3, 0.6, 1.0, 1.5, 2.5, 3.0, 4.0, -0.5, -1.0, -2.0,
                         std::nextafter(0.5, 1.0), std::nextafter(2.0, 0.0)}) {
    for (int i = 0; i < Tries(10000); ++i) {
      const double x = i % 2 == 0 ? random.AnyDouble() : random.Fraction() * 100;
      ASSERT_EQ(Bits(Power(x, y)), Bits(PowOf(x, y))) << x << " ^ " << y;
    }
  }
  for (int i = 0; i < Tries(300000); ++i) {
    const double x = i % 2 == 0 ? random.AnyDouble() : random.Fraction() * 100;
    const double y = i % 3 == 0 ? static_cast<double>(i % 9) - 4 : random.Fraction() * 10 - 5;
    ASSERT_EQ(Bits(Power(x, y)), Bits(PowOf(x, y))) << x << " ^ " << y;
  }
}

void ExpectPlainZeros(double angle, AngleUnit unit) {
  ASSERT_EQ(IsSineZero(angle, unit), test::PlainSineZero(angle, unit)) << std::hexfloat << angle;
  ASSERT_EQ(IsCosineZero(angle, unit), test::PlainCosineZero(angle, unit))
      << std::hexfloat << angle;
  ASSERT_EQ(IsTangentPole(angle, unit), test::PlainTangentPole(angle, unit))
      << std::hexfloat << angle;
}

/// `angle` and its neighbours on either side, of either sign.
void ExpectPlainZerosAround(double angle) {
  for (const AngleUnit unit : kUnits) {
    for (const double start : {angle, -angle}) {
      double lower = start;
      double upper = start;
      for (int step = 0; step < 4; ++step) {
        ASSERT_NO_FATAL_FAILURE(ExpectPlainZeros(lower, unit));
        ASSERT_NO_FATAL_FAILURE(ExpectPlainZeros(upper, unit));
        lower = std::nextafter(lower, -kInfinity);
        upper = std::nextafter(upper, kInfinity);
      }
    }
  }
}

TEST(ExactZeros, AreFoundAtMultiplesAndNotBesideThem) {
  constexpr double kPi = 3.141592653589793;
  for (int i = 0; i < Tries(20000); ++i) {
    const auto count = static_cast<double>(i);
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(count * 45));
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(count * (kPi / 4)));
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(count / 0.6366197723675814));
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(count * 90 / 57.29577951308232));
  }
}

TEST(ExactZeros, AreFoundAmongLargeAngles) {
  Random random(23);
  for (int i = 0; i < Tries(10000); ++i) {
    const double size = std::exp2(static_cast<double>(random.Below(200)));
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(std::trunc(random.Fraction() * size) * 90));
    ASSERT_NO_FATAL_FAILURE(ExpectPlainZerosAround(std::trunc(random.Fraction() * size) / 90));
  }
}

TEST(ExactZeros, AreThoseOfTheRulesForAnyAngle) {
  Random random(24);
  for (int i = 0; i < Tries(150000); ++i) {
    for (const AngleUnit unit : kUnits) {
      const double any = random.AnyDouble();
      if (!std::isfinite(any)) continue;
      ASSERT_NO_FATAL_FAILURE(ExpectPlainZeros(any, unit));
      ASSERT_NO_FATAL_FAILURE(ExpectPlainZeros(random.Fraction() * 1000, unit));
      ASSERT_NO_FATAL_FAILURE(ExpectPlainZeros(static_cast<double>(random.Below(1U << 30U)), unit));
    }
  }
}

struct AngleRow {
  double angle;
  AngleUnit unit;
  bool sineIsZero;
  bool cosineIsZero;
  bool tangentIsPole;
};

TEST(ExactZeros, StandAtTheRightAngles) {
  constexpr double kPi = 3.141592653589793;
  constexpr AngleUnit kDegrees = AngleUnit::Degrees;
  constexpr AngleUnit kRadians = AngleUnit::Radians;
  constexpr AngleRow kRows[] = {
      {0, kDegrees, true, false, false},        {90, kDegrees, false, true, true},
      {180, kDegrees, true, false, false},      {270, kDegrees, false, true, true},
      {360, kDegrees, true, false, false},      {-180, kDegrees, true, false, false},
      {-90, kDegrees, false, false, true},  // cos(-90) is computed, tan(-90) is a pole
      {-270, kDegrees, false, false, true},     {45, kDegrees, false, false, false},
      {0, kRadians, true, false, false},        {kPi, kRadians, true, false, false},
      {-kPi, kRadians, true, false, false},     {kPi / 2, kRadians, false, true, true},
      {-kPi / 2, kRadians, false, false, true}, {2 * kPi, kRadians, true, false, false},
      {180, kRadians, false, false, false},     {90, kRadians, false, false, false},
  };
  for (const AngleRow& row : kRows) {
    EXPECT_EQ(IsSineZero(row.angle, row.unit), row.sineIsZero) << row.angle;
    EXPECT_EQ(IsCosineZero(row.angle, row.unit), row.cosineIsZero) << row.angle;
    EXPECT_EQ(IsTangentPole(row.angle, row.unit), row.tangentIsPole) << row.angle;
  }
}

TEST(Trigonometry, HasTheBitsOfTheRules) {
  Random random(25);
  for (int i = 0; i < Tries(100000); ++i) {
    const double angle = i % 3 == 0   ? static_cast<double>(i) * 15
                         : i % 3 == 1 ? (random.Fraction() - 0.5) * 1e4
                                      : random.Fraction() * 1e300;
    for (const AngleUnit unit : kUnits) {
      ASSERT_EQ(BitsOf(Sine(angle, unit)), BitsOf(test::PlainApply("sin", angle, unit))) << angle;
      ASSERT_EQ(BitsOf(Cosine(angle, unit)), BitsOf(test::PlainApply("cos", angle, unit))) << angle;
      if (IsTangentPole(angle, unit)) continue;
      ASSERT_EQ(BitsOf(Tangent(angle, unit)), BitsOf(test::PlainApply("tan", angle, unit)))
          << angle;
    }
  }
}

TEST(Trigonometry, ShowsZeroWhereItShould) {
  EXPECT_EQ(BitsOf(Sine(180, AngleUnit::Degrees)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Sine(-360, AngleUnit::Degrees)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Cosine(90, AngleUnit::Degrees)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Cosine(270, AngleUnit::Degrees)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Tangent(180, AngleUnit::Degrees)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Sine(3.141592653589793, AngleUnit::Radians)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Cosine(1.5707963267948966, AngleUnit::Radians)), BitsOf(0.0));
  EXPECT_EQ(BitsOf(Tangent(3.141592653589793, AngleUnit::Radians)), BitsOf(0.0));
}

// Only positive angles are recognised.
TEST(Trigonometry, CosineOfMinus90IsTinyAndNotZero) {
  const double tiny = Cosine(-90, AngleUnit::Degrees);
  EXPECT_NE(tiny, 0);
  EXPECT_LT(std::fabs(tiny), 1e-15);
}

TEST(InAngleUnit, TurnsRadiansIntoTheUnit) {
  EXPECT_EQ(InAngleUnit(1, AngleUnit::Degrees), 57.29577951308232);
  EXPECT_EQ(InAngleUnit(1, AngleUnit::Radians), 1);
}

TEST(Factorial, IsTheProductFromNDownward) {
  const std::vector<std::pair<double, double>> rows{
      {0, 1},
      {-0.0, 1},
      {1, 1},
      {2, 2},
      {3, 6},
      {5, 120},
      {10, 3628800},
      {20, 2432902008176640000.0},
      {2.5, -1},
      {0.5, -1},
      {-1, -1},
      {-2.5, -1},
      {-kInfinity, -1},
      {kNaN, -1},
      {171, kInfinity},
      {1e300, kInfinity},
      {kInfinity, kInfinity},
  };
  for (const auto& [n, factorial] : rows) EXPECT_EQ(Factorial(n), factorial) << n;
  EXPECT_DOUBLE_EQ(Factorial(69), 1.711224524281413e98);
  EXPECT_DOUBLE_EQ(Factorial(149), 3.808922637630569e260);
  EXPECT_NEAR(Factorial(170) / 7.257415615307999e306, 1, 1e-14);
  for (int n = 0; n <= 180; ++n) EXPECT_EQ(Factorial(n), test::PlainFactorial(n)) << n;
}

struct ShiftRow {
  double left;
  double count;
  double shiftedLeft;
  double shiftedRight;
};

TEST(Shift, CountsOutside0To31ShiftEverythingOut) {
  constexpr ShiftRow kRows[] = {
      {1, 4, 16, 0},
      {8, 1, 16, 4},
      {8, 0.5, 8, 8},
      {5, 0, 5, 5},
      {1, 31, -2147483648.0, 0},
      {-1, 31, -2147483648.0, -1},
      {1, 32, 0, 0},
      {-8, 32, 0, -1},
      {8, -1, 0, 0},
      {-8, -1, 0, -1},
      {-8, 1, -16, -4},
      {-7, 1, -14, -4},
      {7.9, 1.9, 14, 3},
      {-7.9, 1, -14, -4},
      {3, 31, -2147483648.0, 0},
      {2147483647, 1, -2, 1073741823},
      {4294967295, 1, -2, -1},
      {4294967296, 1, 0, 0},
      {4294967297, 1, 2, 0},
      {1, 4294967297, 2, 0},
      {1, 1e300, 1, 1},
      {-5, 1e10, 0, -1},
  };
  for (const ShiftRow& row : kRows) {
    EXPECT_EQ(ShiftLeft(row.left, row.count), row.shiftedLeft) << row.left << " " << row.count;
    EXPECT_EQ(ShiftRight(row.left, row.count), row.shiftedRight) << row.left << " " << row.count;
  }
}

TEST(Shift, AgreesWithMultiplyingAndDividing) {
  Random random(26);
  for (int i = 0; i < Tries(300000); ++i) {
    const double left =
        (random.Fraction() - 0.5) * std::exp2(static_cast<double>(random.Below(40)));
    const double count = static_cast<double>(random.Below(40)) - 4 + random.Fraction();
    ASSERT_EQ(ShiftLeft(left, count), test::PlainShiftLeft(left, count)) << left << " " << count;
    ASSERT_EQ(ShiftRight(left, count), test::PlainShiftRight(left, count)) << left << " " << count;
  }
}

}  // namespace
}  // namespace kav::functions_test
