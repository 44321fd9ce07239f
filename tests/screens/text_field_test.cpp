#include "screens/widgets/text_field.h"

#include <gtest/gtest.h>

#include "screens/screen_driver.h"

namespace kav::test::text_field_test {
namespace {

constexpr int kLong = 200;

class TextFieldTest : public testing::Test {
 protected:
  TextFieldTest() { Show(field_, {100, 30}); }

  TextField field_{u"Unit"};
};

TEST_F(TextFieldTest, HasItsNameAndText) {
  EXPECT_EQ(field_.accessibleName(), "Unit");
  field_.Write(u"inch");
  EXPECT_EQ(field_.Text(), u"inch");
}

TEST_F(TextFieldTest, TheSameTextLeavesTheCaretAndWhatCanBeUndone) {
  field_.Write(u"inch");
  QTest::keyClicks(&field_, "es");
  field_.setCursorPosition(2);
  field_.Write(u"inches");
  EXPECT_EQ(field_.cursorPosition(), 2);
  EXPECT_TRUE(field_.isUndoAvailable());
}

TEST_F(TextFieldTest, DisabledItShowsTheBeginning) {
  field_.setEnabled(false);
  field_.Write(std::u16string(kLong, u'W'));
  EXPECT_EQ(field_.cursorPosition(), 0);
}

TEST_F(TextFieldTest, TheFocusSelectsNothing) {
  field_.Write(u"inch");
  field_.selectAll();
  field_.Focus();
  EXPECT_TRUE(field_.hasFocus());
  EXPECT_FALSE(field_.hasSelectedText());
  EXPECT_EQ(field_.cursorPosition(), 4);
}

TEST_F(TextFieldTest, TextsOfAnyLengthEndSomewhere) {
  constexpr std::size_t kLongestText = 1 << 16;
  field_.Write(std::u16string(kLongestText + 1, u'W'));
  EXPECT_EQ(field_.Text().size(), kLongestText);
}

}  // namespace
}  // namespace kav::test::text_field_test
