// A million rows of data, loaded and summed up to a result, beside a bare loop over the same file
// that reads the same numbers by the C++ library. Also the same rows, sorted.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "counted_values.h"
#include "statistics/data_file.h"
#include "statistics/one_variable.h"

namespace {

// The bytes that this program has from new, to tell the memory of a list.
std::size_t taken = 0;
std::size_t mostTaken = 0;

}  // namespace

// Not inlined: the compiler would take them for mismatched.
[[gnu::noinline]] void* operator new(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  taken += malloc_usable_size(block);
  mostTaken = std::max(mostTaken, taken);
  return block;
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  taken -= block == nullptr ? 0 : malloc_usable_size(block);
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
  operator delete(block);
}

namespace kav {
namespace {

constexpr int kRows = 1'000'000;

/// Processor time, on which other programs of the machine have less influence.
double Seconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double Median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// A file whose lines are a value with three decimals, a tab and a count.
class DataFile {
 public:
  DataFile() {
    const int file = mkstemp(path_.data());
    std::mt19937_64 random(20260101);
    std::string text;
    for (int i = 0; i < kRows; ++i) {
      char line[32];
      size_ += static_cast<std::size_t>(std::snprintf(
          line, sizeof line, "%.3f\t%d\r\n", static_cast<double>(random() % 10'000'000) / 1000,
          static_cast<int>(random() % 9 + 1)));
      text += line;
    }
    if (write(file, text.data(), text.size()) < 0) std::abort();
    close(file);
  }
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;
  ~DataFile() { std::remove(path_.c_str()); }

  const std::string& Path() const { return path_; }
  std::size_t Size() const { return size_; }

 private:
  std::string path_ = "/tmp/statistics-bench-XXXXXX";
  std::size_t size_ = 0;
};

/// The bound.
double MeanByLibrary(const std::string& path) {
  double sum = 0;
  long total = 0;
  ForEachCountedValue(path.c_str(), [&](double value, long count) {
    sum += static_cast<double>(count) * value;
    total += count;
  });
  return sum / static_cast<double>(total);
}

double MeanByList(const std::string& path) {
  const auto loaded = LoadDataFile(path, DataShape::OneVariable, {});
  return MomentOf(std::get<DataList>(loaded), 0, Moment::Mean);
}

/// Measures both in turn, round by round. `ratio` is the median of the ratios of the rounds.
void LoadAndMeanBesideLibrary(benchmark::State& state) {
  const DataFile file;
  std::vector<double> library;
  std::vector<double> list;
  std::vector<double> ratio;
  const std::size_t before = mostTaken = taken;
  for (auto _ : state) {
    const double start = Seconds();
    const double expected = MeanByLibrary(file.Path());
    const double middle = Seconds();
    const double mean = MeanByList(file.Path());
    const double end = Seconds();
    if (mean != expected) return state.SkipWithError("the means differ");
    library.push_back(middle - start);
    list.push_back(end - middle);
    ratio.push_back(list.back() / library.back());
  }
  state.counters["library_ms"] = 1000 * Median(library);
  state.counters["list_ms"] = 1000 * Median(list);
  state.counters["ratio"] = Median(ratio);
  // Includes the few figures above, which hardly count.
  state.counters["memory_of_file"] =
      static_cast<double>(mostTaken - before) / static_cast<double>(file.Size());
}
BENCHMARK(LoadAndMeanBesideLibrary)->Unit(benchmark::kMillisecond)->Iterations(15);

enum class Order { Sorted, Reversed, Equal, OrganPipe, Random };

DataList RowsIn(Order order) {
  std::mt19937_64 random(20260101);
  DataList list(DataShape::OneVariable);
  for (int i = 0; i < kRows; ++i) {
    const int keys[] = {i, -i, 7, std::min(i, kRows - i), static_cast<int>(random() % kRows)};
    const std::string text = std::to_string(keys[static_cast<int>(order)]);
    if (list.Append({{text, {}}, 1})) std::abort();
  }
  return list;
}

void Sort(benchmark::State& state) {
  const auto order = static_cast<Order>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    DataList list = RowsIn(order);
    state.ResumeTiming();
    list.Sort(0, DataList::Direction::Ascending);
  }
}
BENCHMARK(Sort)->ArgName("order")->DenseRange(0, 4)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace kav
