// stats_file KAVCALC [LINES [ROUNDS]]: how fast `kavcalc stats` sums up a file of data, beside a
// bound. The bound is this program itself, which reads both numbers of each line by the C++
// library. They run in turn, round by round; the figures are medians. Status 1 if kavcalc takes
// more than 1.5 times as long, or more than 6 MiB.
//
// stats_file --bound FILE: reads the file as the bound does.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "counted_values.h"

namespace {

constexpr double kMostTime = 1.5;
constexpr double kMostMemory = 6;
constexpr const char* kFile = "/tmp/stats-file-bench.txt";

void WriteFile(long lines) {
  std::FILE* const file = std::fopen(kFile, "wb");
  std::uint64_t state = 88172645463325252U;
  for (long i = 0; file != nullptr && i < lines; ++i) {
    state ^= state << 13U;
    state ^= state >> 7U;
    state ^= state << 17U;
    std::fprintf(file, "%.3f\t%d\r\n", static_cast<double>(state % 10'000'000) / 1000,
                 static_cast<int>(state / 10'000'000 % 9 + 1));
  }
  if (file == nullptr || std::fclose(file) != 0) std::exit(2);
}

int SumUp(const char* path) {
  double sum = 0;
  double squares = 0;
  long total = 0;
  kav::ForEachCountedValue(path, [&](double value, long count) {
    sum += static_cast<double>(count) * value;
    squares += value * value * static_cast<double>(count);
    total += count;
  });
  std::printf("%ld %.17g %.17g\n", total, sum, squares);
  return 0;
}

struct Run {
  double seconds;
  double mebibytes;
};

Run RunOnce(const std::vector<const char*>& arguments) {
  std::vector<char*> words;
  for (const char* argument : arguments) words.push_back(const_cast<char*>(argument));
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const auto start = std::chrono::steady_clock::now();
  if (posix_spawn(&child, words[0], &actions, nullptr, words.data(), environ) != 0) std::exit(2);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const auto took = std::chrono::steady_clock::now() - start;
  posix_spawn_file_actions_destroy(&actions);
  if (status != 0) std::exit(2);
  return {std::chrono::duration<double>(took).count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::strcmp(argv[1], "--bound") == 0) return SumUp(argv[2]);
  if (argc < 2) return 2;
  const long lines = argc > 2 ? std::atol(argv[2]) : 1'000'000;
  const int rounds = argc > 3 ? std::atoi(argv[3]) : 15;
  WriteFile(lines);
  std::vector<double> bound;
  std::vector<double> kavcalc;
  std::vector<double> ratio;
  double memory = 0;
  for (int i = 0; i < rounds; ++i) {
    bound.push_back(RunOnce({"/proc/self/exe", "--bound", kFile}).seconds);
    const Run run = RunOnce({argv[1], "stats", kFile});
    kavcalc.push_back(run.seconds);
    ratio.push_back(kavcalc.back() / bound.back());
    memory = std::max(memory, run.mebibytes);
  }
  std::remove(kFile);
  std::printf("%ld lines: bound %.1f ms, kavcalc stats %.1f ms, ratio %.2f, peak %.1f MiB\n", lines,
              1000 * Median(bound), 1000 * Median(kavcalc), Median(ratio), memory);
  return Median(ratio) <= kMostTime && memory <= kMostMemory ? 0 : 1;
}
