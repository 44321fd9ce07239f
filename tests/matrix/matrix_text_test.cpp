// The text format of matrices; for loading and saving see matrix_file_test.
#include "matrix/matrix_file.h"

#include <gtest/gtest.h>

#include <string>

#include "support/matrix_table.h"
#include "support/random.h"

namespace kav::matrix_text_test {
namespace {

using std::string_literals::operator""s;
using test::MatrixOf;
using test::Spelled;

TEST(PrintMatrix, EachRowIsALineBehindTheHeader) {
  EXPECT_EQ(PrintMatrix(MatrixOf("1 2; 3 4")), "[2*2]\r\n1\t2\r\n3\t4\r\n");
  EXPECT_EQ(PrintMatrix(MatrixOf("1 2 3; 4 5 6")), "[2*3]\r\n1\t2\t3\r\n4\t5\t6\r\n");
  EXPECT_EQ(PrintMatrix(MatrixOf("-1.5e-07")), "[1*1]\r\n-1.5e-07\r\n");
  EXPECT_EQ(PrintMatrix(MatrixOf("1; 2")), "[2*1]\r\n1\r\n2\r\n");
  EXPECT_EQ(PrintMatrix(MatrixOf("1 2; 3 4"), "\n"), "[2*2]\n1\t2\n3\t4\n");
  EXPECT_EQ(PrintMatrix(MatrixValue{}), "[0*0]\r\n");
}

TEST(PrintMatrix, OnlyCellsWithinTheSizeAreWritten) {
  MatrixValue matrix = MatrixOf("1 2; 3 4");
  matrix.rows = matrix.columns = 1;
  EXPECT_EQ(PrintMatrix(matrix), "[1*1]\r\n1\r\n");
}

TEST(PrintMatrix, OfEachCharacterTheLowByteIsWritten) {
  MatrixValue matrix = MatrixOf("1 2");
  matrix.At(0, 0) = u"\u00E9\u0141\u6F22";
  EXPECT_EQ(PrintMatrix(matrix), "[1*2]\r\n\xE9\x41\x22\t2\r\n");
}

TEST(PrintMatrix, WhatWouldEndACellOrARowIsABlank) {
  MatrixValue matrix = MatrixOf("1 2");
  matrix.At(0, 0) = u"1\t2\n3\u0109\u010A";
  EXPECT_EQ(PrintMatrix(matrix), "[1*2]\r\n1 2 3  \t2\r\n");
}

TEST(ReadMatrix, ReadsMatrices) {
  const struct {
    std::string text;
    const char* matrix;
  } rows[] = {
      {"[2*2]\r\n1\t2\r\n3\t4\r\n", "1 2; 3 4"},
      {"[2*2]\n1\t2\n3\t4\n", "1 2; 3 4"},
      {"[2*2]\r\n1\t2\n3\t4", "1 2; 3 4"},
      {"[1*1]\r\n7\r", "7"},
      {"[1*1]\r\n1,000\r\n", "1,000"},
      {"[2.9*1.1]\r\n1\r\n2\r\n", "1; 2"},
      {"[1e0*10]\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\t10\r\n", "1 2 3 4 5 6 7 8 9 10"},
      {"[10*1]\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n", "1; 2; 3; 4; 5; 6; 7; 8; 9; 10"},
      {"[1*2]\r\n\t\r\n", "_ _"},
      {"[1*1]\r\n\r\n", "_"},
      {"[2*1]\n\nx\n", "_; x"},
      {"\xEF\xBB\xBF[1*1]\r\n1\r\n", "1"},
      {"[1*1]\r\n1\r\n\r\n", "1"},
      {"[1*1]\r\n1\n\n\n", "1"},
      {"[1*1]\n\n\n", "_"},
  };
  for (const auto& row : rows) {
    const auto matrix = ReadMatrix(row.text);
    ASSERT_TRUE(matrix) << row.text;
    EXPECT_EQ(Spelled(*matrix), row.matrix) << row.text;
  }
}

TEST(ReadMatrix, EachByteIsTheCharacterOfItsNumber) {
  const auto matrix = ReadMatrix("[1*2]\n \xC3\xBC \0,\t\r\r\n"s);
  ASSERT_TRUE(matrix);
  EXPECT_EQ(matrix->At(0, 0), u" \u00C3\u00BC \0,"s);
  EXPECT_EQ(matrix->At(0, 1), u"\r");
}

TEST(ReadMatrix, RefusesAnythingElse) {
  const std::string rows[] = {
      "",
      "\r\n",
      "1\t2\r\n",
      "2*2]\r\n1\t2\r\n3\t4\r\n",
      "[2*2\r\n1\t2\r\n3\t4\r\n",
      "[22]\r\n1\t2\r\n3\t4\r\n",
      "[2*2*2]\r\n1\t2\r\n3\t4\r\n",
      "[*]\r\n1\r\n",
      "[*1]\r\n1\r\n",
      "[1*]\r\n1\r\n",
      "[x*1]\r\n1\r\n",
      "[1*1x]\r\n1\r\n",
      "[1*1] \r\n1\r\n",
      " [1*1]\r\n1\r\n",
      "\xEF\xBB[1*1]\r\n1\r\n",
      "\r\n[1*1]\r\n1\r\n",
      "[0*1]\r\n",
      "[1*0]\r\n\r\n",
      "[0.9*1]\r\n1\r\n",
      "[-1*1]\r\n1\r\n",
      "[11*1]\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n",
      "[1*11]\n1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\n",
      "[1e99*1]\r\n1\r\n",
      "[nan*1]\r\n1\r\n",
      "[inf*inf]\r\n1\r\n",
      "[1*1]",
      "[1*1]\r\n",
      "[2*1]\r\n1\r\n",
      "[2*2]\r\n1\t2\r\n3\r\n",
      "[2*2]\r\n1\t2\r\n3\t4\t5\r\n",
      "[2*2]\r\n1\r\n2\t3\t4\r\n",
      "[1*1]\r\n1\t\r\n",
      "[1*1]\r\n1\r\n2\r\n",
      "[1*1]\r\n1\r\n\r\n2\r\n",
      "[1*1]\r\n1\r\n ",
      "[1*1]\r1\r",
  };
  for (const auto& text : rows) EXPECT_FALSE(ReadMatrix(text)) << text;
}

TEST(ReadMatrixText, TheFaultNamesItsLine) {
  using Kind = MatrixFault::Kind;
  const struct {
    std::string text;
    Kind kind;
    int line;
  } table[] = {
      {"", Kind::NoSize, 1},
      {"hello\n", Kind::NoSize, 1},
      {"[11*1]\n1\n", Kind::NoSize, 1},
      {"[2*2]\r\n1\t2\r\n3\r\n", Kind::OtherCells, 3},
      {"[2*2]\n1\t2\t3\n", Kind::OtherCells, 2},
      {"[2*1]\n1\n", Kind::NoRow, 3},
      {"[1*1]\n1\n\n2\n", Kind::RowLeft, 4},
  };
  for (const auto& row : table) {
    const auto read = ReadMatrixText(row.text);
    ASSERT_FALSE(read) << row.text;
    EXPECT_EQ(read.error().kind, row.kind) << row.text;
    EXPECT_EQ(read.error().line, row.line) << row.text;
  }
}

TEST(ReadMatrix, ReadsWhatPrintMatrixWrites) {
  test::Random random(5);
  constexpr std::u16string_view kCharacters = u"0123456789.-+eE,abc \r\u00E9\u00FF";
  for (int i = 0; i < 2000; ++i) {
    MatrixValue matrix;
    matrix.rows = static_cast<int>(random.Below(10)) + 1;
    matrix.columns = static_cast<int>(random.Below(10)) + 1;
    for (int row = 0; row < matrix.rows; ++row) {
      for (int column = 0; column < matrix.columns; ++column) {
        for (std::size_t n = random.Below(6); n > 0; --n) {
          matrix.At(row, column) += random.Of(kCharacters);
        }
      }
    }
    const auto read = ReadMatrix(PrintMatrix(matrix));
    ASSERT_TRUE(read) << PrintMatrix(matrix);
    ASSERT_TRUE(SameMatrix(*read, matrix)) << PrintMatrix(matrix);
  }
}

}  // namespace
}  // namespace kav::matrix_text_test
