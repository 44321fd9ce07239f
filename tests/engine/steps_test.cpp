#include "engine/steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/spelled_steps.h"

namespace kav::steps_test {
namespace {

using enum Operation;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr AngleUnit kUnits[] = {AngleUnit::Degrees, AngleUnit::Radians};
constexpr std::string_view kOutOfRange = "Out of range(overflow or underflow)";

/// The outcome of one operation, in which the answer is not held to the range of numbers.
Expected<double, StepFailure> Apply(Operation operation, double left, double right,
                                    AngleUnit unit = AngleUnit::Degrees) {
  const Outcome outcome = FunctionFor(operation)(left, right, unit);
  if (!outcome) return StepFailure{outcome.Code(), operation};
  return left;
}

/// The value that steps of one operation come to, or their message.
std::string Told(Operation operation, double left, double right = 0,
                 AngleUnit unit = AngleUnit::Degrees) {
  StepList steps;
  steps.Append({operation, 3, 7});
  steps.Append({Finish, 3, 3});
  SlotValues values{};
  values[3] = left;
  values[7] = right;
  const auto answer = RunSteps(steps, values, unit);
  return answer ? PrintRoundTrip(*answer) : MakeError(answer.error()).message;
}

struct ValueRow {
  Operation operation;
  double left;
  double right;
  double value;
  AngleUnit unit = AngleUnit::Degrees;
};

constexpr AngleUnit kRadians = AngleUnit::Radians;
constexpr double kPi = 3.141592653589793;

constexpr ValueRow kValues[] = {
    {Negate, 2, 0, -2},
    {Negate, -2.5, 0, 2.5},
    {Operation::Factorial, 5, 0, 120},
    {Operation::Factorial, 0, 0, 1},
    {Permutation, 5, 2, 20},
    {Permutation, 5, 5, 120},
    {Permutation, 5, 0, 1},
    {Combination, 5, 2, 10},
    {Combination, 0, 0, 1},
    {Combination, 170, 1, 170},
    {Power, 2, 10, 1024},
    {LastPower, 2, -1, 0.5},
    {LastPower, 9, 0.5, 3},
    {LastPower, 0, 0, 1},
    {Multiply, 2.5, 4, 10},
    {Divide, 7, 2, 3.5},
    {Divide, -1, 8, -0.125},
    {Remainder, 7, 3, 1},
    {Remainder, -7, 3, -1},
    {Remainder, 7, -3, 1},
    {Remainder, 5.5, 2, 1.5},
    {Operation::ShiftLeft, 1, 4, 16},
    {Operation::ShiftLeft, 2.9, 1.9, 4},
    {Operation::ShiftRight, 16, 4, 1},
    {Operation::ShiftRight, 8, 0.5, 8},
    {Operation::ShiftRight, -8, 1, -4},
    {Add, 1.5, 2, 3.5},
    {Subtract, 1.5, 2, -0.5},
    {And, 12, 10, 8},
    {And, -1, 255.9, 255},
    {And, 4294967295, 15, 15},
    {Or, 12, 10, 14},
    {Xor, 12, 10, 6},
    {Xnor, 12, 10, -7},
    {Not, 0, 0, -1},
    {Not, 2.9, 0, -3},
    {Not, 4294967295, 0, 0},
    {Sin, 30, 0, 0.5},
    {Sin, 180, 0, 0},
    {Sin, kPi / 6, 0, 0.5, kRadians},
    {Sin, kPi, 0, 0, kRadians},
    {Cos, 60, 0, 0.5},
    {Cos, 90, 0, 0},
    {Cos, kPi / 2, 0, 0, kRadians},
    {Tan, 45, 0, 1},
    {Tan, 180, 0, 0},
    {Tan, kPi / 4, 0, 1, kRadians},
    {Tan, kPi, 0, 0, kRadians},
    {Asin, 1, 0, 90},
    {Asin, 0.5, 0, 30},
    {Asin, -1, 0, -kPi / 2, kRadians},
    {Acos, 0.5, 0, 60},
    {Acos, -1, 0, 180},
    {Acos, 1, 0, 0, kRadians},
    {Atan, 1, 0, 45},
    {Atan, 1, 0, kPi / 4, kRadians},
    {Log, 1000, 0, 3},
    {Ln, 2.718281828459045, 0, 1},
    {Exp, 0, 0, 1},
    {Exp, 1, 0, 2.718281828459045},
    {Exp, -1000, 0, 0},
    {Sinh, 1, 0, 1.1752011936438014},
    {Cosh, 1, 0, 1.5430806348152437},
    {Tanh, 1, 0, 0.7615941559557649},
    {Sqrt, 2, 0, 1.4142135623730951},
    {Abs, -2.5, 0, 2.5},
    {Int, 2.9, 0, 2},
    {Int, -2.9, 0, -2},
    {Frac, 2.75, 0, 0.75},
    {Frac, -2.75, 0, -0.75},
};

TEST(RunSteps, EveryOperationDoesItsArithmetic) {
  std::set<Operation> met;
  for (const ValueRow& row : kValues) {
    const auto value = Apply(row.operation, row.left, row.right, row.unit);
    ASSERT_TRUE(value) << static_cast<int>(row.operation) << " " << row.left;
    EXPECT_DOUBLE_EQ(*value, row.value) << static_cast<int>(row.operation) << " " << row.left;
    met.insert(row.operation);
  }
  for (const auto& [operation, name, operands] : test::kOperationNames) {
    EXPECT_EQ(met.contains(operation), operation < FailExpression) << name;
  }
}

struct RefusedRow {
  Operation operation;
  double left;
  double right;
  std::string_view message;
  AngleUnit unit = AngleUnit::Degrees;
};

constexpr RefusedRow kRefused[] = {
    {Operation::Factorial, 150, 0, kOutOfRange},
    {Operation::Factorial, 150.5, 0, kOutOfRange},
    {Operation::Factorial, kInfinity, 0, kOutOfRange},
    {Operation::Factorial, kNaN, 0, kOutOfRange},
    {Operation::Factorial, 2.5, 0, "! is not supported non-integer."},
    {Operation::Factorial, -3, 0, "! is not supported non-integer."},
    {Operation::Factorial, -kInfinity, 0, "! is not supported non-integer."},
    {Permutation, 2, 5, "Permutation exceeded calculation limit."},
    {Permutation, -1, -2, "Permutation exceeded calculation limit."},
    {Permutation, 5, -1, "Permutation exceeded calculation limit."},
    {Permutation, kNaN, 1, "Permutation exceeded calculation limit."},
    {Permutation, 5.5, 2, "Permu.. is not supported non-integer."},
    {Permutation, 5, 2.5, "Permu.. is not supported non-integer."},
    {Combination, 2, 5, "Combination exceeded calculation limit."},
    {Combination, 2.5, 5.5, "Combination exceeded calculation limit."},
    {Combination, -5, -6, "Combination exceeded calculation limit."},
    {Combination, 5, kNaN, "Combination exceeded calculation limit."},
    {Combination, 5.5, 2, "Combi.. is not supported non-integer."},
    {Divide, 1, 0, "Division exceeded calculation limit."},
    {Divide, 0, -0.0, "Division exceeded calculation limit."},
    {Remainder, 7, 0, "Remainder exceeded calculation limit."},
    {Operation::ShiftRight, 8, 0, ">> exceeded calculation limit."},
    {Tan, 90, 0, "tan exceeded calculation limit."},
    {Tan, -90, 0, "tan exceeded calculation limit."},
    {Tan, 270, 0, "tan exceeded calculation limit."},
    {Tan, kPi / 2, 0, "tan exceeded calculation limit.", kRadians},
    {Tan, -kPi / 2, 0, "tan exceeded calculation limit.", kRadians},
    {Asin, 2, 0, "asin exceeded calculation limit."},
    {Asin, -1.0000000000000002, 0, "asin exceeded calculation limit."},
    {Acos, 1.0000000000000002, 0, "acos exceeded calculation limit."},
    {Log, 0, 0, "log exceeded calculation limit."},
    {Log, -1, 0, "log exceeded calculation limit."},
    {Ln, 0, 0, "ln exceeded calculation limit."},
    {Ln, -0.5, 0, "ln exceeded calculation limit."},
    {Sqrt, 0, 0, "sqrt exceeded calculation limit."},
    {Sqrt, -0.0, 0, "sqrt exceeded calculation limit."},
    {Sqrt, -4, 0, "sqrt exceeded calculation limit."},
};

TEST(RunSteps, DomainsAndBoundsAreKept) {
  for (const RefusedRow& row : kRefused) {
    EXPECT_EQ(Told(row.operation, row.left, row.right, row.unit), row.message)
        << row.left << " " << row.right;
  }
}

TEST(RunSteps, OperandsOfMostOperationsHaveToBeFinite) {
  for (const auto& [operation, name, operands] : test::kOperationNames) {
    const bool takesAnything = operation == Negate || operation == Power || operation == Not ||
                               operation <= Combination || operation >= FailExpression;
    if (takesAnything) continue;
    for (const double odd : {kInfinity, -kInfinity, kNaN}) {
      EXPECT_EQ(Told(operation, odd, 1), kOutOfRange) << name;
      if (operands < 2) continue;
      EXPECT_EQ(Told(operation, 1, odd), kOutOfRange) << name;
    }
  }
}

// Being out of range is found before a divisor of zero.
TEST(RunSteps, RangeComesBeforeBounds) {
  EXPECT_EQ(Told(Divide, kInfinity, 0), kOutOfRange);
  EXPECT_EQ(Told(Remainder, kNaN, 0), kOutOfRange);
  EXPECT_EQ(Told(Operation::ShiftRight, kInfinity, 0), kOutOfRange);
}

TEST(RunSteps, ResultsOutOfRangeAreFoundWhereTheyAreUsed) {
  EXPECT_EQ(Told(Exp, 1000), kOutOfRange);
  EXPECT_EQ(Told(Combination, 200, 2), kOutOfRange);
  EXPECT_EQ(Told(Permutation, 171, 1), kOutOfRange);
  EXPECT_TRUE(Apply(Exp, 1000, 0));
  EXPECT_TRUE(std::isnan(*Apply(Combination, 200, 2)));
  EXPECT_EQ(*Apply(Power, kInfinity, 0), 1);
  EXPECT_EQ(Told(Power, kInfinity, 0), "1");
  EXPECT_EQ(Told(Power, 1, kNaN), "1");
}

TEST(RunSteps, ComplementOfWhatIsNotFiniteIsThatOfZero) {
  EXPECT_EQ(Told(Not, kInfinity), "-1");
}

TEST(RunSteps, FailingStepsFail) {
  EXPECT_EQ(Told(FailExpression, 1), "Expression error.");
  EXPECT_EQ(Told(FailNeedsArgument, 1), "(!) needs an argument.");
}

TEST(RunSteps, RunsOneStepAfterTheOther) {
  StepList steps;  // 2 * sin 30 + 3!
  for (const Step step : {Step{Sin, 4, 4}, Step{Operation::Factorial, 7, 7}, Step{Multiply, 0, 4},
                          Step{Add, 0, 7}, Step{Finish, 0, 0}}) {
    steps.Append(step);
  }
  SlotValues values{};
  values[0] = 2;
  values[4] = 30;
  values[7] = 3;
  const auto answer = RunSteps(steps, values, AngleUnit::Degrees);
  ASSERT_TRUE(answer);
  EXPECT_DOUBLE_EQ(*answer, 7);
}

TEST(RunSteps, EndsAtTheFirstFailure) {
  StepList steps;
  steps.Append({Divide, 0, 1});
  steps.Append({Log, 2, 2});
  steps.Append({FailExpression, 0, 0});
  SlotValues values{};
  const auto answer = RunSteps(steps, values, AngleUnit::Degrees);
  ASSERT_FALSE(answer);
  EXPECT_EQ(answer.error(), (StepFailure{CalcErrorCode::CalculationLimit, Divide}));
}

constexpr double kGrid[] = {0,   -0.0,   1,     -1,      0.5,      2,         2.5,        -3,
                            5,   -90,    90,    149,     150,      170,       171,        200,
                            1e5, -1e300, 1e300, kPi / 2, -kPi / 2, kInfinity, -kInfinity, kNaN};

TEST(MayRaise, SaysWhatTheOperationsDo) {
  for (const auto& [operation, name, operands] : test::kOperationNames) {
    std::set<CalcErrorCode> raised;
    for (const double left : kGrid) {
      for (const double right : kGrid) {
        for (const AngleUnit unit : kUnits) {
          const auto answer = Apply(operation, left, right, unit);
          if (!answer) raised.insert(answer.error().code);
        }
      }
    }
    for (int number = 0; number <= 10; ++number) {
      const auto code = static_cast<CalcErrorCode>(number);
      EXPECT_EQ(MayRaise(operation, code), raised.contains(code)) << name << " code " << number;
    }
  }
}

TEST(DescribeStep, NamesSlotsAndMessagesInOneLine) {
  for (const auto& [operation, name, operands] : test::kOperationNames) {
    const std::string line = DescribeStep({operation, 17, 42});
    EXPECT_EQ(line.find('\n'), std::string::npos) << line;
    EXPECT_EQ(line.find("#17") != line.npos, operands >= 1) << line;
    EXPECT_EQ(line.find("#42") != line.npos, operands == 2) << line;
    int messages = 0;
    for (int number = 0; number <= 10; ++number) {
      const auto code = static_cast<CalcErrorCode>(number);
      if (!MayRaise(operation, code)) continue;
      ++messages;
      const std::string message = MakeError(StepFailure{code, operation}).message;
      EXPECT_NE(line.find("; " + message), line.npos) << line;
    }
    EXPECT_EQ(std::count(line.begin(), line.end(), ';'), messages) << line;
  }
}

TEST(DescribeStep, WritesOperatorsBetweenAndFunctionsBefore) {
  const std::vector<std::pair<Operation, std::string>> signs{
      {Permutation, "p"},
      {Combination, "c"},
      {Power, "^"},
      {LastPower, "^"},
      {Multiply, "*"},
      {Divide, "/"},
      {Remainder, "%"},
      {Add, "+"},
      {Subtract, "-"},
      {And, "and"},
      {Or, "or"},
      {Xor, "xor"},
      {Xnor, "xnor"},
      {Operation::ShiftLeft, "<<"},
      {Operation::ShiftRight, ">>"},
  };
  for (const auto& [operation, sign] : signs) {
    const std::string line = DescribeStep({operation, 1, 3});
    EXPECT_EQ(line.rfind("#1 = #1 " + sign + " #3", 0), 0U) << line;
  }
  for (const auto& [operation, name, operands] : test::kOperationNames) {
    if (operation < Sin || operation > Frac) continue;
    const std::string line = DescribeStep({operation, 1, 1});
    EXPECT_EQ(line.rfind("#1 = " + std::string(name) + "(#1);", 0), 0U) << line;
  }
  EXPECT_EQ(DescribeStep({Not, 1, 1}), "#1 = not #1");
  EXPECT_EQ(DescribeStep({Negate, 1, 1}), "#1 = #1 * -1");
  EXPECT_EQ(DescribeStep({Finish, 1, 1}), "answer #1; Out of range(overflow or underflow)");
}

TEST(DescribeStep, ReadsAsTheCalculation) {
  EXPECT_EQ(DescribeStep({Add, 0, 2}), "#0 = #0 + #2; Out of range(overflow or underflow)");
  EXPECT_EQ(DescribeStep({Sqrt, 4, 4}),
            "#4 = sqrt(#4); Out of range(overflow or underflow); sqrt exceeded calculation limit.");
  EXPECT_EQ(DescribeStep({Permutation, 1, 3}),
            "#1 = #1 p #3; Permutation exceeded calculation limit.; "
            "Permu.. is not supported non-integer.");
  EXPECT_EQ(DescribeStep({FailExpression, 0, 0}), "fail; Expression error.");
}

TEST(Outcome, IsDoneOrACode) {
  EXPECT_TRUE(Outcome());
  for (int number = 0; number <= 10; ++number) {
    const Outcome outcome(static_cast<CalcErrorCode>(number));
    EXPECT_FALSE(outcome);
    EXPECT_EQ(static_cast<int>(outcome.Code()), number);
  }
}

TEST(StepList, HoldsItsStepsInOrder) {
  StepList steps;
  for (int i = 0; i < StepList::kCapacity; ++i) {
    steps.Append({Add, static_cast<std::uint8_t>(i), 0});
    EXPECT_EQ(steps.Count(), i + 1);
    EXPECT_EQ(steps.Last().target, i);
  }
  EXPECT_EQ(steps.end() - steps.begin(), 152);
  EXPECT_EQ(steps[100].target, 100);
}

}  // namespace
}  // namespace kav::steps_test
