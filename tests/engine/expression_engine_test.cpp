#include "engine/expression_engine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/engine_tables.h"

namespace kav::expression_engine_test {
namespace {

using test::ExpectMessages;
using test::ExpectValues;
using test::kBinary;
using test::kDegrees;
using test::kHexadecimal;
using test::kOctal;
using test::kRadians;
using test::Shown;

constexpr double kPi = 3.141592653589793;

TEST(ExpressionEngine, StartsWithNothing) {
  const ExpressionEngine engine;
  EXPECT_EQ(engine.GetResult(), 0);
  EXPECT_FALSE(engine.HasError());
  EXPECT_EQ(engine.GetErrorText(), "");
}

TEST(ExpressionEngine, StartsInDegreesAndDecimal) {
  ExpressionEngine engine;
  engine.Evaluate("sin(90)+9");
  EXPECT_EQ(engine.GetResult(), 10);
}

TEST(ExpressionEngine, EveryEvaluationStartsAfresh) {
  ExpressionEngine engine;
  engine.Evaluate("2*sin(30)+3!");
  EXPECT_DOUBLE_EQ(engine.GetResult(), 7);
  engine.Evaluate("1/0");
  EXPECT_TRUE(engine.HasError());
  EXPECT_EQ(engine.GetErrorText(), "Division exceeded calculation limit.");
  EXPECT_EQ(engine.GetResult(), 0);
  engine.Evaluate("1+1");
  EXPECT_FALSE(engine.HasError());
  EXPECT_EQ(engine.GetErrorText(), "");
  EXPECT_EQ(engine.GetResult(), 2);
}

TEST(EvaluateFolded, AnswersWhatTheEngineKeeps) {
  EXPECT_DOUBLE_EQ(*EvaluateFolded("2*sin(30)", kDegrees), 1);
  const auto failed = EvaluateFolded("1/0", kDegrees);
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.error().code, CalcErrorCode::CalculationLimit);
  EXPECT_EQ(Shown(EvaluateFolded("SIN(30)", kDegrees)), "SIN is not supported.");
}

TEST(ExpressionEngine, KeepsItsModes) {
  ExpressionEngine engine;
  engine.SetBaseMode(BaseMode::Hexadecimal);
  engine.Evaluate("ff");
  EXPECT_EQ(engine.GetResult(), 255);
  engine.Evaluate("10");
  EXPECT_EQ(engine.GetResult(), 16);
  engine.SetBaseMode(BaseMode::Decimal);
  engine.SetAngleUnit(AngleUnit::Radians);
  engine.Evaluate("cos(pi)");
  EXPECT_EQ(engine.GetResult(), -1);
}

TEST(ExpressionEngine, EvaluatesCheckedFormulas) {
  const auto formula = CheckFormula("sin(x)+y", VariableType::XY);
  ASSERT_TRUE(formula);
  ExpressionEngine engine;
  engine.EvaluateTokens(*formula, {90, 2, 99});
  EXPECT_EQ(engine.GetResult(), 3);
  engine.SetAngleUnit(AngleUnit::Radians);
  engine.SetBaseMode(BaseMode::Binary);
  engine.EvaluateTokens(*formula, {kPi / 2, 10, 0});
  EXPECT_EQ(engine.GetResult(), 11);
  engine.EvaluateTokens(*formula, {INFINITY, 0, 0});
  EXPECT_EQ(engine.GetErrorText(), "Out of range(overflow or underflow)");
  EXPECT_EQ(engine.GetResult(), 0);
  engine.EvaluateTokens(*formula, {0, 5, 0});
  EXPECT_FALSE(engine.HasError());
  EXPECT_EQ(engine.GetResult(), 5);
}

struct CodeRow {
  CalcErrorCode code;
  std::string text;
  std::string message;
  CalcModes modes = kDegrees;
};

const CodeRow kCodes[] = {
    {CalcErrorCode::OutOfRange, "1e400", "Out of range(overflow or underflow)"},
    {CalcErrorCode::UnmatchedParentheses, "(1+2", "Not matched '(' and ')'."},
    {CalcErrorCode::Expression, "()", "Expression error."},
    {CalcErrorCode::NeedsArgument, "sin", "(sin) needs an argument."},
    {CalcErrorCode::NotSupported, "foo(2)", "foo is not supported."},
    {CalcErrorCode::CalculationLimit, "1/0", "Division exceeded calculation limit."},
    {CalcErrorCode::NotInteger, "2.5!", "! is not supported non-integer."},
    {CalcErrorCode::LengthLimit, std::string(31, '1'), "number exceeded length limit."},
    {CalcErrorCode::NullExpression, "", "Expression is null."},
    {CalcErrorCode::Free, std::string(9, 'f'), "Out of range(HEX MODE)", kHexadecimal},
};

TEST(Evaluate, MeetsTheErrors) {
  for (const CodeRow& row : kCodes) {
    const auto answer = Evaluate(row.text, row.modes);
    ASSERT_FALSE(answer) << row.text;
    EXPECT_EQ(answer.error(), (CalcError{row.code, row.message})) << row.text;
  }
}

TEST(Evaluate, EmptyTextIsNullInEveryBaseAndBlanksAreNot) {
  for (const CalcModes modes : {kDegrees, kRadians, kHexadecimal, kBinary, kOctal}) {
    EXPECT_EQ(Shown("", modes), "Expression is null.");
    EXPECT_EQ(Shown("   ", modes), "Expression error.");
  }
}

TEST(Evaluate, OperatorsAndPrecedence) {
  ExpectValues(kDegrees, {{"2*sin(30)+3!", 7}, {"2+3*4", 14},  {"(2+3)*4", 20}, {"7%3", 1},
                          {"-7%3", -1},        {"7.5%2", 1.5}, {"2*3%4", 2},    {"1<<4", 16},
                          {"16>>2", 4},        {"2^10", 1024}, {"2^-1", 0.5},   {"2^5c2", 1024},
                          {"1+2<<3", 17},      {"10-4-3", 3},  {"100/10/5", 2}, {"5c2", 10},
                          {"5p2", 20},         {"10c10", 1},   {"10p0", 1},     {"5c2p2", 90},
                          {"-pi", -kPi},       {"pi", kPi}});
}

TEST(Evaluate, Literals) {
  ExpectValues(kDegrees, {{"1e-3", 0.001},
                          {".5", 0.5},
                          {"5.", 5},
                          {"1e", 1},
                          {"1e+", 1},
                          {".", 0},
                          {"1e-400", 0},
                          {"4e-324", 4.9406564584124654e-324},
                          {"1.7976931348623157e308", 1.7976931348623157e308},
                          {std::string(30, '9'), 1e30}});
  ExpectMessages(kDegrees, {{"1.2.3", "Expression error."},
                            {"1e5.2", "Expression error."},
                            {"1e400", "Out of range(overflow or underflow)"},
                            {"1.8e308", "Out of range(overflow or underflow)"},
                            {"123e9223372036854775807", "Out of range(overflow or underflow)"},
                            {std::string(31, '9'), "number exceeded length limit."}});
}

TEST(Evaluate, Factorials) {
  ExpectValues(kDegrees, {{"3!", 6},
                          {"0!", 1},
                          {"(3!)!", 720},
                          {"149!", 3.808922637630570e260},
                          {"20!/18!", 380},
                          {"-(3!)", -6},
                          {"1.0!", 1}});
  ExpectMessages(kDegrees, {{"150!", "Out of range(overflow or underflow)"},
                            {"149.5!", "! is not supported non-integer."},
                            {"150.5!", "Out of range(overflow or underflow)"},
                            {"1e400!", "Out of range(overflow or underflow)"},
                            {"2.5!", "! is not supported non-integer."},
                            {"-3!", "! is not supported non-integer."},
                            {"(-1e400)!", "! is not supported non-integer."},
                            {"!3", "Expression error."},
                            {"3!!", "Expression error."}});
}

TEST(Evaluate, PermutationsAndCombinations) {
  ExpectMessages(kDegrees, {{"2c5", "Combination exceeded calculation limit."},
                            {"2p5", "Permutation exceeded calculation limit."},
                            {"(-5)c 2", "Combination exceeded calculation limit."},
                            {"5c(-2)", "Combination exceeded calculation limit."},
                            {"5.5c2", "Combi.. is not supported non-integer."},
                            {"5c2.5", "Combi.. is not supported non-integer."},
                            {"5.5p2", "Permu.. is not supported non-integer."},
                            {"2.5c5", "Combination exceeded calculation limit."},
                            {"200c2", "Out of range(overflow or underflow)"},
                            {"171p1", "Out of range(overflow or underflow)"}});
  ExpectValues(kDegrees, {{"170c2", 14365}, {"170p1", 170}, {"52c5", 2598960}, {"0c0", 1}});
}

TEST(Evaluate, LimitsOfDivisionAndShifts) {
  ExpectMessages(kDegrees, {{"1/0", "Division exceeded calculation limit."},
                            {"0/0", "Division exceeded calculation limit."},
                            {"1/-0", "Division exceeded calculation limit."},
                            {"7%0", "Remainder exceeded calculation limit."},
                            {"8>>0", ">> exceeded calculation limit."},
                            {"1e400/0", "Out of range(overflow or underflow)"},
                            {"1e308*10", "Out of range(overflow or underflow)"},
                            {"1e400-1e400", "Out of range(overflow or underflow)"}});
  ExpectValues(kDegrees, {{"8<<0", 8}, {"1e-320*1e-320", 0}, {"1e308*10^-400", 0}});
}

TEST(Evaluate, FunctionsInDegrees) {
  ExpectValues(kDegrees, {{"sin(30)", 0.5},
                          {"sin(180)", 0},
                          {"sin(-180)", 0},
                          {"sin(36e9)", 0},
                          {"cos(60)", 0.5},
                          {"cos(90)", 0},
                          {"cos(270)", 0},
                          {"cos(180)", -1},
                          {"tan(45)", 1},
                          {"tan(180)", 0},
                          {"tan(-45)", -1},
                          {"asin(1)", 90},
                          {"asin(0.5)", 30},
                          {"acos(0.5)", 60},
                          {"acos(-1)", 180},
                          {"atan(1)", 45},
                          {"sinh(1)", 1.1752011936438014},
                          {"cosh(0)", 1},
                          {"cosh(1)", 1.5430806348152437},
                          {"tanh(1)", 0.7615941559557649},
                          {"log(1000)", 3},
                          {"ln(1)", 0},
                          {"ln(exp(2))", 2},
                          {"exp(1)", std::exp(1.0)},
                          {"sqrt(2)", std::sqrt(2.0)},
                          {"sqrt(16)", 4},
                          {"abs(-2.5)", 2.5},
                          {"int(2.9)", 2},
                          {"int(-2.9)", -2},
                          {"frac(2.75)", 0.75},
                          {"frac(-2.75)", -0.75}});
}

TEST(Evaluate, FunctionsInRadians) {
  ExpectValues(kRadians, {{"sin(pi)", 0},
                          {"sin(pi/6)", 0.5},
                          {"sin(2*pi)", 0},
                          {"cos(pi/2)", 0},
                          {"cos(pi)", -1},
                          {"cos(3*pi/2)", 0},
                          {"tan(pi)", 0},
                          {"tan(pi/4)", 1},
                          {"asin(1)", kPi / 2},
                          {"acos(-1)", kPi},
                          {"atan(1)", kPi / 4},
                          {"sin(1)", 0.8414709848078965},
                          {"sinh(0)", 0},
                          {"log(100)", 2},
                          {"sin(30)", -0.9880316240928618}});
}

TEST(Evaluate, DomainsOfFunctions) {
  for (const CalcModes modes : {kDegrees, kRadians}) {
    for (const std::string name : {"asin", "acos"}) {
      for (const std::string x : {"2", "-2", "1.0000001", "1e300"}) {
        EXPECT_EQ(Shown(name + "(" + x + ")", modes), name + " exceeded calculation limit.");
      }
    }
    for (const std::string name : {"log", "ln", "sqrt"}) {
      for (const std::string x : {"0", "-1", "-0", "-1e-300"}) {
        EXPECT_EQ(Shown(name + "(" + x + ")", modes), name + " exceeded calculation limit.");
      }
    }
    for (const std::string name : {"sin", "cos", "tan", "asin", "acos", "atan", "sinh", "cosh",
                                   "tanh", "log", "ln", "exp", "sqrt", "abs", "int", "frac"}) {
      EXPECT_EQ(Shown(name + "(1e400)", modes), "Out of range(overflow or underflow)") << name;
      EXPECT_EQ(Shown(name + " 1e400", modes), "Out of range(overflow or underflow)") << name;
    }
  }
  ExpectMessages(kDegrees, {{"tan(90)", "tan exceeded calculation limit."},
                            {"tan(-90)", "tan exceeded calculation limit."},
                            {"tan(450)", "tan exceeded calculation limit."},
                            {"exp(1000)", "Out of range(overflow or underflow)"},
                            {"sinh(1000)", "Out of range(overflow or underflow)"},
                            {"exp(1000)*0", "Out of range(overflow or underflow)"}});
  ExpectMessages(kRadians, {{"tan(pi/2)", "tan exceeded calculation limit."},
                            {"tan(-pi/2)", "tan exceeded calculation limit."}});
}

TEST(Evaluate, BitOperators) {
  ExpectValues(kBinary, {{"1 and 11", 1},
                         {"1100 and 1010", 8},
                         {"1100 or 1010", 14},
                         {"1100 xor 1010", 6},
                         {"1100 xnor 1010", -7},
                         {"not 0", -1},
                         {"not(not 101)", 5},
                         {"1 or 10 * 11", 7},
                         {"1+1 and 10", 2},
                         {"111/10", 3.5},
                         {"1<<101", 32},
                         {"1000>>1", 4},
                         {"-1", -1},
                         {"111-not 0", 8},
                         {std::string(32, '1'), 4294967295.0},
                         {std::string(32, '1') + " and 1111", 15}});
  ExpectValues(kOctal, {{"17+1", 16}, {"1 or 2 * 3", 7}, {"77777777777", 8589934591.0}});
  ExpectValues(kHexadecimal, {{"ff AND f", 15},
                              {"ffffffff", 4294967295.0},
                              {"a*b", 110},
                              {"not ffffffff", 0},
                              {"ff xor f0", 15},
                              {"1e+1", 31}});
}

TEST(Evaluate, LimitsInTheBases) {
  ExpectMessages(kBinary, {{std::string(33, '1'), "Out of range(BIN MODE)"},
                           {"1012", "2 is not supported."},
                           {"and 1", "Expression error."},
                           {"1 and", "Expression error."},
                           {"1000 >> 0", ">> exceeded calculation limit."},
                           {"1/0", "Division exceeded calculation limit."},
                           {"(1", "Not matched '(' and ')'."},
                           {"1(1)", "Expression error."},
                           {"1 1", "Expression error."},
                           {"1^1", "^ is not supported."},
                           {"sin(1)", "sin is not supported."}});
  ExpectMessages(kOctal, {{std::string(12, '7'), "Out of range(OCT MODE)"},
                          {"8", "8 is not supported."},
                          {"10 >> 0", ">> exceeded calculation limit."}});
  ExpectMessages(kHexadecimal, {{std::string(9, 'f'), "Out of range(HEX MODE)"},
                                {"8 >> 0", ">> exceeded calculation limit."},
                                {"and 1", "nd is not supported."},
                                {"f and f", "nd is not supported."}});
}

// 2^32 times itself 32 times is beyond the largest double.
TEST(Evaluate, BasesOverflowAsWell) {
  std::string product = std::string(8, 'f');
  for (int i = 0; i < 40; ++i) product += "*" + std::string(8, 'f');
  EXPECT_EQ(Shown(product, kHexadecimal), "Out of range(overflow or underflow)");
  EXPECT_EQ(Shown("1 or " + product, kHexadecimal), "Out of range(overflow or underflow)");
}

TEST(Evaluate, FoldsWhatTheUserTyped) {
  EXPECT_EQ(Shown(Evaluate("2*SIN(90)", kDegrees)), "2");
  EXPECT_EQ(Shown(Evaluate("5C2", kDegrees)), "10");
  EXPECT_EQ(Shown(Evaluate("1E3", kDegrees)), "1000");
  EXPECT_EQ(Shown(Evaluate("FF AND F", kHexadecimal)), "15");
  EXPECT_EQ(Shown(Evaluate("ff and f", kHexadecimal)), "15");
  EXPECT_EQ(Shown(Evaluate("and 1", kHexadecimal)), "Expression error.");
  EXPECT_EQ(Shown(Evaluate("FOO(1)", kDegrees)), "foo is not supported.");
  EXPECT_EQ(Shown(Evaluate("1 Xor 0", kBinary)), "1");
}

TEST(ExpressionEngine, TakesTextsAsTheyStand) {
  EXPECT_EQ(Shown("SIN(90)"), "SIN is not supported.");
  EXPECT_EQ(Shown("FF", kHexadecimal), "Expression error.");
  EXPECT_EQ(Shown("ff AND f", kHexadecimal), "15");
}

}  // namespace
}  // namespace kav::expression_engine_test
