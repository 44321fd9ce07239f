#include "engine/steps.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "common/number_text.h"
#include "engine/function_names.h"
#include "engine/functions.h"

namespace kav {
namespace {

using enum CalcErrorCode;

constexpr Outcome kDone;

bool IsWhole(double x) {
  return std::trunc(x) == x;
}

double FractionalPart(double x) {
  double whole = 0;
  return std::modf(x, &whole);
}

// The shapes that operations have. Each is an ApplyFunction; it first checks that its operands are
// finite.

/// A binary operation defined for all numbers.
template <auto kFunction>
Outcome Fold(double& left, double right, AngleUnit /*unit*/) {
  if (!std::isfinite(left) || !std::isfinite(right)) return OutOfRange;
  left = kFunction(left, right);
  return kDone;
}

/// The same, with a right operand of 0 refused.
template <auto kFunction>
Outcome FoldNonZero(double& left, double right, AngleUnit /*unit*/) {
  if (!std::isfinite(left) || !std::isfinite(right)) return OutOfRange;
  if (right == 0) return CalculationLimit;
  left = kFunction(left, right);
  return kDone;
}

/// A binary operation on the bits of 32-bit integers.
template <auto kFunction>
Outcome FoldBits(double& left, double right, AngleUnit /*unit*/) {
  if (!std::isfinite(left) || !std::isfinite(right)) return OutOfRange;
  left = kFunction(ToInt32(left), ToInt32(right));
  return kDone;
}

/// A function defined for all numbers.
template <auto kFunction>
Outcome Map(double& x, double /*right*/, AngleUnit /*unit*/) {
  if (!std::isfinite(x)) return OutOfRange;
  x = kFunction(x);
  return kDone;
}

/// A function defined for positive numbers.
template <auto kFunction>
Outcome MapPositive(double& x, double /*right*/, AngleUnit /*unit*/) {
  if (!std::isfinite(x)) return OutOfRange;
  if (!(x > 0)) return CalculationLimit;
  x = kFunction(x);
  return kDone;
}

/// A function of an angle.
template <auto kFunction>
Outcome MapAngle(double& x, double /*right*/, AngleUnit unit) {
  if (!std::isfinite(x)) return OutOfRange;
  x = kFunction(x, unit);
  return kDone;
}

/// The inverse of sine or cosine.
template <auto kFunction>
Outcome MapToAngle(double& x, double /*right*/, AngleUnit unit) {
  if (!std::isfinite(x)) return OutOfRange;
  if (!(-1 <= x && x <= 1)) return CalculationLimit;
  x = InAngleUnit(kFunction(x), unit);
  return kDone;
}

/// An operation that takes its operands as they come.
template <auto kFunction>
Outcome Unchecked(double& left, double right, AngleUnit /*unit*/) {
  left = kFunction(left, right);
  return kDone;
}

/// Arranging or choosing r of n things. If the factorials overflow, their quotient is not-a-number,
/// which the next operation finds out of range.
template <auto kCount>
Outcome Select(double& n, double r, AngleUnit /*unit*/) {
  if (!(r <= n && n >= 0 && r >= 0)) return CalculationLimit;
  if (!IsWhole(n) || !IsWhole(r)) return NotInteger;
  n = kCount(n, r);
  return kDone;
}

Outcome ApplyTangent(double& x, double /*right*/, AngleUnit unit) {
  if (!std::isfinite(x)) return OutOfRange;
  if (IsTangentPole(x, unit)) return CalculationLimit;
  x = Tangent(x, unit);
  return kDone;
}

Outcome ApplyFactorial(double& n, double /*right*/, AngleUnit /*unit*/) {
  constexpr double kLimit = 150;
  if (!(n < kLimit)) return OutOfRange;
  n = Factorial(n);
  return n == -1.0 ? Outcome(NotInteger) : kDone;
}

Outcome ApplyFinish(double& answer, double /*right*/, AngleUnit /*unit*/) {
  return std::isfinite(answer) ? kDone : Outcome(OutOfRange);
}

template <auto kCode>
Outcome Fail(double& /*left*/, double /*right*/, AngleUnit /*unit*/) {
  return kCode;
}

/// The errors an operation may end with, one bit a code.
template <class... Codes>
constexpr unsigned Raises(Codes... codes) {
  return (0U | ... | (1U << static_cast<unsigned>(codes)));
}
constexpr unsigned kNoError = Raises();
constexpr unsigned kRange = Raises(OutOfRange);
constexpr unsigned kRangeOrLimit = Raises(OutOfRange, CalculationLimit);
constexpr unsigned kRangeOrNotWhole = Raises(OutOfRange, NotInteger);
constexpr unsigned kLimitOrNotWhole = Raises(CalculationLimit, NotInteger);

/// All facts of an operation. In `form`, L stands for the target's slot and R for the right one;
/// that of a function is empty. `name` is what messages call it, `shortName` is for messages about
/// values that are not whole.
struct OperationRow {
  Operation operation;
  std::string_view form;
  std::string_view name;
  std::string_view shortName;
  unsigned raises;
  ApplyFunction apply;
};

constexpr OperationRow Function(Operation operation, unsigned raises, ApplyFunction apply) {
  const auto operationOf = [](const FunctionName& row) { return OperationOf(row.code); };
  const auto* named = std::ranges::find(kFunctionNames, operation, operationOf);
  return {operation, "", named->name, "", raises, apply};
}

constexpr OperationRow kOperations[] = {
    {Operation::Negate, "L * -1", "", "", kNoError,
     Unchecked<[](double x, double) { return x * -1.0; }>},
    {Operation::Factorial, "L!", "!", "!", kRangeOrNotWhole, ApplyFactorial},
    {Operation::Permutation, "L p R", "Permutation", "Permu..", kLimitOrNotWhole,
     Select<[](double n, double r) { return Factorial(n) / Factorial(n - r); }>},
    {Operation::Combination, "L c R", "Combination", "Combi..", kLimitOrNotWhole,
     Select<[](double n, double r) { return Factorial(n) / (Factorial(n - r) * Factorial(r)); }>},
    {Operation::Power, "L ^ R", "", "", kNoError, Unchecked<Power>},
    {Operation::LastPower, "L ^ R", "", "", kRange, Fold<Power>},
    {Operation::Multiply, "L * R", "", "", kRange, Fold<[](double a, double b) { return a * b; }>},
    {Operation::Divide, "L / R", "Division", "", kRangeOrLimit,
     FoldNonZero<[](double a, double b) { return a / b; }>},
    {Operation::Remainder, "L % R", "Remainder", "", kRangeOrLimit,
     FoldNonZero<[](double a, double b) { return std::fmod(a, b); }>},
    {Operation::ShiftLeft, "L << R", "", "", kRange, Fold<ShiftLeft>},
    {Operation::ShiftRight, "L >> R", ">>", "", kRangeOrLimit, FoldNonZero<ShiftRight>},
    {Operation::Add, "L + R", "", "", kRange, Fold<[](double a, double b) { return a + b; }>},
    {Operation::Subtract, "L - R", "", "", kRange, Fold<[](double a, double b) { return a - b; }>},
    {Operation::And, "L and R", "", "", kRange,
     FoldBits<[](std::int32_t a, std::int32_t b) { return a & b; }>},
    {Operation::Or, "L or R", "", "", kRange,
     FoldBits<[](std::int32_t a, std::int32_t b) { return a | b; }>},
    {Operation::Xor, "L xor R", "", "", kRange,
     FoldBits<[](std::int32_t a, std::int32_t b) { return a ^ b; }>},
    {Operation::Xnor, "L xnor R", "", "", kRange,
     FoldBits<[](std::int32_t a, std::int32_t b) { return ~(a ^ b); }>},
    {Operation::Not, "not L", "", "", kNoError,
     Unchecked<[](double x, double) -> double { return ~ToInt32(x); }>},
    Function(Operation::Sin, kRange, MapAngle<Sine>),
    Function(Operation::Cos, kRange, MapAngle<Cosine>),
    Function(Operation::Tan, kRangeOrLimit, ApplyTangent),
    Function(Operation::Asin, kRangeOrLimit, MapToAngle<[](double x) { return std::asin(x); }>),
    Function(Operation::Acos, kRangeOrLimit, MapToAngle<[](double x) { return std::acos(x); }>),
    Function(Operation::Atan, kRange,
             MapAngle<[](double x, AngleUnit unit) { return InAngleUnit(std::atan(x), unit); }>),
    Function(Operation::Log, kRangeOrLimit, MapPositive<[](double x) { return std::log10(x); }>),
    Function(Operation::Ln, kRangeOrLimit, MapPositive<[](double x) { return std::log(x); }>),
    Function(Operation::Exp, kRange, Map<[](double x) { return std::exp(x); }>),
    Function(Operation::Sinh, kRange, Map<[](double x) { return std::sinh(x); }>),
    Function(Operation::Cosh, kRange, Map<[](double x) { return std::cosh(x); }>),
    Function(Operation::Tanh, kRange, Map<[](double x) { return std::tanh(x); }>),
    Function(Operation::Sqrt, kRangeOrLimit, MapPositive<[](double x) { return Power(x, 0.5); }>),
    Function(Operation::Abs, kRange, Map<[](double x) { return std::fabs(x); }>),
    Function(Operation::Int, kRange, Map<[](double x) { return std::trunc(x); }>),
    Function(Operation::Frac, kRange, Map<FractionalPart>),
    {Operation::FailExpression, "fail", "", "", Raises(Expression), Fail<Expression>},
    {Operation::FailNeedsArgument, "fail", "!", "", Raises(NeedsArgument), Fail<NeedsArgument>},
    {Operation::Finish, "answer L", "", "", kRange, ApplyFinish},
};

constexpr const OperationRow& RowOf(Operation operation) {
  return kOperations[static_cast<std::size_t>(operation)];
}

constexpr bool RowsAreInOrder() {
  std::size_t index = 0;
  for (const OperationRow& row : kOperations) {
    if (static_cast<std::size_t>(row.operation) != index++) return false;
  }
  return true;
}
static_assert(RowsAreInOrder(), "the table is read by the number of the operation");

}  // namespace

CalcError MakeError(StepFailure failure) {
  const OperationRow& row = RowOf(failure.operation);
  return MakeError(failure.code, failure.code == NotInteger ? row.shortName : row.name);
}

ApplyFunction FunctionFor(Operation operation) {
  return RowOf(operation).apply;
}

bool MayRaise(Operation operation, CalcErrorCode code) {
  return (RowOf(operation).raises & Raises(code)) != 0;
}

Expected<double, StepFailure> RunSteps(const StepList& steps, SlotValues& values, AngleUnit unit) {
  for (const Step& step : steps) {
    const Outcome done = RowOf(step.operation).apply(values[step.target], values[step.right], unit);
    if (!done) return StepFailure{done.Code(), step.operation, step.token};
  }
  return values[steps.Last().target];
}

std::string DescribeStep(const Step& step) {
  const OperationRow& row = RowOf(step.operation);
  const std::string form = row.form.empty() ? std::string(row.name) + "(L)" : std::string(row.form);
  const auto slot = [](std::uint8_t number) { return "#" + PrintInteger(number); };
  std::string line;
  if (form.find('L') != form.npos && step.operation != Operation::Finish) {
    line = slot(step.target) + " = ";
  }
  for (const char c : form) {
    if (c == 'L' || c == 'R') {
      line += slot(c == 'L' ? step.target : step.right);
    } else {
      line += c;
    }
  }
  for (unsigned code = 0; code <= static_cast<unsigned>(Free); ++code) {
    if ((row.raises & (1U << code)) == 0) continue;
    line += "; " + MakeError(StepFailure{static_cast<CalcErrorCode>(code), step.operation}).message;
  }
  return line;
}

}  // namespace kav
