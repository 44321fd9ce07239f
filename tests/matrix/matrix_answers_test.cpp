#include "matrix/matrix_answers.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <variant>

#include "settings/settings_store.h"

namespace kav::matrix_answers_test {
namespace {

class MatrixAnswersTest : public testing::Test {
 protected:
  MatrixAnswersTest() {
    board_.Resize(1, 1);
    board_.SetCell(0, 0, u"2");
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

}  // namespace
}  // namespace kav::matrix_answers_test
