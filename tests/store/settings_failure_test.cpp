// The user's settings when the file or its place is not as it should be: everything goes on in
// memory, nothing is lost, and the user is told once.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/settings_texts.h"
#include "store/suffering.h"
#include "store/user_settings_store.h"
#include "support/temporary_folder.h"

namespace kav::settings_failure_test {
namespace {

using std::string_literals::operator""s;
using Clock = std::chrono::steady_clock;

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
  const std::pair<std::string, FileError> rows[] = {
      {folder.File("file/settings.toml"), FileError::BadPath},
      {folder.File(std::string(300, 'n')), FileError::NameTooLong},
      {"/proc/kav/settings.toml", FileError::NotThere},
      {folder.File("new/"), FileError::NotAFile},
  };
  for (const auto& [path, error] : rows) {
    UserSettingsStore store(path);
    EXPECT_EQ(store.Get(kNumber), 42);
    EXPECT_EQ(store.TakeNotice(), std::nullopt) << path;
    EXPECT_TRUE(SuffersOnce(store, SettingsCannotBeSaved(path, error))) << path;
  }
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"file"});
}

TEST(SettingsFailure, LinksThatLeadInACircleAreToldOnce) {
  const TemporaryFolder folder;
  ASSERT_EQ(symlink("loop", folder.File("loop").c_str()), 0);
  UserSettingsStore store(folder.File("loop"));
  EXPECT_TRUE(SuffersOnce(store, SettingsCannotBeRead(folder.File("loop"), FileError::LinkLoop)));
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"loop"});
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
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"folder", "pipe"}));
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

TEST(SettingsFailure, ALockThatIsNeverReleasedIsWaitedForOnceOnly) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const int holder = open(folder.Path().c_str(), O_RDONLY);
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

TEST(SettingsFailure, AWindowDoesNotWaitForAnotherProcess) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const int holder = open(folder.Path().c_str(), O_RDONLY);
  ASSERT_EQ(flock(holder, LOCK_EX), 0);
  UserSettingsStore store(path, StoreUser::Window);
  EXPECT_TRUE(store.TrySave()) << "nothing to save";
  store.Set(kNumber, 2);
  const auto start = Clock::now();
  EXPECT_FALSE(store.TrySave());
  EXPECT_FALSE(store.TrySave());
  EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(200));
  const auto change = Clock::now();
  EXPECT_FALSE(store.Change([&] { store.Set(kText, "new"); }));
  EXPECT_LT(Clock::now() - change, std::chrono::milliseconds(1000));
  EXPECT_EQ(store.TakeNotice(), std::nullopt) << "it is not late yet";
  store.TellBusy();
  EXPECT_EQ(store.TakeNotice(), SettingsCannotBeSaved(path, FileError::Busy) +
                                    u" Until then they last as long as the calculator runs.");
  EXPECT_EQ(store.Get(kText), "new");
  close(holder);
  EXPECT_TRUE(store.TrySave());
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 2);
  EXPECT_EQ(UserSettingsStore(path).Get(kText), "new");
}

TEST(SettingsFailure, WhatFailsAgainAfterItWentWellIsToldAgain) {
  const TemporaryFolder folder;
  const std::string path = folder.File("place/settings.toml");
  UserSettingsStore store(path);
  for (const int round : {1, 2}) {
    PutFile(folder.File("place"), "");
    store.Set(kNumber, 2 * round);
    EXPECT_FALSE(store.Save());
    EXPECT_EQ(store.TakeNotice(), SettingsCannotBeSaved(path, FileError::BadPath)) << round;
    EXPECT_FALSE(store.Save());
    EXPECT_EQ(store.TakeNotice(), std::nullopt) << round;
    unlink(folder.File("place").c_str());
    EXPECT_TRUE(store.Save());
    unlink(path.c_str());
    rmdir(folder.File("place").c_str());
  }
}

// Root's, say, from the time when a lock was a file beside the settings.
TEST(SettingsFailure, AFileThatLooksLikeALockAndCannotBeOpenedDoesNoHarm) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  mkdir((path + ".lock").c_str(), 0);
  UserSettingsStore store(path);
  store.Set(kNumber, 2);
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
