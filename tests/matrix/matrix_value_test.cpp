#include "matrix/matrix_value.h"

#include <gtest/gtest.h>

#include "support/matrix_table.h"

namespace kav::matrix_value_test {
namespace {

using test::MatrixOf;
using test::TableOf;

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
  EXPECT_TRUE(SameMatrix(matrix, MatrixOf("_ _ _; _ _ _")));
}

TEST(Resized, CellsStayWhereTheyAre) {
  const MatrixValue matrix = MatrixOf(u"1 2; 3 4");
  EXPECT_EQ(TableOf(Resized(matrix, 3, 3)), u"1 2 _; 3 4 _; _ _ _");
  EXPECT_EQ(TableOf(Resized(matrix, 1, 2)), u"1 2");
  EXPECT_EQ(TableOf(Resized(matrix, 2, 1)), u"1; 3");
}

TEST(Resized, SizesAreFromOneToTen) {
  struct Row {
    int rows;
    int columns;
    int madeRows;
    int madeColumns;
  };
  for (const Row& row : {Row{2, 3, 2, 3}, Row{0, -7, 1, 1}, Row{11, 2147483647, 10, 10}}) {
    const MatrixValue none;
    const MatrixValue matrix = Resized(none, row.rows, row.columns);
    EXPECT_EQ(matrix.rows, row.madeRows);
    EXPECT_EQ(matrix.columns, row.madeColumns);
    EXPECT_EQ(matrix.At(0, 0), u"");
  }
}

TEST(Resized, WhatWasCutOffDoesNotComeBack) {
  const MatrixValue matrix = MatrixOf(u"1 2; 3 4");
  EXPECT_EQ(TableOf(Resized(Resized(matrix, 1, 1), 2, 2)), u"1 _; _ _");
  MatrixValue withRests = matrix;
  withRests.rows = 1;
  EXPECT_EQ(TableOf(Resized(withRests, 2, 2)), u"1 2; _ _");
}

TEST(Cleared, CellsOfTheRangeThatThereAreBecomeEmpty) {
  struct Row {
    CellRange range;
    std::u16string_view after;
  };
  for (const Row& row : {
           Row{{0, 0, 0, 0}, u"_ 2 3; 4 5 6"},
           Row{{0, 1, 1, 2}, u"1 _ _; 4 _ _"},
           Row{{0, 0, 9, 9}, u"_ _ _; _ _ _"},
           Row{{-5, -5, 0, 0}, u"_ 2 3; 4 5 6"},
           Row{{1, 1, 0, 0}, u"1 2 3; 4 5 6"},
           Row{{2, 0, 5, 5}, u"1 2 3; 4 5 6"},
           Row{{-1, -1, -1, -1}, u"1 2 3; 4 5 6"},
       }) {
    EXPECT_EQ(TableOf(Cleared(MatrixOf(u"1 2 3; 4 5 6"), row.range)), row.after);
  }
}

TEST(SameMatrix, ComparesSizesAndTexts) {
  const MatrixValue matrix = MatrixOf("1 2; 3 4");
  EXPECT_TRUE(SameMatrix(matrix, matrix));
  EXPECT_TRUE(SameMatrix(MatrixValue(), MatrixValue()));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf("1 2; 3 5")));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf("1 2")));
  EXPECT_FALSE(SameMatrix(matrix, MatrixOf("1; 3")));
  EXPECT_FALSE(SameMatrix(matrix, MatrixValue()));
}

TEST(SameMatrix, EqualNumbersInOtherTextsDiffer) {
  EXPECT_FALSE(SameMatrix(MatrixOf("1"), MatrixOf("1.0")));
}

TEST(SameMatrix, WhatIsOutsideOfTheSizeDoesNotCount) {
  MatrixValue left = MatrixOf("1 2; 3 4");
  MatrixValue right = left;
  left.At(1, 2) = u"left";
  right.At(2, 0) = u"right";
  EXPECT_TRUE(SameMatrix(left, right));
}

TEST(HasEmptyCell, IsSoForOneAnywhereInTheSize) {
  EXPECT_FALSE(HasEmptyCell(MatrixOf("1 2; 3 4")));
  EXPECT_TRUE(HasEmptyCell(MatrixOf("_ 2; 3 4")));
  EXPECT_TRUE(HasEmptyCell(MatrixOf("1 _; 3 4")));
  EXPECT_TRUE(HasEmptyCell(MatrixOf("1 2; 3 _")));
}

TEST(HasEmptyCell, ABlankIsNotEmpty) {
  MatrixValue matrix = MatrixOf("x");
  matrix.At(0, 0) = u" ";
  EXPECT_FALSE(HasEmptyCell(matrix));
}

TEST(HasEmptyCell, AMatrixWithoutRowsHasNone) {
  EXPECT_FALSE(HasEmptyCell(MatrixValue()));
}

}  // namespace
}  // namespace kav::matrix_value_test
