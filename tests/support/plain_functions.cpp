#include "support/plain_functions.h"

#include <cmath>

namespace kav::test {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kPerRightAngle = 0.011111111111111112;
constexpr double kPerRightAngleInRadians = 0.6366197723675814;

double PlainRadians(double x, AngleUnit unit) {
  return unit == AngleUnit::Degrees ? x * kRadiansPerDegree : x;
}

}  // namespace

bool PlainSineZero(double x, AngleUnit unit) {
  return std::fmod(unit == AngleUnit::Degrees ? x : x * kDegreesPerRadian, 180.0) == 0;
}

bool PlainCosineZero(double x, AngleUnit unit) {
  const double y = unit == AngleUnit::Degrees ? x : x * kDegreesPerRadian;
  return std::fmod(y * kPerRightAngle, 2.0) == 1.0 && std::fmod(y, 90.0) == 0;
}

bool PlainTangentPole(double x, AngleUnit unit) {
  const double a = std::fabs(x);
  if (unit == AngleUnit::Degrees) {
    return std::fmod(a * kPerRightAngle, 2.0) == 1.0 && std::fmod(a, 90.0) == 0;
  }
  return std::fmod(a * kPerRightAngleInRadians, 2.0) == 1.0 &&
         std::fmod(a * kDegreesPerRadian, 90.0) == 0;
}

double PlainFactorial(double n) {
  if (std::trunc(n) != n || n < 0) return -1;
  double product = 1;
  for (double factor = n; factor > 0 && std::isfinite(product); --factor) product *= factor;
  return product;
}

std::int32_t PlainInt32(double x) {
  if (!std::isfinite(x)) return 0;
  double rest = std::fmod(std::trunc(x), 4294967296.0);
  if (rest >= 2147483648.0) rest -= 4294967296.0;
  if (rest < -2147483648.0) rest += 4294967296.0;
  return static_cast<std::int32_t>(rest);
}

double PlainShiftLeft(double left, double right) {
  const std::int64_t count = PlainInt32(right);
  if (count < 0 || count > 31) return 0;
  return PlainInt32(PlainInt32(left) * std::exp2(static_cast<double>(count)));
}

double PlainShiftRight(double left, double right) {
  const std::int64_t count = PlainInt32(right);
  const double value = PlainInt32(left);
  if (count < 0 || count > 31) return value < 0 ? -1 : 0;
  return std::floor(value / std::exp2(static_cast<double>(count)));
}

bool PlainIsInDomain(const std::string& name, double x, AngleUnit unit) {
  if (name == "tan") return !PlainTangentPole(x, unit);
  if (name == "asin" || name == "acos") return x >= -1 && x <= 1;
  if (name == "log" || name == "ln" || name == "sqrt") return x > 0;
  return true;
}

double PlainApply(const std::string& name, double x, AngleUnit unit) {
  const double inUnit = unit == AngleUnit::Degrees ? kDegreesPerRadian : 1.0;
  double whole = 0;
  if (name == "sin") return PlainSineZero(x, unit) ? 0 : std::sin(PlainRadians(x, unit));
  if (name == "cos") return PlainCosineZero(x, unit) ? 0 : std::cos(PlainRadians(x, unit));
  if (name == "tan") return PlainSineZero(x, unit) ? 0 : std::tan(PlainRadians(x, unit));
  if (name == "asin") return std::asin(x) * inUnit;
  if (name == "acos") return std::acos(x) * inUnit;
  if (name == "atan") return std::atan(x) * inUnit;
  if (name == "sinh") return std::sinh(x);
  if (name == "cosh") return std::cosh(x);
  if (name == "tanh") return std::tanh(x);
  if (name == "log") return std::log10(x);
  if (name == "ln") return std::log(x);
  if (name == "exp") return std::exp(x);
  if (name == "sqrt") return std::pow(x, 0.5);
  if (name == "abs") return std::fabs(x);
  if (name == "int") return std::trunc(x);
  return std::modf(x, &whole);
}

}  // namespace kav::test
