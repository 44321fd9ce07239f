#include "screens/widgets/comma_question.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <optional>

#include "screens/offer_driver.h"
#include "screens/screen_driver.h"

namespace kav::test::comma_question_test {
namespace {

TEST(AskForCommas, OffersWhatTheNumberCanBecome) {
  QWidget screen;
  QLineEdit field(&screen);
  Show(screen);
  const auto question = QuestionOfCommas(u"1,234");
  ASSERT_TRUE(question);
  std::optional<CommaMeaning> taken;
  int givenUp = 0;
  const auto ask = [&] {
    AskForCommas(
        field, CommaQuestionText(*question), *question,
        [&taken](CommaMeaning meaning) { taken = meaning; }, [&givenUp] { ++givenUp; });
    EXPECT_EQ(Asked(screen), "What is 1,234?");
  };
  ask();
  TapOffer(screen, "1.234");
  EXPECT_EQ(taken, CommaMeaning::DecimalPoint);
  ask();
  TapOffer(screen, "1234");
  EXPECT_EQ(taken, CommaMeaning::Grouping);
  ask();
  TapOffer(screen, "1 | 234");
  EXPECT_EQ(taken, CommaMeaning::Separator);
  EXPECT_EQ(givenUp, 0);
  ask();
  TapOffer(screen, "Leave it as it is (Esc)");
  EXPECT_EQ(givenUp, 1);
  EXPECT_EQ(Asked(screen), "");
}

}  // namespace
}  // namespace kav::test::comma_question_test
