#include "app/settings_saver.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <QtTest/QTest>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "settings/keys.h"
#include "store/settings_texts.h"
#include "support/temporary_folder.h"

namespace kav::test::settings_saver_test {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// Another program that keeps the settings of `folder` to itself while it lives.
class OtherProgram {
 public:
  explicit OtherProgram(const std::string& folder) : folder_(open(folder.c_str(), O_RDONLY)) {
    EXPECT_EQ(flock(folder_.Number(), LOCK_EX), 0);
  }

 private:
  FileDescriptor folder_;
};

class SettingsSaverTest : public testing::Test {
 protected:
  static constexpr SettingsSaver::Pace kPace{milliseconds(5), milliseconds(30), milliseconds(60)};

  std::int32_t StoredAngle() { return UserSettingsStore(path_).Get(kAngleType); }
  bool Tell() {
    if (isUserBusy_) return !store_.HasNotice();
    while (auto notice = store_.TakeNotice()) told_.push_back(*notice);
    return true;
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.File("settings.toml");
  UserSettingsStore store_{path_, StoreUser::Window};
  bool isUserBusy_ = false;
  std::vector<std::u16string> told_;
  SettingsSaver saver_{store_, [this] { return Tell(); }, kPace};
  const std::u16string busy_ =
      SettingsCannotBeSaved(path_, FileError::Busy) + std::u16string(kUntilThenTheyLast);
};

TEST_F(SettingsSaverTest, SavesAtOnceIfItCan) {
  store_.Set(kAngleType, 2);
  saver_.Save();
  EXPECT_EQ(StoredAngle(), 2);
}

TEST_F(SettingsSaverTest, SavesAsSoonAsAnotherProgramIsDoneAndWaitsForNone) {
  std::optional<OtherProgram> other(folder_.Path());
  store_.Set(kAngleType, 2);
  const auto start = Clock::now();
  saver_.Save();
  EXPECT_LT(Clock::now() - start, milliseconds(500));
  QTest::qWait(10);
  EXPECT_EQ(StoredAngle(), 1);
  other.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return StoredAngle() == 2; }));
  EXPECT_TRUE(told_.empty());
}

TEST_F(SettingsSaverTest, TellsOnceIfItTakesLongAndAgainIfItTakesLongAgain) {
  for (const std::int32_t round : {2, 3}) {
    told_.clear();
    std::optional<OtherProgram> other(folder_.Path());
    store_.Set(kAngleType, round);
    saver_.Save();
    EXPECT_TRUE(told_.empty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !told_.empty(); }));
    QTest::qWait(20);
    EXPECT_EQ(told_, std::vector<std::u16string>{busy_});
    other.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return StoredAngle() == round; }));
  }
}

TEST_F(SettingsSaverTest, TellsAUserWhoIsBusyLater) {
  PutFile(path_, "?");
  isUserBusy_ = true;
  store_.Set(kAngleType, 2);
  saver_.Tell();
  QTest::qWait(15);
  EXPECT_TRUE(told_.empty());
  isUserBusy_ = false;
  EXPECT_TRUE(QTest::qWaitFor([this] { return !told_.empty(); }));
  EXPECT_EQ(told_, std::vector<std::u16string>{SettingsAreDamaged(path_)});
}

TEST_F(SettingsSaverTest, WaitsAtTheEndButNotForEver) {
  std::optional<OtherProgram> other(folder_.Path());
  store_.Set(kAngleType, 2);
  saver_.Save();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !told_.empty(); }));
  const auto start = Clock::now();
  saver_.SaveAtLast();
  const auto waited = Clock::now() - start;
  EXPECT_GE(waited, milliseconds(60));
  EXPECT_LT(waited, milliseconds(2000));
  EXPECT_EQ(store_.TakeNotice(), busy_) << "now it is lost";
  other.reset();
  saver_.SaveAtLast();
  EXPECT_EQ(StoredAngle(), 2);
}

}  // namespace
}  // namespace kav::test::settings_saver_test
