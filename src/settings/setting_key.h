// The address of a setting and its default, as one value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kav {

/// One setting: the section and the name it is stored under, spelled as in users' files, and the
/// value it has if none is stored. Value is std::int32_t for an integer setting and
/// std::string_view for a text setting (UTF-8, any characters, any length).
template <class Value>
struct SettingKey {
  std::string_view section;
  std::string_view name;
  Value fallback;
};

/// A text setting of a numbered family, such as the entries of a history; its address is spelled
/// when it is used.
struct NumberedKey {
  std::string section;
  std::string name;
  std::string_view fallback;
};

}  // namespace kav
