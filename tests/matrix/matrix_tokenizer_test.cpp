#include "matrix/matrix_tokenizer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace kav {
namespace {

using Class = MatrixToken::Class;
using Kind = MatrixToken::Kind;

/// One letter a token: 'n' for a number, 'm' for a matrix, else its symbol. Or the error's message.
std::string Cut(const std::string& text) {
  const auto tokens = TokenizeMatrixExpression(text);
  if (!tokens) return tokens.error().message;
  std::string letters;
  for (const MatrixToken& token : *tokens) {
    letters += token.kind == Kind::Number ? 'n' : token.kind == Kind::Matrix ? 'm' : token.symbol;
  }
  return letters;
}

TEST(TokenizeMatrixExpression, CutsTextsIntoTokens) {
  const struct {
    const char* text;
    const char* tokens;
  } rows[] = {
      {"", ""},
      {"   ", ""},
      {"[m1]", "m"},
      {"[m1]+[m2]-[m3]*[m ans]^2", "m+m-m*m^n"},
      {" [m1] + ( 2 ) ", "m+(n)"},
      {"linearequation([m1],[m2])", "F(m,m)"},
      {"1 2", "nn"},
      {"1[m1]2", "nmn"},
      {"2inverse(", "nF("},
      {"2e3[m1]", "nm"},
      {"2e+3", "n"},
      {"2e-3-4", "n-n"},
      {"2+3", "n+n"},
      {"2e+-3", "n-n"},
      {")(,", ")(,"},
  };
  for (const auto& row : rows) EXPECT_EQ(Cut(row.text), row.tokens) << row.text;
}

TEST(TokenizeMatrixExpression, ATokenKnowsWhatItIs) {
  const auto tokens = TokenizeMatrixExpression("inverse([m ans])*2.5e1,[m1]");
  ASSERT_TRUE(tokens);
  ASSERT_EQ(tokens->size(), 8U);
  const auto& function = (*tokens)[0];
  EXPECT_EQ(function.symbol, 'F');
  EXPECT_EQ(static_cast<int>(function.functionCode), 41);
  EXPECT_EQ(static_cast<int>(function.tokenClass), 40);
  EXPECT_EQ(static_cast<int>(function.kind), 0);
  EXPECT_EQ(static_cast<int>((*tokens)[1].tokenClass), 50);
  const auto& answer = (*tokens)[2];
  EXPECT_EQ(answer.symbol, 0);
  EXPECT_EQ(static_cast<int>(answer.kind), 2);
  EXPECT_EQ(static_cast<int>(answer.tokenClass), 0);
  EXPECT_EQ(answer.value, 3.0);
  EXPECT_EQ(answer.fileName, "");
  EXPECT_EQ((*tokens)[4].symbol, '*');
  EXPECT_EQ(static_cast<int>((*tokens)[4].tokenClass), 10);
  const auto& number = (*tokens)[5];
  EXPECT_EQ(static_cast<int>(number.kind), 1);
  EXPECT_EQ(number.value, 25.0);
  EXPECT_EQ((*tokens)[6].symbol, ',');
  EXPECT_EQ((*tokens)[6].tokenClass, Class::None);
  EXPECT_EQ((*tokens)[7].value, 0.0);
}

TEST(TokenizeMatrixExpression, TheFunctionsHaveTheirCodes) {
  const struct {
    const char* text;
    int code;
  } rows[] = {{"inverse(", 41},
              {"transpose(", 42},
              {"linearequation(", 43},
              {"determinant(", 44},
              {"triangular(", 45}};
  for (const auto& row : rows) {
    const auto tokens = TokenizeMatrixExpression(row.text);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(static_cast<int>(tokens->front().functionCode), row.code) << row.text;
  }
  EXPECT_EQ(MatrixFunctionNames().size(), std::size(rows));
}

TEST(TokenizeMatrixExpression, TheMatricesHaveTheirSlots) {
  const char* const rows[] = {"[m1]", "[m2]", "[m3]", "[m ans]"};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto tokens = TokenizeMatrixExpression(rows[i]);
    ASSERT_TRUE(tokens);
    EXPECT_EQ(tokens->front().value, static_cast<double>(i));
  }
}

TEST(TokenizeMatrixExpression, NumbersAreDecimal) {
  const struct {
    const char* text;
    double value;
  } rows[] = {
      {"0", 0},
      {"007", 7},
      {".5", 0.5},
      {"5.", 5},
      {".", 0},
      {"1e3", 1000},
      {"1.5e-3", 0.0015},
      {"2e", 2},
      {"123456789012345678901234567890", 123456789012345678901234567890.0},
      {"1e999", std::numeric_limits<double>::infinity()},
      {"1e-999", 0},
  };
  for (const auto& row : rows) {
    const auto tokens = TokenizeMatrixExpression(row.text);
    ASSERT_TRUE(tokens) << row.text;
    ASSERT_EQ(tokens->size(), 1U) << row.text;
    EXPECT_EQ(tokens->front().value, row.value) << row.text;
  }
}

TEST(TokenizeMatrixExpression, WhatCannotStandIsRefused) {
  const struct {
    const char* text;
    const char* message;
  } rows[] = {
      {"1.2.3", "Expression error."},
      {"..", "Expression error."},
      {"1e2e3", "Expression error."},
      {"1e2.5", "Expression error."},
      {"1ee2", "Expression error."},
      {"1.2.3456789012345678901234567890", "Expression error."},
      {"1234567890123456789012345678901", "number exceeded length limit."},
      {"[m4]", "[m4] is not supported."},
      {"[mans]", "[mans] is not supported."},
      {"[m  ans]", "[m  ans] is not supported."},
      {"[]", "[] is not supported."},
      {"[m1", "[m1 is not supported."},
      {"[m1+[m2]", "[m1+[m2] is not supported."},
      {"[a name of some length]", "[a name of some... is not supported."},
      {"]", "] is not supported."},
      {"sin([m1])", "sin is not supported."},
      {"inverses(", "inverses is not supported."},
      {"e3", "e is not supported."},
      {"[m1]/2", "/ is not supported."},
      {"2%", "% is not supported."},
      {"\t", "\t is not supported."},
      {"[m1]*ü", "ü is not supported."},
      {"inverse", "(inverse) needs an argument."},
      {"2*transpose  ", "(transpose) needs an argument."},
      {"linearequation", "(linearequation) needs an argument."},
  };
  for (const auto& row : rows) EXPECT_EQ(Cut(row.text), row.message) << row.text;
}

TEST(TokenizeMatrixExpression, ThereIsRoomFor71Tokens) {
  const std::string longest(71, '(');
  EXPECT_EQ(Cut(longest), longest);
  EXPECT_EQ(Cut(longest + "  "), longest);
  EXPECT_EQ(Cut(longest + "("), "number exceeded length limit.");
  EXPECT_EQ(Cut(longest + " $"), "number exceeded length limit.");
}

}  // namespace
}  // namespace kav
