// What every dialog has in common: its place over the screen, its scale and its look.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <optional>
#include <string_view>

#include "line/guide_pages.h"

class QMenu;

namespace kav {

/// A dialog over the screen or dialog that opens it, as large as the portrait area of that, if it
/// does not take less; wider, where the desktop has room, for texts larger than usual. Texts and
/// the room around them grow with its height, as far as all of them have room in the machine's
/// font. So its widgets stand in layouts, have no fixed sizes, and return as minimumSizeHint what
/// their texts need. It is modal: RunModal returns when it is closed.
class Dialog : public QDialog {
 public:
  Dialog(QWidget* parent, std::u16string_view title);

  /// Whether it was accepted.
  bool RunModal();

  /// Shows it without waiting for its end: beside the window of `neighbour` where the desktop has
  /// room for it, else over it.
  void ShowBeside(const QWidget& neighbour);

  /// Gives all texts their size anew: after a change of TextShare.
  void Scale();

 protected:
  /// F1 opens the guide at `page`, not at that of the dialog or the screen behind this one.
  void SetPage(GuidePage page) { page_ = page; }

  /// For a dialog of a few parts: it is only as high as these need, in the middle of the area that
  /// it would cover else. To be called before RunModal.
  void TakeOnlyNeededHeight();

  /// An empty pop-up menu with the look of the dialog, for the caller to fill and show. It is
  /// deleted when it is closed.
  QMenu* MakePopUp();

  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  /// Gives all parts letters `text` pixels high and margins that suit them.
  virtual void SetTextHeight(int text);

 private:
  void PlaceOver(const QRect& area);
  void OpenGuide();
  void ScaleDown();
  /// Lines grow by more than their letters where they are wrapped, so that the guess may be too
  /// small: finds the largest letters that have room, of those smaller than `tooLarge` pixels.
  void GrowBelow(int tooLarge);
  double Excess() const;

  std::optional<GuidePage> page_;
  bool takesNeededHeight_ = false;
  int areaHeight_ = 0;  ///< of what is behind it; 0 for its own
};

/// Scales all dialogs that are open.
void ScaleOpenDialogs();

/// A button of a dialog, which looks like a key of the keypad.
class DialogButton final : public QPushButton {
 public:
  /// `help` says in a few words what it does; empty if the caption says all.
  explicit DialogButton(std::u16string_view caption, std::u16string_view help = {});

  /// What the caption needs, with little room around it.
  QSize minimumSizeHint() const override;
};

/// What a list of a dialog needs of the height at least, so that `lines` lines of it stay seen
/// however large the user wants its letters: in pixels, 0 for letters of the usual size.
int LeastHeightOfList(const QWidget& list, int lines = 3);

/// `text` for a widget of one line: breaks and tabs become blanks. A text too long for any screen
/// is cut, so that no stored text can slow the drawing down.
QString OneLine(std::u16string_view text);

}  // namespace kav
