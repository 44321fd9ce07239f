// The settings of a test in a file of its own.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/setting_key.h"
#include "store/user_settings_store.h"
#include "support/temporary_folder.h"

namespace kav {

inline constexpr SettingKey<std::int32_t> kNumber{"Config", "Angle Type", 42};
inline constexpr SettingKey<std::string_view> kText{"History", "CalHistory1", "as ever"};

/// The settings of a test, in a folder that does not exist yet.
class UserSettingsStoreTest : public testing::Test {
 protected:
  std::string ReadText() const { return UserSettingsStore(path).Get(kText); }
  std::int32_t ReadNumber() const { return UserSettingsStore(path).Get(kNumber); }

  /// The settings as `toml`, as if written by hand.
  void PutByHand(const std::string& toml) {
    mkdir(folder.File("sub").c_str(), 0755);
    PutFile(path, toml);
  }

  const TemporaryFolder folder;
  const std::string path = folder.File("sub/settings.toml");
};

}  // namespace kav
