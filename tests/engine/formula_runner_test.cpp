#include "engine/formula_runner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/function_names.h"
#include "support/effort.h"
#include "support/random_text.h"

namespace kav::formula_runner_test {
namespace {

using test::BitsOf;
using test::Random;
using test::Tries;

constexpr AngleUnit kUnits[] = {AngleUnit::Degrees, AngleUnit::Radians};
constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr double kArguments[] = {0,
                                 -0.0,
                                 1,
                                 -1,
                                 2,
                                 0.5,
                                 3,
                                 -3,
                                 5,
                                 30,
                                 90,
                                 -90,
                                 180,
                                 270,
                                 149,
                                 150,
                                 170,
                                 171,
                                 1e10,
                                 1e155,
                                 -1e155,
                                 1e300,
                                 1e308,
                                 -1e308,
                                 1e-160,
                                 1e-308,
                                 5e-324,
                                 3.141592653589793,
                                 1.5707963267948966,
                                 4294967296.0,
                                 2147483648.0,
                                 kInfinity,
                                 -kInfinity,
                                 std::numeric_limits<double>::quiet_NaN()};

/// That a run answers what the formula does: the same bits, or the same failure.
void ExpectAgreement(const CheckedFormula& formula, FormulaRunner& runner, const VariableValues& at,
                     AngleUnit unit, const std::string& text) {
  const auto expected = formula.At(at, unit);
  const auto answer = runner.At(at);
  ASSERT_EQ(static_cast<bool>(answer), static_cast<bool>(expected))
      << text << " at " << at.x << " " << at.y << " " << at.z;
  if (expected) {
    ASSERT_EQ(BitsOf(*answer), BitsOf(*expected)) << text << " at " << at.x << " " << at.y;
  } else {
    ASSERT_EQ(MakeError(answer.error()), MakeError(expected.error()))
        << text << " at " << at.x << " " << at.y << " " << at.z;
  }
}

TEST(FormulaRunner, AgreesOnEveryOperationAtEveryKindOfArgument) {
  std::vector<std::string> texts{"x", "-x", "x!", "+x*y+0", "(x)"};
  for (const FunctionName& function : kFunctionNames) {
    texts.push_back(std::string(function.name) + "(x)");
    texts.push_back(std::string(function.name) + " x*y");
    texts.push_back("y/" + std::string(function.name) + "(x)");
  }
  for (const std::string op : {"+", "-", "*", "/", "%", "^", "<<", ">>", " p ", " c "}) {
    for (const std::string around : {"", "+1", "*0", "/y", "-x", "*y-x", "^0", "!"}) {
      texts.push_back("x" + op + "y" + around);
      texts.push_back("(x" + op + "y)" + around);
      texts.push_back("2" + op + "x" + around);
      texts.push_back("1/(x" + op + "y)");
      texts.push_back("1-(x" + op + "y)*y");
    }
  }
  for (const std::string& text : texts) {
    const bool hasY = text.find('y') != text.npos;
    const auto formula = CheckFormula(text, hasY ? VariableType::XY : VariableType::X);
    if (!formula) continue;
    for (const AngleUnit unit : kUnits) {
      FormulaRunner runner(*formula, unit);
      for (const double x : kArguments) {
        for (const double y : kArguments) {
          ASSERT_NO_FATAL_FAILURE(ExpectAgreement(*formula, runner, {x, y, 0}, unit, text));
          if (!hasY) break;
        }
      }
    }
  }
}

// Checks that are left out must not let another error overtake, nor an infinity get lost.
TEST(FormulaRunner, AgreesWhereSeveralErrorsCompete) {
  const std::vector<std::string> texts{
      "x*y/0",           "(x*y)/(x-x)",   "x*x*x*y+1/(y-y)",
      "1/(x*y)",         "2/(x+y)/(x-y)", "x*y-x*y",
      "(x*y)^0+x",       "x^y^0+y",       "x^400^0^2*y",
      "0*(x*y)",         "log(x)+x*y",    "x*y+log(x)",
      "x*y*log(x)",      "x*y+x!-y",      "x+y+1/0",
      "(x+y)*(x-y)/0",   "-(x*y)/0",      "x-y-1e400",
      "x*1e400/y",       "1e400*x+y/0",   "atan(x*y)",
      "tanh(x*y)+1/y",   "1/(1/(x*y))",   "(x*y)>>(x*y)",
      "x*y>>0",          "x*y%0",         "x*y<<1/0",
      "(x*y)c(x*y)",     "(x*y)p 1/0",    "(x*y)!/0",
      "2-x*-y",          "x*/y",          "x y",
      "4*/x y",          "x*y 1/0",       "sin(x*y)/0",
      "sqrt(x*y)+x*y/0", "x*y+(sin)",     "x+y--1",
      "int(x*y)+1/0",
  };
  for (const std::string& text : texts) {
    const auto formula = CheckFormula(text, VariableType::XY);
    ASSERT_TRUE(formula) << text;
    for (const AngleUnit unit : kUnits) {
      FormulaRunner runner(*formula, unit);
      for (const double x : kArguments) {
        for (const double y : kArguments) {
          ASSERT_NO_FATAL_FAILURE(ExpectAgreement(*formula, runner, {x, y, 0}, unit, text));
        }
      }
    }
  }
}

TEST(FormulaRunner, KnownValues) {
  const std::vector<std::pair<std::string, double>> rows{
      {"x^2+3*x-5", 13},  {"(x+1)/(x-1)^2", 1}, {"-x^2", 9},        {"2^x^2", 64},
      {"x!", 6},          {"5-x-1", 1},         {"12/x/2", 2},      {"x*x*x", 27},
      {"(x-1)*(x+1)", 8}, {"1-(2-x)", 2},       {"x-(x-(x-1))", 2}, {"6c x", 20},
      {"abs(-x)", 3},     {"x<<2", 12},         {"17%x", 2},        {"sin(x*30)", 1},
  };
  for (const auto& [text, value] : rows) {
    const auto formula = CheckFormula(text, VariableType::X);
    ASSERT_TRUE(formula) << text;
    FormulaRunner runner(*formula, AngleUnit::Degrees);
    const auto answer = runner.At({3, 0, 0});
    ASSERT_TRUE(answer) << text;
    EXPECT_EQ(*answer, value) << text;
  }
}

TEST(FormulaRunner, NamesTheOperationThatFails) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"1/x", "Division exceeded calculation limit."},
      {"1%x", "Remainder exceeded calculation limit."},
      {"8>>x", ">> exceeded calculation limit."},
      {"log(x)", "log exceeded calculation limit."},
      {"sqrt(x)+ln(x)", "sqrt exceeded calculation limit."},
      {"(x-1)!", "! is not supported non-integer."},
      {"x c 1", "Combination exceeded calculation limit."},
      {"(x-0.5+1)p 0", "Permu.. is not supported non-integer."},
      {"x+1e400", "Out of range(overflow or underflow)"},
      {"x x", "Expression error."},
  };
  for (const auto& [text, message] : rows) {
    const auto formula = CheckFormula(text, VariableType::X);
    ASSERT_TRUE(formula) << text;
    FormulaRunner runner(*formula, AngleUnit::Degrees);
    const auto answer = runner.At({0, 0, 0});
    ASSERT_FALSE(answer) << text;
    EXPECT_EQ(MakeError(answer.error()).message, message) << text;
  }
}

// A failed run leaves nothing behind, and two runners share nothing.
TEST(FormulaRunner, EachRunStandsAlone) {
  const auto formula = CheckFormula("(x+1)*(x-1)/x+(x!-x)", VariableType::X);
  ASSERT_TRUE(formula);
  FormulaRunner first(*formula, AngleUnit::Degrees);
  FormulaRunner second(*formula, AngleUnit::Radians);
  for (const double x : {2.0, 0.0, 3.0, -1.0, 2.0, 0.5, kInfinity, 4.0, 1e308, 2.0}) {
    ASSERT_NO_FATAL_FAILURE(
        ExpectAgreement(*formula, first, {x, 0, 0}, AngleUnit::Degrees, "first"));
    ASSERT_NO_FATAL_FAILURE(
        ExpectAgreement(*formula, second, {x, 0, 0}, AngleUnit::Radians, "second"));
  }
}

TEST(FormulaRunner, OutlivesItsFormula) {
  auto formula = CheckFormula("x*2+1", VariableType::X);
  ASSERT_TRUE(formula);
  FormulaRunner runner(*formula, AngleUnit::Degrees);
  formula = CheckFormula("x-100", VariableType::X);
  FormulaRunner copy = runner;
  EXPECT_EQ(*runner.At({20, 0, 0}), 41);
  EXPECT_EQ(*copy.At({1, 0, 0}), 3);
}

TEST(FormulaRunner, RunsTheLongestFormulas) {
  std::string nested = "x";
  std::string sum = "x";
  for (int i = 0; i < 75; ++i) {
    nested = "(" + nested + ")";
    sum += i % 2 == 0 ? "+x" : "*x";
  }
  for (const std::string& text : {nested, sum, std::string(150, '-') + "x"}) {
    const auto formula = CheckFormula(text, VariableType::X);
    ASSERT_TRUE(formula) << text;
    FormulaRunner runner(*formula, AngleUnit::Degrees);
    for (const double x : {0.0, 1.0, 2.0, 1e200, kInfinity}) {
      ASSERT_NO_FATAL_FAILURE(
          ExpectAgreement(*formula, runner, {x, 0, 0}, AngleUnit::Degrees, text));
    }
  }
}

TEST(FormulaRunner, AgreesOnRandomFormulas) {
  Random random(51);
  test::OrderedWriter ordered(52, BaseMode::Decimal);
  test::PieceThrower thrown(53, BaseMode::Decimal);
  int checked = 0;
  for (int i = 0; i < Tries(60000); ++i) {
    const bool isOfX = random.Below(2) == 0;
    const std::string_view variables = isOfX ? "x" : "xyz";
    std::string text = i % 2 == 0 ? ordered.Write(1 + random.Below(24), variables)
                                  : thrown.Throw(1 + random.Below(10), variables);
    if (!isOfX) text += "+0*x*y*z";
    const auto formula = CheckFormula(text, isOfX ? VariableType::X : VariableType::XYZ);
    if (!formula) continue;
    ++checked;
    const AngleUnit unit = kUnits[random.Below(2)];
    FormulaRunner runner(*formula, unit);
    const auto argument = [&] {
      return random.Below(4) == 0 ? random.AnyDouble()
                                  : kArguments[random.Below(std::size(kArguments))];
    };
    for (int run = 0; run < 10; ++run) {
      const VariableValues at{argument(), argument(), argument()};
      ASSERT_NO_FATAL_FAILURE(ExpectAgreement(*formula, runner, at, unit, text));
    }
  }
  EXPECT_GT(checked, Tries(60000) / 4);
}

}  // namespace
}  // namespace kav::formula_runner_test
