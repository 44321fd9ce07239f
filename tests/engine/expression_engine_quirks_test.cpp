// What surprises about the engine and is meant: each with a name of its own.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/effort.h"
#include "support/engine_tables.h"

namespace kav::expression_engine_quirks_test {
namespace {

using test::BitsOf;
using test::ExpectMessages;
using test::ExpectValues;
using test::kBinary;
using test::kDegrees;
using test::kHexadecimal;
using test::kOctal;
using test::Shown;

constexpr char kWrong[] = "Expression error.";
constexpr char kOutOfRange[] = "Out of range(overflow or underflow)";

TEST(Quirks, MinusTwoSquaredIsFour) {
  ExpectValues(kDegrees, {{"-2^2", 4}, {"0-2^2", -4}, {"-(2^2)", -4}, {"1-2^2", -3}});
}

TEST(Quirks, PowersAreLeftAssociative) {
  ExpectValues(kDegrees, {{"2^3^2", 64}, {"2^(3^2)", 512}, {"4^3^2^1", 4096}});
}

TEST(Quirks, ANegativeExponentNeedsNoParentheses) {
  ExpectValues(kDegrees, {{"2^-1", 0.5}, {"4^-0.5", 0.5}, {"-2^-1", -0.5}, {"3*2^-1", 1.5}});
}

TEST(Quirks, ANegativeExponentBehindABinaryMinusNeedsNoParenthesesEither) {
  ExpectValues(kDegrees, {{"10-2^-2", 9.75}, {"1-2^-1", 0.5}, {"2-3^(-1)*3", 1}});
  // A loan of 250,000 over 30 years at 5 % a year.
  const double growth = std::pow(1 + 0.05 / 12, -360);
  ExpectValues(kDegrees,
               {{"250000*(0.05/12)/(1-(1+0.05/12)^-360)", 250000 * (0.05 / 12) / (1 - growth)}});
}

TEST(Quirks, AMinusBehindAnOperatorBelongsToItsOperand) {
  ExpectValues(kDegrees,
               {{"5--3", 8},          {"2-3*-4", 14},    {"2--3", 5},        {"2-3/-4", 2.75},
                {"5--3^2", -4},       {"5---3", 2},      {"5-+-3", 8},       {"5-3+-4", -2},
                {"5-3--4", 6},        {"5+3-+4", 4},     {"5--(1-3)", 3},    {"(5--3)*-2", -16},
                {"5-2c-sin(-90)", 3}, {"5--sin30", 5.5}, {"5--sin-30", 4.5}, {"sin30-2*-4", 8.5},
                {"3!--2", 8},         {"9-7%-4", 6},     {"9-1<<+2", 5},     {"-5--5", 0}});
  ExpectMessages(kDegrees, {{"3--2!", "! is not supported non-integer."},
                            {"5--1/0", "Division exceeded calculation limit."},
                            {"5-4*/-2", kWrong},
                            {"5--4*/2", kWrong},
                            {"sin1-4^/2-3", kWrong},
                            {"sin1-4^/(2)-3", kWrong},
                            {"sin1-4^/2!-3", kWrong},
                            {"2 3--4", kWrong},
                            {"5--(sin)", kWrong}});
  ExpectValues(kBinary, {{"101--11", 8}, {"10-11*-100", 14}, {"1 or 1-1--10", 2}});
  ExpectValues(kHexadecimal, {{"f--1", 16}, {"f-2>>-1--1", 16}});
  ExpectValues(kOctal, {{"17---2", 13}, {"5--not 0", 4}});
  ExpectValues(kDegrees, {{"2-3*(-4)", 14}, {"2-(-3)", 5}, {"2*-3-4", -10}, {"2+3*-4", -10}});
}

// Powers behind a bare function are taken before it, past a sign that stays; a '+' then serves it.
TEST(Quirks, WhatASignBehindABareFunctionCameToStays) {
  ExpectValues(kDegrees, {{"sin30-2^-1+3", -4.5}, {"abs1-33c-1+2", -34}, {"abs1-2^-1", 0.5}});
}

TEST(Quirks, APlusBehindAnOperatorBelongsToItsOperand) {
  ExpectValues(kDegrees, {{"2++3", 5}, {"2+3*+4", 14}, {"2+++3", 5}, {"1+2-+3", 0}});
  ExpectValues(kDegrees, {{"2-+3", -1}, {"2+-3", -1}, {"2-3*+4", -10}, {"++3", 3}, {"--3", 3}});
}

TEST(Quirks, MinusThreeFactorialIsRefused) {
  EXPECT_EQ(Shown("-3!"), "! is not supported non-integer.");
  ExpectValues(kDegrees, {{"0-3!", -6}, {"-0!", 1}});
}

// A bare function waits for the powers to its right; one in parentheses does not.
TEST(Quirks, SinOf30SquaredIsTheSineOf900) {
  ExpectValues(kDegrees, {{"sin30^2", 0},
                          {"sin(30)^2", 0.25},
                          {"sin30*2", 1},
                          {"sin 5c1", std::sin(5 * 0.017453292519943295)}});
}

TEST(Quirks, TwoToTheSineOf30IsTheRootOfTwo) {
  ExpectValues(kDegrees, {{"2^sin30", std::sqrt(2.0)}, {"2^sin(30)", std::sqrt(2.0)}});
}

TEST(Quirks, BareFunctionsNest) {
  ExpectValues(kDegrees,
               {{"sin cos 90", 0}, {"ln exp sqrt 4", 2}, {"abs-3", 3}, {"2-3*sin-30", 3.5}});
}

TEST(Quirks, FunctionsNeedNoParentheses) {
  ExpectValues(kDegrees, {{"sin30", 0.5}, {"log1000", 3}, {"log10", 1}, {"1+cos60", 1.5}});
}

TEST(Quirks, AStarAndASlashPassTheOrderAndFailInReduction) {
  ExpectMessages(
      kDegrees,
      {{"4*/2", kWrong}, {"4//2", kWrong}, {"4^/2", kWrong}, {"4p/2", kWrong}, {"4*/2-1", kWrong}});
}

// What stands beside the spare operator serves it.
TEST(Quirks, AStarAndASlashTakeASecondValue) {
  ExpectValues(kDegrees, {{"4*/2 4", 2}, {"2-3*-4 5", -15}});
}

// Whatever went wrong before the operator without an operand is met first.
TEST(Quirks, EarlierErrorsComeBeforeAMissingOperand) {
  ExpectMessages(kDegrees, {{"1/0*/2", "Division exceeded calculation limit."},
                            {"1e400*2*/2", kOutOfRange},
                            {"1e400*/", kWrong},
                            {"2--log(0)", "log exceeded calculation limit."}});
}

// The range of the other operand is not asked.
TEST(Quirks, AMissingOperandComesBeforeTheRange) {
  ExpectMessages(kDegrees, {{"1e300*/1e300", kWrong}, {"1e300*1e300", kOutOfRange}});
}

// Only the operands of the last power of a sweep are held to the range of numbers.
TEST(Quirks, OnlyTheLastPowerIsHeldToTheRange) {
  ExpectMessages(kDegrees, {{"10^400^0", kOutOfRange},
                            {"10^400", kOutOfRange},
                            {"1^1e400", kOutOfRange},
                            {"1e400^0", kOutOfRange},
                            {"(200c2)^0", kOutOfRange}});
  ExpectValues(
      kDegrees,
      {{"10^400^0^2", 1}, {"1e400^0^1", 1}, {"1^1e400^1", 1}, {"200c2^0^2", 1}, {"2^-1e4^1", 0}});
}

TEST(Quirks, TheCosineOfMinus90IsTiny) {
  ExpressionEngine engine;
  engine.Evaluate("cos(-90)");
  EXPECT_NE(engine.GetResult(), 0);
  EXPECT_LT(std::fabs(engine.GetResult()), 1e-15);
  engine.Evaluate("cos(90)");
  EXPECT_EQ(engine.GetResult(), 0);
}

TEST(Quirks, TheRootOfZeroIsRefused) {
  ExpectMessages(kDegrees, {{"sqrt(0)", "sqrt exceeded calculation limit."},
                            {"sqrt 0", "sqrt exceeded calculation limit."}});
  ExpectValues(kDegrees, {{"0^0.5", 0}, {"sqrt(1e-300)", 1e-150}});
}

TEST(Quirks, RightShiftByZeroIsRefused) {
  for (const auto& modes : {kDegrees, kHexadecimal}) {
    EXPECT_EQ(Shown("8>>0", modes), ">> exceeded calculation limit.");
    EXPECT_EQ(Shown("8>>(1-1)", modes), ">> exceeded calculation limit.");
    EXPECT_EQ(Shown("8>>-0", modes), ">> exceeded calculation limit.");
  }
  EXPECT_EQ(Shown("10>>0", kBinary), ">> exceeded calculation limit.");
  EXPECT_EQ(Shown("8<<0"), "8");
}

// It is the number as it stands that is compared with zero, not what it is truncated to.
TEST(Quirks, RightShiftByAHalfIsAllowed) {
  ExpectValues(kDegrees, {{"8>>0.5", 8}, {"8>>-0.5", 8}, {"8.9>>1.9", 4}});
  ExpectValues(kBinary, {{"1000>>(1/10)", 8}});
}

TEST(Quirks, ShiftsOutside0To31ShiftEverythingOut) {
  ExpectValues(kDegrees, {{"1<<31", -2147483648.0},
                          {"1<<32", 0},
                          {"1<<-1", 0},
                          {"8>>32", 0},
                          {"(-8)>>32", -1},
                          {"-8>>40", -1},
                          {"8>>-1", 0},
                          {"-8>>-1", -1},
                          {"4294967295>>1", -1},
                          {"4294967296<<1", 0},
                          {"3<<31", -2147483648.0}});
  ExpectValues(kHexadecimal, {{"ffffffff>>1", -1}, {"80000000>>1f", -1}, {"1<<20", 0}});
}

TEST(Quirks, ValuesSideBySideAreAnErrorOnlyAtTheEnd) {
  ExpectMessages(kDegrees, {{"2 3", kWrong},
                            {"2pi", kWrong},
                            {"(2)sin30", kWrong},
                            {"sin(30 90)", kWrong},
                            {"1/0 2", "Division exceeded calculation limit."},
                            {"2 1e400", kWrong}});
}

TEST(Quirks, AFunctionAloneInParenthesesIsAnExpressionError) {
  ExpectMessages(kDegrees, {{"(sin)", kWrong},
                            {"2+(cos)", kWrong},
                            {"sin", "(sin) needs an argument."},
                            {"2+sin  ", "(sin) needs an argument."}});
}

TEST(Quirks, ParenthesesTheWrongWayRoundAreAnExpressionError) {
  for (const auto& modes : {kDegrees, kBinary, kOctal, kHexadecimal}) {
    EXPECT_EQ(Shown(")+(", modes), kWrong);
    EXPECT_EQ(Shown(")+(1", modes), kWrong);
    EXPECT_EQ(Shown("1)*(1", modes), kWrong);
    EXPECT_EQ(Shown("(1+1))*(1", modes), kWrong);
  }
}

TEST(Quirks, TheEOfExpBelongsToTheNumberBeforeIt) {
  EXPECT_EQ(Shown("2exp(0)"), "xp is not supported.");
  EXPECT_EQ(Shown("2*exp(0)"), "2");
}

TEST(Quirks, CombinationsOf200OverflowOnTheWay) {
  EXPECT_EQ(Shown("200c2"), kOutOfRange);
  EXPECT_EQ(Shown("1e15c2"), kOutOfRange);
  ExpectValues(kDegrees, {{"170c2", 14365}});
}

TEST(Quirks, NotANumberAndInfinitiesAreOutOfRangeWhereverTheyAreUsed) {
  for (const std::string odd :
       {"1e400", "(-1e400)", "(0-1e400)", "exp(1000)", "200c2", "(171p1)"}) {
    for (const std::string use : {"+1", "-1", "*0", "/2", "%2", "<<1", ">>1", "^0", ""}) {
      EXPECT_EQ(Shown(odd + use), kOutOfRange) << odd << use;
    }
    EXPECT_EQ(Shown("1+" + odd), kOutOfRange) << odd;
    EXPECT_EQ(Shown("abs(" + odd + ")"), kOutOfRange) << odd;
  }
}

TEST(Quirks, DivisionInTheBasesIsNotIntegral) {
  ExpectValues(kHexadecimal, {{"7/2", 3.5}, {"f/20", 0.46875}});
  ExpectValues(kOctal, {{"7/2*2", 7}});
}

TEST(Quirks, BitOperatorsGoWithSumsFromLeftToRight) {
  ExpectValues(kBinary, {{"1 or 1 and 0", 0}, {"1+1 or 1", 3}, {"1 or 1+1", 2}, {"11 and 1+1", 2}});
}

TEST(Quirks, BitOperatorsTruncateFractions) {
  ExpectValues(kBinary, {{"111/10 or 0", 3}, {"-111/10 or 0", -3}, {"not(111/10)", -4}});
}

TEST(Quirks, NegativeZeroComesAsItIsCalculated) {
  ExpressionEngine engine;
  engine.Evaluate("-0");
  EXPECT_EQ(BitsOf(engine.GetResult()), BitsOf(-0.0));
  engine.Evaluate("0*-1");
  EXPECT_EQ(BitsOf(engine.GetResult()), BitsOf(-0.0));
  engine.Evaluate("frac(-3)");
  EXPECT_EQ(engine.GetResult(), 0);
}

}  // namespace
}  // namespace kav::expression_engine_quirks_test
