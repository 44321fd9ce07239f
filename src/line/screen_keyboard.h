// What the keyboard does on one screen, besides what it does on every screen.
#pragma once

#include <string_view>
#include <vector>

#include "line/guide_pages.h"

namespace kav {

/// Keys with the same work, with "; " between them.
struct KeyboardRow {
  std::string_view keys;
  std::u16string_view text;  ///< what they do, for the list of keys

  bool operator==(const KeyboardRow&) const = default;
};

/// The keys of the screen that `page` of the guide is about, those of the line first; none for a
/// page that is about no screen. docs/keyboard.md has the same tables.
std::vector<KeyboardRow> KeyboardOf(GuidePage page);

}  // namespace kav
