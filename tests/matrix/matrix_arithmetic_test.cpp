#include "matrix/matrix_arithmetic.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "common/number_text.h"
#include "matrix/matrices.h"

namespace kav {
namespace {

using test::MatrixOf;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// An operand that owns what it needs.
struct Value {
  Value(double value) : number(value) {}                               // NOLINT: reads as one
  Value(const char* text) : matrix(MatrixOf(text)), isMatrix(true) {}  // NOLINT: reads as one

  MatrixOperand Operand() const { return {number, isMatrix ? &matrix : nullptr}; }

  double number = 0;
  MatrixValue matrix;
  bool isMatrix = false;
};

std::string Told(const CalcResult<MatrixOrNumber>& result) {
  if (!result) return "error: " + result.error().message;
  if (const double* number = std::get_if<double>(&*result)) return PrintRoundTrip(*number);
  return test::Spelled(std::get<MatrixValue>(*result));
}

TEST(CombineOperands, EachPairOfKindsHasItsRule) {
  const struct {
    Value left;
    char symbol;
    Value right;
    const char* result;
  } rows[] = {
      {2, '+', 3, "5"},
      {2, '-', 3, "-1"},
      {2, '*', 3, "6"},
      {2, '^', 3, "8"},
      {2, '^', -1, "0.5"},
      {"1 2;3 4", '+', 10, "11 12;13 14"},
      {"1 2;3 4", '-', 10, "-9 -8;-7 -6"},
      {"1 2;3 4", '*', 10, "10 20;30 40"},
      {"1 2;3 4", '^', 2, "7 10;15 22"},
      {10, '+', "1 2;3 4", "11 12;13 14"},
      {10, '-', "1 2;3 4", "9 8;7 6"},
      {10, '*', "1 2;3 4", "10 20;30 40"},
      {10, '^', "1 2;3 4", "error: Expression error."},
      {"1 2;3 4", '+', "1 1;1 1", "2 3;4 5"},
      {"1 2;3 4", '-', "1 1;1 1", "0 1;2 3"},
      {"1 2;3 4", '*', "1 1;1 1", "3 3;7 7"},
      {"1 2;3 4", '^', "1 1;1 1", "error: Expression error."},
      {"1 2;3 4", '+', "1 1", "error: [Matrix Addition(+)] Matrix Size Mismatch"},
      {"1 2;3 4", '-', "1 1", "error: [Matrix Subtration(-)] Matrix Size Mismatch"},
      {"1 2;3 4", '*', "1 1", "error: [Matrix Multiplication(*)] Matrix Size Mismatch"},
      {"1 2", '^', 2, "error: [Matrix Power(^)] Matrix Size Mismatch"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Told(CombineOperands(row.left.Operand(), row.symbol, row.right.Operand())),
              row.result);
  }
}

TEST(CombineOperands, NumbersThatAreOrBecomeNoneAreOutOfRange) {
  const struct {
    double left;
    char symbol;
    double right;
  } rows[] = {
      {1e308, '*', 10},    {1e308, '+', 1e308}, {-1e308, '-', 1e308}, {10, '^', 309},
      {0, '^', -1},        {-8, '^', 0.5},      {kInfinity, '*', 0},  {kInfinity, '^', 0},
      {1, '^', kInfinity}, {2, '-', kInfinity}, {kInfinity, '-', 2},  {2, '^', -kInfinity},
  };
  for (const auto& row : rows) {
    const auto result = CombineOperands({row.left}, row.symbol, {row.right});
    EXPECT_EQ(Told(result), "error: Out of range(overflow or underflow)")
        << row.left << row.symbol << row.right;
    EXPECT_EQ(result.error().code, CalcErrorCode::OutOfRange);
  }
}

TEST(CombineOperands, ANumberAndAMatrixOutOfRangeFail) {
  const Value matrix("1e200 1");
  for (const char symbol : {'+', '-', '*'}) {
    for (const auto& result : {CombineOperands(matrix.Operand(), symbol, {kInfinity}),
                               CombineOperands({kInfinity}, symbol, matrix.Operand())}) {
      EXPECT_EQ(Told(result), "error: Out of range(overflow or underflow)") << symbol;
    }
  }
}

TEST(Negate, TurnsTheSignOfANumberAndOfEveryCell) {
  EXPECT_EQ(Told(Negate({2.5})), "-2.5");
  EXPECT_EQ(Told(Negate({-2.5})), "2.5");
  const Value matrix("1 -2;0 x");
  EXPECT_EQ(Told(Negate(matrix.Operand())), "-1 2;0 0");
}

TEST(ApplyMatrixFunction, EachFunctionIsItsOperation) {
  const Value a("2 1;1 1");
  const Value b("3;2");
  const struct {
    MatrixFunction function;
    std::vector<MatrixOperand> arguments;
    const char* result;
  } rows[] = {
      {MatrixFunction::Inverse, {a.Operand()}, "1 -1;-1 2"},
      {MatrixFunction::Transpose, {b.Operand()}, "3 2"},
      {MatrixFunction::Determinant, {a.Operand()}, "1"},
      {MatrixFunction::Triangular, {a.Operand()}, "2 1;0 0.5"},
      {MatrixFunction::LinearEquation, {a.Operand(), b.Operand()}, "1;1"},
      {MatrixFunction::Inverse, {b.Operand()}, "error: [Matrix Inverse] Matrix Size Mismatch"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Told(ApplyMatrixFunction(row.function, row.arguments)), row.result);
    EXPECT_EQ(ArgumentCount(row.function), row.arguments.size());
  }
}

TEST(ApplyMatrixFunction, ANumberOrAMissingMatrixIsAnArgumentError) {
  const Value a("1");
  const struct {
    MatrixFunction function;
    std::vector<MatrixOperand> arguments;
    const char* message;
  } rows[] = {
      {MatrixFunction::Inverse, {{2}}, "error: [Matrix Inverse] Matrix Argument Error"},
      {MatrixFunction::Transpose, {{2}}, "error: [Matrix Transpose] Matrix Argument Error"},
      {MatrixFunction::Determinant, {{2}}, "error: [Matrix Determinant] Matrix Argument Error"},
      {MatrixFunction::Triangular, {{2}}, "error: [Matrix Triangular] Matrix Argument Error"},
      {MatrixFunction::LinearEquation,
       {{2}, a.Operand()},
       "error: [Matrix Linear Equation] Matrix Argument Error"},
      {MatrixFunction::LinearEquation,
       {a.Operand(), {2}},
       "error: [Matrix Linear Equation] Matrix Argument Error"},
      {MatrixFunction::LinearEquation,
       {a.Operand()},
       "error: [Matrix Linear Equation] Matrix Argument Error"},
      {MatrixFunction::Inverse, {}, "error: [Matrix Inverse] Matrix Argument Error"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Told(ApplyMatrixFunction(row.function, row.arguments)), row.message);
  }
}

}  // namespace
}  // namespace kav
