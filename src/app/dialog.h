// What every dialog has in common: its place over the screen, its scale and its look.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <string_view>

class QMenu;

namespace kav {

/// A dialog over the screen or dialog that opens it, as large as that one's portrait area. Texts
/// and the room around them grow with its height, so that its widgets stand in layouts and have no
/// sizes of their own. It is modal: RunModal returns when it is closed.
class Dialog : public QDialog {
 public:
  Dialog(QWidget* parent, std::u16string_view title);

  /// Whether it was accepted.
  bool RunModal();

 protected:
  /// A pop-up menu with the look of the dialog, to be filled and shown by the caller; it is gone
  /// once it is closed.
  QMenu* MakePopUp();

  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Scale();
};

/// A button of a dialog, which looks like a key of the keypad.
class DialogButton final : public QPushButton {
 public:
  explicit DialogButton(std::u16string_view caption);
};

/// `text` as a widget shows it that has room for one line: breaks and tabs become blanks, and one
/// too long for any screen is cut, so that nothing that was stored can slow the drawing down.
QString OneLine(std::u16string_view text);

}  // namespace kav
