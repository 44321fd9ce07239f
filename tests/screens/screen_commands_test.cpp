// What the keyboard and the Help menu do on every screen.
#include <gtest/gtest.h>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "screens/widgets/app_events.h"

namespace kav::test::screen_commands_test {
namespace {

class ScreenCommandsTest : public ScientificScreen {};

TEST_F(ScreenCommandsTest, GeneralShortcutsWorkWhateverHasTheFocus) {
  frame_.others = {{ScreenMode::Plotter, u"Function Plotter"},
                   {ScreenMode::OneVariable, u"1-Var Statistics"},
                   {ScreenMode::TwoVariable, u"2-Var Statistics"},
                   {ScreenMode::Matrix, u"Matrix Calculator"}};
  int configs = 0;
  std::vector<GuidePage> pages;
  frame_.dialogs.displaySettings = [&](QWidget*, DisplayPage) { return ++configs == 0; };
  frame_.dialogs.guide = [&](QWidget*, GuidePage page) { pages.push_back(page); };
  Open();
  for (const bool fromLine : {true, false}) {
    if (!fromLine) FindKey(*dlg_, u"COS")->setFocus();
    Key(Qt::Key_1, Qt::AltModifier);  // where one is already
    for (const auto key : {Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5}) Key(key, Qt::AltModifier);
    Key(Qt::Key_F1);
    Key(Qt::Key_Q, Qt::ControlModifier);
    Key(Qt::Key_Comma, Qt::ControlModifier);
  }
  const std::vector<ScreenMode> once{ScreenMode::Plotter, ScreenMode::OneVariable,
                                     ScreenMode::TwoVariable, ScreenMode::Matrix};
  auto twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(frame_.modes, twice);
  EXPECT_EQ(pages, (std::vector{GuidePage::Scientific, GuidePage::Scientific}));
  EXPECT_EQ(frame_.exits, 2);
  EXPECT_EQ(configs, 2);
  EXPECT_EQ(Line(), u"|");
}

TEST_F(ScreenCommandsTest, F11FillsTheDesktopAndEscapeDoesNotLeaveIt) {
  Key(Qt::Key_F11);
  EXPECT_TRUE(dlg_->isFullScreen());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(dlg_->isFullScreen());
  Key(Qt::Key_F11);
  EXPECT_FALSE(dlg_->isFullScreen());
}

TEST_F(ScreenCommandsTest, CtrlYIsTheRedoOfEveryDesktop) {
  // Some desktops know one of the two.
  class Heard final : public QWidget {
   public:
    std::vector<QKeyCombination> keys;

   private:
    void keyPressEvent(QKeyEvent* event) override {
      if (event->key() != Qt::Key_Control) keys.push_back(event->keyCombination());
    }
  } heard;
  const AppEvents events;
  QTest::keyClick(&heard, Qt::Key_Y, Qt::ControlModifier);
  QTest::keyClick(&heard, Qt::Key_Y);
  EXPECT_EQ(heard.keys,
            (std::vector{QKeyCombination(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z),
                         QKeyCombination(Qt::Key_Y)}));
  Type("12");
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Line(), u"12|");
}

TEST_F(ScreenCommandsTest, TheHelpMenuOpensTheGuideAndTellsOfTheProgram) {
  int guides = 0;
  frame_.dialogs.guide = [&](QWidget* parent, GuidePage) {
    guides += parent == dlg_.get() ? 1 : 0;
  };
  Key(Qt::Key_H, Qt::AltModifier);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"&Guide", u"&Keys", u"&About..."}));
  EXPECT_EQ(OpenMenu()->actions().front()->shortcut(), QKeySequence(Qt::Key_F1));
  QTest::keyClick(OpenMenu(), Qt::Key_G);
  EXPECT_EQ(guides, 1);
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  ChooseFrom(*dlg_, u"&Help", u"&About...");
  ASSERT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
}

}  // namespace
}  // namespace kav::test::screen_commands_test
