// The cells of the matrix screen.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "support/matrix_screen.h"

namespace kav::matrix_model_cells_test {
namespace {

using test::MatrixScreen;

TEST_F(MatrixScreen, CellThatIsNotEmptyIsCopiedIntoTheLine) {
  Fill(0, u"12.5 _");
  SetMarked(u"1+|");
  model_->BeginCellEdit(0, 1);
  EXPECT_EQ(MarkedNow(), u"1+|");
  model_->BeginCellEdit(5, 5);
  EXPECT_EQ(MarkedNow(), u"1+|");
  model_->BeginCellEdit(0, 0);
  EXPECT_EQ(MarkedNow(), u"[12.5]");
}

TEST_F(MatrixScreen, CellsThatAreNotWhollyANumberAreMarked) {
  struct Row {
    std::u16string_view text;
    bool isMarked;
  };
  for (const Row& row : {Row{u"", false}, Row{u"1", false}, Row{u"-1.5e-3", false},
                         Row{u" 2 ", false}, Row{u"1x", true}, Row{u"x", true}, Row{u" ", true},
                         Row{u"inf", true}, Row{u"nan", true}, Row{u"1e999", true},
                         Row{u"1,5", true}, Row{u"Out of range(overflow or underflow)", true}}) {
    model_->SetCell(1, 1, std::u16string(row.text));
    EXPECT_EQ(model_->IsMarked(1, 1), row.isMarked) << Narrow(row.text);
  }
  EXPECT_FALSE(model_->IsMarked(-1, 0));
  EXPECT_FALSE(model_->IsMarked(3, 0));
}

TEST_F(MatrixScreen, HintIsWhatACellIsReadAs) {
  struct Row {
    std::u16string_view text;
    std::u16string_view hint;
  };
  for (const Row& row : {Row{u"", u""}, Row{u"1234.50", u"1234.5"}, Row{u"1e3", u"1000"},
                         Row{u"1,5", u"1"}, Row{u"12abc", u"12"}, Row{u"abc", u"0"},
                         Row{u"Out of range(overflow or underflow)", u"0"}}) {
    model_->SetCell(0, 0, std::u16string(row.text));
    EXPECT_EQ(model_->CellHint(0, 0), row.hint) << Narrow(row.text);
  }
  EXPECT_EQ(model_->CellHint(9, 9), u"");
}

TEST_F(MatrixScreen, HintIsWrittenByTheMatrixDisplaySettings) {
  Set("Config", "Matrix Display Type", 1);
  Set("Config", "Matrix Precision", 3);
  Open();
  model_->SetCell(0, 0, u"1.5");
  EXPECT_EQ(model_->CellHint(0, 0), u"1.500");
}

TEST_F(MatrixScreen, CellsOfTheAnswerCanBeEdited) {
  model_->Show(3);
  model_->SetCell(0, 0, u"5");
  EXPECT_EQ(model_->PasteCells(0, 1, u"6 7"), std::nullopt);
  EXPECT_EQ(Table(3), u"5 6 7; _ _ _; _ _ _");
}

TEST_F(MatrixScreen, ExpressionOverClearedCellsIsInvalid) {
  Fill(0, u"1 2; 3 4");
  const MatrixRequest request = Press(u"M CLS");
  const auto* ask = std::get_if<AskFirst<MatrixKey>>(&request);
  ASSERT_NE(ask, nullptr);
  EXPECT_EQ(ask->key, MatrixKey::ClearCells);
  EXPECT_EQ(ask->question, u"Are you sure you want to delete the selected cell(s)?");
  EXPECT_EQ(Shown(), u"1 2; 3 4");
  model_->ClearCells({0, 0, 0, 1});
  EXPECT_EQ(Shown(), u"_ _; 3 4");
  EXPECT_EQ(Evaluate(u"[M1]"), u"Matrix [M1] is invalid");
}

TEST_F(MatrixScreen, SizeDialogOpensWithTheShownSize) {
  Fill(1, u"1 2 3; 4 5 6");
  model_->Show(1);
  const MatrixRequest request = Press(u"MSize");
  const auto* ask = std::get_if<AskMatrixSize>(&request);
  ASSERT_NE(ask, nullptr);
  EXPECT_EQ(ask->rows, 2);
  EXPECT_EQ(ask->columns, 3);
  model_->Resize(3, 2);
  EXPECT_EQ(Shown(), u"1 2; 4 5; _ _");
}

}  // namespace
}  // namespace kav::matrix_model_cells_test
