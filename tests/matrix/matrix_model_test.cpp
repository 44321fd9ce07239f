#include "matrix/matrix_model.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "support/is_stored.h"
#include "support/matrix_screen.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav {
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
  EXPECT_EQ(model_->Angle(), AngleUnit::Degrees);
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

// "=" on a matrix expression.

TEST_F(MatrixScreen, ResultBecomesTheAnswerAndIsShown) {
  Fill(0, u"1 2; 3 4");
  Fill(1, u"10 20; 30 40");
  EXPECT_EQ(Evaluate(u"[M1]+[M2]"), u"");
  EXPECT_EQ(model_->Shown(), 3);
  EXPECT_EQ(Shown(), u"11 22; 33 44");
  EXPECT_EQ(Table(0), u"1 2; 3 4");
  EXPECT_EQ(Table(1), u"10 20; 30 40");
  EXPECT_EQ(MarkedNow(), u"[[M1]+[M2]]");
  EXPECT_EQ(model_->Line().Selected(), (Selection{0, 9}));
}

TEST_F(MatrixScreen, CaseAndBlanksDoNotCount) {
  Fill(0, u"1 2");
  EXPECT_EQ(Evaluate(u"  TRANSPOSE([m1])  "), u"");
  EXPECT_EQ(Shown(), u"1; 2");
  EXPECT_EQ(Entries(), (Texts{u"TRANSPOSE([m1])"}));
  EXPECT_EQ(model_->Line().Text(), u"  TRANSPOSE([m1])  ");
  EXPECT_EQ(model_->Line().Selected(), (Selection{0, 19}));
}

TEST_F(MatrixScreen, FailureIsToldAndTheAnswerStays) {
  Fill(0, u"1 2; 3 4");
  Fill(1, u"1 2 3");
  Fill(3, u"7");
  struct Row {
    std::u16string_view line;
    std::u16string_view told;
  };
  for (const Row& row : {
           Row{u"[M1]+[M2]", u"[Matrix Addition(+)] Matrix Size Mismatch"},
           Row{u"inverse", u"(inverse) needs an argument."},
           Row{u"sin([M1])", u"sin is not supported."},
           Row{u"[M4]", u"[m4] is not supported."},
           Row{u"[M1]/2", u"/ is not supported."},
           Row{u"[M1]^2.5", u"Matrix Power(^) is not supported non-integer and negative integer."},
           Row{u"determinant(2)", u"[Matrix Determinant] Matrix Argument Error"},
           Row{u"(([M1])", u"Not matched '(' and ')'."},
           Row{u"[M1],[M2]", u"Expression error."},
           Row{u"[", u"[ is not supported."},
       }) {
    model_->Show(1);
    EXPECT_EQ(Evaluate(row.line), row.told) << Narrow(row.line);
    EXPECT_EQ(Table(3), u"7");
    EXPECT_EQ(model_->Shown(), 1);
    EXPECT_EQ(model_->Line().Selected(), (Selection{0, row.line.size()}));
    EXPECT_EQ(model_->ResultText(), u"");
    EXPECT_EQ(Entries().back(), row.line);
  }
}

TEST_F(MatrixScreen, MissingTemporaryFolderIsToldAndTheMatricesStay) {
  const TemporaryFolder folder;
  const char* before = std::getenv("TMPDIR");
  const std::optional<std::string> kept =
      before == nullptr ? std::nullopt : std::optional<std::string>(before);
  setenv("TMPDIR", folder.File("missing").c_str(), 1);
  Open();
  if (kept) {
    setenv("TMPDIR", kept->c_str(), 1);
  } else {
    unsetenv("TMPDIR");
  }
  Fill(0, u"1 2; 3 4");
  Fill(3, u"7");
  EXPECT_EQ(Evaluate(u"[M1]*2+[M1]"), u"System Error : Check your freespace on PDA");
  EXPECT_EQ(Table(0), u"1 2; 3 4");
  EXPECT_EQ(Table(3), u"7");
  EXPECT_EQ(model_->Shown(), 0);
}

TEST_F(MatrixScreen, FirstInvalidMatrixThatTheLineNamesStopsIt) {
  struct Row {
    std::u16string_view line;
    std::u16string_view told;
  };
  for (const Row& row : {
           Row{u"[M1]", u"Matrix [M1] is invalid"},
           Row{u"[m2]*[M3]", u"Matrix [M2] is invalid"},
           Row{u"[M3]+[M2]", u"Matrix [M2] is invalid"},
           Row{u"[M Ans]*[M3]", u"Matrix [M3] is invalid"},
           Row{u"[m ans]", u"Matrix [M Ans] is invalid"},
           Row{u"foo([M1])", u"Matrix [M1] is invalid"},
       }) {
    EXPECT_EQ(Evaluate(row.line), row.told) << Narrow(row.line);
    EXPECT_EQ(Entries().back(), row.line);
    EXPECT_EQ(model_->Line().Selected(), (Selection{0, row.line.size()}));
  }
}

TEST_F(MatrixScreen, InvalidMatrixThatIsNotNamedIsNotLookedAt) {
  Fill(1, u"2");
  EXPECT_EQ(Evaluate(u"[M2]*3"), u"");
  EXPECT_EQ(Shown(), u"6");
}

TEST_F(MatrixScreen, ResultCanBeUndone) {
  Fill(0, u"5");
  Evaluate(u"[M1]");
  model_->Undo();
  EXPECT_EQ(Table(3), u"_ _ _; _ _ _; _ _ _");
  model_->Redo();
  EXPECT_EQ(Table(3), u"5");
}

TEST_F(MatrixScreen, ClearingAndSizingRestUntilTheNextTabChange) {
  Fill(0, u"1");
  EXPECT_EQ(Evaluate(u"[M1]*[M1]^-1"),
            u"Matrix Power(^) is not supported non-integer and "
            u"negative integer.");
  EXPECT_EQ(model_->Shown(), 0);
  EXPECT_FALSE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_FALSE(IsEnabled(MatrixKey::Size));
  EXPECT_TRUE(std::holds_alternative<Nothing>(Press(u"MSize")));
  model_->Show(0);
  EXPECT_TRUE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_TRUE(IsEnabled(MatrixKey::Size));
  Evaluate(u"[M1]");
  EXPECT_FALSE(IsEnabled(MatrixKey::Size));
  model_->Show(1);
  EXPECT_TRUE(IsEnabled(MatrixKey::Size));
  model_->Show(3);
  EXPECT_FALSE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_FALSE(IsEnabled(MatrixKey::Size));
}

TEST_F(MatrixScreen, InvalidMatrixCanBeMendedAtOnce) {
  Evaluate(u"[M1]");
  EXPECT_TRUE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_TRUE(IsEnabled(MatrixKey::Size));
}

// History.

TEST_F(MatrixScreen, NewestExpressionIsNotAddedAgain) {
  Fill(0, u"1");
  for (const std::u16string_view line : {u"[M1]", u" [M1] ", u"[M1]*2", u"[M1]"}) Evaluate(line);
  EXPECT_EQ(Entries(), (Texts{u"[M1]", u"[M1]*2", u"[M1]"}));
}

TEST_F(MatrixScreen, TwentyFirstExpressionPushesOutTheOldest) {
  for (int number = 1; number <= 21; ++number) {
    Evaluate(u"[M1]*" + Widen(std::to_string(number)));
  }
  ASSERT_EQ(Entries().size(), 20U);
  EXPECT_EQ(Entries().front(), u"[M1]*2");
  EXPECT_EQ(Entries().back(), u"[M1]*21");
}

TEST_F(MatrixScreen, NumberExpressionsAreNotInTheHistory) {
  Evaluate(u"1+1");
  Evaluate(u"1/0");
  EXPECT_TRUE(Entries().empty());
}

// "=" on a number expression.

TEST_F(MatrixScreen, NumbersAreShownOnTheResultLine) {
  EXPECT_EQ(Evaluate(u" 1234.5*2 "), u"");
  EXPECT_EQ(model_->ResultText(), u"2,469");
  EXPECT_EQ(model_->Line().Text(), u" 1234.5*2 ");
  EXPECT_EQ(model_->Line().Selected(), (Selection{0, 10}));
  EXPECT_EQ(model_->Shown(), 0);
  EXPECT_TRUE(IsEnabled(MatrixKey::Size));
}

TEST_F(MatrixScreen, AngleUnitIsThatOfTheKey) {
  Evaluate(u"sin(30)");
  EXPECT_EQ(model_->ResultText(), u"0.5");
  Press(u"DEG");
  EXPECT_EQ(model_->Caption(MatrixKey::Deg), u"RAD");
  Evaluate(u"sin(pi/2)");
  EXPECT_EQ(model_->ResultText(), u"1");
  Press(u"RAD");
  Evaluate(u"cos(60)");
  EXPECT_EQ(model_->ResultText(), u"0.5");
}

TEST_F(MatrixScreen, MacrosAreCalledInNumberExpressions) {
  test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}, {"inverse", "TYPE1 : F(X)", "1/x"}});
  Evaluate(u"2*M:F( 3 )");
  EXPECT_EQ(model_->ResultText(), u"18");
  Evaluate(u"M:inverse(4)");
  EXPECT_EQ(model_->ResultText(), u"0.25");
}

TEST_F(MatrixScreen, FailureOfANumberExpressionIsShownOnTheResultLine) {
  test::StoreMacros(store_, {{"F", "TYPE1 : F(X)", "x^2"}, {"bad", "TYPE1 : F(X)", "x+foo"}});
  struct Row {
    std::u16string_view line;
    std::u16string_view message;
  };
  for (const Row& row : {
           Row{u"", u"There is no expression."},
           Row{u"   ", u"There is no expression."},
           Row{u"2M:F(3)", u"Expression error."},
           Row{u"M:F(3,4)", u"Macro argument error"},
           Row{u"M:bad(3)", u"Macro formula is invalid"},
           Row{u"M:G(3)", u"Macro Name error"},
           Row{u"1/0", u"Division exceeded calculation limit."},
           Row{u"(1", u"Not matched '(' and ')'."},
           Row{u"1e400", u"Out of range(overflow or underflow)"},
       }) {
    EXPECT_EQ(Evaluate(row.line), u"") << Narrow(row.line);
    EXPECT_EQ(model_->ResultText(), row.message) << Narrow(row.line);
    EXPECT_EQ(model_->Line().Selected(), (Selection{0, row.line.size()}));
  }
}

TEST_F(MatrixScreen, NumberExpressionDoesNothingBesideTheAnswer) {
  Evaluate(u"1+1");
  model_->Show(3);
  SetMarked(u"2+|2");
  EXPECT_TRUE(std::holds_alternative<Nothing>(Press(u"=")));
  EXPECT_EQ(model_->ResultText(), u"2");
  EXPECT_EQ(MarkedNow(), u"2+|2");
  SetMarked(u"|");
  Press(u"=");
  EXPECT_EQ(model_->ResultText(), u"2");
}

TEST_F(MatrixScreen, MatrixExpressionLeavesTheResultLine) {
  Fill(0, u"1");
  Evaluate(u"1+1");
  Evaluate(u"[M1]");
  EXPECT_EQ(model_->ResultText(), u"2");
}

TEST_F(MatrixScreen, ResultFollowsTheDisplaySettings) {
  Evaluate(u"1234.5*2");
  Set("Config", "Display Type", 1);
  Set("Config", "Precision", 2);
  Set("Config", "Matrix Colum Width", 90);
  Set("Config", "Matrix Default Row", 7);
  Set("Config", "Matrix Default Value", 1);
  model_->TakeDisplaySettings();
  EXPECT_EQ(model_->ResultText(), u"2469.00");
  EXPECT_EQ(model_->ShownMatrix().rows, 3);
  EXPECT_EQ(model_->Widths(), UniformWidths(60));
  EXPECT_EQ(model_->Alignment(), CellAlignment::Right);
  Tool(u"Reset Col Width");
  EXPECT_EQ(model_->Widths(), UniformWidths(90));
}

TEST_F(MatrixScreen, MessageOutlastsADisplaySettingsChange) {
  Evaluate(u"1/0");
  model_->TakeDisplaySettings();
  EXPECT_EQ(model_->ResultText(), u"Division exceeded calculation limit.");
}

// Cells.

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
    ASSERT_LE(Entries().size(), 20U) << step;
  }
  while (model_->CanUndo()) model_->Undo();
  model_->Save();
}

}  // namespace
}  // namespace kav
