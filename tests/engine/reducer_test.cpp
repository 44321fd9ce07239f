#include "engine/reducer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/base_tokenizer.h"
#include "engine/function_names.h"
#include "engine/tokenizer.h"
#include "support/effort.h"
#include "support/random.h"
#include "support/spelled_steps.h"

namespace kav::reducer_test {
namespace {

using test::Spelled;

/// The steps of a text that can be cut; the numbers are those of its tokens, from 0.
std::string StepsOf(std::string_view text, BaseMode base) {
  auto tokens = base == BaseMode::Decimal ? Tokenize(text) : TokenizeInBase(text, base);
  return tokens ? Spelled(Reduce(*tokens, base)) : tokens.error().message;
}

using Rows = std::vector<std::pair<std::string_view, std::string_view>>;

void ExpectSteps(const Rows& rows, BaseMode base = BaseMode::Decimal) {
  for (const auto& [text, steps] : rows) EXPECT_EQ(StepsOf(text, base), steps) << text;
}

TEST(Reducer, ANumberIsItsOwnAnswer) {
  ExpectSteps({{"1", "finish 0"}, {"+1", "finish 1"}, {"((1))", "finish 2"}});
}

TEST(Reducer, ProductsComeBeforeSumsAndEachFromLeftToRight) {
  ExpectSteps({
      {"2+3*4", "mul 2 4; add 0 2; finish 0"},
      {"2*3+4", "mul 0 2; add 0 4; finish 0"},
      {"1-2-3", "sub 0 2; sub 0 4; finish 0"},
      {"1-2+3", "sub 0 2; add 0 4; finish 0"},
      {"2*3/4%5<<1>>2", "mul 0 2; div 0 4; rem 0 6; shl 0 8; shr 0 10; finish 0"},
      {"8>>1*2", "shr 0 2; mul 0 4; finish 0"},
      {"1/2-3/4", "div 0 2; div 4 6; sub 0 4; finish 0"},
  });
}

TEST(Reducer, LevelsBindFromFunctionsDownToSums) {
  ExpectSteps({
      {"1+2*3^4p2!", "fact 8; perm 6 8; lastpow 4 6; mul 2 4; add 0 2; finish 0"},
      {"-3!", "neg 1; fact 1; finish 1"},
      {"2^3!", "fact 2; lastpow 0 2; finish 0"},
      {"2^5c2", "comb 2 4; lastpow 0 2; finish 0"},
      {"2^-1", "neg 3; lastpow 0 3; finish 0"},
      {"2^3*4", "lastpow 0 2; mul 0 4; finish 0"},
  });
}

TEST(Reducer, GroupsComeFirstInnermostAndFromTheLeft) {
  ExpectSteps({
      {"(1+2)*3", "add 1 3; mul 1 6; finish 1"},
      {"3*(1+2)", "add 3 5; mul 0 3; finish 0"},
      {"(1+2)*(3+4)", "add 1 3; add 7 9; mul 1 7; finish 1"},
      {"(1-(2-3))", "sub 4 6; sub 1 4; finish 1"},
      {"(1)+(2)", "add 1 5; finish 1"},
  });
}

TEST(Reducer, MinusBindsMoreTightlyThanPower) {
  ExpectSteps({{"-2^2", "neg 1; lastpow 1 3; finish 1"}});
}

TEST(Reducer, PowersGoFromLeftToRight) {
  ExpectSteps({{"2^3^2", "pow 0 2; lastpow 0 4; finish 0"},
               {"2^3^2^1", "pow 0 2; pow 0 4; lastpow 0 6; finish 0"}});
}

TEST(Reducer, EverySweepOfPowersHasItsLast) {
  ExpectSteps({{"(2^3)^2", "lastpow 1 3; lastpow 1 6; finish 1"},
               {"2^3+4^5", "pow 0 2; lastpow 4 6; add 0 4; finish 0"}});
}

TEST(Reducer, PermutationsAndCombinationsShareASweep) {
  ExpectSteps(
      {{"5c2p2", "comb 0 2; perm 0 4; finish 0"}, {"5p2c2", "perm 0 2; comb 0 4; finish 0"}});
}

TEST(Reducer, FunctionsTakeTheirGroup) {
  ExpectSteps({
      {"sin(30)", "sin 2; finish 2"},
      {"sin(1+2)*3", "add 2 4; sin 2; mul 2 7; finish 2"},
      {"sin(cos(0))", "cos 4; sin 4; finish 4"},
      {"sin(cos 0)", "cos 3; sin 3; finish 3"},
      {"sin(30)^2", "sin 2; lastpow 2 5; finish 2"},
      {"sin(3)!", "sin 2; fact 2; finish 2"},
      {"-sin(30)", "sin 3; neg 3; finish 3"},
  });
}

TEST(Reducer, EveryFunctionHasItsStep) {
  for (const FunctionName& function : kFunctionNames) {
    const std::string name(function.name);
    EXPECT_EQ(StepsOf(name + "(1)", BaseMode::Decimal), name + " 2; finish 2");
    EXPECT_EQ(StepsOf(name + " 1", BaseMode::Decimal), name + " 1; finish 1");
  }
}

// sin30^2 is the sine of 900, and sin30*2 twice the sine of 30.
TEST(Reducer, BareFunctionsComeBehindPowersAndBeforeProducts) {
  ExpectSteps({
      {"sin30^2", "lastpow 1 3; sin 1; finish 1"},
      {"2^sin30", "sin 3; lastpow 0 3; finish 0"},
      {"sin3!", "fact 1; sin 1; finish 1"},
      {"sin5c2", "comb 1 3; sin 1; finish 1"},
      {"sin-30", "neg 2; sin 2; finish 2"},
      {"sin30*2", "sin 1; mul 1 3; finish 1"},
      {"1-sin30", "sin 3; sub 0 3; finish 0"},
      {"-sin30", "sin 2; neg 2; finish 2"},
  });
}

TEST(Reducer, BareFunctionsNestFromTheRight) {
  ExpectSteps({{"sin cos 0", "cos 2; sin 2; finish 2"},
               {"ln sqrt abs 3", "abs 3; sqrt 3; ln 3; finish 3"},
               {"sin 1+cos 2", "cos 4; sin 1; add 1 4; finish 1"}});
}

// A bare function reduces signs, factorials and powers of all that follows it, not only its own.
TEST(Reducer, ABareFunctionReducesTheTightOperatorsOfTheRest) {
  ExpectSteps({{"sin 1+2^3", "lastpow 3 5; sin 1; add 1 3; finish 1"},
               {"sin 1*-2", "neg 4; sin 1; mul 1 4; finish 1"}});
}

TEST(Reducer, SignsPileUp) {
  ExpectSteps({{"--3", "neg 2; neg 2; finish 2"},
               {"-+3", "neg 2; finish 2"},
               {"+-3", "neg 2; finish 2"},
               {"2+-3", "neg 3; add 0 3; finish 0"},
               {"2-+3", "sub 0 3; finish 0"},
               {"2*-3-4", "neg 3; mul 0 3; sub 0 5; finish 0"},
               {"-(2)-3", "neg 2; sub 2 5; finish 2"}});
}

TEST(Reducer, SignsBehindABinarySignBelongToTheOperandBehindThem) {
  ExpectSteps({{"2-3*-4", "neg 5; mul 2 5; sub 0 2; finish 0"},
               {"2--3", "neg 3; sub 0 3; finish 0"},
               {"2---3", "neg 4; neg 4; sub 0 4; finish 0"},
               {"2-+-3", "neg 4; sub 0 4; finish 0"},
               {"2++3", "add 0 3; finish 0"},
               {"2+3*+4", "mul 2 5; add 0 2; finish 0"},
               {"2-3^-4", "neg 5; lastpow 2 5; sub 0 2; finish 0"},
               {"3!-2*-1", "neg 6; fact 0; mul 3 6; sub 0 3; finish 0"},
               {"2-3-4*-5", "neg 7; mul 4 7; sub 0 2; sub 0 4; finish 0"},
               {"sin1-2*-3", "neg 6; sin 1; mul 3 6; sub 1 3; finish 1"},
               {"2-3*-sin30", "sin 6; neg 6; mul 2 6; sub 0 2; finish 0"},
               {"2-3*(-4)", "neg 6; mul 2 6; sub 0 2; finish 0"},
               {"2-3*sin-30", "neg 6; sin 6; mul 2 6; sub 0 2; finish 0"},
               {"2-3*+4", "mul 2 5; sub 0 2; finish 0"}});
}

TEST(Reducer, AnOperatorWithoutAnOperandFails) {
  ExpectSteps(
      {{"4*/2", "mul 0 3; fail"}, {"4//2", "div 0 3; fail"}, {"4^/2", "lastpow 0 3; fail"}});
}

TEST(Reducer, AFunctionWithoutAnOperandFails) {
  ExpectSteps({{"(sin)", "fail"}, {"2+(cos)", "fail"}, {"1+2*(sin)+3", "fail"}});
}

TEST(Reducer, ValuesLeftSideBySideFail) {
  ExpectSteps({{" ", "fail"},
               {"2 3", "fail"},
               {"2 3*4", "mul 1 3; fail"},
               {"sin(30 90)", "sin 2; fail"},
               {"(2)sin30", "sin 4; fail"}});
}

// An operand too many can serve an operator that has one too few.
TEST(Reducer, ASpareValueServesASpareOperator) {
  ExpectSteps({{"4*/2 3", "mul 0 3; div 0 4; finish 0"},
               {"2-3*-4 5", "mul 2 5; sub 0 2; sub 0 6; finish 0"},
               {"2--(3)sin30", "sin 7; sub 0 4; sub 0 7; finish 0"},
               {"2++3 4", "add 0 3; add 0 4; finish 0"}});
}

TEST(Reducer, AGroupThatIsNotOpenedFails) {
  ExpectSteps(
      {{")+(", "fail"}, {")+(1", "fail"}, {"1+2)*(3", "fail"}, {"(1+2))*(3", "add 1 3; fail"}});
}

TEST(Reducer, AUsedUpVariableIsNoOperator) {
  auto tokens = TokenizeFormula("(x*x)-x", VariableType::X);
  ASSERT_TRUE(tokens);
  EXPECT_EQ(Spelled(Reduce(*tokens, BaseMode::Decimal)), "mul 1 3; sub 1 6; finish 1");
}

TEST(Reducer, BitOperatorsShareTheLevelOfSums) {
  ExpectSteps({{"1 or 1*0", "mul 2 4; or 0 2; finish 0"},
               {"1 and 1 or 1 xor 1 xnor 1-1+1",
                "and 0 2; or 0 4; xor 0 6; xnor 0 8; sub 0 10; add 0 12; finish 0"},
               {"1+1 and 1", "add 0 2; and 0 4; finish 0"},
               {"1<<1*1/1>>1", "shl 0 2; mul 0 4; div 0 6; shr 0 8; finish 0"}},
              BaseMode::Binary);
}

TEST(Reducer, NotBindsMostTightly) {
  ExpectSteps({{"not 1", "not 1; finish 1"},
               {"not 1+1", "not 1; add 1 3; finish 1"},
               {"1-not 1", "not 3; sub 0 3; finish 0"},
               {"-not 1", "not 2; neg 2; finish 2"},
               {"not(1 or 0)", "or 2 4; not 2; finish 2"},
               {"1 and not 1*1", "not 3; mul 3 5; and 0 3; finish 0"}},
              BaseMode::Binary);
}

TEST(Reducer, SignsInABaseBelongTheSameWay) {
  ExpectSteps({{"--1", "neg 2; neg 2; finish 2"},
               {"1+-1", "neg 3; add 0 3; finish 0"},
               {"1--1", "neg 3; sub 0 3; finish 0"},
               {"1-1*-1", "neg 5; mul 2 5; sub 0 2; finish 0"},
               {"1--not 1", "not 4; neg 4; sub 0 4; finish 0"},
               {"1--1 1", "sub 0 3; sub 0 4; finish 0"}},
              BaseMode::Binary);
}

TEST(Reducer, LeavesOnlyTheAnswerAlive) {
  auto cut = Tokenize("-2*sin(30)+3!-(4^5)p 6");
  ASSERT_TRUE(cut);
  TokenArray& tokens = *cut;
  std::vector<double> values;
  for (int i = 0; i < tokens.Count(); ++i) values.push_back(tokens[i].value);
  const StepList steps = Reduce(tokens, BaseMode::Decimal);
  ASSERT_EQ(steps.Last().operation, Operation::Finish);
  for (int i = 0; i < tokens.Count(); ++i) {
    EXPECT_EQ(tokens[i].isNumber, i == steps.Last().target ? 1 : 0) << i;
    EXPECT_EQ(tokens[i].symbol, 0) << i;
    EXPECT_EQ(tokens[i].value, values[static_cast<std::size_t>(i)]) << i;
  }
}

// No text leads here: where '!' stands, the order has found a value before it.
TEST(Reducer, AFactorialWithoutAnOperandNeedsAnArgument) {
  TokenArray tokens;
  tokens.Append(OperatorToken('!'));
  EXPECT_EQ(Spelled(Reduce(tokens, BaseMode::Decimal)), "fail!");
}

TEST(Reducer, FullArraysHaveRoomForTheirSteps) {
  EXPECT_EQ(StepsOf(std::string(75, '(') + "1" + std::string(75, ')'), BaseMode::Decimal),
            "finish 75");
  auto tokens = Tokenize(std::string(150, '-') + "1");
  ASSERT_TRUE(tokens);
  const StepList steps = Reduce(*tokens, BaseMode::Decimal);
  EXPECT_EQ(steps.Count(), 151);
  EXPECT_EQ(Spelled(steps.Last()), "finish 150");
}

TEST(Reducer, StaysInsideItsTokensWhateverTheirOrder) {
  constexpr std::string_view kSymbols = "VVVVVVF()()+-*/^!%pc<>aoxyn";
  test::Random random(11);
  for (int run = 0; run < test::Tries(200000); ++run) {
    TokenArray tokens;
    const auto count = random.Below(run % 100 == 0 ? 152 : 12);
    while (tokens.Count() < static_cast<int>(count)) {
      const char symbol = kSymbols[random.Below(kSymbols.size())];
      tokens.Append(symbol == 'V'                    ? NumberToken(1)
                    : symbol == 'F'                  ? FunctionToken(FunctionCode::Abs)
                    : symbol == '(' || symbol == ')' ? ParenthesisToken(symbol)
                                                     : OperatorToken(symbol));
    }
    const StepList steps = Reduce(tokens, run % 2 == 0 ? BaseMode::Decimal : BaseMode::Octal);
    ASSERT_GE(steps.Count(), 1);
    ASSERT_LE(steps.Count(), StepList::kCapacity);
    for (const Step& step : steps) {
      const bool isLast = &step == &steps.Last();
      const bool ends = step.operation >= Operation::FailExpression;
      ASSERT_EQ(ends, isLast);
      ASSERT_LE(step.target, count);
      ASSERT_LE(step.right, count);
    }
  }
}

}  // namespace
}  // namespace kav::reducer_test
