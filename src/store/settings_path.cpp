#include "store/settings_path.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace kav {
namespace {

constexpr std::string_view kOurFolder = "/kav-calculator/";

/// The value of an environment variable; empty unless it is an absolute path.
std::string PathFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? value : "";
}

std::string HomeOfUser() {
  std::array<char, 16384> texts{};
  passwd entry{};
  passwd* found = nullptr;
  getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
  return found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "";
}

/// Our file `name` in the folder that `variable` names or, without one, in `belowHome` of the home
/// folder; empty if there is none.
std::string InUserFolder(const char* variable, const char* belowHome, std::string_view name) {
  std::string folder = PathFromEnvironment(variable);
  if (folder.empty()) {
    std::string home = PathFromEnvironment("HOME");
    if (home.empty()) home = HomeOfUser();
    if (home.empty()) return {};
    folder = home + belowHome;
  }
  return folder.append(kOurFolder).append(name);
}

}  // namespace

std::string DefaultSettingsPath() {
  return InUserFolder("XDG_CONFIG_HOME", "/.config", "settings.toml");
}

std::string StatePath(std::string_view name) {
  return InUserFolder("XDG_STATE_HOME", "/.local/state", name);
}

}  // namespace kav
