#include "store/file_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "store/user_settings_fixture.h"
#include "support/temporary_folder.h"

namespace {

/// What the system answers instead of locking folders, and files; 0: it locks them.
int errorOfFolders = 0;
int errorOfFiles = 0;

}  // namespace

/// Takes the place of the system's call, for disks that no machine of ours has.
extern "C" int flock(int file, int how) noexcept {
  struct stat status {};
  fstat(file, &status);
  const int error = S_ISDIR(status.st_mode) ? errorOfFolders : errorOfFiles;
  if (error == 0) return static_cast<int>(syscall(SYS_flock, file, how));
  errno = error;
  return -1;
}

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
  EXPECT_EQ(throughLink.error(), FileError::LinkLoop);
  const auto missing = FileLock::Acquire(folder.File("no/a.lock"), kNoWait);
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.error(), FileError::NotThere);
}

TEST(FileLock, OfAFileIsThatOfItsFolderAndLeavesNothingBehind) {
  const TemporaryFolder folder;
  {
    const auto first = FileLock::AcquireFor(folder.File("a"), kNoWait);
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->IsHeld());
    const auto second = FileLock::AcquireFor(folder.File("a"), kNoWait);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error(), FileError::Busy);
  }
  EXPECT_TRUE(FileLock::AcquireFor(folder.File("a"), kNoWait));
  EXPECT_TRUE(folder.Names().empty());
  const auto missing = FileLock::AcquireFor(folder.File("no/a"), kNoWait);
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.error(), FileError::NotThere);
}

TEST(FileLock, OfANameAloneIsThatOfTheWorkingFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(InAnotherProcess([&] {
              if (chdir(folder.Path().c_str()) != 0) return 2;
              const auto first = FileLock::AcquireFor("a", kNoWait);
              const auto second = FileLock::AcquireFor(folder.File("a"), kNoWait);
              return first && !second && second.error() == FileError::Busy ? 0 : 1;
            }),
            0);
}

/// While it lives, locking folders fails with one error, and locking files with another.
class Disk {
 public:
  Disk(int folders, int files) {
    errorOfFolders = folders;
    errorOfFiles = files;
  }
  ~Disk() { errorOfFolders = errorOfFiles = 0; }
};

TEST(FileLock, OnADiskThatLocksNoFoldersIsAFileBeside) {
  for (const int error : {EBADF, EINVAL, ENOLCK, EOPNOTSUPP}) {
    const Disk disk(error, 0);
    const TemporaryFolder folder;
    const auto first = FileLock::AcquireFor(folder.File("a"), kNoWait);
    ASSERT_TRUE(first) << error;
    EXPECT_TRUE(first->IsHeld());
    const auto second = FileLock::AcquireFor(folder.File("a"), kNoWait);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error(), FileError::Busy);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"a.lock"});
  }
}

using UserSettingsWithoutLocksTest = UserSettingsStoreTest;

TEST_F(UserSettingsWithoutLocksTest, SettingsAreSavedWhereNothingCanBeLocked) {
  for (const int error : {ENOLCK, EOPNOTSUPP, ENOSYS}) {
    const Disk disk(error, error);
    PutByHand("[History]\nCalHistory1 = 'theirs'\n");
    UserSettingsStore store(path);
    store.Set(kNumber, error);
    EXPECT_TRUE(store.Save()) << error;
    EXPECT_TRUE(store.Change([&] { store.Set(kNumber, store.Get(kNumber) + 1); }));
    EXPECT_EQ(store.TakeNotice(), std::nullopt);
    EXPECT_EQ(ReadNumber(), error + 1);
    EXPECT_EQ(ReadText(), "theirs");
  }
}

TEST_F(UserSettingsWithoutLocksTest, AFileThatAnotherProcessIsWritingJustThenIsLeftToIt) {
  const Disk disk(ENOLCK, ENOLCK);
  PutByHand("");
  PutFile(path + ".new-AbC123", "half");
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_TRUE(Exists(path + ".new-AbC123"));
}

}  // namespace
}  // namespace kav::file_lock_test
