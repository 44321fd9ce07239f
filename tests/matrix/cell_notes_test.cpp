#include "matrix/cell_notes.h"

#include <gtest/gtest.h>

#include "support/matrix_table.h"

namespace kav::cell_notes_test {
namespace {

constexpr DisplayFormat kFormat{DisplayType::FloatingPoint, 12};

TEST(CellNotes, NameCellsThatAreNoNumbersOnceForEachText) {
  Matrices matrices;
  matrices[0] = test::MatrixOf(u"1 2x; abc _");
  matrices[1] = test::MatrixOf(u"y");
  CellNotes notes;
  EXPECT_EQ(notes.NewsOf(u"3*[m1]", matrices, kFormat),
            u"[M1], row 1, column 2: \"2x\" is no number and counts as 2.\n"
            u"[M1], row 2, column 1: \"abc\" is no number and counts as 0.");
  EXPECT_EQ(notes.NewsOf(u"[M1]", matrices, kFormat), u"");
  matrices[0].At(0, 1) = u"5x";
  EXPECT_EQ(notes.NewsOf(u"[M1]", matrices, kFormat),
            u"[M1], row 1, column 2: \"5x\" is no number and counts as 5.");
  EXPECT_EQ(notes.NewsOf(u"[M2]", matrices, kFormat),
            u"[M2], row 1, column 1: \"y\" is no number and counts as 0.");
}

TEST(CellNotes, CountTheCellsBeyondTheThird) {
  Matrices matrices;
  matrices[2] = test::MatrixOf(u"a b c d e");
  const std::u16string news = CellNotes().NewsOf(u"[M3]", matrices, kFormat);
  EXPECT_NE(news.find(u"\"c\""), news.npos);
  EXPECT_EQ(news.find(u"\"d\""), news.npos);
  EXPECT_TRUE(news.ends_with(u"\n2 more cells are no numbers."));
}

}  // namespace
}  // namespace kav::cell_notes_test
