// A whole run on settings on disk, in this process.
#include "app/session.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "settings/keys.h"
#include "support/temporary_folder.h"

namespace kav::test::session_test {
namespace {

constexpr const char* kPathVariable = "KAV_TEST_SETTINGS";

QWidget* FindScreen() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->findChildren<QLineEdit*>().isEmpty()) return window;
  }
  return nullptr;
}

class SessionTest : public testing::Test {
 protected:
  void Start() {
    chmod(folder_.Path().c_str(), 0700);
    session_ = std::make_unique<Session>(
        SingleInstance::Claim(OpenMeetingFolder(folder_.Path(), "/nowhere"),
                              std::chrono::milliseconds(100)),
        Path());
    ASSERT_TRUE(QTest::qWaitFor([] { return FindScreen() != nullptr; }));
    QTest::qWait(20);
  }
  /// Runs the event loop until the session ends it.
  void RunToItsEnd() {
    QTimer::singleShot(10000, &watchdog_, [] {
      ADD_FAILURE() << "the session did not end";
      QApplication::exit();
    });
    QApplication::exec();
    session_.reset();
  }
  void Close() {
    QTimer::singleShot(0, FindScreen(), &QWidget::close);
    RunToItsEnd();
  }
  QWidget& TheScreen() { return *FindScreen(); }
  std::string Path() {
    const char* given = std::getenv(kPathVariable);
    return given != nullptr ? given : folder_.File("settings.toml");
  }
  UserSettingsStore Stored() { return UserSettingsStore(Path()); }

  TemporaryFolder folder_;
  QObject watchdog_;
  std::unique_ptr<Session> session_;
};

TEST_F(SessionTest, TheSeparatorOfTheNumberPadIsAPointInTheWholeProgram) {
  Start();
  QTest::keyClick(&Expression(TheScreen()), Qt::Key_Comma, Qt::KeypadModifier);
  EXPECT_EQ(LineOf(TheScreen()), u".|");
  Close();
}

TEST_F(SessionTest, HistoryAngleBaseScreenAndPlaceAreAsTheyWereLeft) {
  Start();
  Tap(TheScreen(), u"SIN 3 0 =");
  EXPECT_EQ(ResultOf(TheScreen()), u"0.5");
  Tap(TheScreen(), u"DEG DEC");
  Choose(u"Octal");
  TheScreen().move(60, 70);
  TheScreen().resize(300, 450);
  QCoreApplication::processEvents();
  Close();

  Start();
  EXPECT_NE(FindKey(TheScreen(), u"RAD"), nullptr);
  EXPECT_NE(FindKey(TheScreen(), u"OCT"), nullptr);
  EXPECT_EQ(TheScreen().pos(), QPoint(60, 70));
  EXPECT_EQ(TheScreen().size(), QSize(300, 450));
  Tap(TheScreen(), u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"sin(30)", u"=[D]0.5"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  Close();
}

TEST_F(SessionTest, AFirstRunWritesModeAndVersion) {
  Start();
  Close();
  auto store = Stored();
  EXPECT_EQ(store.Get(kMode), 1);
  EXPECT_EQ(store.Get(kVersion), "2.5");
}

TEST_F(SessionTest, WhatWasAnsweredIsOnDiskBeforeTheEnd) {
  Start();
  Tap(TheScreen(), u"6 * 7 =");
  QCoreApplication::processEvents();
  auto store = Stored();
  EXPECT_EQ(store.Get(kCalHistoryCount), 2);
  EXPECT_EQ(store.Get(CalHistoryEntry(1)), "=[D]42");
  EXPECT_EQ(store.Get(CalHistoryEntry(2)), "6*7");
  Close();
}

TEST_F(SessionTest, DamagedSettingsAreToldOnceAndDefaultsTakeTheirPlace) {
  PutFile(Path(), "[Config\nthis is no TOML");
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  Start();
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(ToQt(seen[0].text).contains("damaged"));
  EXPECT_TRUE(ToQt(seen[0].text).contains(QString::fromStdString(Path())));
  EXPECT_EQ(seen[0].icon, QMessageBox::Warning);
  Tap(TheScreen(), u"1 =");
  QCoreApplication::processEvents();
  Tap(TheScreen(), u"2 =");
  Close();
  EXPECT_TRUE(Exists(Path() + ".damaged"));
  EXPECT_EQ(Stored().Get(kCalHistoryCount), 4);
}

TEST_F(SessionTest, APlaceThatCannotBeWrittenIsToldOnceAndNothingElseSuffers) {
  PutFile(folder_.File("in-the-way"), "");
  const std::string path = folder_.File("in-the-way/settings.toml");
  session_ = std::make_unique<Session>(SingleInstance::Claim(FileDescriptor(-1), {}), path);
  // Told either when the settings are read or when they are first saved.
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  ASSERT_TRUE(QTest::qWaitFor([] { return FindScreen() != nullptr; }));
  Tap(TheScreen(), u"6 * 7 =");
  EXPECT_EQ(ResultOf(TheScreen()), u"42");
  QTest::qWait(20);
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  Tap(TheScreen(), u"1 + 1 =");
  EXPECT_EQ(ResultOf(TheScreen()), u"2");
  QTest::qWait(20);
  Tap(TheScreen(), u"PB");
  EXPECT_EQ(Offered(OpenMenu()).size(), 4U);
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  Close();
}

TEST_F(SessionTest, AnotherProgramThatKeepsTheSettingsHoldsUpNothing) {
  Start();
  FileDescriptor other(open(folder_.Path().c_str(), O_RDONLY));
  ASSERT_EQ(flock(other.Number(), LOCK_EX), 0);
  const auto start = std::chrono::steady_clock::now();
  Tap(TheScreen(), u"6 * 7 =");
  QCoreApplication::processEvents();
  Tap(TheScreen(), u"1 + 1 =");
  QCoreApplication::processEvents();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1500));
  EXPECT_EQ(ResultOf(TheScreen()), u"2");
  EXPECT_EQ(Stored().Get(kCalHistoryCount), 0);
  other = FileDescriptor(-1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Stored().Get(kCalHistoryCount) == 4; }));
  Close();
}

TEST_F(SessionTest, ExitOfTheFileMenuEndsIt) {
  Start();
  QTimer::singleShot(0, [] { ChooseFrom(*FindScreen(), u"&File", u"E&xit"); });
  RunToItsEnd();
  EXPECT_EQ(Stored().Get(kMode), 1);
}

TEST_F(SessionTest, ASignalEndsItInGoodOrder) {
  Start();
  Tap(TheScreen(), u"DEG");
  QTimer::singleShot(0, [] { raise(SIGTERM); });
  RunToItsEnd();
  EXPECT_EQ(Stored().Get(kAngleType), 2);
}

TEST_F(SessionTest, ASignalEndsItEvenWhileABoxWaitsForAnAnswer) {
  Start();
  BoxWatch::Instance().Expect(QMessageBox::NoButton);
  QTimer::singleShot(0, [] { ChooseFrom(*FindScreen(), u"&File", u"&About..."); });
  QTimer::singleShot(100, [] { raise(SIGTERM); });
  RunToItsEnd();
  BoxWatch::Instance().TakeSeen();
  EXPECT_EQ(Stored().Get(kMode), 1);
}

TEST_F(SessionTest, ACallBringsTheScreenBack) {
  Start();
  TheScreen().showMinimized();
  const pid_t second = StartProcess([this] {
    const auto claim = SingleInstance::Claim(OpenMeetingFolder(folder_.Path(), "/nowhere"),
                                             std::chrono::seconds(30));
    return claim.Result() == SingleInstance::Outcome::Called ? 0 : 1;
  });
  EXPECT_TRUE(
      QTest::qWaitFor([] { return FindScreen() != nullptr && !FindScreen()->isMinimized(); }));
  EXPECT_EQ(kav::ResultOf(second), 0);
  Close();
}

TEST_F(SessionTest, AKillLosesNothingThatWasAnswered) {
  // The process to be killed runs this test again, and reads from the environment where to save.
  setenv(kPathVariable, Path().c_str(), 1);
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        Start();
        Tap(TheScreen(), u"SIN 3 0 =");
        QCoreApplication::processEvents();
        raise(SIGKILL);
      },
      testing::KilledBySignal(SIGKILL), "");
  unsetenv(kPathVariable);
  auto store = Stored();
  EXPECT_EQ(store.Get(kCalHistoryCount), 2);
  EXPECT_EQ(store.Get(CalHistoryEntry(1)), "=[D]0.5");
  EXPECT_EQ(store.Get(CalHistoryEntry(2)), "sin(30)");
}

// On a real display the toolkit starts threads, and a signal may reach any of them.
TEST(EndSignals, AreHeldInThreadsThatStartLater) {
  constexpr std::array kEnds{SIGTERM, SIGINT, SIGHUP};
  sigset_t ends;
  sigemptyset(&ends);
  for (const int number : kEnds) sigaddset(&ends, number);
  sigset_t held;
  sigemptyset(&held);
  // In a thread of its own: sessions before this test hold the signals in the first one.
  std::thread([&] {
    pthread_sigmask(SIG_UNBLOCK, &ends, nullptr);
    HoldEndSignals();
    std::thread([&held] { pthread_sigmask(SIG_BLOCK, nullptr, &held); }).join();
  }).join();
  for (const int number : kEnds) EXPECT_EQ(sigismember(&held, number), 1) << number;
}

}  // namespace
}  // namespace kav::test::session_test
