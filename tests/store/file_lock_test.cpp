#include "store/file_lock.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <string>
#include <thread>

#include "support/temporary_folder.h"

namespace kav::file_lock_test {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kNoWait{0};

TEST(FileLock, MakesItsFileForTheOwnerOnly) {
  const TemporaryFolder folder;
  ASSERT_TRUE(FileLock::Acquire(folder.File("a.lock"), kNoWait));
  EXPECT_EQ(PermissionsOf(folder.File("a.lock")), 0600U);
}

TEST(FileLock, IsTakenByOneAtATime) {
  const TemporaryFolder folder;
  const auto first = FileLock::Acquire(folder.File("a.lock"), kNoWait);
  ASSERT_TRUE(first);
  const auto second = FileLock::Acquire(folder.File("a.lock"), kNoWait);
  ASSERT_FALSE(second);
  EXPECT_EQ(second.error(), FileError::Busy);
  EXPECT_TRUE(FileLock::Acquire(folder.File("b.lock"), kNoWait));
}

TEST(FileLock, EndsWithItsHolder) {
  const TemporaryFolder folder;
  { const auto first = FileLock::Acquire(folder.File("a.lock"), kNoWait); }
  EXPECT_TRUE(FileLock::Acquire(folder.File("a.lock"), kNoWait));
}

TEST(FileLock, IsWaitedForAsLongAsAsked) {
  const TemporaryFolder folder;
  const auto first = FileLock::Acquire(folder.File("a.lock"), kNoWait);
  const auto start = Clock::now();
  EXPECT_FALSE(FileLock::Acquire(folder.File("a.lock"), milliseconds(150)));
  EXPECT_GE(Clock::now() - start, milliseconds(150));
}

TEST(FileLock, IsGotAsSoonAsItIsFree) {
  const TemporaryFolder folder;
  const pid_t holder = StartProcess([&] {
    const auto lock = FileLock::Acquire(folder.File("a.lock"), kNoWait);
    PutFile(folder.File("held"), "");
    std::this_thread::sleep_for(milliseconds(200));
    return lock ? 0 : 1;
  });
  while (!Exists(folder.File("held"))) std::this_thread::sleep_for(milliseconds(1));
  EXPECT_TRUE(FileLock::Acquire(folder.File("a.lock"), milliseconds(10000)));
  EXPECT_EQ(ResultOf(holder), 0);
}

TEST(FileLock, EndsWithAKilledProcess) {
  const TemporaryFolder folder;
  const pid_t holder = StartProcess([&] {
    const auto lock = FileLock::Acquire(folder.File("a.lock"), kNoWait);
    PutFile(folder.File("held"), "");
    std::this_thread::sleep_for(std::chrono::seconds(100));
    return lock ? 0 : 1;
  });
  while (!Exists(folder.File("held"))) std::this_thread::sleep_for(milliseconds(1));
  EXPECT_FALSE(FileLock::Acquire(folder.File("a.lock"), kNoWait));
  kill(holder, SIGKILL);
  EXPECT_EQ(ResultOf(holder), -1);
  EXPECT_TRUE(FileLock::Acquire(folder.File("a.lock"), kNoWait));
}

TEST(FileLock, IsNotTakenThroughALinkOrInAMissingFolder) {
  const TemporaryFolder folder;
  PutFile(folder.File("victim"), "");
  ASSERT_EQ(symlink("victim", folder.File("link").c_str()), 0);
  const auto throughLink = FileLock::Acquire(folder.File("link"), kNoWait);
  ASSERT_FALSE(throughLink);
  EXPECT_EQ(throughLink.error(), FileError::BadPath);
  const auto missing = FileLock::Acquire(folder.File("no/a.lock"), kNoWait);
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.error(), FileError::NotThere);
}

}  // namespace
}  // namespace kav::file_lock_test
