#include "line/key_help.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "common/number_text.h"
#include "line/line_words.h"
#include "line/screen_commands.h"
#include "line/screen_keyboard.h"

namespace kav {
namespace {

/// "Ctrl+Y; Ctrl+Shift+Z" as people read it.
std::u16string Listed(std::string_view shortcut) {
  std::u16string text = Widen(shortcut);
  std::replace(text.begin(), text.end(), u';', u',');
  return text;
}

std::vector<std::u16string> WordsOf(std::u16string_view text) {
  std::vector<std::u16string> words;
  for (bool isInside = false; const char16_t c : InLowerCase(text)) {
    if (c != u' ' && !isInside) words.emplace_back();
    isInside = c != u' ';
    if (isInside) words.back() += c;
  }
  return words;
}

}  // namespace

std::u16string DescriptionOf(const FaceText& key, std::string_view shortcut) {
  std::u16string text(key.description);
  if (!shortcut.empty()) text.append(u" (").append(Listed(shortcut)).append(u")");
  return text;
}

std::u16string TipOf(const FaceText& key, std::string_view shortcut) {
  return std::u16string(key.caption).append(u": ").append(DescriptionOf(key, shortcut));
}

std::vector<ListedKey> ListedKeyboard(GuidePage page) {
  const std::vector<KeyboardRow> rows = KeyboardOf(page);
  std::vector<ListedKey> listed;
  listed.reserve(rows.size());
  for (const KeyboardRow& row : rows) listed.push_back({{FaceText{{}, row.text}}, row.keys});
  return listed;
}

std::vector<KeyListRow> ListOfKeys(const std::vector<ListedKey>& keys) {
  std::vector<KeyListRow> rows;
  rows.reserve(ScreenShortcuts().size() + 2 * keys.size());
  for (const ShortcutRow& row : ScreenShortcuts()) {
    rows.push_back({{}, Listed(row.keys), std::u16string(row.text)});
  }
  const std::size_t general = rows.size();
  for (const ListedKey& key : keys) {
    for (const FaceText& caption : key.captions) {
      const KeyListRow row{std::u16string(caption.caption), Listed(key.shortcut),
                           std::u16string(caption.description)};
      const auto own = rows.begin() + static_cast<std::ptrdiff_t>(general);
      const auto same = std::find_if(own, rows.end(), [&row](const KeyListRow& other) {
        return other.text == row.text && other.shortcut == row.shortcut;
      });
      if (same == rows.end()) {
        rows.push_back(row);
      } else if (same->key != row.key) {
        same->key.append(u", ").append(row.key);
      }
    }
  }
  return rows;
}

std::vector<KeyListRow> Found(const std::vector<KeyListRow>& rows, std::u16string_view sought) {
  const std::vector<std::u16string> words = WordsOf(sought);
  std::vector<KeyListRow> found;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(found), [&](const KeyListRow& row) {
    const std::u16string all = InLowerCase(row.key + u' ' + row.shortcut + u' ' + row.text);
    return std::all_of(words.begin(), words.end(), [&all](const std::u16string& word) {
      return all.find(word) != std::u16string::npos;
    });
  });
  return found;
}

}  // namespace kav
