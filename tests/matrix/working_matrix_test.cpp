#include "matrix/working_matrix.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/plain_matrix.h"

namespace kav::working_matrix_test {
namespace {

using test::MatrixOfRows;
using test::PlainRows;
using test::RowsOf;

TEST(WorkingMatrix, ANewOneHoldsZeros) {
  EXPECT_EQ(RowsOf(WorkingMatrix(2, 3).Texts()), (PlainRows{{"0", "0", "0"}, {"0", "0", "0"}}));
}

TEST(WorkingMatrix, TheIdentityHasOnesOnItsDiagonal) {
  EXPECT_EQ(RowsOf(WorkingMatrix::Identity(2).Texts()), (PlainRows{{"1", "0"}, {"0", "1"}}));
}

TEST(WorkingMatrix, ReadsTheNumbersOfTexts) {
  const MatrixValue texts = MatrixOfRows({{"1.50", "x"}});
  const WorkingMatrix matrix(texts);
  EXPECT_EQ(matrix.Rows(), 1);
  EXPECT_EQ(matrix.Columns(), 2);
  EXPECT_EQ(matrix.At(0, 0), 1.5);
  EXPECT_EQ(matrix.At(0, 1), 0);
}

TEST(WorkingMatrix, ACellThatNothingIsStoredInKeepsItsText) {
  const MatrixValue texts = MatrixOfRows({{"1.50", "x"}});
  WorkingMatrix matrix(texts);
  matrix.Store(0, 1, 2.5);
  EXPECT_EQ(RowsOf(matrix.Texts()), (PlainRows{{"1.50", "2.5"}}));
}

TEST(WorkingMatrix, WhatIsStoredIsRounded) {
  WorkingMatrix matrix(1, 2);
  matrix.Store(0, 0, 1.0 / 3);
  matrix.Store(0, 1, std::numeric_limits<double>::infinity());
  EXPECT_EQ(matrix.At(0, 0), 0.333333333333);
  EXPECT_EQ(matrix.At(0, 1), 0);
  EXPECT_EQ(RowsOf(matrix.Texts()),
            (PlainRows{{"0.333333333333", "Out of range(overflow or underflow)"}}));
}

TEST(WorkingMatrix, RowsAreExchangedWithTheirTexts) {
  const MatrixValue texts = MatrixOfRows({{"1.0", "2"}, {"x", "4"}, {"5", "6"}});
  WorkingMatrix matrix(texts);
  matrix.ExchangeRows(0, 1);
  matrix.ExchangeRows(2, 2);
  EXPECT_EQ(RowsOf(matrix.Texts()), (PlainRows{{"x", "4"}, {"1.0", "2"}, {"5", "6"}}));
  EXPECT_EQ(matrix.At(1, 0), 1);
}

TEST(WorkingMatrix, IsTheSameByItsNumbersAndSize) {
  const MatrixValue one = MatrixOfRows({{"1", "2"}});
  const MatrixValue same = MatrixOfRows({{"1.0", "2x"}});
  const MatrixValue other = MatrixOfRows({{"1", "3"}});
  EXPECT_TRUE(WorkingMatrix(one).IsSame(WorkingMatrix(same)));
  EXPECT_FALSE(WorkingMatrix(one).IsSame(WorkingMatrix(other)));
  EXPECT_FALSE(WorkingMatrix(1, 2).IsSame(WorkingMatrix(2, 1)));
}

}  // namespace
}  // namespace kav::working_matrix_test
