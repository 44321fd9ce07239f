// Products and transposes; for powers see matrix_power_test, for the rest matrix_elimination_test.
#include "matrix/matrix_operations.h"

#include <gtest/gtest.h>

#include <string>

#include "support/expect_matrix.h"

namespace kav::matrix_operations_test {
namespace {

using test::ExpectMessage;
using test::ExpectRows;
using test::kColumn;
using test::kSquare;
using test::kWide;
using test::MatrixOfRows;
using test::PlainRows;

TEST(MultiplyMatrices, NeedsAsManyColumnsAsTheSecondHasRows) {
  const std::string message = "[Matrix Multiplication(*)] Matrix Size Mismatch";
  ExpectMessage(MultiplyMatrices(kWide, kSquare), message);
  ExpectMessage(MultiplyMatrices(kColumn, kSquare), message);
  EXPECT_TRUE(MultiplyMatrices(kSquare, kWide));
}

TEST(MultiplyMatrices, MultipliesRowsByColumns) {
  ExpectRows(MultiplyMatrices(kSquare, kWide), {{"9", "12", "15"}, {"19", "26", "33"}});
  ExpectRows(MultiplyMatrices(kSquare, kColumn), {{"17"}, {"39"}});
  ExpectRows(MultiplyMatrices(TransposeMatrix(kColumn), kColumn), {{"61"}});
  ExpectRows(MultiplyMatrices(kColumn, TransposeMatrix(kColumn)), {{"25", "30"}, {"30", "36"}});
}

TEST(MultiplyMatrices, HasTheRowsOfTheFirstAndTheColumnsOfTheSecond) {
  const auto wide = MultiplyMatrices(kSquare, kWide);
  const auto tall = MultiplyMatrices(TransposeMatrix(kWide), kSquare);
  ASSERT_TRUE(wide && tall);
  EXPECT_EQ(wide->columns, 3);
  EXPECT_EQ(tall->rows, 3);
}

TEST(MultiplyMatrices, RoundsItsCells) {
  const MatrixValue thirds = MatrixOfRows({{"0.333333333333"}});
  ExpectRows(MultiplyMatrices(thirds, thirds), {{"0.111111111111"}});
}

TEST(MultiplyMatrices, AProductIsRoundedOnceForEachCell) {
  // If each product were rounded, it would be 1.123456789012, and the sum would end in 48.
  const PlainRows terms{
      {"1.12345678901235", "1.12345678901235", "1.12345678901235", "1.12345678901235"}};
  ExpectRows(MultiplyMatrices(MatrixOfRows(terms), MatrixOfRows({{"1"}, {"1"}, {"1"}, {"1"}})),
             {{"4.493827156049"}});
  // In the order of the index: 1e16 + 1 is 1e16.
  const MatrixValue ones = MatrixOfRows({{"1"}, {"1"}, {"1"}});
  ExpectRows(MultiplyMatrices(MatrixOfRows({{"1e16", "1", "-1e16"}}), ones), {{"0"}});
  ExpectRows(MultiplyMatrices(MatrixOfRows({{"1e16", "-1e16", "1"}}), ones), {{"1"}});
}

TEST(TransposeMatrix, TurnsRowsIntoColumnsAndKeepsTheTexts) {
  ExpectRows(TransposeMatrix(kWide), {{"1", "4"}, {"2", "5"}, {"3", "6"}});
  ExpectRows(TransposeMatrix(MatrixOfRows({{"1.50", "x", "+2"}})), {{"1.50"}, {"x"}, {"+2"}});
}

}  // namespace
}  // namespace kav::matrix_operations_test
