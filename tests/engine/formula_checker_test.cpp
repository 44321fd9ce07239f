#include "engine/formula_checker.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/expression_engine.h"
#include "support/effort.h"
#include "support/plain_engine.h"
#include "support/random_text.h"
#include "support/spelled_steps.h"

namespace kav::formula_checker_test {
namespace {

using test::BitsOf;
using test::Tries;

/// The checker's message about `text` as it stands; "ok" if it passes.
std::string Checked(std::string_view text, VariableType type) {
  FormulaChecker checker;
  checker.CheckFormula(text, type);
  return checker.HasError() ? std::string(checker.GetErrorText()) : "ok";
}

/// The value or the message of a formula that passes.
std::string ValueAt(std::string_view text, const VariableValues& at,
                    AngleUnit unit = AngleUnit::Degrees) {
  const auto formula = CheckFormula(text, VariableType::XYZ);
  if (!formula) return formula.error().message;
  const auto value = formula->At(at, unit);
  return value ? PrintRoundTrip(*value) : MakeError(value.error()).message;
}

TEST(FormulaChecker, AcceptsFormulasOfEachType) {
  for (const std::string text :
       {"x", "-x", "sin(x)", "x^2+3*x-5", "2*pi*x", "x!", "x c 2", "sinx", "sqrt(abs(x))"}) {
    EXPECT_EQ(Checked(text, VariableType::X), text == "sinx" ? "sinx is not supported." : "ok")
        << text;
  }
  EXPECT_EQ(Checked("x+y", VariableType::XY), "ok");
  EXPECT_EQ(Checked("x*y-z", VariableType::XYZ), "ok");
}

struct CheckRow {
  std::string text;
  VariableType type;
  std::string message;
};

const CheckRow kRefused[] = {
    {"", VariableType::X, "Expression is null."},
    {"", VariableType::XYZ, "Expression is null."},
    {" ", VariableType::X, "Argument error : Missing variable X"},
    {"1", VariableType::X, "Argument error : Missing variable X"},
    {"y", VariableType::X, "Can not use variable Y"},
    {"x+y", VariableType::X, "Can not use variable Y"},
    {"x+z", VariableType::X, "Can not use variable Z"},
    {"x+z", VariableType::XY, "Can not use variable Z"},
    {"y", VariableType::XY, "Argument error : Missing variable X"},
    {"x", VariableType::XY, "Argument error : Missing variable Y"},
    {"1", VariableType::XY, "Argument error : Missing variable X"},
    {"x+y", VariableType::XYZ, "Argument error : Missing variable Z"},
    {"x+z", VariableType::XYZ, "Argument error : Missing variable Y"},
    {"y+z", VariableType::XYZ, "Argument error : Missing variable X"},
    {"z", VariableType::XYZ, "Argument error : Missing variable X"},
    // Variables are missed before the order is looked at, and words before variables.
    {"(1", VariableType::X, "Argument error : Missing variable X"},
    {"(x", VariableType::X, "Not matched '(' and ')'."},
    {"x)", VariableType::X, "Not matched '(' and ')'."},
    {"x*", VariableType::X, "Expression error."},
    {"*x", VariableType::X, "Expression error."},
    {"2(x)", VariableType::X, "Expression error."},
    {"x(2)", VariableType::X, "Expression error."},
    {"(2)x", VariableType::X, "Expression error."},
    {"x sin(2)", VariableType::X, "Expression error."},
    {"x!!", VariableType::X, "Expression error."},
    {"x+()", VariableType::X, "Expression error."},
    {"foo(x)", VariableType::X, "foo is not supported."},
    {"xx", VariableType::X, "xx is not supported."},
    {"x+sin", VariableType::X, "(sin) needs an argument."},
    {"x$", VariableType::X, "$ is not supported."},
    {"x<2", VariableType::X, "< is not supported."},
    {"x+1.2.3", VariableType::X, "Expression error."},
    {"x+1234567890123456789012345678901", VariableType::X, "number exceeded length limit."},
    {"X", VariableType::X, "X is not supported."},
};

TEST(FormulaChecker, RefusesWhatIsWrong) {
  for (const CheckRow& row : kRefused) EXPECT_EQ(Checked(row.text, row.type), row.message);
}

TEST(FormulaChecker, CountsTokensAsTheEngineDoes) {
  std::string longest = "x";
  for (int i = 0; i < 75; ++i) longest += "+1";
  EXPECT_EQ(Checked(longest, VariableType::X), "ok");
  EXPECT_EQ(Checked("-" + longest, VariableType::X), "number exceeded length limit.");
}

// Nothing is evaluated: what fails at every argument passes.
TEST(FormulaChecker, DoesNotEvaluate) {
  for (const std::string text :
       {"1/0*x", "x+sqrt(-1)", "x+1e400", "4*/x", "2x", "x x", "2-3*-x", "(sin)+x"}) {
    EXPECT_EQ(Checked(text, VariableType::X), "ok") << text;
  }
  EXPECT_EQ(ValueAt("1/0*x+0*y+0*z", {}), "Division exceeded calculation limit.");
  EXPECT_EQ(ValueAt("2x+y+z", {}), "Expression error.");
}

TEST(FormulaChecker, KeepsTheErrorUntilTheNextCheck) {
  FormulaChecker checker;
  EXPECT_FALSE(checker.HasError());
  EXPECT_EQ(checker.GetErrorText(), "");
  checker.CheckFormula("y", VariableType::X);
  EXPECT_TRUE(checker.HasError());
  EXPECT_EQ(checker.GetErrorText(), "Can not use variable Y");
  checker.CheckFormula("2*x", VariableType::X);
  EXPECT_FALSE(checker.HasError());
  EXPECT_EQ(checker.GetErrorText(), "");
  EXPECT_EQ(*checker.Formula().At({21, 0, 0}, AngleUnit::Degrees), 42);
  checker.CheckFormula("x-1", VariableType::X);
  EXPECT_EQ(*checker.Formula().At({21, 0, 0}, AngleUnit::Degrees), 20);
}

TEST(CheckFormula, FoldsWhatTheUserTyped) {
  const auto formula = CheckFormula("2*SIN(X)", VariableType::X);
  ASSERT_TRUE(formula);
  EXPECT_EQ(*formula->At({90, 0, 0}, AngleUnit::Degrees), 2);
  const auto refused = CheckFormula("Y", VariableType::X);
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error(), MakeError(CalcErrorCode::Free, "Can not use variable Y"));
}

TEST(CheckedFormula, TellsItsStepsAndWhatTheyStartFrom) {
  const auto formula = CheckFormula("x*2+y*y-z", VariableType::XYZ);
  ASSERT_TRUE(formula);
  EXPECT_EQ(test::Spelled(formula->Steps()), "mul 0 2; mul 4 6; add 0 4; sub 0 8; finish 0");
  EXPECT_EQ(formula->SlotCount(), 9);
  const std::vector<std::pair<int, int>> variables{{0, 0}, {4, 1}, {6, 1}, {8, 2}};
  for (const auto& [slot, variable] : variables) EXPECT_EQ(formula->VariableIn(slot), variable);
  for (const int slot : {1, 2, 3, 5, 7}) EXPECT_EQ(formula->VariableIn(slot), std::nullopt);
  EXPECT_EQ(formula->ValueIn(2), 2);
}

TEST(CheckedFormula, PutsTheArgumentsIn) {
  EXPECT_EQ(ValueAt("x-y*z", {10, 2, 3}), "4");
  EXPECT_EQ(ValueAt("z^y^x", {2, 3, 2}), "64");
  EXPECT_EQ(ValueAt("-x^2+y-z", {3, 0, 0}), "9");
  EXPECT_EQ(ValueAt("x c y+z", {5, 2, 0}), "10");
  EXPECT_EQ(ValueAt("sin(x)+y+z", {90, 0, 0}), "1");
  EXPECT_EQ(ValueAt("cos(x)+y+z", {0, 0, 0}, AngleUnit::Radians), "1");
  EXPECT_EQ(ValueAt("x!+y+z", {150, 0, 0}), "Out of range(overflow or underflow)");
  EXPECT_EQ(ValueAt("x/y+z", {1, 0, 0}), "Division exceeded calculation limit.");
  EXPECT_EQ(ValueAt("tan(x)+y+z", {90, 0, 0}), "tan exceeded calculation limit.");
  EXPECT_EQ(ValueAt("x>>y+z", {8, 0, 0}), ">> exceeded calculation limit.");
}

TEST(CheckedFormula, AUsedVariableIsNoOperandAnyMore) {
  EXPECT_EQ(ValueAt("(x*y)-x-z", {3, 4, 5}), "4");
  EXPECT_EQ(ValueAt("(x y)-x-z", {3, 4, 5}), "Expression error.");
}

TEST(CheckedFormula, ArgumentsOutOfRangeAreOutOfRange) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double odd : {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(ValueAt("x+0*y*z", {odd, 0, 0}), "Out of range(overflow or underflow)");
    EXPECT_EQ(ValueAt("(x)^2+y*z", {odd, 0, 0}), "Out of range(overflow or underflow)");
  }
}

TEST(CheckedFormula, IsUnchangedByBeingEvaluated) {
  const auto formula = CheckFormula("x*(x+1)!", VariableType::X);
  ASSERT_TRUE(formula);
  for (const auto& [x, value] :
       std::vector<std::pair<double, double>>{{2, 12}, {3, 72}, {0, 0}, {2, 12}}) {
    EXPECT_EQ(*formula->At({x, 0, 0}, AngleUnit::Degrees), value);
  }
}

double SomeArgument(test::Random& random) {
  constexpr double kSpecial[] = {0,
                                 -0.0,
                                 1,
                                 2,
                                 5,
                                 -3,
                                 0.5,
                                 90,
                                 -90,
                                 180,
                                 150,
                                 200,
                                 1e308,
                                 1e-320,
                                 std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()};
  return random.Below(2) == 0 ? kSpecial[random.Below(std::size(kSpecial))]
                              : random.Fraction() * 100;
}

// A formula's value is that of the text in which the arguments stand for the variables.
TEST(CheckedFormula, GivesTheAnswerOfTheRules) {
  test::Random random(41);
  for (const AngleUnit unit : {AngleUnit::Degrees, AngleUnit::Radians}) {
    const CalcModes modes{unit, BaseMode::Decimal};
    test::OrderedWriter writer(42, BaseMode::Decimal);
    for (int i = 0; i < Tries(60000); ++i) {
      const std::string text = "x*y*z*0+" + writer.Write(1 + random.Below(14), "xyz");
      const auto formula = CheckFormula(text, VariableType::XYZ);
      const VariableValues at{SomeArgument(random), SomeArgument(random), SomeArgument(random)};
      const test::PlainVariables variables{at.x, at.y, at.z};
      const test::PlainAnswer plain = test::PlainEvaluate(text, modes, &variables);
      if (!formula) {
        ASSERT_EQ(formula.error().message, plain.message) << text;
        continue;
      }
      const auto value = formula->At(at, unit);
      ASSERT_EQ(value ? "" : MakeError(value.error()).message, plain.message) << text;
      ASSERT_EQ(BitsOf(value ? *value : 0), BitsOf(plain.value)) << text;
    }
  }
}

}  // namespace
}  // namespace kav::formula_checker_test
