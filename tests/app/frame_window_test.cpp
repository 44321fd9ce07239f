// The frame: start, changes of screen, and the end.
#include "app/frame_window.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QWindow>

#include "app/frame_driver.h"

namespace kav::test::frame_window_test {
namespace {

using FrameWindowTest = FrameOfScreens;

TEST_F(FrameWindowTest, AFirstStartOpensTheScientificScreenAndNotesTheVersion) {
  Start();
  EXPECT_EQ(ShownName(), "1");
  EXPECT_EQ(store_.Get(kVersion), "2.5");
  frame_.reset();
  EXPECT_EQ(store_.Get(kMode), 1);
}

TEST_F(FrameWindowTest, TheStoredModeOpensItsScreenAndAnyOtherNumberMatrix) {
  const std::vector<std::pair<int, const char*>> rows{
      {1, "1"}, {2, "2"}, {3, "3"}, {4, "4"}, {5, "5"}, {9, "5"}, {0, "5"}, {-1, "5"}, {-100, "1"}};
  for (const auto& [stored, name] : rows) {
    frame_.reset();
    store_.Set(kMode, stored);
    Start();
    EXPECT_EQ(ShownName(), name) << stored;
  }
}

TEST_F(FrameWindowTest, AModeWithoutAScreenOpensTheFirstAndStaysStored) {
  store_.Set(kMode, 9);
  Start({kAllFive.front()});
  EXPECT_EQ(ShownName(), "1");
  frame_.reset();
  EXPECT_EQ(store_.Get(kMode), 9);
}

TEST_F(FrameWindowTest, TheFrameIsToBeSeenUntilTheFirstScreenIs) {
  MakeFrame();
  frame_->show();
  EXPECT_TRUE(frame_->isVisible());
  EXPECT_EQ(ShownName(), "none");
  ASSERT_TRUE(QTest::qWaitFor([this] { return frame_->Shown() != nullptr; }));
  EXPECT_FALSE(frame_->isVisible());
  EXPECT_TRUE(frame_->Shown()->isVisible());
}

TEST_F(FrameWindowTest, TheFrameSaysLoadingAtFifteenPixelsFromItsCorner) {
  MakeFrame();
  const QImage picture = frame_->grab().toImage();
  const QRgb ground = picture.pixel(0, 0);
  QRect text;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      if (picture.pixel(x, y) != ground) text |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_GE(text.left(), 15);
  EXPECT_LE(text.left(), 18);
  EXPECT_GE(text.top(), 15);
  EXPECT_LE(text.top(), 22);
  EXPECT_NEAR(text.width(), QFontMetrics(frame_->font()).horizontalAdvance("Loading..."), 6);
}

TEST_F(FrameWindowTest, AFrameThatIsNeverPaintedStillOpensTheFirstScreen) {
  MakeFrame();
  ASSERT_TRUE(QTest::qWaitFor([this] { return frame_->Shown() != nullptr; }, 2000));
  QTest::qWait(300);
  EXPECT_EQ(events, (std::vector<std::string>{"make 1", "show 1"}));
  EXPECT_EQ(started_, 1);
}

TEST_F(FrameWindowTest, TheNewScreenIsShownBeforeTheOldOneCloses) {
  Start();
  events.clear();
  ChangeTo(ScreenMode::Plotter);
  EXPECT_EQ(events, (std::vector<std::string>{"make 2", "show 2", "close 1", "destroy 1"}));
  events.clear();
  ChangeTo(ScreenMode::Scientific);
  EXPECT_EQ(events, (std::vector<std::string>{"make 1", "show 1", "close 2", "destroy 2"}));
  EXPECT_EQ(finished_, 0);
}

TEST_F(FrameWindowTest, AScreenOutlivesTheEventInWhichItAsksForAnother) {
  Start();
  frame_->ChangeMode(ScreenMode::Matrix);
  EXPECT_EQ(ShownName(), "1");
  QCoreApplication::processEvents();
  EXPECT_EQ(ShownName(), "5");
  frame_->Exit();
  EXPECT_EQ(ShownName(), "5");
}

TEST_F(FrameWindowTest, TheModeOfTheLastScreenIsStored) {
  Start();
  ChangeTo(ScreenMode::Matrix);
  ChangeTo(ScreenMode::TwoVariable);
  frame_.reset();
  EXPECT_EQ(store_.Get(kMode), 4);
}

TEST_F(FrameWindowTest, TheModeMenuOffersAllScreensButItsOwn) {
  MakeFrame();
  Texts captions;
  for (const ScreenChoice& choice : frame_->ScreensBeside(ScreenMode::OneVariable)) {
    captions.emplace_back(choice.caption);
  }
  EXPECT_EQ(captions, (Texts{u"Scientific Calculator", u"Function Plotter", u"2-Var Statistics",
                             u"Matrix Calculator"}));
}

TEST_F(FrameWindowTest, ScreensStandInTheOrderOfTheModeMenu) {
  Texts captions;
  std::vector<ScreenMode> modes;
  for (const ScreenKind& screen : AllScreens()) {
    captions.emplace_back(screen.caption);
    modes.push_back(screen.mode);
  }
  EXPECT_EQ(captions, (Texts{u"Scientific Calculator", u"Matrix Calculator", u"1-Var Statistics",
                             u"2-Var Statistics", u"Function Plotter"}));
  EXPECT_EQ(modes, (std::vector<ScreenMode>{ScreenMode::Scientific, ScreenMode::Matrix,
                                            ScreenMode::OneVariable, ScreenMode::TwoVariable,
                                            ScreenMode::Plotter}));
}

TEST_F(FrameWindowTest, AScreenIsToldBeforeItsUserLeavesItForAnother) {
  Start(kOneThatAsks);
  ChooseFrom(*frame_->Shown(), u"&Mode", u"Matrix Calculator");
  QCoreApplication::processEvents();
  EXPECT_EQ(events, (std::vector<std::string>{"switching", "make 5", "show 5"}));
}

TEST_F(FrameWindowTest, AScreenIsToldBeforeItsUserEndsTheProgram) {
  Start(kOneThatAsks);
  ChooseFrom(*frame_->Shown(), u"&File", u"E&xit");
  EXPECT_EQ(events, std::vector<std::string>{"ending"});
  QCoreApplication::processEvents();
  EXPECT_EQ(finished_, 1);
}

TEST_F(FrameWindowTest, AScreenIsToldBeforeItsUserClosesTheWindow) {
  Start(kOneThatAsks);
  frame_->Shown()->close();
  EXPECT_EQ(events, std::vector<std::string>{"ending"});
  QCoreApplication::processEvents();
  EXPECT_EQ(finished_, 1);
}

TEST_F(FrameWindowTest, AScreenThatMayNotBeLeftStays) {
  Start(kOneThatAsks);
  mayLeave = false;
  ChooseFrom(*frame_->Shown(), u"&Mode", u"Matrix Calculator");
  ChooseFrom(*frame_->Shown(), u"&File", u"E&xit");
  frame_->Shown()->close();
  QCoreApplication::processEvents();
  EXPECT_EQ(events, (std::vector<std::string>{"switching", "ending", "ending"}));
  EXPECT_TRUE(frame_->Shown()->isVisible());
  EXPECT_EQ(finished_, 0);
}

TEST_F(FrameWindowTest, AScreenThatIsClosedByTheEndOfAllIsNotAsked) {
  Start(kOneThatAsks);
  frame_.reset();
  EXPECT_EQ(events, std::vector<std::string>{});
}

TEST_F(FrameWindowTest, ExitClosesTheScreenAndThenEnds) {
  Start();
  events.clear();
  frame_->Exit();
  frame_->Exit();
  QCoreApplication::processEvents();
  EXPECT_EQ(events, (std::vector<std::string>{"close 1", "destroy 1"}));
  EXPECT_EQ(finished_, 1);
  EXPECT_EQ(ShownName(), "none");
  EXPECT_FALSE(frame_->isVisible());
}

TEST_F(FrameWindowTest, ClosingTheWindowIsExit) {
  Start();
  events.clear();
  frame_->Shown()->close();
  EXPECT_EQ(ShownName(), "1");
  QCoreApplication::processEvents();
  EXPECT_EQ(events, (std::vector<std::string>{"close 1", "destroy 1"}));
  EXPECT_EQ(finished_, 1);
}

TEST_F(FrameWindowTest, NoScreenOpensAfterExit) {
  Start();
  frame_->Exit();
  frame_->ChangeMode(ScreenMode::Plotter);
  QCoreApplication::processEvents();
  EXPECT_EQ(ShownName(), "none");
}

TEST_F(FrameWindowTest, AMinimizedScreenComesToTheFrontRestored) {
  Start();
  frame_->Shown()->showMinimized();
  frame_->ComeToFront();
  EXPECT_FALSE(frame_->Shown()->isMinimized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(frame_->Shown()));
}

TEST_F(FrameWindowTest, AMaximizedScreenComesToTheFrontMaximized) {
  Start();
  frame_->Shown()->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  frame_->ComeToFront();
  EXPECT_EQ(frame_->Shown()->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized),
            Qt::WindowMaximized);
}

TEST_F(FrameWindowTest, ComingToTheFrontBeforeTheFirstScreenDoesNothing) {
  MakeFrame();
  frame_->ComeToFront();
  EXPECT_EQ(ShownName(), "none");
}

TEST_F(FrameWindowTest, TheScientificScreenComesBackWithItsHistoryAndTheAnswerZero) {
  Start({{ScreenMode::Scientific, u"Scientific Calculator", MakeScientificScreen},
         {ScreenMode::Plotter, u"Function Plotter", MakeFake<ScreenMode::Plotter>}});
  Tap(*frame_->Shown(), u"6 * 7 =");
  EXPECT_EQ(ResultOf(*frame_->Shown()), u"42");
  ChooseFrom(*frame_->Shown(), u"&Mode", u"Function Plotter");
  QCoreApplication::processEvents();
  EXPECT_EQ(ShownName(), "2");
  ChangeTo(ScreenMode::Scientific);
  EXPECT_EQ(ResultOf(*frame_->Shown()), u"0");
  Tap(*frame_->Shown(), u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"6*7", u"=[D]42"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(FrameWindowTest, EqualsSavesTheStoreThroughTheFrame) {
  Start({{ScreenMode::Scientific, u"Scientific Calculator", MakeScientificScreen}});
  Tap(*frame_->Shown(), u"1 =");
  QCoreApplication::processEvents();
  EXPECT_EQ(saves_, 1);
}

}  // namespace
}  // namespace kav::test::frame_window_test
