// Settings as TOML: one table per section, integers and strings by type.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "settings/settings_store.h"

namespace kav {

/// In bytes. A larger file is no settings file: with all lists full, they are some hundred
/// kilobytes, and each save reads and writes all of them.
inline constexpr std::size_t kLargestSettingsFile = std::size_t{4} << 20U;

/// Settings by section and name. A section without settings may be missing.
using SettingsSection = std::map<std::string, StoredSetting, std::less<>>;
using SettingsTable = std::map<std::string, SettingsSection, std::less<>>;

/// The setting at the address; null if there is none. Points into `settings`.
const StoredSetting* FindSetting(const SettingsTable& settings, std::string_view section,
                                 std::string_view name);

/// The settings in `toml`; nullopt if the text is damaged: not TOML, not UTF-8, or built so that
/// reading it takes more stack, memory or time than settings need. Integers beyond 32 bits become
/// the nearest one of 32 bits. Values that are neither integers nor strings, and values outside of
/// sections, are no settings and left out. An empty text holds no settings and is not damaged.
std::optional<SettingsTable> ReadSettings(std::string_view toml);

/// Whether `toml` is a text that was exported, or a settings file of the calculator.
bool IsExport(std::string_view toml);

/// `toml` with every setting of `changes` in it; nullopt if `toml` is damaged, as above. Everything
/// else in it keeps its value, also if it is no setting; comments and the order of lines do not
/// last. A value gives way to a section of the same name. If `toml` holds all `changes` already, it
/// comes back unchanged. Sections, names and texts must be UTF-8, or else the answer is damaged.
std::optional<std::string> WithChanges(std::string_view toml, const SettingsTable& changes);

}  // namespace kav
