#include "matrix/matrix_model.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "support/is_stored.h"
#include "support/matrix_screen.h"

namespace kav::matrix_model_test {
namespace {

using test::MatrixScreen;
using Texts = std::vector<std::u16string>;

// The fresh screen and what it loads.

TEST_F(MatrixScreen, FreshScreenShowsAnEmptyThreeByThree) {
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_EQ(model_->ResultText(), u"");
  EXPECT_EQ(model_->Shown(), 0);
  for (int index = 0; index < 4; ++index) EXPECT_EQ(Table(index), u"_ _ _; _ _ _; _ _ _");
  EXPECT_EQ(model_->Widths(), UniformWidths(60));
  EXPECT_EQ(model_->Alignment(), CellAlignment::Left);
  EXPECT_EQ(model_->Caption(MatrixKey::Deg), u"DEG");
  EXPECT_FALSE(IsEnabled(MatrixKey::PlayBack));
  EXPECT_TRUE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_TRUE(IsEnabled(MatrixKey::Size));
  EXPECT_FALSE(model_->CanUndo());
  EXPECT_FALSE(model_->CanRedo());
}

TEST_F(MatrixScreen, NewMatricesAreAsTheSettingsSay) {
  Set("Config", "Matrix Default Row", 2);
  Set("Config", "Matrix Default Col", 4);
  Set("Config", "Matrix Default Value", 1);
  Set("Config", "Matrix Colum Width", 85);
  Set("Config", "Angle Type", 2);
  Open();
  EXPECT_EQ(Table(0), u"_ _ _ _; _ _ _ _");
  EXPECT_EQ(Table(3), u"_ _ _ _; _ _ _ _");
  EXPECT_EQ(model_->Alignment(), CellAlignment::Right);
  EXPECT_EQ(model_->Widths(), UniformWidths(85));
  EXPECT_EQ(model_->Caption(MatrixKey::Deg), u"RAD");
}

TEST_F(MatrixScreen, StoredSizesOutOfRangeAreBroughtIntoIt) {
  Set("Config", "Matrix Default Row", 0);
  Set("Config", "Matrix Default Col", 99);
  Open();
  EXPECT_EQ(model_->ShownMatrix().rows, 1);
  EXPECT_EQ(model_->ShownMatrix().columns, 10);
}

TEST_F(MatrixScreen, ScreenIsSavedUnderItsKeys) {
  Fill(0, u"1");
  Press(u"DEG");
  model_->TakeConverter({std::nullopt, {6, 1, 2}, 0});
  Evaluate(u"[M1]");
  Evaluate(u"[M1]*2");
  model_->Save();
  EXPECT_EQ(Stored("Config", "Angle Type"), 2);
  EXPECT_EQ(Stored("Convert", "ClassPos"), 6);
  EXPECT_EQ(Stored("Convert", "InputTypePos"), 1);
  EXPECT_EQ(Stored("Convert", "OutputTypePos"), 2);
  EXPECT_EQ(Stored("MHistory", "CalMHistoryCount"), 2);
  EXPECT_EQ(store_.Get(NumberedKey{"MHistory", "CalMHistory0", ""}), "[M1]");
  EXPECT_EQ(store_.Get(NumberedKey{"MHistory", "CalMHistory1", ""}), "[M1]*2");
  EXPECT_FALSE(test::IsStored(store_, "MHistory", "CalMHistory2"));
}

TEST_F(MatrixScreen, FreshScreenIsSavedAsTheDefaults) {
  model_->Save();
  EXPECT_EQ(Stored("Config", "Matrix Display Type"), 0);
  EXPECT_EQ(Stored("Config", "Matrix Precision"), 12);
  EXPECT_EQ(Stored("Config", "Matrix Default Row"), 3);
  EXPECT_EQ(Stored("Config", "Matrix Default Col"), 3);
  EXPECT_EQ(Stored("Config", "Matrix Default Value"), 0);
  EXPECT_EQ(Stored("Config", "Matrix Colum Width"), 60);
  EXPECT_EQ(Stored("Config", "Display Type"), 3);
  EXPECT_EQ(Stored("Config", "Precision"), 7);
  EXPECT_EQ(Stored("Config", "Angle Type"), 1);
  EXPECT_EQ(Stored("MHistory", "CalMHistoryCount"), 0);
}

TEST_F(MatrixScreen, IntegersThatTheScreenOnlyReadsAreSavedAsTheyWere) {
  const char* const names[] = {
      "Matrix Display Type",  "Matrix Precision",   "Matrix Default Row", "Matrix Default Col",
      "Matrix Default Value", "Matrix Colum Width", "Display Type",       "Precision"};
  std::int32_t value = -70;
  for (const char* name : names) Set("Config", name, value++);
  Open();
  model_->Save();
  value = -70;
  for (const char* name : names) EXPECT_EQ(Stored("Config", name), value++) << name;
}

TEST_F(MatrixScreen, NothingIsStoredBeforeSave) {
  Evaluate(u"[M1]");
  Press(u"DEG");
  EXPECT_FALSE(test::IsStored(store_, "MHistory", "CalMHistoryCount"));
  EXPECT_FALSE(test::IsStored(store_, "Config", "Angle Type"));
}

TEST_F(MatrixScreen, HistoryOutlivesTheScreen) {
  Fill(0, u"1");
  Evaluate(u"[M1]");
  model_->Save();
  Open();
  EXPECT_EQ(Entries(), (Texts{u"[M1]"}));
  EXPECT_TRUE(IsEnabled(MatrixKey::PlayBack));
}

// Whatever happens, nothing breaks.

TEST_F(MatrixScreen, RandomUseKeepsTheScreenWhole) {
  std::mt19937 random(5);
  const auto number = [&random](int most) {
    return static_cast<int>(random() % static_cast<unsigned>(most + 1));
  };
  const std::u16string_view texts[] = {u"1 2\n3 4", u"x\t7", u"[M1]*[M2]", u"", u"5", u"1e999"};
  for (int step = 0; step < 3000; ++step) {
    const std::u16string_view text = texts[number(5)];
    switch (number(11)) {
      case 0:
        model_->Show(number(5) - 1);
        break;
      case 1:
        model_->SetCell(number(10), number(10), std::u16string(text));
        break;
      case 2:
        model_->PasteCells(number(9), number(9), text);
        break;
      case 3:
        model_->ClearCells({number(9), number(9), number(9), number(9)});
        break;
      case 4:
        model_->Resize(number(12), number(12));
        break;
      case 5:
        model_->Undo();
        break;
      case 6:
        model_->Redo();
        break;
      case 7:
        model_->Choose(MatrixKey::MatrixTools, number(8));
        break;
      case 8:
        model_->Choose(MatrixKeyRows()[static_cast<std::size_t>(number(31))].key, number(21));
        break;
      case 9:
        model_->Press(MatrixKeyRows()[static_cast<std::size_t>(number(31))].key);
        break;
      case 10:
        Evaluate(text);
        break;
      default:
        model_->TakeMacro(number(3) - 1);
        break;
    }
    for (const MatrixValue& matrix : model_->AllMatrices()) {
      ASSERT_TRUE(matrix.rows >= 1 && matrix.rows <= 10) << step;
      ASSERT_TRUE(matrix.columns >= 1 && matrix.columns <= 10) << step;
    }
    ASSERT_TRUE(model_->Shown() >= 0 && model_->Shown() <= 3) << step;
    ASSERT_LE(model_->MenuOf(MatrixKey::PlayBack).size(), 20U) << step;
  }
  while (model_->CanUndo()) model_->Undo();
  model_->Save();
}

}  // namespace
}  // namespace kav::matrix_model_test
