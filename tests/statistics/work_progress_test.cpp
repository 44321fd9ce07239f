#include "statistics/work_progress.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace kav::work_progress_test {
namespace {

TEST(ProgressClock, ItAsksAtOnceAndThenAfterAPause) {
  std::vector<double> asked;
  const WorkProgress progress = [&asked](double done) {
    asked.push_back(done);
    return true;
  };
  ProgressClock clock(progress);
  EXPECT_TRUE(clock.GoesOn(0));
  EXPECT_EQ(asked, std::vector<double>{0});
  std::this_thread::sleep_for(2 * ProgressClock::kPause);
  EXPECT_TRUE(clock.GoesOn(0.5));
  EXPECT_EQ(asked, (std::vector<double>{0, 0.5}));
}

TEST(ProgressClock, ItDoesNotAskEachTime) {
  int asked = 0;
  const WorkProgress progress = [&asked](double) { return ++asked > 0; };
  ProgressClock clock(progress);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 10'000; ++i) EXPECT_TRUE(clock.GoesOn(0));
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_LE(asked, took / ProgressClock::kPause + 1);
}

TEST(ProgressClock, ARefusalIsHandedOn) {
  const WorkProgress progress = [](double) { return false; };
  EXPECT_FALSE(ProgressClock(progress).GoesOn(0));
}

TEST(ProgressClock, WithoutAProgressItGoesOn) {
  const WorkProgress progress;
  EXPECT_TRUE(ProgressClock(progress).GoesOn(0));
}

}  // namespace
}  // namespace kav::work_progress_test
