#include "matrix/matrix_arithmetic.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <variant>

#include "common/number_text.h"
#include "matrix/matrix_operations.h"
#include "support/expect_matrix.h"
#include "support/matrix_table.h"

namespace kav::matrix_arithmetic_test {
namespace {

using test::Combined;
using test::ExpectError;
using test::ExpectMessage;
using test::ExpectRows;
using test::kColumn;
using test::kOutOfRange;
using test::kSquare;
using test::kWide;
using test::MatrixOfRows;
using enum MatrixOperator;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A matrix spelled out.
MatrixOperand Matrix(const char* text) {
  return test::MatrixOf(std::string_view(text));
}

std::string Told(const CalcResult<MatrixOrNumber>& result) {
  if (!result) return "error: " + result.error().message;
  if (const double* number = std::get_if<double>(&*result)) return PrintRoundTrip(*number);
  return test::Spelled(std::get<MatrixValue>(*result));
}

TEST(CombineOperands, EachPairOfKindsHasItsRule) {
  const struct {
    MatrixOperand left;
    MatrixOperator symbol;
    MatrixOperand right;
    const char* result;
  } rows[] = {
      {2.0, Add, 3.0, "5"},
      {2.0, Subtract, 3.0, "-1"},
      {2.0, Multiply, 3.0, "6"},
      {2.0, Power, 3.0, "8"},
      {2.0, Power, -1.0, "0.5"},
      {Matrix("1 2; 3 4"), Add, 10.0, "11 12; 13 14"},
      {Matrix("1 2; 3 4"), Subtract, 10.0, "-9 -8; -7 -6"},
      {Matrix("1 2; 3 4"), Multiply, 10.0, "10 20; 30 40"},
      {Matrix("1 2; 3 4"), Power, 2.0, "7 10; 15 22"},
      {10.0, Add, Matrix("1 2; 3 4"), "11 12; 13 14"},
      {10.0, Subtract, Matrix("1 2; 3 4"), "9 8; 7 6"},
      {10.0, Multiply, Matrix("1 2; 3 4"), "10 20; 30 40"},
      {10.0, Power, Matrix("1 2; 3 4"), "error: Expression error."},
      {Matrix("1 2; 3 4"), Add, Matrix("1 1; 1 1"), "2 3; 4 5"},
      {Matrix("1 2; 3 4"), Subtract, Matrix("1 1; 1 1"), "0 1; 2 3"},
      {Matrix("1 2; 3 4"), Multiply, Matrix("1 1; 1 1"), "3 3; 7 7"},
      {Matrix("1 2; 3 4"), Power, Matrix("1 1; 1 1"), "error: Expression error."},
      {Matrix("1 2; 3 4"), Add, Matrix("1 1"), "error: [Matrix Addition(+)] Matrix Size Mismatch"},
      {Matrix("1 2; 3 4"), Subtract, Matrix("1 1"),
       "error: [Matrix Subtration(-)] Matrix Size Mismatch"},
      {Matrix("1 2; 3 4"), Multiply, Matrix("1 1"),
       "error: [Matrix Multiplication(*)] Matrix Size Mismatch"},
      {Matrix("1 2"), Power, 2.0, "error: [Matrix Power(^)] Matrix Size Mismatch"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Told(CombineOperands(row.left, row.symbol, row.right)), row.result);
  }
}

TEST(CombineOperands, NumbersThatAreOrBecomeNoneAreOutOfRange) {
  const struct {
    double left;
    MatrixOperator symbol;
    double right;
  } rows[] = {
      {1e308, Multiply, 10},    {1e308, Add, 1e308},      {-1e308, Subtract, 1e308},
      {10, Power, 309},         {0, Power, -1},           {-8, Power, 0.5},
      {kInfinity, Multiply, 0}, {kInfinity, Power, 0},    {1, Power, kInfinity},
      {2, Subtract, kInfinity}, {kInfinity, Subtract, 2}, {2, Power, -kInfinity},
  };
  for (const auto& row : rows) {
    const auto result = CombineOperands(row.left, row.symbol, row.right);
    EXPECT_EQ(Told(result), "error: Out of range(overflow or underflow)")
        << row.left << static_cast<char>(row.symbol) << row.right;
    EXPECT_EQ(result.error().code, CalcErrorCode::OutOfRange);
  }
}

TEST(CombineOperands, ANumberAndAMatrixOutOfRangeFail) {
  const MatrixOperand matrix = Matrix("1e200 1");
  for (const MatrixOperator symbol : {Add, Subtract, Multiply}) {
    for (const auto& result :
         {CombineOperands(matrix, symbol, kInfinity), CombineOperands(kInfinity, symbol, matrix)}) {
      EXPECT_EQ(Told(result), "error: Out of range(overflow or underflow)")
          << static_cast<char>(symbol);
    }
  }
}

TEST(CombineOperands, AMatrixMayStandElsewhere) {
  EXPECT_EQ(Told(CombineOperands(&kSquare, Multiply, &kColumn)), "17; 39");
  EXPECT_EQ(Told(CombineOperands(&kSquare, Add, 1.0)), "2 3; 4 5");
  EXPECT_EQ(Told(Negate(&kSquare)), "-1 -2; -3 -4");
}

TEST(MatrixIn, IsTheMatrixOfAnOperandAndNullForANumber) {
  EXPECT_EQ(MatrixIn(&kSquare), &kSquare);
  const MatrixOperand own = kSquare;
  EXPECT_TRUE(SameMatrix(*MatrixIn(own), kSquare));
  EXPECT_EQ(MatrixIn(2.0), nullptr);
}

TEST(Negate, TurnsTheSignOfANumberAndOfEveryCell) {
  EXPECT_EQ(Told(Negate(2.5)), "-2.5");
  EXPECT_EQ(Told(Negate(-2.5)), "2.5");
  EXPECT_EQ(Told(Negate(Matrix("1 -2; 0 x"))), "-1 2; 0 0");
}

TEST(CombineOperands, SizesMustBeEqualToAdd) {
  const std::string message = "[Matrix Addition(+)] Matrix Size Mismatch";
  ExpectMessage(Combined(kSquare, Add, kWide), message);
  ExpectMessage(Combined(kColumn, Add, kSquare), message);
  ExpectMessage(Combined(kWide, Add, TransposeMatrix(kWide)), message);
}

TEST(CombineOperands, SizesMustBeEqualToSubtract) {
  // Users know the message with its misspelling.
  const std::string message = "[Matrix Subtration(-)] Matrix Size Mismatch";
  ExpectMessage(Combined(kSquare, Subtract, kWide), message);
  ExpectMessage(Combined(kColumn, Subtract, kSquare), message);
  ExpectMessage(Combined(kWide, Subtract, TransposeMatrix(kWide)), message);
}

TEST(CombineOperands, SumsAndDifferencesGoCellByCell) {
  const MatrixValue other = MatrixOfRows({{"10", "0.5"}, {"-3", "1e3"}});
  ExpectRows(Combined(kSquare, Add, other), {{"11", "2.5"}, {"0", "1004"}});
  ExpectRows(Combined(kSquare, Subtract, other), {{"-9", "1.5"}, {"6", "-996"}});
}

TEST(CombineOperands, CellsAreTwelveDecimalsWhateverTheDisplayIs) {
  ExpectRows(Combined(Matrix("0.1"), Add, Matrix("0.2")), {{"0.3"}});
  ExpectRows(Combined(Matrix("1"), Multiply, 1.0 / 3), {{"0.333333333333"}});
  ExpectRows(Combined(Matrix("2"), Multiply, 1e13), {{"2.000000000000e+13"}});
}

TEST(CombineOperands, OutOfRangeBetweenMatricesIsTheTextOfItsCell) {
  const MatrixValue huge = MatrixOfRows({{"1e308", "1"}, {"1", "-1e308"}});
  ExpectRows(Combined(huge, Add, huge), {{kOutOfRange, "2"}, {"2", kOutOfRange}});
  ExpectRows(Combined(huge, Subtract, MatrixOfRows({{"-1e308", "0"}, {"0", "1e308"}})),
             {{kOutOfRange, "1"}, {"1", kOutOfRange}});
  ExpectRows(Combined(huge, Multiply, MatrixOfRows({{"10"}, {"0"}})), {{kOutOfRange}, {"10"}});
}

TEST(CombineOperands, TheMessageOfACellReadsAsZero) {
  const MatrixValue message = MatrixOfRows(test::PlainRows{{kOutOfRange}});
  ExpectRows(Combined(message, Add, Matrix("7")), {{"7"}});
  ExpectRows(MatrixDeterminant(message), {{"0"}});
}

TEST(CombineOperands, ACellIsTheNumberThatOpensIt) {
  ExpectRows(
      Combined(MatrixOfRows({{"2 apples", "x", ""}}), Add, MatrixOfRows({{" 3", "+4", "5."}})),
      {{"5", "4", "5"}});
}

TEST(CombineOperands, ANumberIsCombinedWithEachCell) {
  ExpectRows(Combined(kSquare, Add, 0.5), {{"1.5", "2.5"}, {"3.5", "4.5"}});
  ExpectRows(Combined(kSquare, Subtract, 1.0), {{"0", "1"}, {"2", "3"}});
  ExpectRows(Combined(1.0, Subtract, kSquare), {{"0", "-1"}, {"-2", "-3"}});
  ExpectRows(Combined(kWide, Multiply, -2.0), {{"-2", "-4", "-6"}, {"-8", "-10", "-12"}});
}

TEST(CombineOperands, AZeroHasNoSign) {
  ExpectRows(Combined(MatrixOfRows({{"0", "-0"}}), Multiply, -1.0), {{"0", "0"}});
}

TEST(CombineOperands, OutOfRangeBetweenAMatrixAndANumberIsAFailure) {
  const MatrixValue huge = MatrixOfRows({{"1", "1e308"}});
  const MatrixValue low = MatrixOfRows({{"1", "-1e308"}});
  ExpectError(Combined(huge, Add, 1e308), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(Combined(huge, Subtract, -1e308), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(Combined(1e308, Subtract, low), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(Combined(huge, Multiply, 10.0), CalcErrorCode::OutOfRange, kOutOfRange);
  EXPECT_TRUE(Combined(huge, Multiply, 1.0));
}

}  // namespace
}  // namespace kav::matrix_arithmetic_test
