// The screen of one-variable statistics.
#pragma once

#include <chrono>
#include <memory>

#include "screens/statistics/statistics_screen_view.h"

namespace kav {

class COneVariableDlg final : public StatisticsScreen {
 public:
  /// Work on the list that takes longer than `patience` shows its progress.
  explicit COneVariableDlg(Frame& frame, std::chrono::milliseconds patience = kProgressPatience);
};

/// Makes the screen, for the table of screens of the frame.
std::unique_ptr<QWidget> MakeOneVariableScreen(Frame& frame);

}  // namespace kav
