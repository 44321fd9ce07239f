// Numbers shown in each display type, beside the C++ library printing 17 significant digits.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cmath>
#include <random>

#include "display/number_format.h"

namespace kav {
namespace {

constexpr std::size_t kSamples = 1024;

/// Half of them have few digits, as if typed; half have all digits, as if calculated.
std::array<double, kSamples> MakeValues() {
  std::mt19937_64 random(20260101);
  std::array<double, kSamples> values{};
  for (std::size_t i = 0; i < kSamples; ++i) {
    const double typed = static_cast<double>(random() % 10'000'000) / 1000;
    values[i] = i % 2 == 0 ? typed : std::sqrt(typed);
  }
  return values;
}

void RoundTripDigits(benchmark::State& state) {
  const auto values = MakeValues();
  std::array<char, 64> buffer{};
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                           values[next], std::chars_format::general, 17));
    next = (next + 1) % kSamples;
  }
}
BENCHMARK(RoundTripDigits);

void Format(benchmark::State& state) {
  const auto values = MakeValues();
  const DisplayFormat format{static_cast<DisplayType>(state.range(0)), 7};
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(FormatNumber(values[next], format));
    next = (next + 1) % kSamples;
  }
}
BENCHMARK(Format)->DenseRange(0, 4);

}  // namespace
}  // namespace kav
