#include "engine/calc_token.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kav::calc_token_test {
namespace {

TEST(CalcToken, KindsAndFunctionsHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(TokenKind::Operand), 0);
  EXPECT_EQ(static_cast<int>(TokenKind::Operator), 10);
  EXPECT_EQ(static_cast<int>(TokenKind::Function), 40);
  EXPECT_EQ(static_cast<int>(TokenKind::Parenthesis), 50);
  const std::vector<std::pair<FunctionCode, int>> rows{
      {FunctionCode::None, 0},  {FunctionCode::Sin, 41},  {FunctionCode::Cos, 42},
      {FunctionCode::Tan, 43},  {FunctionCode::Asin, 44}, {FunctionCode::Acos, 45},
      {FunctionCode::Atan, 46}, {FunctionCode::Log, 47},  {FunctionCode::Ln, 48},
      {FunctionCode::Exp, 49},  {FunctionCode::Sinh, 50}, {FunctionCode::Cosh, 51},
      {FunctionCode::Tanh, 52}, {FunctionCode::Sqrt, 53}, {FunctionCode::Abs, 54},
      {FunctionCode::Int, 55},  {FunctionCode::Frac, 56},
  };
  for (const auto& [code, number] : rows) EXPECT_EQ(static_cast<int>(code), number);
}

TEST(CalcToken, OnlyOperandsAreNumbers) {
  EXPECT_EQ(NumberToken(2.5).isNumber, 1);
  EXPECT_EQ(NumberToken(2.5).symbol, 0);
  EXPECT_EQ(NumberToken(2.5).value, 2.5);
  EXPECT_EQ(NumberToken(2.5).kind, TokenKind::Operand);
  EXPECT_EQ(VariableToken('y').isNumber, 1);
  EXPECT_EQ(VariableToken('y').symbol, 'y');
  EXPECT_EQ(VariableToken('y').value, 0);
  EXPECT_EQ(OperatorToken('p').isNumber, 0);
  EXPECT_EQ(OperatorToken('p').kind, TokenKind::Operator);
  EXPECT_EQ(ParenthesisToken('(').isNumber, 0);
  EXPECT_EQ(ParenthesisToken('(').kind, TokenKind::Parenthesis);
  EXPECT_EQ(FunctionToken(FunctionCode::Ln).symbol, 'F');
  EXPECT_EQ(FunctionToken(FunctionCode::Ln).functionCode, FunctionCode::Ln);
  EXPECT_EQ(FunctionToken(FunctionCode::Ln).isNumber, 0);
  EXPECT_EQ(FunctionToken(FunctionCode::Ln).kind, TokenKind::Function);
}

TEST(TokenArray, IsFullWith151Tokens) {
  TokenArray tokens;
  for (int count = 0; count <= 150; ++count) {
    EXPECT_EQ(tokens.Count(), count);
    EXPECT_FALSE(tokens.IsFull()) << count;
    tokens.Append(NumberToken(count));
  }
  EXPECT_TRUE(tokens.IsFull());
  EXPECT_EQ(tokens.Count(), TokenArray::kCapacity);
  EXPECT_EQ(tokens[0].value, 0);
  EXPECT_EQ(tokens[150].value, 150);
  const TokenArray copy = tokens;
  EXPECT_TRUE(copy.IsFull());
  EXPECT_EQ(copy[150].value, 150);
}

TEST(SymbolIndex, StaysInItsTableForEveryCharacter) {
  for (int c = -128; c < 128; ++c) EXPECT_LT(SymbolIndex(static_cast<char>(c)), 128U);
  EXPECT_EQ(SymbolIndex('+'), 43U);
}

}  // namespace
}  // namespace kav::calc_token_test
