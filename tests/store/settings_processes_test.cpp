// The user's settings between processes: no entry is lost, and a process that is killed does no
// harm.
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstdint>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "settings/setting_key.h"
#include "store/settings_toml.h"
#include "store/user_settings_store.h"
#include "support/temporary_folder.h"

namespace kav::settings_processes_test {
namespace {

constexpr int kProcesses = 4;
constexpr int kSavesEach = 25;

NumberedKey EntryOf(int process, int entry) {
  return {"Process" + std::to_string(process % 2),
          "Entry" + std::to_string(process) + "." + std::to_string(entry), ""};
}

TEST(SettingsProcesses, WritersAtTheSameTimeLoseNoEntry) {
  const TemporaryFolder folder;
  const std::string path = folder.File("sub/settings.toml");
  std::vector<pid_t> writers;
  for (int process = 0; process < kProcesses; ++process) {
    writers.push_back(StartProcess([&] {
      UserSettingsStore store(path);
      for (int entry = 0; entry < kSavesEach; ++entry) {
        store.Set(EntryOf(process, entry), std::to_string(entry));
        if (!store.Save()) return 1;
      }
      return 0;
    }));
  }
  for (const pid_t writer : writers) EXPECT_EQ(ResultOf(writer), 0);
  const UserSettingsStore reader(path);
  for (int process = 0; process < kProcesses; ++process) {
    for (int entry = 0; entry < kSavesEach; ++entry) {
      EXPECT_EQ(reader.Get(EntryOf(process, entry)), std::to_string(entry)) << process;
    }
  }
}

TEST(SettingsProcesses, ChangesAtTheSameTimeAreMadeOneAfterTheOther) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  constexpr SettingKey<std::int32_t> kCounter{"A", "Counter", 0};
  std::vector<pid_t> counters;
  for (int process = 0; process < kProcesses; ++process) {
    counters.push_back(StartProcess([&] {
      UserSettingsStore store(path);
      for (int i = 0; i < kSavesEach; ++i) {
        if (!store.Change([&] { store.Set(kCounter, store.Get(kCounter) + 1); })) return 1;
      }
      return 0;
    }));
  }
  for (const pid_t counter : counters) EXPECT_EQ(ResultOf(counter), 0);
  EXPECT_EQ(UserSettingsStore(path).Get(kCounter), kProcesses * kSavesEach);
}

/// Saves two settings that always agree, again and again, until killed.
int SaveForever(const std::string& path, std::int32_t start) {
  UserSettingsStore store(path);
  for (std::int32_t i = start;; ++i) {
    store.Set(SettingKey<std::int32_t>{"A", "Count", 0}, i);
    store.Set(SettingKey<std::int32_t>{"Z", "Count", 0}, i);
    store.Set(NumberedKey{"M", "Filling", ""},
              std::string(static_cast<std::size_t>(i % 5000), 'x'));
    store.Save();
  }
}

TEST(SettingsProcesses, AWriterKilledAtAnyMomentLeavesTheOldFileOrTheNew) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  std::mt19937 random(4711);
  std::int32_t last = 0;
  // On a busy machine a writer hardly gets to write before it is killed: then there are more of
  // them.
  for (int round = 0; round < 30 || (last <= 30 && round < 1000); ++round) {
    const pid_t writer = StartProcess([&] { return SaveForever(path, last + 1); });
    std::this_thread::sleep_for(std::chrono::microseconds(2000 + random() % 20'000));
    kill(writer, SIGKILL);
    EXPECT_EQ(ResultOf(writer), -1);
    if (!Exists(path)) continue;
    const auto settings = ReadSettings(FileContent(path));
    ASSERT_TRUE(settings) << FileContent(path);
    const UserSettingsStore reader(path);
    const std::int32_t first = reader.Get(SettingKey<std::int32_t>{"A", "Count", -1});
    EXPECT_EQ(first, reader.Get(SettingKey<std::int32_t>{"Z", "Count", -2}));
    EXPECT_GE(first, last);
    last = first;
  }
  EXPECT_GT(last, 30) << "the writers hardly wrote";
  UserSettingsStore store(path);
  store.Set(NumberedKey{"M", "Filling", ""}, "the end");
  ASSERT_TRUE(store.Save());
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"settings.toml"});
}

TEST(SettingsProcesses, AReaderMeanwhileFindsAWholeFileEveryTime) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  PutFile(path, "[A]\nCount = 0\n[Z]\nCount = 0\n");
  const pid_t writer = StartProcess([&] { return SaveForever(path, 1); });
  for (int i = 0; i < 300; ++i) {
    UserSettingsStore reader(path);
    EXPECT_EQ(reader.Get(SettingKey<std::int32_t>{"A", "Count", -1}),
              reader.Get(SettingKey<std::int32_t>{"Z", "Count", -2}));
    EXPECT_EQ(reader.TakeNotice(), std::nullopt);
  }
  kill(writer, SIGKILL);
  EXPECT_EQ(ResultOf(writer), -1);
}

}  // namespace
}  // namespace kav::settings_processes_test
