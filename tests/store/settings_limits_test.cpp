// The user's settings when the system runs out of what it takes to keep them.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <new>
#include <optional>
#include <string>

#include "settings/file_descriptor.h"
#include "store/settings_texts.h"
#include "store/suffering.h"
#include "store/user_settings_store.h"
#include "support/counted_memory.h"
#include "support/temporary_folder.h"

namespace kav::settings_limits_test {
namespace {

class SettingsLimits : public testing::Test {
 protected:
  std::string ReadText() const { return UserSettingsStore(path).Get(kText); }
  std::int32_t ReadNumber() const { return UserSettingsStore(path).Get(kNumber); }

  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
};

using test::Shortage;

constexpr std::size_t kStep = 8 * 1024;

/// As many settings as take more than a hundred kilobytes to read.
std::string ManySettings() {
  std::string toml = "[Config]\n\"Angle Type\" = 5\n[History]\n";
  for (int i = 0; i < 250; ++i)
    toml += "Entry" + std::to_string(i) + " = 'a text of some length'\n";
  return toml;
}

TEST_F(SettingsLimits, WithoutTheMemoryToReadThemTheUserIsTold) {
  const std::string before = ManySettings();
  PutFile(path, before);
  bool isRead = false;
  int failures = 0;
  for (std::size_t most = kStep; !isRead; most += kStep) {
    UserSettingsStore store(path);
    {
      const Shortage shortage(most);
      isRead = store.Get(kNumber) == 5;
    }
    if (isRead) break;
    EXPECT_EQ(store.TakeNotice(), SettingsCannotBeRead(path, FileError::NoMemory)) << most;
    if (++failures > 1) continue;
    store.Set(kText, "new");
    ASSERT_TRUE(store.Save()) << "by now there is memory";
    EXPECT_EQ(store.TakeNotice(), SettingsWereUnread(path));
    EXPECT_EQ(ReadNumber(), 5);
    EXPECT_TRUE(FileContent(path + ".damaged") == before) << "nothing is lost";
  }
  EXPECT_GT(failures, 5);
}

TEST_F(SettingsLimits, WithoutTheMemoryToSaveThemTheFileStaysAndTheUserIsTold) {
  const std::string before = ManySettings();
  PutFile(path, before);
  UserSettingsStore store(path);
  store.Set(kText, "new");
  bool isSaved = false;
  int failures = 0;
  for (std::size_t most = kStep; !isSaved; most += kStep) {
    {
      const Shortage shortage(most);
      isSaved = store.Save();
      store.Refresh();
    }
    if (isSaved) break;
    const std::optional<std::u16string> expected = SettingsCannotBeSaved(path, FileError::NoMemory);
    EXPECT_EQ(store.TakeNotice(), failures++ == 0 ? expected : std::nullopt);
    EXPECT_TRUE(FileContent(path) == before) << most;
    EXPECT_EQ(store.Get(kText), "new");
  }
  EXPECT_GT(failures, 5);
  EXPECT_EQ(ReadText(), "new");
  EXPECT_EQ(ReadNumber(), 5);
}

TEST_F(SettingsLimits, AFileTooLargeToBeSettingsIsKeptAside) {
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n#");
  ASSERT_EQ(truncate(path.c_str(), 4194305), 0);
  UserSettingsStore store(path);
  EXPECT_EQ(store.Get(kNumber), 42);
  EXPECT_EQ(store.TakeNotice(), SettingsAreTooLarge(path));
  store.Set(kNumber, 2);
  EXPECT_TRUE(store.Save());
  EXPECT_EQ(store.TakeNotice(), std::nullopt);
  EXPECT_EQ(StatusOf(path + ".damaged").st_size, 4194305);
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 2);
}

TEST_F(SettingsLimits, WithoutSpaceTheFileStaysAndTheNextSaveHasAll) {
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  EXPECT_EQ(InAnotherProcess([&] {
              SurviveSizeLimit();
              rlimit limit{};
              getrlimit(RLIMIT_FSIZE, &limit);
              const rlimit small{10'000, limit.rlim_max};
              UserSettingsStore store(path);
              store.Set(NumberedKey{"History", "Long", ""}, std::string(20'000, 'x'));
              setrlimit(RLIMIT_FSIZE, &small);
              const int suffering =
                  ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::SizeLimit));
              if (suffering != 0) return suffering;
              if (FileContent(path) != "[Config]\n\"Angle Type\" = 5\n") return 2;
              if (folder.Names().size() != 1) return 3;
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

TEST_F(SettingsLimits, AFullDiskIsToldOnce) {
  const int result = WithADisk(folder.Path(), "size=64k", [&] {
    UserSettingsStore store(path);
    store.Set(NumberedKey{"History", "Long", ""}, std::string(200'000, 'x'));
    return ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::Full));
  });
  if (result == -2) GTEST_SKIP() << "this user may not mount a disk";
  EXPECT_EQ(result, 0);
}

TEST_F(SettingsLimits, AReadOnlyDiskIsToldOnce) {
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

TEST_F(SettingsLimits, TooManyOpenFilesAreToldAndEndNothing) {
  PutFile(path, "[Config]\n\"Angle Type\" = 5\n");
  EXPECT_EQ(InAnotherProcess([&] {
              UserSettingsStore store(path);
              if (store.Get(kNumber) != 5) return 2;
              rlimit limit{};
              getrlimit(RLIMIT_NOFILE, &limit);
              const rlimit none{0, limit.rlim_max};
              setrlimit(RLIMIT_NOFILE, &none);
              return ResultOfSuffering(store, SettingsCannotBeSaved(path, FileError::TooManyOpen));
            }),
            0);
  EXPECT_EQ(UserSettingsStore(path).Get(kNumber), 5);
}

}  // namespace
}  // namespace kav::settings_limits_test
