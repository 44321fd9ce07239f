// A text that is shown, as screen readers read it.
#pragma once

#include <QAccessible>
#include <QString>
#include <functional>
#include <utility>

namespace kav {

/// A text that nobody edits or selects in, asked for anew each time.
class ShownTextAccess final : public QAccessibleTextInterface {
 public:
  explicit ShownTextAccess(std::function<QString()> text) : text_(std::move(text)) {}

  QString text(int from, int to) const override;
  int characterCount() const override { return static_cast<int>(text_().size()); }
  QString attributes(int offset, int* from, int* to) const override;

  // Nothing is selected, no caret stands in it, and letters have no places of their own.
  void selection(int index, int* from, int* to) const override;
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}

 private:
  std::function<QString()> text_;
};

}  // namespace kav
