// The screen of two-variable statistics.
#pragma once

#include <chrono>
#include <memory>

#include "screens/statistics/statistics_screen_view.h"

namespace kav {

/// Beside what both screens of statistics have, a menu of models, and the graph.
class CTwoVariableDlg final : public StatisticsScreen {
 public:
  /// A work on the list that takes longer than `patience` shows its progress.
  explicit CTwoVariableDlg(Frame& frame, std::chrono::milliseconds patience = kProgressPatience);

 private:
  void Do(const OpenGraph& request) override;
};

/// The screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakeTwoVariableScreen(Frame& frame);

}  // namespace kav
