#include "screens/widgets/text_field.h"

#include "screens/widgets/qt_text.h"

namespace kav {

TextField::TextField(std::u16string_view name) {
  // Longer texts make it slow.
  constexpr int kLongestField = 1 << 16;
  setMaxLength(kLongestField);
  setAccessibleName(ToQt(name));
}

void TextField::Write(const std::u16string& text) {
  // Not what stands there already: that would move the caret.
  const QString shown = ToQt(text);
  if (this->text() != shown) setText(shown);
  if (!isEnabled()) home(false);
}

void TextField::Focus() {
  setFocus();
  // Else all of it might be selected, and lost with the next key.
  end(false);
}

}  // namespace kav
