// The default places of the user's files.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// "kav-calculator/settings.toml" in the user's folder for settings: $XDG_CONFIG_HOME if that is an
/// absolute path, else ".config" in the home folder. The home folder is $HOME if that is an
/// absolute path, else the one in the system's list of users. Empty if there is no home folder
/// either.
std::string DefaultSettingsPath();

/// "kav-calculator/" and `name` in the user's folder for what programs remember between runs:
/// $XDG_STATE_HOME, or ".local/state" in the home folder; found in the same way.
std::string StatePath(std::string_view name);

}  // namespace kav
