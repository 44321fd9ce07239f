#include "matrix/matrix_tokenizer.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <variant>

namespace kav::matrix_tokenizer_test {
namespace {

/// What a token is: 'n' for a number, 'm' for a slot, 'F' for a function, else its character.
struct LetterOf {
  char operator()(UsedUp) const { return '?'; }
  char operator()(double) const { return 'n'; }
  char operator()(MatrixSlot) const { return 'm'; }
  char operator()(const MatrixFileName&) const { return '?'; }
  char operator()(MatrixOperator symbol) const { return static_cast<char>(symbol); }
  char operator()(MatrixFunction) const { return 'F'; }
  char operator()(MatrixPunctuation mark) const { return static_cast<char>(mark); }
};

/// One letter a token, or the error's message.
std::string Cut(const std::string& text) {
  const auto tokens = TokenizeMatrixExpression(text);
  if (!tokens) return tokens.error().message;
  std::string letters;
  for (const MatrixToken& token : *tokens) letters += std::visit(LetterOf{}, token);
  return letters;
}

/// The one token of `text`.
template <class T>
T Only(const std::string& text) {
  const auto tokens = TokenizeMatrixExpression(text);
  if (!tokens || tokens->size() != 1) throw std::runtime_error(text + " is not one token");
  return std::get<T>(tokens->front());
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
  EXPECT_EQ(static_cast<int>(std::get<MatrixFunction>((*tokens)[0])), 41);
  EXPECT_EQ(std::get<MatrixPunctuation>((*tokens)[1]), MatrixPunctuation::Open);
  EXPECT_EQ(std::get<MatrixSlot>((*tokens)[2]).index, 3);
  EXPECT_EQ(std::get<MatrixPunctuation>((*tokens)[3]), MatrixPunctuation::Close);
  EXPECT_EQ(std::get<MatrixOperator>((*tokens)[4]), MatrixOperator::Multiply);
  EXPECT_EQ(std::get<double>((*tokens)[5]), 25.0);
  EXPECT_EQ(std::get<MatrixPunctuation>((*tokens)[6]), MatrixPunctuation::Comma);
  EXPECT_EQ(std::get<MatrixSlot>((*tokens)[7]).index, 0);
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
    EXPECT_EQ(static_cast<int>(std::get<MatrixFunction>(tokens->front())), row.code) << row.text;
  }
}

TEST(TokenizeMatrixExpression, TheMatricesHaveTheirSlots) {
  EXPECT_EQ(Only<MatrixSlot>("[m1]").index, 0);
  EXPECT_EQ(Only<MatrixSlot>("[m2]").index, 1);
  EXPECT_EQ(Only<MatrixSlot>("[m3]").index, 2);
  EXPECT_EQ(Only<MatrixSlot>("[m ans]").index, 3);
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
  for (const auto& row : rows) EXPECT_EQ(Only<double>(row.text), row.value) << row.text;
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
}  // namespace kav::matrix_tokenizer_test
