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

  void Show(DisplayType chosen);
  /// What stands beside "Floating Point".
  QLabel& RecommendedMark() const { return *mark_; }
  /// The numbers of its buttons are those of the types.
  QButtonGroup& Buttons() const { return *buttons_; }

 private:
  QButtonGroup* buttons_;
  QLabel* mark_;
};

}  // namespace kav
