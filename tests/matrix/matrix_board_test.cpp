#include "matrix/matrix_board.h"

#include <gtest/gtest.h>

#include "common/number_text.h"
#include "support/matrix_table.h"
#include "support/temporary_folder.h"

namespace kav::matrix_board_test {
namespace {

using test::MatrixOf;
using test::TableOf;

DisplaySettings TwoByTwo() {
  DisplaySettings settings;
  settings.matrixRows = 2;
  settings.matrixColumns = 2;
  settings.columnWidth = 60;
  return settings;
}

class Board : public testing::Test {
 protected:
  std::u16string Shown() const { return TableOf(board_.Shown()); }
  std::u16string Table(std::size_t index) const { return TableOf(board_.All()[index]); }
  /// Makes the shown matrix 1 2; 3 4.
  void Fill() { board_.PasteCells(0, 0, u"1 2\n3 4"); }

  MatrixBoard board_{TwoByTwo()};
};

TEST_F(Board, AllMatricesStartEmptyAndTheFirstIsShown) {
  for (std::size_t index = 0; index < 4; ++index) EXPECT_EQ(Table(index), u"_ _; _ _");
  EXPECT_EQ(board_.ShownIndex(), 0);
  EXPECT_TRUE(board_.IsOpen());
  EXPECT_EQ(board_.Widths(), UniformWidths(60));
  EXPECT_FALSE(board_.CanUndo());
}

TEST_F(Board, AnswerIsNotOpen) {
  board_.Show(3);
  EXPECT_FALSE(board_.IsOpen());
  board_.Show(2);
  EXPECT_TRUE(board_.IsOpen());
}

TEST_F(Board, MatrixThatIsNotThereIsNotShown) {
  board_.Show(1);
  board_.Show(-1);
  board_.Show(4);
  EXPECT_EQ(board_.ShownIndex(), 1);
}

TEST_F(Board, LockEndsWithAnyChoiceOfATab) {
  board_.Lock();
  EXPECT_FALSE(board_.IsOpen());
  board_.Show(0);
  EXPECT_TRUE(board_.IsOpen());
  board_.Lock();
  board_.Show(1);
  EXPECT_TRUE(board_.IsOpen());
}

TEST_F(Board, TextsOfCellsAreTakenAsTheyAre) {
  board_.SetCell(0, 1, u" 1e3 ");
  board_.SetCell(1, 0, u"abc");
  EXPECT_EQ(board_.CellText(0, 1), u" 1e3 ");
  EXPECT_EQ(board_.CellText(1, 0), u"abc");
  EXPECT_EQ(board_.CellText(0, 0), u"");
}

TEST_F(Board, TextOfACellStaysOnOneLine) {
  board_.SetCell(0, 0, u"1\t2\r\n3");
  EXPECT_EQ(board_.CellText(0, 0), u"1 2  3");
}

TEST_F(Board, CellThatIsNotThereIsEmptyAndStaysSo) {
  struct Row {
    int row;
    int column;
  };
  for (const Row& cell : {Row{-1, 0}, Row{0, -1}, Row{2, 0}, Row{0, 2}, Row{99, 99}}) {
    board_.SetCell(cell.row, cell.column, u"5");
    EXPECT_EQ(board_.CellText(cell.row, cell.column), u"");
    EXPECT_EQ(board_.PasteCells(cell.row, cell.column, u"5"), std::nullopt);
  }
  EXPECT_EQ(Shown(), u"_ _; _ _");
  EXPECT_FALSE(board_.CanUndo());
}

TEST_F(Board, OneSelectedCellCopiesTheWholeMatrix) {
  Fill();
  EXPECT_EQ(board_.CopyCells({1, 1, 1, 1}), u"1\t2\n3\t4");
  EXPECT_EQ(board_.CopyCells({-1, -1, -1, -1}), u"1\t2\n3\t4");
  EXPECT_EQ(board_.CopyCells({0, 1, 1, 1}), u"2\n4");
  EXPECT_EQ(board_.CopyCells({0, 0, 99, 0}), u"1\n3");
}

TEST_F(Board, CopiedCellsArePastedAsTheyWere) {
  Fill();
  const std::u16string text = board_.CopyCells({0, 0, 1, 1});
  board_.Show(1);
  EXPECT_EQ(board_.PasteCells(0, 0, text), std::nullopt);
  EXPECT_EQ(Table(1), Table(0));
}

TEST_F(Board, PasteGrowsTheMatrixUpToTenByTen) {
  Fill();
  EXPECT_EQ(board_.PasteCells(1, 1, u"5\t6\n7\t8"), std::nullopt);
  EXPECT_EQ(Shown(), u"1 2 _; 3 5 6; _ 7 8");
  std::u16string row;
  for (int i = 0; i < 12; ++i) row += u"9 ";
  EXPECT_EQ(board_.PasteCells(0, 0, row), u"2 cells did not fit into the matrix.");
  EXPECT_EQ(board_.Shown().columns, 10);
  EXPECT_EQ(board_.Shown().rows, 3);
}

TEST_F(Board, PasteTellsInOneMessageWhatWasLeftOut) {
  struct Row {
    std::u16string_view text;
    std::u16string_view told;
  };
  board_.Resize(10, 10);
  for (const Row& row : {
           Row{u"1\n2", u"1 cell did not fit into the matrix."},
           Row{u"1 2\n3", u"2 cells did not fit into the matrix."},
           Row{u"x",
               u"Nothing was pasted: \"x\" in row 1, column 1 of the pasted cells is no "
               u"number."},
           Row{u"inf 2",
               u"Nothing was pasted: \"inf\" in row 1, column 1 of the pasted cells is "
               u"no number."},
       }) {
    EXPECT_EQ(board_.PasteCells(9, 9, row.text), row.told);
  }
  EXPECT_EQ(board_.CellText(9, 9), u"1");
}

TEST_F(Board, TextThatIsNoNumberKeepsAllOfItsBlockOut) {
  Fill();
  EXPECT_EQ(board_.PasteCells(0, 0, u"5\t6\n7\tx\ty"),
            u"Nothing was pasted: \"x\" in row 2, column 2 of the pasted cells is no number.");
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(Board, SingleNumberFillsWhatItIsPastedInto) {
  board_.Resize(3, 3);
  EXPECT_EQ(board_.PasteInto({0, 1, 9, 9}, u"5\n"), std::nullopt);
  EXPECT_EQ(Shown(), u"_ 5 5; _ 5 5; _ 5 5");
  EXPECT_EQ(board_.PasteInto({1, 0, 2, 1}, u"7 8"), std::nullopt);
  EXPECT_EQ(Shown(), u"_ 5 5; 7 8 5; _ 5 5");
  EXPECT_EQ(board_.PasteInto({0, 0, 1, 0}, u"\n9"), std::nullopt);
  EXPECT_EQ(Shown(), u"_ 5 5; 9 8 5; _ 5 5");
}

TEST_F(Board, WhatIsCutIsWhatIsEmptied) {
  Fill();
  EXPECT_EQ(board_.CutCells({1, 0, 1, 0}), u"3");
  EXPECT_EQ(Shown(), u"1 2; _ 4");
  EXPECT_EQ(board_.CutCells({0, 0, 0, 9}), u"1\t2");
  EXPECT_EQ(Shown(), u"_ _; _ 4");
}

TEST_F(Board, PasteOfNothingIsNoStep) {
  EXPECT_EQ(board_.PasteCells(0, 0, u""), std::nullopt);
  EXPECT_EQ(board_.PasteCells(0, 0, u" \n \n"), std::nullopt);
  EXPECT_FALSE(board_.CanUndo());
}

TEST_F(Board, ClipboardHoldsSizeCellsAndWidths) {
  board_.PasteCells(0, 0, u"1 2 3");
  board_.SetWidths(UniformWidths(33));
  board_.Copy();
  EXPECT_EQ(Shown(), u"1 2 3; _ _ _");
  board_.Show(1);
  board_.Paste();
  EXPECT_EQ(Shown(), u"1 2 3; _ _ _");
  EXPECT_EQ(board_.Widths(), UniformWidths(33));
  board_.Show(2);
  EXPECT_EQ(board_.Widths(), UniformWidths(60));
}

TEST_F(Board, CutLeavesEmptyCellsOfTheSameSize) {
  Fill();
  board_.SetWidths(UniformWidths(33));
  board_.Cut();
  EXPECT_EQ(Shown(), u"_ _; _ _");
  EXPECT_EQ(board_.Widths(), UniformWidths(33));
  board_.Show(1);
  board_.Paste();
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(Board, PasteOfAnEmptyClipboardDoesNothing) {
  Fill();
  board_.Paste();
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(Board, ClipboardKeepsWhatWasCopied) {
  Fill();
  board_.Copy();
  board_.SetCell(0, 0, u"9");
  board_.Paste();
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(Board, HeaderColumnKeepsItsWidth) {
  ColumnWidths widths = UniformWidths(44);
  widths[0] = 90;
  widths[3] = 7;
  board_.SetWidths(widths);
  EXPECT_EQ(board_.Widths()[0], 20);
  EXPECT_EQ(board_.Widths()[1], 44);
  EXPECT_EQ(board_.Widths()[3], 7);
}

TEST_F(Board, EachKindOfChangeIsOneStep) {
  const TemporaryFolder folder;
  PutFile(folder.File("m.txt"), "[1*2]\r\n8\t9\r\n");
  struct Row {
    const char* name;
    void (*change)(MatrixBoard& board, const std::string& file);
    std::u16string_view after;
  };
  const Row rows[] = {
      {"cell", [](MatrixBoard& board, const std::string&) { board.SetCell(0, 0, u"5"); },
       u"5 2; 3 4"},
      {"paste",
       [](MatrixBoard& board, const std::string&) { board.PasteCells(0, 0, u"5 6 7\n8 9"); },
       u"5 6 7; 8 9 _"},
      {"clear",
       [](MatrixBoard& board, const std::string&) {
         board.ClearCells({0, 0, 1, 0});
       },
       u"_ 2; _ 4"},
      {"cut", [](MatrixBoard& board, const std::string&) { board.Cut(); }, u"_ _; _ _"},
      {"size", [](MatrixBoard& board, const std::string&) { board.Resize(1, 3); }, u"1 2 _"},
      {"load", [](MatrixBoard& board, const std::string& file) { board.LoadFrom(file); }, u"8 9"},
      {"answer", [](MatrixBoard& board, const std::string&) { board.TakeAnswer(MatrixOf(u"7 7")); },
       u"7 7"},
  };
  for (const Row& row : rows) {
    MatrixBoard board(TwoByTwo());
    board.PasteCells(0, 0, u"1 2\n3 4");
    row.change(board, folder.File("m.txt"));
    EXPECT_EQ(TableOf(board.Shown()), row.after) << row.name;
    const int changed = board.ShownIndex();
    board.Undo();
    EXPECT_EQ(TableOf(board.All()[0]), u"1 2; 3 4") << row.name;
    EXPECT_EQ(TableOf(board.All()[3]), u"_ _; _ _") << row.name;
    board.Redo();
    EXPECT_EQ(TableOf(board.Shown()), row.after) << row.name;
    EXPECT_EQ(board.ShownIndex(), changed) << row.name;
    board.Undo();
    board.Undo();
    EXPECT_FALSE(board.CanUndo()) << row.name;
  }
}

TEST_F(Board, UndoOfMatrixPasteBringsTheWidthsBack) {
  board_.SetWidths(UniformWidths(33));
  board_.Copy();
  board_.Show(1);
  board_.Paste();
  EXPECT_EQ(board_.Widths(), UniformWidths(33));
  board_.Undo();
  EXPECT_EQ(board_.Widths(), UniformWidths(60));
}

TEST_F(Board, UndoShowsTheMatrixThatChanges) {
  Fill();
  board_.Show(2);
  board_.Undo();
  EXPECT_EQ(board_.ShownIndex(), 0);
  board_.Show(3);
  board_.Redo();
  EXPECT_EQ(board_.ShownIndex(), 0);
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(Board, UndoOfTheShownMatrixEndsNoLock) {
  Fill();
  board_.Lock();
  board_.Undo();
  EXPECT_FALSE(board_.IsOpen());
}

TEST_F(Board, SavedMatrixIsLoadedAgain) {
  const TemporaryFolder folder;
  board_.PasteCells(0, 0, u"1 2 3\n4 5 6");
  EXPECT_EQ(board_.SaveTo(folder.File("m.txt")), std::nullopt);
  EXPECT_EQ(FileContent(folder.File("m.txt")), "[2*3]\r\n1\t2\t3\r\n4\t5\t6\r\n");
  board_.Show(1);
  EXPECT_EQ(board_.LoadFrom(folder.File("m.txt")), std::nullopt);
  EXPECT_EQ(Shown(), u"1 2 3; 4 5 6");
}

TEST_F(Board, LoadedCellsHaveNoCommas) {
  const TemporaryFolder folder;
  PutFile(folder.File("m.txt"), "[1*2]\r\n1,234\t-1,000,000.5\r\n");
  EXPECT_EQ(board_.LoadFrom(folder.File("m.txt")), std::nullopt);
  EXPECT_EQ(Shown(), u"1234 -1000000.5");
}

TEST_F(Board, FileThatIsNoMatrixIsInvalidAndChangesNothing) {
  const TemporaryFolder folder;
  PutFile(folder.File("ü.txt"), "not a matrix");
  Fill();
  for (const std::string& path : {folder.File("ü.txt"), folder.File("missing"), folder.Path()}) {
    EXPECT_EQ(board_.LoadFrom(path), Widen(path) + u" is invalid.");
    EXPECT_EQ(Shown(), u"1 2; 3 4");
  }
}

TEST_F(Board, SaveThatFailsIsTold) {
  const TemporaryFolder folder;
  Fill();
  const auto told = board_.SaveTo(folder.File("missing/m.txt"));
  ASSERT_TRUE(told);
  EXPECT_NE(told->find(u"missing"), std::u16string::npos);
}

}  // namespace
}  // namespace kav::matrix_board_test
