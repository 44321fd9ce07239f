#include "screens/widgets/comma_question.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QWidget>
#include <optional>

#include "display/comma_reading.h"
#include "screens/box_watch.h"

namespace kav::test::comma_question_test {
namespace {

TEST(AskForCommas, OffersWhatTheNumberCanBecome) {
  QWidget parent;
  const auto question = QuestionOfCommas(u"1,234");
  ASSERT_TRUE(question);
  BoxWatch& watch = BoxWatch::Instance();
  watch.ExpectAnswer("1.234");
  EXPECT_EQ(AskForCommas(&parent, *question), CommaMeaning::DecimalPoint);
  watch.ExpectAnswer("1234");
  EXPECT_EQ(AskForCommas(&parent, *question), CommaMeaning::Grouping);
  watch.ExpectAnswer("1 | 234");
  EXPECT_EQ(AskForCommas(&parent, *question), CommaMeaning::Separator);
  watch.Expect(QMessageBox::Cancel);
  EXPECT_EQ(AskForCommas(&parent, *question), std::nullopt);
  for (const SeenBox& box : watch.TakeSeen()) {
    EXPECT_EQ(box.text,
              u"The comma in \"1,234\" can be read in more than one way. Which is meant?");
    EXPECT_EQ(box.icon, QMessageBox::Question);
  }
}

}  // namespace
}  // namespace kav::test::comma_question_test
