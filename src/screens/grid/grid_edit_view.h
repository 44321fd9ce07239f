// The box in which the text of a cell is edited.
#pragma once

#include <QLineEdit>
#include <functional>

namespace kav {

/// A line that lies over a cell. The keys that end an edit, and the loss of the focus, it leaves to
/// its grid.
class GridEdit final : public QLineEdit {
 public:
  static constexpr int kLongestText = 1000;

  struct Hooks {
    /// Enter, Esc, Tab or a key that leads up or down was pressed.
    std::function<void(int key, Qt::KeyboardModifiers modifiers)> key;
    std::function<void()> focusLost;
  };

  GridEdit(QWidget* parent, Hooks hooks);

  /// What was typed, on one line.
  QString TypedText() const;

 private:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

  Hooks hooks_;
};

}  // namespace kav
