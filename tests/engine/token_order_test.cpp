#include "engine/token_order.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "engine/base_tokenizer.h"
#include "engine/tokenizer.h"
#include "support/plain_tokens.h"

namespace kav::token_order_test {
namespace {

using test::PlainToken;
using test::PlainTokens;

/// The message about the order of `text`, which can be cut; "" if it passes.
std::string OrderOf(std::string_view text, BaseMode base) {
  const auto tokens = base == BaseMode::Decimal ? Tokenize(text) : TokenizeInBase(text, base);
  if (!tokens) return "not cut: " + tokens.error().message;
  const auto error = CheckOrder(*tokens, base);
  return error ? error->message : "";
}

constexpr std::string_view kWrong = "Expression error.";
constexpr std::string_view kUnmatched = "Not matched '(' and ')'.";

void ExpectOrder(BaseMode base, std::string_view message, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) EXPECT_EQ(OrderOf(text, base), message) << text;
}
void ExpectPass(BaseMode base, const std::vector<std::string>& texts) {
  ExpectOrder(base, "", texts);
}
void ExpectWrong(BaseMode base, const std::vector<std::string>& texts) {
  ExpectOrder(base, kWrong, texts);
}

constexpr BaseMode kDecimal = BaseMode::Decimal;

TEST(DecimalOrder, AsManyParenthesesOpenAsClose) {
  ExpectOrder(kDecimal, kUnmatched, {"(1+2", "1+2)", "(", ")", "((1)", "(1))", "*(", "()("});
  ExpectPass(kDecimal, {"(1+2)", "((1))", "(1)*(2)"});
}

TEST(DecimalOrder, OnlyTheFactorialMayStandLast) {
  ExpectPass(kDecimal, {"3!"});
  ExpectWrong(kDecimal, {"1+", "1-", "1*", "1/", "1^", "1%", "1p", "1c", "1<<", "1>>", "-", "1!+"});
}

TEST(DecimalOrder, OnlySignsMayStandFirst) {
  ExpectPass(kDecimal, {"+1", "-1", "--1", "-+1"});
  ExpectWrong(kDecimal, {"*1", "/1", "^1", "!3", "!", "%1", "p1", "c1", "<<1", ">>1", "*", "/"});
}

TEST(DecimalOrder, SignsNeedSomethingToSignBehindThem) {
  ExpectPass(kDecimal, {"1+2", "1+sin2", "1+(2)", "1++2", "1+-2", "1-2", "1-sin(2)", "1-(2)",
                        "1-+2", "1--2", "-pi"});
  ExpectWrong(kDecimal, {"1+*2", "1+/2", "1+^2", "1+!", "1+%2", "1+p2", "1+c2", "1+<<2", "1+>>2",
                         "(1+)", "(1-)*2", "1-*2", "1-/2", "1-!"});
}

TEST(DecimalOrder, TheFactorialStandsBehindAValue) {
  ExpectPass(kDecimal, {"3!", "(3)!", "(3!)", "3!+1", "3!-1", "3!*1", "3!/1", "3!^1", "3!%1",
                        "3!p1", "3!c1", "3!<<1", "3!>>1", "sin3!"});
  ExpectWrong(kDecimal, {"3!!", "3!4", "3!(4)", "3!sin4", "3+!", "(!)", "(!3)", "sin!+1", "3*!"});
}

TEST(DecimalOrder, BinaryOperatorsStandBehindAValue) {
  for (const std::string op : {"*", "/", "^", "%", "p ", "c ", "<<", ">>"}) {
    ExpectPass(kDecimal, {"1" + op + "2", "(1)" + op + "2", "3!" + op + "2", "pi " + op + "2"});
    ExpectWrong(kDecimal, {"(" + op + "2)", "sin " + op + "2", "1+" + op + "2", "-" + op + "2"});
  }
}

TEST(DecimalOrder, BinaryOperatorsHaveASignedValueOrASlashBehindThem) {
  for (const std::string op : {"*", "/", "^", "%", "p ", "c ", "<<", ">>"}) {
    ExpectPass(kDecimal, {"1" + op + "2", "1" + op + "(2)", "1" + op + "+2", "1" + op + "-2",
                          "1" + op + "sin2", "1" + op + "/2"});
    ExpectWrong(kDecimal, {"1" + op + "*2", "1" + op + "^2", "1" + op + "%2", "1" + op + "p2",
                           "1" + op + "c2", "1" + op + " <<2", "1" + op + " >>2", "1" + op + "!",
                           "(1" + op + ")", "1" + op + "/", "1" + op + "/*2"});
  }
}

// 4*/2 passes here and fails when it is reduced.
TEST(DecimalOrder, ASlashIsNotAskedWhatOperatorStandsBeforeIt) {
  ExpectPass(kDecimal, {"4*/2", "4//2", "4///2", "4^/2", "4*/-2", "4*/sin2", "4*/(2)"});
  ExpectWrong(kDecimal, {"4+/2", "4-/2", "(/2)", "sin/2", "/2"});
}

TEST(DecimalOrder, ThereIsNoMultiplicationWithoutASign) {
  ExpectWrong(kDecimal, {"2(3)", "(2)3", "2sin30", "2 sin(30)", "(1)(2)", "pi(2)", "(2)pi"});
}

// What these come to is two values, which is found when they are reduced.
TEST(DecimalOrder, ValuesSideBySidePass) {
  ExpectPass(kDecimal, {"2 3", "2pi", "1.5 .5 2", "(2)sin30", "(2)sin(30)"});
}

TEST(DecimalOrder, ParenthesesAreNotEmpty) {
  ExpectWrong(kDecimal, {"()", "1+()", "sin()", "(())", ")("});
}

TEST(DecimalOrder, FunctionsMayStandAnywhere) {
  ExpectPass(kDecimal, {"sin30", "sin(30)", "sin-30", "sin+30", "sin cos 0", "(sin)", "2*sin30"});
}

// As many open as close, and each neighbour is right: that the first one closes nothing is found
// when the parentheses are reduced.
TEST(DecimalOrder, ParenthesesTheWrongWayRoundPass) {
  ExpectPass(kDecimal, {")+(", ")+(1"});
}

TEST(DecimalOrder, NoTokensAreInOrder) {
  ExpectPass(kDecimal, {" "});
}

constexpr BaseMode kIntegerBases[] = {BaseMode::Binary, BaseMode::Octal, BaseMode::Hexadecimal};

/// "and" as the tokenizer of `base` takes it.
std::string And(BaseMode base) {
  return base == BaseMode::Hexadecimal ? " AND " : " and ";
}

TEST(BaseOrder, AsManyParenthesesOpenAsClose) {
  for (const BaseMode base : kIntegerBases) {
    ExpectOrder(base, kUnmatched, {"(1+1", "1)", "(", "*("});
    ExpectPass(base, {"(1)", "((1+1))"});
  }
}

TEST(BaseOrder, NoOperatorMayStandLast) {
  for (const BaseMode base : kIntegerBases) {
    ExpectWrong(base, {"1+", "1-", "1*", "1/", "1<<", "1>>", "1 or ", "1 xor ", "1 xnor ",
                       "1" + And(base), "not ", "-"});
  }
}

TEST(BaseOrder, OnlySignsAndNotMayStandFirst) {
  for (const BaseMode base : kIntegerBases) {
    ExpectPass(base, {"+1", "-1", "not 1"});
    ExpectWrong(base, {"*1", "/1", "<<1", ">>1", "or 1", "xor 1", "xnor 1", And(base) + "1"});
  }
}

TEST(BaseOrder, SignsNeedSomethingToSignBehindThem) {
  for (const BaseMode base : kIntegerBases) {
    ExpectPass(base, {"1+1", "1+not 1", "1+(1)", "1++1", "1+-1", "1-1", "1-not 1", "1-(1)", "--1"});
    ExpectWrong(base, {"1+*1", "1+/1", "1+<<1", "1+>>1", "1+or 1", "1-xor 1", "1-xnor 1",
                       "1-" + And(base) + "1", "(1+)"});
  }
}

TEST(BaseOrder, BitOperatorsStandBetweenValues) {
  for (const BaseMode base : kIntegerBases) {
    for (const std::string& op :
         {And(base), std::string(" or "), std::string(" xor "), std::string(" xnor ")}) {
      ExpectPass(base, {"1" + op + "1", "(1)" + op + "1", "1" + op + "(1)", "1" + op + "not 1"});
      ExpectWrong(base, {"1" + op + "-1", "1" + op + "+1", "1" + op + "*1", "1" + op + op + "1",
                         "(" + op + "1)", "1+" + op + "1", "not " + op + "1", "(1" + op + ")"});
    }
  }
}

TEST(BaseOrder, NotStandsBehindAnOperatorOrAnOpeningParenthesis) {
  for (const BaseMode base : kIntegerBases) {
    ExpectPass(base, {"not 1", "not (1)", "1*not 1", "1/not 1", "1+not 1", "1-not 1", "1<<not 1",
                      "1>>not 1", "(not 1)", "1" + And(base) + "not 1", "1 or not 1", "1 xor not 1",
                      "1 xnor not 1"});
    ExpectWrong(base, {"1 not 1", "(1)not 1", "not not 1", "not -1", "not +1", "not *1", "(not )",
                       "not )+(1"});
  }
}

TEST(BaseOrder, ProductsAndShiftsStandBehindAValue) {
  for (const BaseMode base : kIntegerBases) {
    for (const std::string op : {"*", "/", "<<", ">>"}) {
      ExpectPass(base, {"1" + op + "1", "(1)" + op + "1", "1" + op + "(1)", "1" + op + "+1",
                        "1" + op + "-1", "1" + op + "not 1"});
      ExpectWrong(base,
                  {"(" + op + "1)", "1+" + op + "1", "not " + op + "1", "1" + op + " " + op + "1",
                   "1" + op + "/1", "1" + op + "or 1", "(1" + op + ")"});
    }
  }
}

TEST(BaseOrder, NumbersAndParenthesesStandAsInDecimal) {
  for (const BaseMode base : kIntegerBases) {
    ExpectPass(base, {"1 1", "(1)*(1)", "((1))"});
    ExpectWrong(base, {"1(1)", "(1)1", "()", "1+()", "(1)(1)", ")("});
  }
}

/// Tokens with these symbols, 'V' for a value and 'F' for a function.
TokenArray TokensOf(std::string_view symbols) {
  TokenArray tokens;
  for (const char symbol : symbols) {
    if (symbol == 'V') {
      tokens.Append(NumberToken(1));
    } else if (symbol == 'F') {
      tokens.Append(FunctionToken(FunctionCode::Sin));
    } else if (symbol == '(' || symbol == ')') {
      tokens.Append(ParenthesisToken(symbol));
    } else {
      tokens.Append(OperatorToken(symbol));
    }
  }
  return tokens;
}

/// Holds CheckOrder against the plain rules for every line of `length` of these symbols.
void ExpectPlainOrder(std::string_view alphabet, std::size_t length, BaseMode base) {
  std::vector<std::size_t> digits(length, 0);
  std::string line(length, alphabet.front());
  while (true) {
    PlainTokens plain;
    for (const char symbol : line) plain.push_back(PlainToken{symbol, "", 0});
    const auto error = CheckOrder(TokensOf(line), base);
    ASSERT_EQ(error ? error->message : "", test::PlainOrderMessage(plain, base)) << line;
    std::size_t place = 0;
    while (place < length && ++digits[place] == alphabet.size()) digits[place++] = 0;
    if (place == length) return;
    for (std::size_t i = 0; i < length; ++i) line[i] = alphabet[digits[i]];
  }
}

TEST(Order, EveryShortLineIsJudgedByTheRules) {
  for (const std::size_t length : {1U, 2U, 3U, 4U}) {
    ExpectPlainOrder("VF()+-*/^!%pc<>", length, kDecimal);
    ExpectPlainOrder("V()+-*/<>aoxyn", length, BaseMode::Binary);
  }
}

TEST(Order, VariablesCountAsNumbers) {
  const auto tokens = TokenizeFormula("2*x+y", VariableType::XY);
  ASSERT_TRUE(tokens);
  EXPECT_FALSE(CheckOrder(*tokens, kDecimal));
  const auto called = TokenizeFormula("x(2)", VariableType::X);
  ASSERT_TRUE(called);
  EXPECT_EQ(CheckOrder(*called, kDecimal)->message, kWrong);
}

}  // namespace
}  // namespace kav::token_order_test
