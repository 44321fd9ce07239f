// The line in which expressions are typed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "line/expression_line.h"
#include "screens/widgets/line_marks.h"
#include "screens/widgets/line_view.h"

namespace kav {

class LiveResultView;

/// A line that shows as much of its text as it can: letters shrink to half of their size before any
/// of them is out of sight, and an ellipsis at an end says that more stands there. The parentheses
/// at the caret are marked, and so is the place of a failure until the text changes.
class ExpressionView final : public LineView {
 public:
  explicit ExpressionView(QWidget* parent);

  void SetTextHeight(int pixels) override;

  /// Shows a small result in the lower right corner, if there is room; nullopt: none.
  void ShowLive(const std::optional<std::u16string>& result);

  /// Marks where the evaluation of the text failed; nullopt: nowhere.
  void MarkFault(std::optional<Selection> place);

 private:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void changeEvent(QEvent* event) override;

  void OnText();
  void FitText();
  void PlaceLive();
  void Mark();
  void PaintEllipses();
  /// Whether the wave of a failure is painted: the places of very long texts take too long to find.
  bool HasWave() const;
  void PaintWave(const MarkedPart& part);
  int TextWidth(int pixels) const;

  int normal_ = 0;      ///< the height of letters that have room; 0 before the first layout
  int margin_ = 0;      ///< beside them
  bool isCut_ = false;  ///< the text has no room even in the smallest letters
  LiveResultView* live_ = nullptr;  ///< made for the first result
  bool isLive_ = false;
  std::optional<Selection> fault_;
  std::vector<MarkedPart> marked_;
  bool isComposing_ = false;  ///< an input method has the marks of the line
};

}  // namespace kav
