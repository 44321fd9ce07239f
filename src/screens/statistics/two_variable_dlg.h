// The screen of two-variable statistics.
#pragma once

#include <chrono>
#include <memory>

#include "screens/statistics/statistics_screen_view.h"

namespace kav {

/// A statistics screen that also has a menu of models, and the graph.
class CTwoVariableDlg final : public StatisticsScreen {
 public:
  /// Work on the list that takes longer than `patience` shows its progress.
  explicit CTwoVariableDlg(Frame& frame, std::chrono::milliseconds patience = kProgressPatience);

 private:
  void Do(const OpenGraph& request) override;
};

/// Makes the screen, for the table of screens of the frame.
std::unique_ptr<QWidget> MakeTwoVariableScreen(Frame& frame);

}  // namespace kav
