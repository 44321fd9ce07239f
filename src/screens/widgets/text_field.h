// A field for a text that the user typed and stored, which may be of any length.
#pragma once

#include <QLineEdit>
#include <string>
#include <string_view>

namespace kav {

class TextField final : public QLineEdit {
 public:
  /// A field called `name`.
  explicit TextField(std::u16string_view name);

  std::u16string Text() const { return text().toStdU16String(); }
  /// Makes the field show `text`; from its beginning on if the field is disabled.
  void Write(const std::u16string& text);
  /// Gives it the focus, with the caret at the end and nothing selected.
  void Focus();
};

}  // namespace kav
