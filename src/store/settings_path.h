// Where the user's files stand unless somebody says otherwise.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// "kav-calculator/settings.toml" in the user's folder for settings: $XDG_CONFIG_HOME where that is
/// an absolute path, ".config" in the home folder otherwise, which is $HOME or, where that is not
/// set, the one in the system's list of users. Empty where there is no home folder either.
std::string DefaultSettingsPath();

/// "kav-calculator/" and `name` in the user's folder for what programs remember from one run to the
/// next: $XDG_STATE_HOME, or ".local/state" in the home folder. Otherwise as above.
std::string StatePath(std::string_view name);

}  // namespace kav
