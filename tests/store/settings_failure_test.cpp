// The user's settings when the file or its place is not as it should be: everything goes on in
// memory, nothing is lost, and the user is told once.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "settings/setting_key.h"
#include "store/settings_texts.h"
#include "store/user_settings_store.h"
#include "support/temporary_folder.h"

namespace kav::settings_failure_test {
namespace {

using std::string_literals::operator""s;
using Clock = std::chrono::steady_clock;
using Notice = std::optional<std::u16string>;

constexpr SettingKey<std::int32_t> kNumber{"Config", "Angle Type", 42};
constexpr SettingKey<std::string_view> kText{"History", "CalHistory1", "as ever"};
// A user that owns nothing: what root may not do is tried as this one.
constexpr uid_t kNobody = 65534;

bool BecomeNobody() {
  return geteuid() != 0 || seteuid(kNobody) == 0;
}

/// Whether the store goes on in memory, refuses to save and says so exactly once, in these words.
testing::AssertionResult SuffersOnce(UserSettingsStore& store, const std::u16string& notice) {
  store.Set(kNumber, 2);
  if (store.Save()) return testing::AssertionFailure() << "it was saved";
  const Notice told = store.TakeNotice();
  if (told != notice) {
    return testing::AssertionFailure() << "told: " << Narrow(told.value_or(u"nothing"));
  }
  store.Set(kText, "still here");
  if (store.Save()) return testing::AssertionFailure() << "it was saved later";
  if (store.TakeNotice()) return testing::AssertionFailure() << "told again";
  if (store.Get(kNumber) != 2 || store.Get(kText) != "still here") {
    return testing::AssertionFailure() << "it forgot";
  }
  return testing::AssertionSuccess();
}

/// The same in another process: 0, or the number of what did not hold.
int ResultOfSuffering(UserSettingsStore& store, const std::u16string& notice) {
  const auto result = SuffersOnce(store, notice);
  if (!result) fprintf(stderr, "%s\n", result.message());
  return result ? 0 : 1;
}

TEST(SettingsFailure, DamageStartsWithDefaultsAndIsKeptAsideByTheFirstSave) {
  const std::vector<std::string> damages{
      "?",
      "no settings at all",
      "[Config]\n\"Angle Type\" = 5\n\"Angle Type\" = 6\n",
      "[Config]\n\"Angle Type\" = 5\ntruncated = \"",
      "[Config]\n\"Angle Type\" = 5\n[History]\nCalHistory1 = \"\xFF\"\n",
      "\x7F"
      "ELF\x02\x01\x01\0\0\0\0"s,
      std::string(5000, '\0'),
      "a = " + std::string(100'000, '['),
      "a = [ }",
  };
  for (const auto& damage : damages) {
    const TemporaryFolder folder;
    const std::string path = folder.File("settings.toml");
    PutFile(path, damage);
    UserSettingsStore store(path);
    EXPECT_EQ(store.Get(kNumber), 42) << damage.substr(0, 50);
    EXPECT_EQ(store.TakeNotice(), SettingsAreDamaged(path));
    EXPECT_EQ(store.TakeNotice(), std::nullopt);
    EXPECT_TRUE(FileContent(path) == damage) << "nothing is moved without a need";
    store.Set(kText, "new");
    EXPECT_TRUE(store.Save());
    EXPECT_EQ(store.TakeNotice(), std::nullopt);
    EXPECT_TRUE(FileContent(path + ".damaged") == damage);
    EXPECT_EQ(UserSettingsStore(path).Get(kText), "new");
  }
}

TEST(SettingsFailure, AFileTooLargeToBeSettingsIsDamage) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "");
  ASSERT_EQ(truncate(path.c_str(), (64 << 20) + 1), 0);
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.TakeNotice(), SettingsAreDamaged(path));
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(StatusOf(path + ".damaged").st_size, (64 << 20) + 1);
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 2);
}

TEST(SettingsFailure, NoDamagedFileKeptEarlierIsOverwritten) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  for (const char* damage : {"first?", "second?", "third?"}) {
    PutFile(path, damage);
    UserSettingsStore store(path);
    store.Set(kNumber, 2);
    EXPECT_TRUE(store.Save());
  }
  EXPECT_EQ(FileContent(path + ".damaged"), "first?");
  EXPECT_EQ(FileContent(path + ".damaged-2"), "second?");
  EXPECT_EQ(FileContent(path + ".damaged-3"), "third?");
}

TEST(SettingsFailure, DamageThatComesWhileRunningLosesNothingThatWasRead) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  UserSettingsStore store(path);
  store.Set(kText, "new");
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  PutFile(path, "a slip of the pen");
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(store.TakeNotice(), SettingsAreDamaged(path));
  EXPECT_EQ(FileContent(path + ".damaged"), "a slip of the pen");
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 5);
  EXPECT_EQ(UserSettingsStore(path).Get(kText), "new");
}

TEST(SettingsFailure, DamageBehindALinkIsKeptBesideTheFile) {
  const TemporaryFolder folder;
  mkdir(folder.File("dotfiles").c_str(), 0700);
  PutFile(folder.File("dotfiles/kav.toml"), "?");
  ASSERT_EQ(symlink("dotfiles/kav.toml", folder.File("settings.toml").c_str()), 0);
  UserSettingsStore store(folder.File("settings.toml"));
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(FileContent(folder.File("dotfiles/kav.toml.damaged")), "?");
  EXPECT_TRUE(S_ISLNK(StatusOf(folder.File("settings.toml")).st_mode));
  EXPECT_EQ(UserSettingsStore(folder.File("settings.toml")).Get(kNumber), 2);
}

TEST(SettingsFailure, WithoutAPlaceTheUserIsToldWhenSomethingShouldBeSaved) {
  UserSettingsStore store("");
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  EXPECT_TRUE(SuffersOnce(store, std::u16string(kNoPlaceForSettings)));
}

TEST(SettingsFailure, AChangeThatCannotBeSavedIsMadeInMemoryAndTold) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "");
  const std::string path = folder.File("file/settings.toml");
  UserSettingsStore store(path);
  EXPECT_FALSE(store.Change([&] { store.Set(kNumber, 9); }));
  EXPECT_EQ(store.Get(kNumber), 9);
  EXPECT_TRUE(store.TakeNotice());
  EXPECT_FALSE(store.Change([&] { store.Set(kNumber, 10); }));
  EXPECT_EQ(store.Get(kNumber), 10);
  EXPECT_FALSE(store.TakeNotice()) << "it is told once";
  UserSettingsStore nowhere("");
  EXPECT_FALSE(nowhere.Change([&] { nowhere.Set(kNumber, 9); }));
  EXPECT_EQ(nowhere.Get(kNumber), 9);
}

TEST(SettingsFailure, WhatCouldNotBeSavedCanBeTakenBack) {
  const TemporaryFolder folder;
  const std::string path = folder.File("place/settings.toml");
  PutFile(folder.File("place"), "");
  UserSettingsStore store(path);
  EXPECT_EQ(store.TakeBackUnsaved(), std::nullopt) << "nothing waits";
  for (const int round : {1, 2}) {
    store.Change([&] { store.Set(kNumber, round); });
    const auto revision = store.Revision();
    EXPECT_EQ(store.TakeBackUnsaved(), SettingsCannotBeSaved(path, FileError::BadPath)) << round;
    EXPECT_EQ(store.Get(kNumber), 42) << "as before the change";
    EXPECT_NE(store.Revision(), revision);
    EXPECT_EQ(store.TakeBackUnsaved(), std::nullopt) << "once is enough";
  }
  unlink(folder.File("place").c_str());
  EXPECT_TRUE(store.Change([&] { store.Set(kText, "later"); }));
  EXPECT_EQ(store.TakeBackUnsaved(), std::nullopt) << "all is kept";
  EXPECT_EQ(UserSettingsStore(path).Get(kText), "later");
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 42);
}

TEST(SettingsFailure, APlaceThatCannotBeIsToldOnce) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "");
  symlink("loop", folder.File("loop").c_str());
  for (const std::string& path : {folder.File("file/settings.toml"), folder.File("loop"),
                                  folder.File(std::string(300, 'n')), "/proc/kav/settings.toml"s}) {
    UserSettingsStore store(path);
    EXPECT_EQ(store.Get(kNumber), 42);
    EXPECT_EQ(store.TakeNotice(), std::nullopt) << path;
    EXPECT_TRUE(SuffersOnce(store, SettingsCannotBeSaved(path, FileError::BadPath))) << path;
  }
}

// A folder named by mistake is somebody's, and nothing a calculator should move about.
TEST(SettingsFailure, AFolderOrAPipeInItsPlaceIsToldOnceAndLeftAlone) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  mkfifo(folder.File("pipe").c_str(), 0600);
  for (const std::string& path : {folder.File("folder"), folder.File("pipe")}) {
    const auto before = StatusOf(path).st_ino;
    UserSettingsStore store(path);
    EXPECT_TRUE(SuffersOnce(store, SettingsCannotBeRead(path, FileError::NotAFile)));
    EXPECT_EQ(StatusOf(path).st_ino, before);
    EXPECT_FALSE(Exists(path + ".damaged"));
  }
}

TEST(SettingsFailure, WhatCannotBeReadIsNotOverwritten) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  chmod(folder.Path().c_str(), 0777);
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  chmod(path.c_str(), 0);
  EXPECT_EQ(InAnotherProcess([&] {
              if (!BecomeNobody()) return 2;
              UserSettingsStore store(path);
              if (store.Get(kNumber) != 42) return 3;
              return ResultOfSuffering(store, SettingsCannotBeRead(path, FileError::NoPermission));
            }),
            0);
  chmod(path.c_str(), 0644);
  EXPECT_EQ(FileContent(path), "[Config]\n\"Angle Type\" = 5\n");
}

TEST(SettingsFailure, AFolderThatMayNotBeWrittenIsToldOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "[History]\nCalHistory1 = 'read'\n");
  chmod(path.c_str(), 0644);
  chmod(folder.Path().c_str(), 0555);
  EXPECT_EQ(InAnotherProcess([&] {
              if (!BecomeNobody()) return 2;
              UserSettingsStore store(path);
              if (store.Get(kText) != "read") return 3;
              return ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::NoPermission));
            }),
            0);
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"settings.toml"});
}

TEST(SettingsFailure, WithoutSpaceTheFileStaysAndTheNextSaveHasAll) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  EXPECT_EQ(InAnotherProcess([&] {
              signal(SIGXFSZ, SIG_IGN);
              rlimit limit{};
              getrlimit(RLIMIT_FSIZE, &limit);
              const rlimit small{10'000, limit.rlim_max};
              UserSettingsStore store(path);
              store.Set(NumberedKey{"History", "Long", ""}, std::string(20'000, 'x'));
              setrlimit(RLIMIT_FSIZE, &small);
              const int suffering =
                  ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::Full));
              if (suffering != 0) return suffering;
              if (FileContent(path) != "[Config]\n\"Angle Type\" = 5\n") return 2;
              if (folder.Names().size() != 2) return 3;
              setrlimit(RLIMIT_FSIZE, &limit);
              return store.Save() && !store.TakeNotice() ? 0 : 4;
            }),
            0);
  const UserSettingsStore reader(path);
  EXPECT_EQ(reader.Get(kNumber), 2);
  EXPECT_EQ(reader.Get(kText), "still here");
  EXPECT_EQ(reader.Get(NumberedKey{"History", "Long", ""}).size(), 20'000U);
}

/// Runs `work` with a disk of its own mounted at `folder`; -2 if this user may mount none.
template <class Work>
int WithADisk(const std::string& folder, const char* options, Work work) {
  const int result = InAnotherProcess([&] {
    if (unshare(CLONE_NEWNS) != 0) return 254;
    if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return 254;
    if (mount("none", folder.c_str(), "tmpfs", 0, options) != 0) return 254;
    return work();
  });
  return result == 254 ? -2 : result;
}

TEST(SettingsFailure, AFullDiskIsToldOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const int result = WithADisk(folder.Path(), "size=64k", [&] {
    UserSettingsStore store(path);
    store.Set(NumberedKey{"History", "Long", ""}, std::string(200'000, 'x'));
    return ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::Full));
  });
  if (result == -2) GTEST_SKIP() << "this user may not mount a disk";
  EXPECT_EQ(result, 0);
}

TEST(SettingsFailure, AReadOnlyDiskIsToldOnce) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const int result = WithADisk(folder.Path(), "size=64k", [&] {
    PutFile(path, "[History]\nCalHistory1 = 'read'\n");
    if (mount("none", folder.Path().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
      return 254;
    }
    UserSettingsStore store(path);
    if (store.Get(kText) != "read") return 3;
    return ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::ReadOnly));
  });
  if (result == -2) GTEST_SKIP() << "this user may not mount a disk";
  EXPECT_EQ(result, 0);
}

TEST(SettingsFailure, ALockThatIsNeverReleasedIsWaitedForOnceOnly) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const int holder = open((path + ".lock").c_str(), O_RDWR | O_CREAT, 0600);
  ASSERT_EQ(flock(holder, LOCK_EX), 0);
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  const auto first = Clock::now();
  EXPECT_FALSE(store.Save());
  EXPECT_GE(Clock::now() - first, std::chrono::milliseconds(2000));
  EXPECT_EQ(store.TakeNotice(), SettingsCannotBeSaved(path, FileError::Busy));
  const auto second = Clock::now();
  EXPECT_FALSE(store.Save());
  EXPECT_LT(Clock::now() - second, std::chrono::milliseconds(500));
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  EXPECT_FALSE(Exists(path));
  close(holder);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 2);
}

TEST(SettingsFailure, WhatCouldNotBeReadAgainIsNotWritten) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  UserSettingsStore store(path);
  for (int i = 0; i < 60'000; ++i) {
    store.Set(NumberedKey{"Many", "Entry" + std::to_string(i), ""}, "x");
  }
  EXPECT_FALSE(store.Save());
  EXPECT_EQ(store.TakeNotice(), SettingsCannotBeSaved(path, FileError::TooLarge));
  EXPECT_EQ(FileContent(path), "[Config]\n\"Angle Type\" = 5\n");
}

TEST(SettingsFailure, DifferentCausesAreEachTold) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "?");
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
  unlink(path.c_str());
  mkdir(path.c_str(), 0700);
  EXPECT_FALSE(store.Save());
  EXPECT_EQ(store.TakeNotice(), SettingsAreDamaged(path));
  EXPECT_EQ(store.TakeNotice(), SettingsCannotBeRead(path, FileError::NotAFile));
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
}

}  // namespace
}  // namespace kav::settings_failure_test
