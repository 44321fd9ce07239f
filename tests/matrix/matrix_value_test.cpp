#include "matrix/matrix_value.h"

#include <gtest/gtest.h>

#include "support/plain_matrix.h"

namespace kav {
namespace {

using test::MatrixOf;

TEST(MatrixValue, HoldsTenRowsOfTenColumnsAtMost) {
  EXPECT_EQ(kLargestMatrix, 10);
  EXPECT_EQ(MatrixValue().cells.size(), 10U);
  EXPECT_EQ(MatrixValue().cells[0].size(), 10U);
}

TEST(MatrixValue, ANewOneHasNoCells) {
  EXPECT_EQ(MatrixValue().rows, 0);
  EXPECT_EQ(MatrixValue().columns, 0);
}

TEST(MatrixValue, TheFourMatricesAreNamed) {
  EXPECT_EQ(kMatrixCount, 4);
  EXPECT_EQ(kMatrixNames[0], u"[M1]");
  EXPECT_EQ(kMatrixNames[1], u"[M2]");
  EXPECT_EQ(kMatrixNames[2], u"[M3]");
  EXPECT_EQ(kMatrixNames[kAnswerMatrix], u"[M Ans]");
}

TEST(MatrixOfSize, HasTheSizeAndNoTexts) {
  const MatrixValue matrix = MatrixOfSize(2, 3);
  EXPECT_EQ(matrix.rows, 2);
  EXPECT_EQ(matrix.columns, 3);
  EXPECT_TRUE(SameMatrix(matrix, MatrixOf({{"", "", ""}, {"", "", ""}})));
}

TEST(SameMatrix, ComparesSizesAndTexts) {
  const MatrixValue matrix = MatrixOf({{"1", "2"}, {"3", "4"}});
  EXPECT_TRUE(SameMatrix(matrix, matrix));
  EXPECT_TRUE(SameMatrix(MatrixValue(), MatrixValue()));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf({{"1", "2"}, {"3", "5"}})));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf({{"1", "2"}})));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf({{"1"}, {"3"}})));
  EXPECT_FALSE(SameMatrix(matrix, MatrixValue()));
}

TEST(SameMatrix, EqualNumbersInOtherTextsDiffer) {
  EXPECT_FALSE(SameMatrix(MatrixOf({{"1"}}), MatrixOf({{"1.0"}})));
}

TEST(SameMatrix, WhatIsOutsideOfTheSizeDoesNotCount) {
  MatrixValue left = MatrixOf({{"1", "2"}, {"3", "4"}});
  MatrixValue right = left;
  left.At(1, 2) = u"left";
  right.At(2, 0) = u"right";
  EXPECT_TRUE(SameMatrix(left, right));
}

TEST(HasEmptyCell, IsSoForOneAnywhereInTheSize) {
  EXPECT_FALSE(HasEmptyCell(MatrixOf({{"1", "2"}, {"3", "4"}})));
  EXPECT_TRUE(HasEmptyCell(MatrixOf({{"", "2"}, {"3", "4"}})));
  EXPECT_TRUE(HasEmptyCell(MatrixOf({{"1", ""}, {"3", "4"}})));
  EXPECT_TRUE(HasEmptyCell(MatrixOf({{"1", "2"}, {"3", ""}})));
}

TEST(HasEmptyCell, ABlankIsNotEmpty) {
  EXPECT_FALSE(HasEmptyCell(MatrixOf({{" "}})));
}

TEST(HasEmptyCell, AMatrixWithoutRowsHasNone) {
  EXPECT_FALSE(HasEmptyCell(MatrixValue()));
}

}  // namespace
}  // namespace kav
