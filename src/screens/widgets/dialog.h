// What every dialog has in common: its place over the screen, its scale and its look.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <string_view>

class QMenu;

namespace kav {

/// A dialog over the screen or dialog that opens it, as large as that one's portrait area. Texts
/// and the room around them grow with its height, as far as all of them have room in the face that
/// the machine has; so its widgets stand in layouts, have no sizes of their own, and name by their
/// minimumSizeHint what their texts need. It is modal: RunModal returns when it is closed.
class Dialog : public QDialog {
 public:
  Dialog(QWidget* parent, std::u16string_view title);

  /// Whether it was accepted.
  bool RunModal();

 protected:
  /// A pop-up menu with the look of the dialog, to be filled and shown by the caller; it is gone
  /// once it is closed.
  QMenu* MakePopUp();

  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  /// Gives all parts letters `text` pixels high and margins that suit them.
  virtual void SetTextHeight(int text);

 private:
  void Scale();
  void ScaleDown();
  double Excess() const;
};

/// A button of a dialog, which looks like a key of the keypad.
class DialogButton final : public QPushButton {
 public:
  explicit DialogButton(std::u16string_view caption);

  /// What the caption needs: the room around it is the first to go.
  QSize minimumSizeHint() const override;
};

/// `text` as a widget shows it that has room for one line: breaks and tabs become blanks, and one
/// too long for any screen is cut, so that nothing that was stored can slow the drawing down.
QString OneLine(std::u16string_view text);

}  // namespace kav
