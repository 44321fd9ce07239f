// How long works on a list report their progress, and how they end before they are done.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace kav {

/// Called every few milliseconds of a long work with the part of it that is done, 0 to 1. Answers
/// false to cancel the work. An empty one is never called.
using WorkProgress = std::function<bool(double done)>;

struct WorkCancelled {};
struct WorkFailed {
  std::u16string text;  ///< what happened, where, and what to do
};

/// Limits how often a WorkProgress is called: at once, then after each pause. Keeps a reference to
/// it.
class ProgressClock {
 public:
  static constexpr std::chrono::milliseconds kPause{5};

  explicit ProgressClock(const WorkProgress& progress) : progress_(progress) {}

  /// `done` is the part of the work that is done, 0 to 1. Answers false if the work is cancelled.
  bool GoesOn(double done);

 private:
  const WorkProgress& progress_;
  std::chrono::steady_clock::time_point next_{};
};

}  // namespace kav
