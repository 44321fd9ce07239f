// "=" on the matrix screen, and the history of what was evaluated.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "support/matrix_screen.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::matrix_model_evaluate_test {
namespace {

using test::MatrixScreen;
using Texts = std::vector<std::u16string>;

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

TEST_F(MatrixScreen, MatrixExpressionClearsTheResultLine) {
  Fill(0, u"1");
  for (const std::u16string_view line : {u"[M1]", u"[M1]^-1", u"[M2]"}) {
    model_->Show(0);
    Evaluate(u"1+1");
    EXPECT_EQ(model_->ResultText(), u"2");
    Evaluate(line);
    EXPECT_EQ(model_->ResultText(), u"") << Narrow(line);
    model_->TakeDisplaySettings();
    EXPECT_EQ(model_->ResultText(), u"") << Narrow(line);
  }
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

// The history of all sessions.

TEST_F(MatrixScreen, WhatWasEvaluatedIsALineAndWhatItsAnswerReadsAs) {
  const auto evaluated = [this](std::u16string_view line) {
    Evaluate(line);
    return model_->Evaluated();
  };
  EXPECT_EQ(evaluated(u"2+2"), (PastLine{0, PastOrigin::Matrix, 1, "2+2", "4"}));
  EXPECT_EQ(evaluated(u"(2"), (PastLine{0, PastOrigin::Matrix, 1, "(2", ""}));
  EXPECT_EQ(evaluated(u""), std::nullopt);
  EXPECT_EQ(evaluated(u"[M1]"), (PastLine{0, PastOrigin::Matrix, 1, "[M1]", ""})) << "invalid";
  Fill(0, u"1 2 3; 4 5 6");
  EXPECT_EQ(evaluated(u"[M1]+[M1]"),
            (PastLine{0, PastOrigin::Matrix, 1, "[M1]+[M1]", "Matrix 2 x 3"}));
  EXPECT_EQ(evaluated(u"3+3"), std::nullopt) << "[M Ans] is shown: nothing is evaluated";
  Fill(0, u"1 2; 3 4");
  EXPECT_EQ(evaluated(u"determinant([M1])"),
            (PastLine{0, PastOrigin::Matrix, 1, "determinant([M1])", "-2"}));
}

TEST_F(MatrixScreen, PastLinesAndAnswersReplaceTheSelection) {
  model_->SetLine(u"123", {1, 2});
  model_->TakePastLine({1, PastOrigin::Matrix, 1, "[M1]*2", "Matrix 2 x 2"});
  EXPECT_EQ(MarkedNow(), u"1[M1]*2|3");
  model_->TakePastAnswer({1, PastOrigin::Matrix, 1, "[M1]*2", "Matrix 2 x 2"});
  EXPECT_EQ(MarkedNow(), u"1[M1]*2|3") << "a matrix is no number";
  model_->TakePastAnswer({2, PastOrigin::Matrix, 1, "2000*2", "4,000"});
  EXPECT_EQ(MarkedNow(), u"1[M1]*24000|3");
}

// The word "ans", operators behind "=", and lines that are mended.

TEST_F(MatrixScreen, TheLastNumberIsAWordOfBothKindsOfLines) {
  Fill(0, u"1 2; 3 4");
  Evaluate(u"6*7");
  Evaluate(u"1/0");
  Evaluate(u"ans/2");
  EXPECT_EQ(model_->ResultText(), u"21");
  EXPECT_EQ(Evaluate(u"[M1]*Ans"), u"");
  EXPECT_EQ(Shown(), u"21 42; 63 84");
  EXPECT_EQ(Evaluate(u"[M Ans]-ans*[M1]+[M1]"), u"");
  EXPECT_EQ(Shown(), u"1 2; 3 4");
}

TEST_F(MatrixScreen, ATypedOperatorGoesOnWithTheWholeLine) {
  Fill(0, u"1 2; 3 4");
  Evaluate(u"[M1]");
  EXPECT_TRUE(model_->TypeOperator(u'^'));
  EXPECT_EQ(model_->Line().Text(), u"([M1])^");
  EXPECT_FALSE(model_->TypeOperator(u'^'));
}

TEST_F(MatrixScreen, ALineWithOneMendIsMendedAndEvaluated) {
  Fill(0, u"1 2; 3 4");
  struct Row {
    const char16_t* line;
    const char16_t* mended;  ///< empty for none
  };
  for (const Row& row : {
           Row{u"2[M1]", u"2*[M1]"},
           Row{u"transpse([M1])", u"transpose([M1])"},
           Row{u"det([M1])", u"determinant([M1])"},
           Row{u"transpose([M1]", u"transpose([M1])"},
           Row{u"[M1][M1]", u"[M1]*[M1]"},
           Row{u"[M1]+", u"[M1]"},
           Row{u"sine(30)", u"sin(30)"},
           Row{u"[M1]/2", u""},
           Row{u"[M4]", u""},
       }) {
    model_->Show(0);
    Evaluate(row.line);
    ASSERT_TRUE(model_->Fault()) << Narrow(row.line);
    EXPECT_EQ(model_->Fault()->mended.value_or(u""), row.mended) << Narrow(row.line);
    model_->TakeMend();
    EXPECT_EQ(model_->Fault().has_value(), *row.mended == 0) << Narrow(row.line);
  }
  Evaluate(u"2[M1]");
  model_->TakeMend();
  EXPECT_EQ(Shown(), u"2 4; 6 8");
}

}  // namespace
}  // namespace kav::matrix_model_evaluate_test
