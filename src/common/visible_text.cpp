#include "common/visible_text.h"

#include "common/number_text.h"

namespace kav {
namespace {

/// Those that a terminal takes for commands: U+0000 to U+001F and U+007F to U+009F.
bool IsControl(char16_t c) {
  return c < u' ' || (c >= u'\u007F' && c <= u'\u009F');
}

}  // namespace

std::u16string WithVisibleControls(std::u16string_view text) {
  constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
  std::u16string shown;
  shown.reserve(text.size());
  for (const char16_t c : text) {
    if (IsControl(c)) {
      shown.append(u"\\x").append(1, kDigits[c >> 4U]).append(1, kDigits[c & 0xFU]);
    } else {
      shown += c;
    }
  }
  return shown;
}

std::u16string ShownName(std::string_view name) {
  return WithVisibleControls(Widen(name));
}

}  // namespace kav
