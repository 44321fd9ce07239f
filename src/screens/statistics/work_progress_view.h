// Shows the progress of long work, and lets the user cancel it.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <chrono>
#include <memory>
#include <string_view>

namespace kav {

/// How long work may take before its progress is shown.
inline constexpr std::chrono::milliseconds kProgressPatience{300};

/// For work that keeps the program busy and calls Update now and then. After `patience`, a modal
/// box over `parent` shows the progress, with a button to cancel. From then on the user can reach
/// that box, but nothing else of the program.
class WorkProgressView {
 public:
  WorkProgressView(QWidget* parent, std::u16string_view title,
                   std::chrono::milliseconds patience = kProgressPatience);
  WorkProgressView(const WorkProgressView&) = delete;
  WorkProgressView& operator=(const WorkProgressView&) = delete;
  ~WorkProgressView();

  /// `done` is the part of the work that is done, 0 to 1. Answers false once the user has
  /// cancelled.
  bool Update(double done);

 private:
  class Box;

  QWidget* parent_;
  std::u16string_view title_;
  std::chrono::milliseconds patience_;
  QElapsedTimer elapsed_;
  std::unique_ptr<Box> box_;
};

}  // namespace kav
