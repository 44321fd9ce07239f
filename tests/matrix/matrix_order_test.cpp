#include "matrix/matrix_order.h"

#include <gtest/gtest.h>

#include <string>

#include "matrix/matrix_tokenizer.h"

namespace kav::matrix_order_test {
namespace {

/// What is wrong with the order of the tokens of `text`; empty if nothing.
std::string Check(const std::string& text) {
  const auto tokens = TokenizeMatrixExpression(text);
  if (!tokens) return "no tokens: " + tokens.error().message;
  const auto error = CheckMatrixOrder(*tokens);
  return error ? error->message : "";
}

TEST(CheckMatrixOrder, OrdersThatPass) {
  const char* const rows[] = {
      "1",
      "[m1]",
      "([m1])",
      "((1))",
      "1+2",
      "1-2",
      "1*2",
      "1^2",
      "+1",
      "-1",
      "--1",
      "+-+1",
      "1+-2",
      "1*-2",
      "1^+2",
      "1+(2)",
      "1*(2)",
      "1^(2)",
      "(1)+2",
      "(1)*2",
      "(1)^2",
      "-(1)",
      "(-1)",
      "inverse([m1])",
      "-inverse([m1])",
      "2*inverse([m1])",
      "2^inverse([m1])",
      "2+inverse([m1])",
      "inverse((1))",
      "inverse(-1)",
      "inverse(inverse(1))",
      "([m1])inverse([m2])",
      "linearequation([m1],[m2])",
      "linearequation(([m1]),([m2]))",
      "[m1],[m2]",
      "1,(2)",
      "1 2",
      "[m1][m2]",
      "1)+(2",
      "",
  };
  for (const auto* text : rows) EXPECT_EQ(Check(text), "") << text;
}

TEST(CheckMatrixOrder, ParenthesesAreCounted) {
  const char* const rows[] = {"(",   ")",  "(([m1])", "(1))", "inverse([m1]",
                              "1+(", "((", "*)",      "())"};
  for (const auto* text : rows) EXPECT_EQ(Check(text), "Not matched '(' and ')'.") << text;
}

TEST(CheckMatrixOrder, NeighboursThatCannotBe) {
  const char* const rows[] = {
      // An operator at the end, or at the beginning one that is no sign.
      "1+",
      "1-",
      "1*",
      "1^",
      "+",
      "*1",
      "^1",
      "*",
      "(*1)",
      "(1*)",
      "(1+)",
      "(^1)",
      // After a sign or another operator.
      "1+*2",
      "1-^2",
      "1+,2",
      "1**2",
      "1*^2",
      "1^^2",
      "1*,2",
      "-*1",
      "1*)(2",
      "(1^),1",
      // Values beside groups and functions.
      "(1)2",
      "(1)[m1]",
      "1(2)",
      "[m1](2)",
      "1inverse([m1])",
      "[m1]inverse([m1])",
      // Functions without their parentheses.
      "inverse[m1]",
      "inverse 1",
      "inverse-[m1]",
      "(inverse)",
      "inverse inverse([m1])",
      "linearequation,(1)",
      "inverse)(1",
      // Commas.
      ",1",
      "1,",
      ",",
      "1,,2",
      "(,1)",
      "(1,)",
      "1,+2",
      "1,-2",
      "1,inverse([m1])",
      "1+2,*3",
      "inverse(,1)",
      // Parentheses side by side.
      "()",
      ")(",
      "inverse()",
      "(1)(2)",
      "1+()",
      "()()",
  };
  for (const auto* text : rows) EXPECT_EQ(Check(text), "Expression error.") << text;
}

}  // namespace
}  // namespace kav::matrix_order_test
