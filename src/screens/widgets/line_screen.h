// A screen with a line for expressions, a line for results, and keys.
#pragma once

#include <functional>
#include <vector>

#include "screens/widgets/key_screen.h"
#include "screens/widgets/line_view.h"

namespace kav {

/// Enter, Esc and "=" of the keyboard press keys of the screen, whatever has the focus. Everything
/// else that is typed goes to the expression line, unless the focused widget uses it. The Edit menu
/// works on the result if some of it is selected, else on the line.
class LineScreen : public KeyScreen {
 public:
  LineScreen(Frame& frame, QSize size, std::vector<KeySpot> keys);

 protected:
  LineView& Line() const { return *line_; }
  ResultView& Result() const { return *result_; }

  void Edit(EditCommand command) override;
  bool CanEdit(EditCommand command) const override;

  /// Paints both lines, and only then has `save` write the model into the store, and the store to
  /// disk.
  void SaveAfterPainting(const std::function<void()>& save);

  // The keys that the keyboard presses.
  virtual void OnEquals() = 0;
  virtual void OnClear() = 0;

  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool PressKeyOf(const QKeyEvent& event);
  QLineEdit& Edited() const;

  LineView* line_;
  ResultView* result_;
};

}  // namespace kav
