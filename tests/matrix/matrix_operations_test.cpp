// The operations that go cell by cell; the others stand in matrix_products_test and
// matrix_elimination_test.
#include "matrix/matrix_operations.h"

#include <gtest/gtest.h>

#include <string>

#include "support/expect_matrix.h"

namespace kav {
namespace {

using test::ExpectError;
using test::ExpectMessage;
using test::ExpectRows;
using test::kOutOfRange;
using test::MatrixOf;
using test::PlainRows;

const MatrixValue kSquare = MatrixOf({{"1", "2"}, {"3", "4"}});
const MatrixValue kWide = MatrixOf({{"1", "2", "3"}, {"4", "5", "6"}});
const MatrixValue kColumn = MatrixOf({{"5"}, {"6"}});

TEST(MatrixSizes, MustBeEqualToAdd) {
  const std::string message = "[Matrix Addition(+)] Matrix Size Mismatch";
  ExpectMessage(AddMatrices(kSquare, kWide), message);
  ExpectMessage(AddMatrices(kColumn, kSquare), message);
  ExpectMessage(AddMatrices(kWide, TransposeMatrix(kWide)), message);
}

TEST(MatrixSizes, MustBeEqualToSubtract) {
  // Misspelled, and known so.
  const std::string message = "[Matrix Subtration(-)] Matrix Size Mismatch";
  ExpectMessage(SubtractMatrices(kSquare, kWide), message);
  ExpectMessage(SubtractMatrices(kColumn, kSquare), message);
  ExpectMessage(SubtractMatrices(kWide, TransposeMatrix(kWide)), message);
}

TEST(MatrixSizes, ColumnsOfTheFirstMustBeRowsOfTheSecondToMultiply) {
  const std::string message = "[Matrix Multiplication(*)] Matrix Size Mismatch";
  ExpectMessage(MultiplyMatrices(kWide, kSquare), message);
  ExpectMessage(MultiplyMatrices(kColumn, kSquare), message);
  EXPECT_TRUE(MultiplyMatrices(kSquare, kWide));
}

TEST(MatrixArithmetic, GoesCellByCell) {
  const MatrixValue other = MatrixOf({{"10", "0.5"}, {"-3", "1e3"}});
  ExpectRows(AddMatrices(kSquare, other), {{"11", "2.5"}, {"0", "1004"}});
  ExpectRows(SubtractMatrices(kSquare, other), {{"-9", "1.5"}, {"6", "-996"}});
}

TEST(MatrixArithmetic, MultipliesRowsByColumns) {
  ExpectRows(MultiplyMatrices(kSquare, kWide), {{"9", "12", "15"}, {"19", "26", "33"}});
  ExpectRows(MultiplyMatrices(kSquare, kColumn), {{"17"}, {"39"}});
  ExpectRows(MultiplyMatrices(TransposeMatrix(kColumn), kColumn), {{"61"}});
  ExpectRows(MultiplyMatrices(kColumn, TransposeMatrix(kColumn)), {{"25", "30"}, {"30", "36"}});
}

TEST(MatrixArithmetic, CellsAreTwelveDecimalsWhateverTheDisplayIs) {
  ExpectRows(AddMatrices(MatrixOf({{"0.1"}}), MatrixOf({{"0.2"}})), {{"0.3"}});
  ExpectRows(MultiplyByNumber(MatrixOf({{"1"}}), 1.0 / 3), {{"0.333333333333"}});
  ExpectRows(MultiplyByNumber(MatrixOf({{"2"}}), 1e13), {{"2.000000000000e+13"}});
}

TEST(MatrixArithmetic, AProductIsRoundedOnceForEachCell) {
  // Rounded to cells first, the products would be 1.123456789012 each, and their sum end in 48.
  const PlainRows terms{
      {"1.12345678901235", "1.12345678901235", "1.12345678901235", "1.12345678901235"}};
  ExpectRows(MultiplyMatrices(MatrixOf(terms), MatrixOf({{"1"}, {"1"}, {"1"}, {"1"}})),
             {{"4.493827156049"}});
  // In the order of the index: 1e16 + 1 is 1e16.
  const MatrixValue ones = MatrixOf({{"1"}, {"1"}, {"1"}});
  ExpectRows(MultiplyMatrices(MatrixOf({{"1e16", "1", "-1e16"}}), ones), {{"0"}});
  ExpectRows(MultiplyMatrices(MatrixOf({{"1e16", "-1e16", "1"}}), ones), {{"1"}});
}

TEST(MatrixArithmetic, OutOfRangeBetweenMatricesIsTheTextOfItsCell) {
  const MatrixValue huge = MatrixOf({{"1e308", "1"}, {"1", "-1e308"}});
  ExpectRows(AddMatrices(huge, huge), {{kOutOfRange, "2"}, {"2", kOutOfRange}});
  ExpectRows(SubtractMatrices(huge, MatrixOf({{"-1e308", "0"}, {"0", "1e308"}})),
             {{kOutOfRange, "1"}, {"1", kOutOfRange}});
  ExpectRows(MultiplyMatrices(huge, MatrixOf({{"10"}, {"0"}})), {{kOutOfRange}, {"10"}});
}

TEST(MatrixArithmetic, TheMessageOfACellReadsAsZero) {
  const MatrixValue message = MatrixOf({{kOutOfRange}});
  ExpectRows(AddMatrices(message, MatrixOf({{"7"}})), {{"7"}});
  ExpectRows(MatrixDeterminant(message), {{"0"}});
}

TEST(MatrixArithmetic, ACellIsTheNumberThatOpensIt) {
  ExpectRows(AddMatrices(MatrixOf({{"2 apples", "x", ""}}), MatrixOf({{" 3", "+4", "5."}})),
             {{"5", "4", "5"}});
}

TEST(MatrixAndNumber, EachCellIsCombined) {
  ExpectRows(AddNumber(kSquare, 0.5), {{"1.5", "2.5"}, {"3.5", "4.5"}});
  ExpectRows(SubtractNumber(kSquare, 1), {{"0", "1"}, {"2", "3"}});
  ExpectRows(SubtractFromNumber(1, kSquare), {{"0", "-1"}, {"-2", "-3"}});
  ExpectRows(MultiplyByNumber(kWide, -2), {{"-2", "-4", "-6"}, {"-8", "-10", "-12"}});
}

TEST(MatrixAndNumber, AZeroHasNoSign) {
  ExpectRows(MultiplyByNumber(MatrixOf({{"0", "-0"}}), -1), {{"0", "0"}});
}

TEST(MatrixAndNumber, OutOfRangeIsAFailure) {
  const MatrixValue huge = MatrixOf({{"1", "1e308"}});
  const MatrixValue low = MatrixOf({{"1", "-1e308"}});
  ExpectError(AddNumber(huge, 1e308), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(SubtractNumber(huge, -1e308), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(SubtractFromNumber(1e308, low), CalcErrorCode::OutOfRange, kOutOfRange);
  ExpectError(MultiplyByNumber(huge, 10), CalcErrorCode::OutOfRange, kOutOfRange);
  EXPECT_TRUE(MultiplyByNumber(huge, 1));
}

TEST(MatrixTranspose, TurnsRowsIntoColumnsAndKeepsTheTexts) {
  ExpectRows(TransposeMatrix(kWide), {{"1", "4"}, {"2", "5"}, {"3", "6"}});
  ExpectRows(TransposeMatrix(MatrixOf({{"1.50", "x", "+2"}})), {{"1.50"}, {"x"}, {"+2"}});
}

}  // namespace
}  // namespace kav
