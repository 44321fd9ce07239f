// Settings as TOML: one table per section, integers and strings by type.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "settings/settings_store.h"

namespace kav {

/// Settings by section and name. A section that holds none need not be there.
using SettingsSection = std::map<std::string, StoredSetting, std::less<>>;
using SettingsTable = std::map<std::string, SettingsSection, std::less<>>;

/// The setting at the address; null where there is none.
const StoredSetting* FindSetting(const SettingsTable& settings, std::string_view section,
                                 std::string_view name);

/// The settings in `toml`; nullopt where the text is damaged: not TOML, not UTF-8, or built so that
/// reading it takes more than settings can need. Integers beyond 32 bits become the nearest of 32
/// bits. Values that are neither integers nor strings, and what stands outside of sections, are no
/// settings and left out. An empty text holds no settings and is not damaged.
std::optional<SettingsTable> ReadSettings(std::string_view toml);

/// `toml` with every setting of `changes` in it; nullopt where it is damaged, as above. Everything
/// else in it keeps its value, whatever TOML it is; comments and the order of lines do not last. A
/// value that is no table gives way where a section of its name is needed. Where `toml` holds all
/// `changes` already it comes back untouched. Sections, names and texts must be UTF-8, else the
/// answer is damaged.
std::optional<std::string> WithChanges(std::string_view toml, const SettingsTable& changes);

}  // namespace kav
