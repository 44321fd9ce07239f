#include "store/settings_toml.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "settings/keys.h"
#include "store/toml_document.h"
#include "store/toml_library.h"

namespace kav {
namespace {

constexpr std::string_view kFirstLine =
    "# Settings of Kav Calculator. They can be edited here; comments and the order of lines are "
    "not "
    "kept.\n";

std::int32_t Saturated(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::optional<StoredSetting> SettingOf(const toml::node& node) {
  if (const auto* integer = node.as_integer()) return Saturated(integer->get());
  if (const auto* text = node.as_string()) return text->get();
  return std::nullopt;
}

/// The table `name` in `root`; put there, in place of anything else, if it is missing.
toml::table& SectionIn(toml::table& root, std::string_view name) {
  toml::node* found = root.get(name);
  if (found == nullptr || !found->is_table()) {
    found = &root.insert_or_assign(name, toml::table{}).first->second;
  }
  found->as_table()->is_inline(false);
  return *found->as_table();
}

/// Gives the setting `name` of `section` the value; answers whether it had another one.
bool Put(toml::table& section, std::string_view name, const StoredSetting& value) {
  const toml::node* present = section.get(name);
  if (present != nullptr && SettingOf(*present) == value) return false;
  if (const auto* integer = std::get_if<std::int32_t>(&value)) {
    section.insert_or_assign(name, std::int64_t{*integer});
  } else {
    section.insert_or_assign(name, *std::get_if<std::string>(&value));
  }
  return true;
}

}  // namespace

const StoredSetting* FindSetting(const SettingsTable& settings, std::string_view section,
                                 std::string_view name) {
  const auto inSection = settings.find(section);
  if (inSection == settings.end()) return nullptr;
  const auto found = inSection->second.find(name);
  return found == inSection->second.end() ? nullptr : &found->second;
}

std::optional<SettingsTable> ReadSettings(std::string_view toml) {
  const auto root = ReadToml(toml);
  if (!root) return std::nullopt;
  SettingsTable settings;
  for (const auto& [section, content] : *root) {
    if (!content.is_table()) continue;
    for (const auto& [name, node] : *content.as_table()) {
      auto setting = SettingOf(node);
      if (!setting) continue;
      settings[std::string(section.str())].emplace(name.str(), *std::move(setting));
    }
  }
  return settings;
}

bool IsExport(std::string_view toml) {
  const auto settings = ReadSettings(toml);
  return settings && FindSetting(*settings, kVersion.section, kVersion.name) != nullptr;
}

std::optional<std::string> WithChanges(std::string_view toml, const SettingsTable& changes) {
  auto root = ReadToml(toml);
  if (!root) return std::nullopt;
  bool isChanged = false;
  for (const auto& [section, settings] : changes) {
    for (const auto& [name, value] : settings) {
      isChanged = Put(SectionIn(*root, section), name, value) || isChanged;
    }
  }
  if (!isChanged) return std::string(toml);
  return std::string(kFirstLine) + PrintToml(*root);
}

}  // namespace kav
