// Where the windows of the frame stand, and how large they are.
#include <gtest/gtest.h>

#include <QWindow>

#include "app/frame_driver.h"

namespace kav::test::frame_place_test {
namespace {

using FramePlaceTest = FrameOfScreens;

TEST_F(FramePlaceTest, AWindowGrowsAndShrinksWithItsTexts) {
  Start(kOneThatAsks);
  const QSize first(360, 560);
  QWidget& window = *frame_->Shown();
  ASSERT_EQ(window.size(), first);
  const QSize desktop = QGuiApplication::primaryScreen()->availableGeometry().size();
  ASSERT_EQ(desktop, QSize(800, 800));
  frame_->ScaleText(TextStep::Larger);
  EXPECT_EQ(window.size(), QSize(396, 616));
  EXPECT_EQ(store_.Get(kTextScale), 110);
  EXPECT_EQ(TextShare(), 1) << "the window has grown with them";
  for (int i = 0; i < 4; ++i) frame_->ScaleText(TextStep::Larger);
  EXPECT_EQ(window.size(), QSize(511, 795)) << "the desktop is no higher";
  EXPECT_EQ(store_.Get(kTextScale), 150);
  EXPECT_DOUBLE_EQ(TextShare(), 150.0 / 142);
  EXPECT_TRUE(QRect(QPoint(), desktop).contains(window.frameGeometry()));
  frame_->ScaleText(TextStep::Usual);
  EXPECT_EQ(window.size(), first);
  EXPECT_EQ(store_.Get(kTextScale), 100);
  EXPECT_EQ(TextShare(), 1);
  EXPECT_EQ(saves_, 6);
}

TEST_F(FramePlaceTest, AWindowOfTheUsersSizeKeepsItsShapeAtEveryScale) {
  Start(kOneThatAsks);
  QWidget& window = *frame_->Shown();
  frame_->ScaleText(TextStep::Larger);
  window.resize(440, 330);
  frame_->ScaleText(TextStep::Usual);
  EXPECT_EQ(window.size(), QSize(400, 300));
}

TEST_F(FramePlaceTest, AMaximizedWindowStaysAndItsTextsGrow) {
  Start(kOneThatAsks);
  QWidget& window = *frame_->Shown();
  window.showMaximized();
  const QSize size = window.size();
  for (int i = 0; i < 3; ++i) frame_->ScaleText(TextStep::Larger);
  EXPECT_EQ(window.size(), size);
  EXPECT_EQ(store_.Get(kWindowScale), 100);
  EXPECT_DOUBLE_EQ(TextShare(), 1.3);
  frame_->ScaleText(TextStep::Usual);
}

TEST_F(FramePlaceTest, AScreenTakesThePlaceAndSizeOfTheOneBefore) {
  Start();
  frame_->Shown()->move(77, 55);
  frame_->Shown()->resize(333, 444);
  QCoreApplication::processEvents();
  ChangeTo(ScreenMode::Plotter);
  EXPECT_EQ(frame_->Shown()->pos(), QPoint(77, 55));
  EXPECT_EQ(frame_->Shown()->size(), QSize(333, 444));
  // It fills the desktop as well, as long as the program runs.
  frame_->Shown()->setWindowState(Qt::WindowFullScreen);
  ChangeTo(ScreenMode::Matrix);
  EXPECT_TRUE(frame_->Shown()->isFullScreen());
  frame_.reset();
  EXPECT_EQ(store_.Get(kWindowGeometry), "77 55 333 444");
}

TEST_F(FramePlaceTest, AMaximizedScreenHandsThatOnToo) {
  Start();
  frame_->Shown()->showMaximized();
  QCoreApplication::processEvents();
  ChangeTo(ScreenMode::Plotter);
  EXPECT_TRUE(frame_->Shown()->isMaximized());
  frame_.reset();
  EXPECT_TRUE(QString::fromStdString(store_.Get(kWindowGeometry)).endsWith(" maximized"));
  Start();
  EXPECT_TRUE(frame_->Shown()->isMaximized());
}

TEST_F(FramePlaceTest, TheWindowOpensWhereItWasClosed) {
  store_.Set(kWindowGeometry, "30 40 300 500");
  Start();
  EXPECT_EQ(frame_->Shown()->pos(), QPoint(30, 40));
  EXPECT_EQ(frame_->Shown()->size(), QSize(300, 500));
}

TEST_F(FramePlaceTest, AWindowOffTheDesktopIsBroughtBack) {
  const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
  for (const char* stored : {"-5000 -5000 300 400", "90000 20 300 400", "10 10 99999 99999"}) {
    frame_.reset();
    store_.Set(kWindowGeometry, stored);
    Start();
    EXPECT_TRUE(desktop.contains(frame_->Shown()->windowHandle()->frameGeometry())) << stored;
  }
}

TEST_F(FramePlaceTest, AFirstWindowOpensInTheMiddleAtAComfortableSize) {
  for (const char* stored : {"", "nonsense", "1 2 3", "0 0 -5 7"}) {
    frame_.reset();
    store_.Set(kWindowGeometry, stored);
    Start();
    const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(frame_->Shown()->size(), QSize(360, 560).boundedTo(desktop.size())) << stored;
    const QPoint middle(desktop.center() - frame_->Shown()->rect().center());
    EXPECT_LE((frame_->Shown()->pos() - middle).manhattanLength(), 2) << stored;
  }
}

}  // namespace
}  // namespace kav::test::frame_place_test
