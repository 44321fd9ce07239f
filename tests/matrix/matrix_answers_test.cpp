#include "matrix/matrix_answers.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "common/number_text.h"
#include "matrix/matrix_properties.h"
#include "settings/settings_store.h"

namespace kav::matrix_answers_test {
namespace {

class MatrixAnswersTest : public testing::Test {
 protected:
  MatrixAnswersTest() {
    board_.Resize(1, 1);
    board_.SetCell(0, 0, u"2");
  }

  /// Of the shown matrix; nothing stands in the line.
  MatrixOutcome Find(std::string_view property) {
    return answers_.Find(*FindProperty(property), u"");
  }

  MemorySettingsStore store_;
  MacroStore macros_{store_};
  DisplaySettings settings_ = LoadDisplaySettings(store_);
  MatrixBoard board_{settings_};
  MatrixAnswers answers_{store_, macros_, settings_, board_};
};

TEST_F(MatrixAnswersTest, ANumberIsShownAndIsTheLastAnswer) {
  answers_.Evaluate(u" 6*7 ");
  EXPECT_EQ(answers_.Text(), u"42");
  EXPECT_EQ(answers_.Last(), 42);
  EXPECT_EQ(answers_.CopiedResult(), u"42");
  answers_.Evaluate(u"ans/2");
  EXPECT_EQ(answers_.Last(), 21);
}

TEST_F(MatrixAnswersTest, AFailureHasAFaultAsLongAsTheLineIsThatOne) {
  answers_.Evaluate(u"2(3)");
  EXPECT_EQ(answers_.Text(), u"Expression error.");
  EXPECT_EQ(answers_.Last(), std::nullopt);
  EXPECT_EQ(answers_.CopiedResult(), std::nullopt);
  ASSERT_TRUE(answers_.FaultIn(u"2(3)"));
  EXPECT_EQ(answers_.FaultIn(u"2(3)")->mended, u"2*(3)");
  EXPECT_FALSE(answers_.FaultIn(u"2(3"));
  answers_.ForgetFault();
  EXPECT_FALSE(answers_.FaultIn(u"2(3)"));
}

TEST_F(MatrixAnswersTest, AMatrixGoesToTheBoardAndNoNumberStandsBesideIt) {
  answers_.Evaluate(u"1+1");
  answers_.Evaluate(u"[M1]*3");
  EXPECT_EQ(answers_.Text(), u"");
  EXPECT_EQ(board_.All()[kAnswerMatrix].At(0, 0), u"6");
  EXPECT_FALSE(answers_.TakesNumbers());
  answers_.Evaluate(u"1+1");
  EXPECT_EQ(answers_.Text(), u"");
}

TEST_F(MatrixAnswersTest, ALineThatIsNotAnsweredHasNoResultOfAnother) {
  answers_.Evaluate(u"1+1");
  board_.Show(kAnswerMatrix);
  answers_.Evaluate(u"5*5");
  EXPECT_EQ(answers_.Text(), u"2");
  EXPECT_EQ(answers_.CopiedLine(), u"1+1 = 2");
}

TEST_F(MatrixAnswersTest, AMatrixThatCannotBeUsedIsNamed) {
  const MatrixOutcome outcome = answers_.Evaluate(u"[M2]*3");
  EXPECT_TRUE(std::holds_alternative<TellStop>(outcome));
}

TEST_F(MatrixAnswersTest, ANumberThatWasFoundSaysOfWhatItIsUntilAMatrixChanges) {
  Find("trace");
  EXPECT_EQ(answers_.Text(), u"Trace of [M1]: 2");
  EXPECT_EQ(answers_.CopiedResult(), u"2");
  EXPECT_EQ(answers_.CopiedLine(), std::nullopt) << "the line is another one";
  EXPECT_EQ(answers_.Last(), 2);
  board_.Show(1);
  EXPECT_EQ(answers_.Text(), u"Trace of [M1]: 2");
  board_.Show(0);
  board_.SetCell(0, 0, u"3");
  EXPECT_EQ(answers_.Text(), u"");
  EXPECT_EQ(answers_.CopiedResult(), std::nullopt);
  answers_.Evaluate(u"ans*2");
  EXPECT_EQ(answers_.Text(), u"4");
}

TEST_F(MatrixAnswersTest, AMatrixThatWasFoundIsTheAnswerAndCanBeUndone) {
  answers_.Evaluate(u"[M1]*3");
  board_.Show(0);
  Find("eigenvalues");
  EXPECT_EQ(board_.ShownIndex(), kAnswerMatrix);
  EXPECT_EQ(board_.CellText(0, 0), u"2");
  EXPECT_EQ(answers_.Text(), u"Eigenvalues of [M1]");
  board_.Show(0);
  EXPECT_EQ(answers_.Text(), u"");
  board_.Show(kAnswerMatrix);
  EXPECT_EQ(answers_.Text(), u"Eigenvalues of [M1]");
  board_.Undo();
  EXPECT_EQ(answers_.Text(), u"");
  EXPECT_EQ(board_.CellText(0, 0), u"6");
}

TEST_F(MatrixAnswersTest, WhatCannotBeFoundIsToldAndTheAnswerStays) {
  answers_.Evaluate(u"[M1]*3");
  board_.Show(0);
  board_.Resize(1, 2);
  const auto empty = Find("rank");
  ASSERT_TRUE(std::holds_alternative<TellStop>(empty));
  EXPECT_EQ(std::get<TellStop>(empty).text, u"Matrix [M1] is invalid");
  EXPECT_EQ(std::get<TellStop>(empty).more, u"Row 1, column 2 is empty.");
  board_.SetCell(0, 1, u"x");
  const auto wide = Find("eigenvalues");
  ASSERT_TRUE(std::holds_alternative<TellStop>(wide));
  EXPECT_EQ(std::get<TellStop>(wide).text, u"[Matrix Eigenvalues] Matrix Size Mismatch");
  EXPECT_EQ(answers_.Text(), u"");
  EXPECT_EQ(board_.All()[kAnswerMatrix].At(0, 0), u"6");
  const auto read = Find("norm");
  ASSERT_TRUE(std::holds_alternative<TellNotice>(read)) << "a cell is no number";
  EXPECT_EQ(answers_.Text(), u"Norm of [M1]: 2");
}

TEST_F(MatrixAnswersTest, UnknownsInAnotherOrderAreNumberedAsLongAsTheyAreShown) {
  // y = 2, x = 1 with the rows exchanged: the second unknown stands first.
  board_.Resize(2, 2);
  board_.SetCell(0, 0, u"0");
  board_.SetCell(0, 1, u"1");
  board_.SetCell(1, 0, u"1");
  board_.SetCell(1, 1, u"0");
  board_.Show(1);
  board_.Resize(2, 1);
  board_.SetCell(0, 0, u"2");
  board_.SetCell(1, 0, u"1");
  answers_.Evaluate(u"linearequation([M1],[M2])");
  EXPECT_EQ(board_.CellText(0, 0), u"2");
  EXPECT_EQ(board_.CellText(1, 0), u"1");
  EXPECT_EQ(answers_.Text(), u"Order of unknowns: 2, 1");
  EXPECT_EQ(answers_.CopiedResult(), std::nullopt);
  for (const char16_t* line :
       {u"((LinearEquation([M1]+0*[M1],[M2])))", u"linearequation([M1],2*[M2])"}) {
    answers_.Evaluate(line);
    EXPECT_EQ(answers_.Text(), u"Order of unknowns: 2, 1") << Narrow(line);
  }
  board_.Show(1);
  EXPECT_EQ(answers_.Text(), u"");
  for (const char16_t* line : {
           u"linearequation([M1],[M2])*1",     // no unknowns any more
           u"linearequation([M1]*[M1],[M2])",  // in their own order
           u"linearequation([M1]-[M1],[M2])",  // ended early
           u"transpose([M1])",
       }) {
    answers_.Evaluate(line);
    EXPECT_EQ(board_.ShownIndex(), kAnswerMatrix);
    EXPECT_EQ(answers_.Text(), u"") << Narrow(line);
  }
}

}  // namespace
}  // namespace kav::matrix_answers_test
