// The frame: start, changes of screen, the end, and where the window stands.
#include "app/frame_window.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QWindow>

#include "screens/screen_driver.h"
#include "settings/keys.h"

namespace kav::test::frame_window_test {
namespace {

/// What happened to screens, in order: "make 1", "show 1", "close 1", "destroy 1".
std::vector<std::string> events;

class FakeScreen final : public QWidget {
 public:
  explicit FakeScreen(ScreenMode mode) : number_(std::to_string(static_cast<int>(mode))) {
    setObjectName(QString::fromStdString(number_));
    events.push_back("make " + number_);
  }
  ~FakeScreen() override { events.push_back("destroy " + number_); }

 private:
  void showEvent(QShowEvent*) override { events.push_back("show " + number_); }
  void closeEvent(QCloseEvent*) override { events.push_back("close " + number_); }

  std::string number_;
};

template <ScreenMode kMode>
std::unique_ptr<QWidget> MakeFake(Frame&) {
  return std::make_unique<FakeScreen>(kMode);
}

const std::vector<ScreenKind> kAllFive{
    {ScreenMode::Scientific, u"Scientific Calculator", MakeFake<ScreenMode::Scientific>},
    {ScreenMode::Plotter, u"Function Plotter", MakeFake<ScreenMode::Plotter>},
    {ScreenMode::OneVariable, u"1-Var Statistics", MakeFake<ScreenMode::OneVariable>},
    {ScreenMode::TwoVariable, u"2-Var Statistics", MakeFake<ScreenMode::TwoVariable>},
    {ScreenMode::Matrix, u"Matrix Calculator", MakeFake<ScreenMode::Matrix>},
};

/// Whether it may be left.
bool mayLeave = true;

/// Notes when its user leaves it.
class AskingScreen final : public Screen {
 public:
  explicit AskingScreen(Frame& frame) : Screen(frame, {100, 100}) {
    AddFileMenu({});
    AddModeMenu(ScreenMode::Scientific);
  }
  bool MayLeave(LeaveReason reason) override {
    events.emplace_back(reason == LeaveReason::Ending ? "ending" : "switching");
    return mayLeave;
  }

 private:
  void LayOut(const DialogUnits&) override {}
};

const std::vector<ScreenKind> kOneThatAsks{
    {ScreenMode::Scientific, u"Scientific Calculator",
     [](Frame& frame) -> std::unique_ptr<QWidget> {
       return std::make_unique<AskingScreen>(frame);
     }},
    {ScreenMode::Matrix, u"Matrix Calculator", MakeFake<ScreenMode::Matrix>},
};

class FrameWindowTest : public testing::Test {
 protected:
  FrameWindowTest() {
    events.clear();
    mayLeave = true;
  }

  /// Makes the frame and waits for the first screen.
  void Start(const std::vector<ScreenKind>& screens = kAllFive) {
    MakeFrame(screens);
    frame_->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return started_ > 0; }));
  }
  void MakeFrame(const std::vector<ScreenKind>& screens = kAllFive) {
    frame_.reset();
    started_ = 0;
    screens_ = screens;
    frame_ = std::make_unique<FrameWindow>(store_, screens_, ScreenDialogs{},
                                           FrameHooks{[this] { ++saves_; },
                                                      [this] { ++started_; },
                                                      [this] { ++finished_; },
                                                      nullptr,
                                                      {},
                                                      {}});
  }
  std::string ShownName() const {
    return frame_->Shown() != nullptr ? frame_->Shown()->objectName().toStdString() : "none";
  }
  void ChangeTo(ScreenMode mode) {
    frame_->ChangeMode(mode);
    QCoreApplication::processEvents();
  }

  MemorySettingsStore store_;
  std::vector<ScreenKind> screens_;
  std::unique_ptr<FrameWindow> frame_;
  int saves_ = 0;
  int started_ = 0;
  int finished_ = 0;
};

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

TEST_F(FrameWindowTest, AWindowGrowsAndShrinksWithItsTexts) {
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

TEST_F(FrameWindowTest, AWindowOfTheUsersSizeKeepsItsShapeAtEveryScale) {
  Start(kOneThatAsks);
  QWidget& window = *frame_->Shown();
  frame_->ScaleText(TextStep::Larger);
  window.resize(440, 330);
  frame_->ScaleText(TextStep::Usual);
  EXPECT_EQ(window.size(), QSize(400, 300));
}

TEST_F(FrameWindowTest, AMaximizedWindowStaysAndItsTextsGrow) {
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

TEST_F(FrameWindowTest, AScreenTakesThePlaceAndSizeOfTheOneBefore) {
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

TEST_F(FrameWindowTest, AMaximizedScreenHandsThatOnToo) {
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

TEST_F(FrameWindowTest, TheWindowOpensWhereItWasClosed) {
  store_.Set(kWindowGeometry, "30 40 300 500");
  Start();
  EXPECT_EQ(frame_->Shown()->pos(), QPoint(30, 40));
  EXPECT_EQ(frame_->Shown()->size(), QSize(300, 500));
}

TEST_F(FrameWindowTest, AWindowOffTheDesktopIsBroughtBack) {
  const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
  for (const char* stored : {"-5000 -5000 300 400", "90000 20 300 400", "10 10 99999 99999"}) {
    frame_.reset();
    store_.Set(kWindowGeometry, stored);
    Start();
    EXPECT_TRUE(desktop.contains(frame_->Shown()->windowHandle()->frameGeometry())) << stored;
  }
}

TEST_F(FrameWindowTest, AFirstWindowOpensInTheMiddleAtAComfortableSize) {
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
