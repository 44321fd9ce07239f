#include "statistics/work_progress.h"

namespace kav {

bool ProgressClock::GoesOn(double done) {
  if (!progress_) return true;
  const auto now = std::chrono::steady_clock::now();
  if (now < next_) return true;
  next_ = now + kPause;
  return progress_(done);
}

}  // namespace kav
