#include "matrix/cell_table_text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/matrix_table.h"

namespace kav::cell_table_text_test {
namespace {

using test::MatrixOf;
using test::TableOf;

/// What ReadCells makes of `text`: "row,column=number" for each number, then both counts.
std::string Read(std::u16string_view text, int rows = kLargestMatrix,
                 int columns = kLargestMatrix) {
  const PastedCells cells = ReadCells(text, rows, columns);
  std::string shown;
  for (const PastedNumber& number : cells.numbers) {
    shown += std::to_string(number.row) + "," + std::to_string(number.column) + "=" +
             Narrow(number.text) + " ";
  }
  return shown + "beyond " + std::to_string(cells.beyond) + " refused " +
         std::to_string(cells.refused);
}

TEST(IsNumberText, WholeTextIsToBeAFiniteNumber) {
  for (const std::u16string_view text :
       {u"0", u"-1.5", u"+2", u"1e3", u"1E-3", u".5", u"5.", u" 7 ", u"1e308", u"1e-400"}) {
    EXPECT_TRUE(IsNumberText(text)) << Narrow(text);
  }
  for (const std::u16string_view text :
       {u"", u" ", u"x", u"1x", u"1 2", u"1,5", u"inf", u"-inf", u"nan", u"NaN", u"1e309",
        u"Out of range(overflow or underflow)", u"1.2.3", u"--1", u"１"}) {
    EXPECT_FALSE(IsNumberText(text)) << Narrow(text);
  }
}

TEST(PrintCells, CellsAreSeparatedByTabsAndRowsByLineFeeds) {
  const MatrixValue matrix = MatrixOf(u"1 2 3; 4 _ 6; 7 8 9");
  EXPECT_EQ(PrintCells(matrix, {0, 0, 2, 2}), u"1\t2\t3\n4\t\t6\n7\t8\t9");
  EXPECT_EQ(PrintCells(matrix, {1, 1, 2, 2}), u"\t6\n8\t9");
  EXPECT_EQ(PrintCells(matrix, {2, 0, 2, 0}), u"7");
  EXPECT_EQ(PrintCells(matrix, {0, 0, -1, -1}), u"");
}

TEST(PrintCells, CellNeverBreaksTheTable) {
  MatrixValue matrix = MatrixOf(u"1 2");
  matrix.At(0, 0) = u"a\tb\nc";
  EXPECT_EQ(PrintCells(matrix, {0, 0, 0, 1}), u"a b c\t2");
}

TEST(ReadCells, SeparatorsAreTabsOrElseCommasOrElseBlanks) {
  struct Row {
    std::u16string_view text;
    std::string_view read;
  };
  for (const Row& row : {
           Row{u"", "beyond 0 refused 0"},
           Row{u"5", "0,0=5 beyond 0 refused 0"},
           Row{u"1\t2\n3\t4", "0,0=1 0,1=2 1,0=3 1,1=4 beyond 0 refused 0"},
           Row{u"1\t2\r\n3\t4\r\n", "0,0=1 0,1=2 1,0=3 1,1=4 beyond 0 refused 0"},
           Row{u"1,2\n3,4\n", "0,0=1 0,1=2 1,0=3 1,1=4 beyond 0 refused 0"},
           Row{u"1, 2 ,3", "0,0=1 0,1=2 0,2=3 beyond 0 refused 0"},
           Row{u"1 2\n3 4", "0,0=1 0,1=2 1,0=3 1,1=4 beyond 0 refused 0"},
           Row{u"  1   2  ", "0,0=1 0,1=2 beyond 0 refused 0"},
           // If there is a TAB, commas and blanks are part of the cells.
           Row{u"1 2\t3", "0,1=3 beyond 0 refused 1"},
           Row{u"1\t2\n3,4", "0,0=1 0,1=2 beyond 0 refused 1"},
           Row{u"1,2\n3 4", "0,0=1 0,1=2 beyond 0 refused 1"},
       }) {
    EXPECT_EQ(Read(row.text), row.read) << Narrow(row.text);
  }
}

TEST(ReadCells, ThousandsSeparatorsAreTakenOffBetweenTabsOnly) {
  EXPECT_EQ(Read(u"1,234.5\t-12,345,678"), "0,0=1234.5 0,1=-12345678 beyond 0 refused 0");
  EXPECT_EQ(Read(u"1,234.5"), "0,0=1 0,1=234.5 beyond 0 refused 0");
}

TEST(ReadCells, EmptyCellsKeepTheirPlaceAndCountAsNothing) {
  EXPECT_EQ(Read(u"1\t\t3\n\t\n\n7\t8"), "0,0=1 0,2=3 3,0=7 3,1=8 beyond 0 refused 0");
  EXPECT_EQ(Read(u"1,,3"), "0,0=1 0,2=3 beyond 0 refused 0");
  EXPECT_EQ(Read(u"\n\n\n"), "beyond 0 refused 0");
  EXPECT_EQ(Read(u"   \n"), "beyond 0 refused 0");
}

TEST(ReadCells, TextsThatAreNoNumbersAreCounted) {
  EXPECT_EQ(Read(u"a\t2\ninf\tnan\n1e999\t#N/A"), "0,1=2 beyond 0 refused 5");
  EXPECT_EQ(Read(u"1;2"), "beyond 0 refused 1");
  EXPECT_EQ(Read(u",\t,,"), "beyond 0 refused 2");
}

TEST(ReadCells, OnlySoManyRowsAndColumnsAreTaken) {
  EXPECT_EQ(Read(u"1 2 3\n4 5 6\n7 8 9", 2, 2), "0,0=1 0,1=2 1,0=4 1,1=5 beyond 5 refused 0");
  EXPECT_EQ(Read(u"1\t\t\n\n\n", 1, 1), "0,0=1 beyond 0 refused 0");
  // Cells without room are not looked at.
  EXPECT_EQ(Read(u"1 x\ny 2", 1, 1), "0,0=1 beyond 3 refused 0");
}

TEST(ReadCells, NumberOfElevenHundredCharactersIsTheLongest) {
  const std::u16string longest = u"0." + std::u16string(1097, u'0') + u"1";
  ASSERT_EQ(longest.size(), 1100U);
  EXPECT_EQ(ReadCells(longest, 1, 1).numbers.size(), 1U);
  EXPECT_EQ(ReadCells(longest + u"1", 1, 1).refused, 1U);
}

TEST(ReadCells, TenMegabytesAreReadAtOnce) {
  const std::size_t kLength = test::Sized(10'000'000);
  std::u16string manyCells;
  while (manyCells.size() < kLength) manyCells += u"1\t2\t\n";
  const std::u16string texts[] = {std::u16string(kLength, u'1'),  std::u16string(kLength, u' '),
                                  std::u16string(kLength, u'\t'), std::u16string(kLength, u'\n'),
                                  std::u16string(kLength, u','),  manyCells};
  const auto start = std::chrono::steady_clock::now();
  for (const std::u16string& text : texts) {
    EXPECT_LE(ReadCells(text, kLargestMatrix, kLargestMatrix).numbers.size(), 100U);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  EXPECT_EQ(ReadCells(manyCells, 10, 10).beyond, 2 * (manyCells.size() / 5) - 20);
}

TEST(QuestionOfCells, BetweenTabsCommasSeparateNoCells) {
  EXPECT_EQ(QuestionOfCells(u"1\t2"), std::nullopt);
  EXPECT_EQ(QuestionOfCells(u"1,234.5\t2"), std::nullopt);
  const auto asked = QuestionOfCells(u"1,234\t2");
  ASSERT_TRUE(asked);
  EXPECT_EQ(asked->meanings, (std::vector{CommaMeaning::DecimalPoint, CommaMeaning::Grouping}));
  EXPECT_EQ(QuestionOfCells(u"1,2,3"), std::nullopt);
  EXPECT_TRUE(QuestionOfCells(u"1,2"));
}

TEST(CellsWithCommas, SemicolonsSeparateCellsWithDecimalCommas) {
  EXPECT_EQ(CellsWithCommas(u"1,5;2", CommaMeaning::DecimalPoint), u"1.5\t2");
  EXPECT_EQ(CellsWithCommas(u"1,234;2", CommaMeaning::Grouping), u"1234;2");
}

TEST(CellRefusal, CommasAreRefusedUnlessTheySeparateThousands) {
  for (const std::u16string_view text : {u"", u"1.5", u"abc", u"1,234,567", u"-1,234.5"}) {
    EXPECT_EQ(CellRefusal(text), std::nullopt) << Narrow(text);
  }
  for (const std::u16string_view text : {u"1,5", u"1,234", u"1,2,3", u"a,b", u",", u"1,5x"}) {
    EXPECT_TRUE(CellRefusal(text)) << Narrow(text);
  }
  EXPECT_EQ(TypedCell(u" -1,234.5"), u" -1234.5");
  EXPECT_EQ(TypedCell(u"a,b"), u"a,b");
}

TEST(Overwritten, NumbersComeInAndTheMatrixGrowsForThem) {
  struct Row {
    std::u16string_view matrix;
    int row;
    int column;
    std::u16string_view text;
    std::u16string_view after;
  };
  for (const Row& row : {
           Row{u"1 2; 3 4", 0, 0, u"5", u"5 2; 3 4"},
           Row{u"1 2; 3 4", 1, 1, u"5 6\n7 8", u"1 2 _; 3 5 6; _ 7 8"},
           Row{u"1 2; 3 4", 0, 0, u"x 7\n", u"1 7; 3 4"},
           Row{u"1 2; 3 4", 0, 0, u"\t\t\t\n\t9", u"1 2; 3 9"},
           Row{u"1", 0, 0, u"x x x", u"1"},
       }) {
    const PastedCells cells = ReadCells(row.text, 10, 10);
    EXPECT_EQ(TableOf(Overwritten(MatrixOf(row.matrix), row.row, row.column, cells)), row.after)
        << Narrow(row.text);
  }
}

}  // namespace
}  // namespace kav::cell_table_text_test
