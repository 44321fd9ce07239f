// The time that work takes, whatever else the machine has to do.
#pragma once

#include <ctime>

namespace kav::test {

/// Counts the time for which processors work for this program, from here on.
class ProcessorTime {
 public:
  double Milliseconds() const {
    return 1e3 * static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC;
  }

 private:
  std::clock_t start_ = std::clock();
};

}  // namespace kav::test
