// What is typed and pasted into the cells of the matrix screen, and cut out of them.
#include <gtest/gtest.h>

#include <QClipboard>
#include <string>
#include <string_view>
#include <utility>

#include "screens/matrix_driver.h"
#include "screens/offer_driver.h"

namespace kav::test::matrix_paste_test {
namespace {

class MatrixPasteTest : public MatrixScreen {
 protected:
  void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  /// Pastes a text whose commas are asked about, and answers with `meaning`.
  void PasteAs(const QString& text, const QString& meaning) {
    Paste(text);
    TapOffer(*dlg_, meaning);
    EXPECT_EQ(Asked(*dlg_), "") << text.toStdString();
  }
  void Clear() {
    ClickCell(1, 1);
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Delete);
    Resize(3, 3);
    ClickCell(1, 1);
  }
  static std::string Clipboard() { return QApplication::clipboard()->text().toStdString(); }
};

TEST_F(MatrixPasteTest, CommasOfWhatIsPastedAreAskedAbout) {
  struct Row {
    const char* text;
    const char* meaning;
    const char* cells;
  };
  for (const Row& row : {
           Row{"1,5\n2\n3,25", "1.5", "1.5 _ _;2 _ _;3.25 _ _"},
           Row{"1,234\n5,678", "1234", "1234 _ _;5678 _ _;_ _ _"},
           Row{"1,234\n5,678", "1.234", "1.234 _ _;5.678 _ _;_ _ _"},
           Row{"1,234\n5,678", "1 | 234", "1 234 _;5 678 _;_ _ _"},
           Row{"1,5", "1.5", "1.5 _ _;_ _ _;_ _ _"},
           Row{"1,5;2,5", "1.5", "1.5 2.5 _;_ _ _;_ _ _"},
           Row{"1;2,5", "2.5", "1 2.5 _;_ _ _;_ _ _"},
           Row{"1,5\t2", "1.5", "1.5 2 _;_ _ _;_ _ _"},
       }) {
    Clear();
    PasteAs(row.text, row.meaning);
    EXPECT_EQ(Cells(), row.cells) << row.text;
  }
  Clear();
  Paste("1,5");
  EXPECT_EQ(Asked(*dlg_), "What is 1,5?");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixPasteTest, ThousandsBetweenTabsAreNoQuestion) {
  ClickCell(1, 1);
  Paste("1,234.5\t2,000,000");
  EXPECT_EQ(Cells(), "1234.5 2000000 _;_ _ _;_ _ _");
}

TEST_F(MatrixPasteTest, ABlockIsPastedAsAWholeOrNotAtAll) {
  TypeCells(1, 1, "7");
  ClickCell(1, 1);
  ExpectBox();
  Paste("1\t2\nx y\t4");
  ExpectSeen(u"Nothing was pasted: \"x y\" in row 2, column 1 of the pasted cells is no number.",
             QMessageBox::Warning);
  EXPECT_EQ(Cells(), "7 _ _;_ _ _;_ _ _");
}

TEST_F(MatrixPasteTest, OneValueFillsWhatIsSelected) {
  ClickCell(1, 1);
  ClickCell(2, 3, Qt::ShiftModifier);
  Paste("4\n");
  EXPECT_EQ(Cells(), "4 4 4;4 4 4;_ _ _");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

TEST_F(MatrixPasteTest, WhatIsCutIsWhatIsEmptied) {
  TypeMatrix("1 2 3;4 5 6;7 8 9");
  ClickCell(2, 2);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "5");
  EXPECT_EQ(Cells(), "1 2 3;4 _ 6;7 8 9");
  ClickCell(3, 3);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Cells(), "1 2 3;4 _ 6;7 8 5");
}

TEST_F(MatrixPasteTest, ATypedCommaIsAskedAboutBesideTheGrid) {
  for (const auto& [typed, answer] :
       {std::pair{"1,5", "1.5"}, std::pair{"1,234", "1234"}, std::pair{"1.234,5", "1234.5"}}) {
    ClickCell(1, 1);
    Type(typed);
    Key(Qt::Key_Return);
    QCoreApplication::processEvents();
    TapOffer(*dlg_, answer);
    EXPECT_EQ(Cells(), std::string(answer) + " _ _;_ _ _;_ _ _");
    EXPECT_FALSE(Grid().IsEditing());
  }
}

TEST_F(MatrixPasteTest, ATypedCommaThatStaysIsRefusedAndTheTextStaysInTheBox) {
  TypeCells(1, 1, "7");
  for (const char* text : {"1,5", "1,234", "1,2,3"}) {
    ClickCell(1, 1);
    Type(text);
    if (text != std::string("1,2,3")) {
      Key(Qt::Key_Return);
      QCoreApplication::processEvents();
      EXPECT_NE(Asked(*dlg_), "") << text;
      Key(Qt::Key_Escape);
      EXPECT_TRUE(Grid().IsEditing()) << text;
    }
    ExpectBox();
    Key(Qt::Key_Return);
    QCoreApplication::processEvents();
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U) << text;
    EXPECT_NE(seen.front().text.find(ToQt(u"\"").append(text).append("\"").toStdU16String()),
              std::u16string::npos)
        << text;
    EXPECT_TRUE(Grid().IsEditing()) << text;
    EXPECT_EQ(Grid().Focus(), (GridCell{1, 1})) << text;
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cells(), "7 _ _;_ _ _;_ _ _") << text;
  }
}

TEST_F(MatrixPasteTest, ARefusedTextStopsTheKeyThatEndsItsEdit) {
  Resize(1, 1);
  TypeCells(1, 1, "7");
  Put(u"[M1]*2");
  ClickCell(1, 1);
  Type("1,5");
  Put(u"[M1]*2");
  Tap(u"=");
  QCoreApplication::processEvents();
  EXPECT_EQ(Asked(*dlg_), "15 or 1.5?");
  EXPECT_EQ(Tab(), u"[M1]");
  Key(Qt::Key_Escape);
}

TEST_F(MatrixPasteTest, TypedThousandsAreTakenWithoutTheirCommas) {
  TypeCells(1, 1, "1,234.5 2,000,000");
  EXPECT_EQ(Cells(), "1234.5 2000000 _;_ _ _;_ _ _");
}

TEST_F(MatrixPasteTest, ForeignSpellingOfCellsIsReadAsItIsMeant) {
  ClickCell(1, 1);
  Paste("1\u202F234\t−5\n1'000'000\t２");
  EXPECT_EQ(Cells(), "1234 -5 _;1000000 2 _;_ _ _");
  TypeCells(1, 1, "1'234 2,000,000");
  EXPECT_EQ(Cells(), "1234 2000000 _;1000000 2 _;_ _ _");
  ClickCell(3, 3);
  Type("1 234");
  Key(Qt::Key_Return);
  EXPECT_EQ(Cells(), "1234 2000000 _;1000000 2 _;_ _ 1234");
}

TEST_F(MatrixPasteTest, ABlockThatIsPastedIntoTheBoxGoesToTheGrid) {
  TypeCells(1, 1, "7");
  ClickCell(1, 1);
  Key(Qt::Key_F2);
  Paste("1\t2\n3\t4\n");
  EXPECT_FALSE(Grid().IsEditing());
  EXPECT_EQ(Cells(), "1 2 _;3 4 _;_ _ _");
  ClickCell(1, 1);
  Key(Qt::Key_F2);
  Key(Qt::Key_End);
  Paste("5\n");
  EXPECT_TRUE(Grid().IsEditing()) << "a single value is typed";
  Key(Qt::Key_Return);
  EXPECT_EQ(Cells(), "15 2 _;3 4 _;_ _ _");
}

}  // namespace
}  // namespace kav::test::matrix_paste_test
