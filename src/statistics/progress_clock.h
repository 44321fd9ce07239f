// How often a long work tells of its progress.
#pragma once

#include <chrono>

#include "statistics/data_file.h"

namespace kav {

/// Asks a WorkProgress, which must outlive it, at once and then every few milliseconds. An empty
/// one is never asked.
class ProgressClock {
 public:
  static constexpr std::chrono::milliseconds kPause{5};

  explicit ProgressClock(const WorkProgress& progress) : progress_(progress) {}

  /// `done` is the part of the work that is done; false: it is to be given up.
  bool GoesOn(double done);

 private:
  const WorkProgress& progress_;
  std::chrono::steady_clock::time_point next_{};
};

}  // namespace kav
