#include "store/settings_path.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace kav::settings_path_test {
namespace {

/// Sets or unsets an environment variable, and puts it back at the end.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    Set(value);
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment() { Set(before_ ? before_->c_str() : nullptr); }

 private:
  void Set(const char* value) const {
    value != nullptr ? setenv(name_.c_str(), value, 1) : unsetenv(name_.c_str());
  }

  std::string name_;
  std::optional<std::string> before_;
};

TEST(DefaultSettingsPath, FollowsTheEnvironment) {
  const struct {
    const char* configHome;
    const char* home;
    const char* path;
  } rows[] = {
      {"/somewhere/config", "/home/user", "/somewhere/config/kav-calculator/settings.toml"},
      {"/somewhere/config", nullptr, "/somewhere/config/kav-calculator/settings.toml"},
      {nullptr, "/home/user", "/home/user/.config/kav-calculator/settings.toml"},
      {"", "/home/user", "/home/user/.config/kav-calculator/settings.toml"},
      // A relative path would depend on the folder that the calculator is started in.
      {"config", "/home/user", "/home/user/.config/kav-calculator/settings.toml"},
      {"./config", "/home/user", "/home/user/.config/kav-calculator/settings.toml"},
      {nullptr, "/home/with blank", "/home/with blank/.config/kav-calculator/settings.toml"},
  };
  for (const auto& row : rows) {
    const Environment configHome("XDG_CONFIG_HOME", row.configHome);
    const Environment home("HOME", row.home);
    EXPECT_EQ(DefaultSettingsPath(), row.path);
  }
}

TEST(StatePath, FollowsTheEnvironment) {
  const struct {
    const char* stateHome;
    const char* path;
  } rows[] = {
      {"/somewhere/state", "/somewhere/state/kav-calculator/lines"},
      {nullptr, "/home/user/.local/state/kav-calculator/lines"},
      {"", "/home/user/.local/state/kav-calculator/lines"},
      {"state", "/home/user/.local/state/kav-calculator/lines"},
  };
  const Environment home("HOME", "/home/user");
  const Environment configHome("XDG_CONFIG_HOME", "/elsewhere");
  for (const auto& row : rows) {
    const Environment stateHome("XDG_STATE_HOME", row.stateHome);
    EXPECT_EQ(StatePath("lines"), row.path);
  }
}

TEST(DefaultSettingsPath, WithoutHomeTheListOfUsersTellsIt) {
  const passwd* user = getpwuid(getuid());
  if (user == nullptr) GTEST_SKIP() << "this user is in no list";
  const std::string expected = std::string(user->pw_dir) + "/.config/kav-calculator/settings.toml";
  const Environment configHome("XDG_CONFIG_HOME", nullptr);
  for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
    const Environment home("HOME", value);
    EXPECT_EQ(DefaultSettingsPath(), expected);
  }
}

}  // namespace
}  // namespace kav::settings_path_test
