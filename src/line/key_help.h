// What is told about keys: in tips, to screen readers, and in the list of keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "line/guide_pages.h"
#include "line/keypad.h"

namespace kav {

/// What the key with that caption does, and its shortcut: "clear the line (Esc)". `shortcut` may be
/// empty.
std::u16string DescriptionOf(const FaceText& key, std::string_view shortcut);
/// The same behind the caption.
std::u16string TipOf(const FaceText& key, std::string_view shortcut);

/// A key of a screen, with all that it may show, or a key of the keyboard, with an empty caption.
struct ListedKey {
  std::vector<FaceText> captions;
  std::string_view shortcut;
};

/// What the keyboard does on the screen of `page`, for ListOfKeys.
std::vector<ListedKey> ListedKeyboard(GuidePage page);

/// A line of the list of keys.
struct KeyListRow {
  std::u16string key;       ///< the caption of a key of the screen; empty for none
  std::u16string shortcut;  ///< empty for none
  std::u16string text;      ///< what it does

  bool operator==(const KeyListRow&) const = default;
};

/// All that can be pressed on a screen: the keys of every screen, and then its `keys` with each of
/// their captions, those of several captions with the same work once.
std::vector<KeyListRow> ListOfKeys(const std::vector<ListedKey>& keys);

/// Those of `rows` that have each word of `sought` somewhere, in letters of either case.
std::vector<KeyListRow> Found(const std::vector<KeyListRow>& rows, std::u16string_view sought);

}  // namespace kav
