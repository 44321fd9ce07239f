#include "engine/functions.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "common/number_text.h"

namespace kav {
namespace {

// 180/pi and pi/180 rounded to double, and the reciprocals of 90 and of pi/2. Results depend on
// their last bit, so these never change.
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kRightAnglesPerDegree = 0.011111111111111112;
constexpr double kRightAnglesPerRadian = 0.6366197723675814;

/// True only if `x` is farther from every whole number than rounding can have carried it. Adding
/// 1.5 * 2^52 rounds to whole numbers.
bool IsSurelyNotWhole(double x) {
  constexpr double kRounder = 6755399441055744.0;
  constexpr double kLargestJudged = 1048576.0;  // its unit in the last place is 2^-32
  constexpr double kMoreThanRounding = 1e-9;
  const double nearest = (x + kRounder) - kRounder;
  return std::fabs(x) < kLargestJudged && std::fabs(x - nearest) > kMoreThanRounding;
}

/// fmod(x, divisor) == 0; `reciprocal` is 1/divisor. Most values need no fmod to tell.
bool IsMultipleOf(double x, double divisor, double reciprocal) {
  return !IsSurelyNotWhole(x * reciprocal) && std::fmod(x, divisor) == 0;
}

/// fmod(x, 2) == 1: positive and odd.
bool IsOdd(double x) {
  return !IsSurelyNotWhole(x) && std::fmod(x, 2.0) == 1.0;
}

bool IsMultipleOf180(double degrees) {
  return IsMultipleOf(degrees, 180.0, 1.0 / 180.0);
}
bool IsMultipleOf90(double degrees) {
  return IsMultipleOf(degrees, 90.0, 1.0 / 90.0);
}

double InDegrees(double angle, AngleUnit unit) {
  return unit == AngleUnit::Degrees ? angle : angle * kDegreesPerRadian;
}

double InRadians(double angle, AngleUnit unit) {
  return unit == AngleUnit::Degrees ? angle * kRadiansPerDegree : angle;
}

/// The largest error of a rounded result `y` that proves that pow would have rounded to `y` too:
/// 0.45 of a unit in the last place, since pow itself errs by less than 0.05. NaN, which no error
/// is below, if `y` or its square is too near the ends of the range for the residue to be exact.
double ProvableError(double y) {
  constexpr std::uint64_t kExponentMask = 0x7FF0000000000000U;
  constexpr double kTiny = 1e-125;
  constexpr double kHuge = 1e300;
  if (!(y > kTiny && y < kHuge)) return std::numeric_limits<double>::quiet_NaN();
  const auto powerOfTwo = std::bit_cast<double>(std::bit_cast<std::uint64_t>(y) & kExponentMask);
  return powerOfTwo * (0.45 * std::numeric_limits<double>::epsilon());
}

/// pow itself. A compiler that knows the exponent to be 2 would write x*x, whose last bit may
/// differ.
double PowCall(double x, double y) {
  const volatile double exponent = y;
  return std::pow(x, exponent);
}

double Squared(double x) {
  const double square = x * x;
  const double error = std::fma(x, x, -square);
  return std::fabs(error) <= ProvableError(square) ? square : PowCall(x, 2.0);
}

double SquareRoot(double x) {
  const double root = std::sqrt(x);
  const double error = std::fma(-root, root, x);  // of the square, so twice the root's own
  return std::fabs(error) <= 2 * root * ProvableError(root) ? root : PowCall(x, 0.5);
}

}  // namespace

double Power(double x, double y) {
  if (y == 2.0) return Squared(x);
  if (y == 0.5) return SquareRoot(x);
  return std::pow(x, y);
}

bool IsSineZero(double angle, AngleUnit unit) {
  return IsMultipleOf180(InDegrees(angle, unit));
}

bool IsCosineZero(double angle, AngleUnit unit) {
  const double degrees = InDegrees(angle, unit);
  return IsOdd(degrees * kRightAnglesPerDegree) && IsMultipleOf90(degrees);
}

bool IsTangentPole(double angle, AngleUnit unit) {
  const double size = std::fabs(angle);
  if (unit == AngleUnit::Degrees) {
    return IsOdd(size * kRightAnglesPerDegree) && IsMultipleOf90(size);
  }
  return IsOdd(size * kRightAnglesPerRadian) && IsMultipleOf90(size * kDegreesPerRadian);
}

double Sine(double angle, AngleUnit unit) {
  return IsSineZero(angle, unit) ? 0.0 : std::sin(InRadians(angle, unit));
}

double Cosine(double angle, AngleUnit unit) {
  return IsCosineZero(angle, unit) ? 0.0 : std::cos(InRadians(angle, unit));
}

double Tangent(double angle, AngleUnit unit) {
  return IsSineZero(angle, unit) ? 0.0 : std::tan(InRadians(angle, unit));
}

double InAngleUnit(double radians, AngleUnit unit) {
  return unit == AngleUnit::Degrees ? radians * kDegreesPerRadian : radians;
}

double Factorial(double n) {
  constexpr double kLargestFinite = 170;
  if (n < 0 || std::trunc(n) != n) return -1.0;
  if (n > kLargestFinite) return std::numeric_limits<double>::infinity();
  double product = 1.0;
  for (int factor = static_cast<int>(n); factor >= 1; --factor) product *= factor;
  return product;
}

double ShiftLeft(double left, double count) {
  const auto bits = static_cast<std::uint32_t>(ToInt32(left));
  const std::int32_t places = ToInt32(count);
  if (places < 0 || places > 31) return 0.0;
  return static_cast<std::int32_t>(bits << static_cast<std::uint32_t>(places));
}

double ShiftRight(double left, double count) {
  const std::int32_t value = ToInt32(left);
  const std::int32_t places = ToInt32(count);
  if (places < 0 || places > 31) return value < 0 ? -1.0 : 0.0;
  return value >> places;
}

}  // namespace kav
