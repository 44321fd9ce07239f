// The choice among the display types.
#pragma once

#include <QWidget>

#include "display/number_format.h"

class QButtonGroup;
class QLabel;

namespace kav {

/// A radio button for each display type, on light green.
class DisplayTypeView final : public QWidget {
 public:
  DisplayTypeView();

  /// Checks the button of `chosen`.
  void Show(DisplayType chosen);
  /// The label beside "Floating Point".
  QLabel& RecommendedMark() const { return *mark_; }
  /// The ids of its buttons are the values of DisplayType.
  QButtonGroup& Buttons() const { return *buttons_; }

 private:
  QButtonGroup* buttons_;
  QLabel* mark_;
};

}  // namespace kav
