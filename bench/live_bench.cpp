// What a key costs while a result is shown as one types: everything that is worked out for it.
#include <benchmark/benchmark.h>

#include <string>

#include "line/parentheses.h"
#include "macros/live_result.h"
#include "matrix/cell_number.h"
#include "matrix/live_matrix.h"

namespace kav {
namespace {

void Number(benchmark::State& state, const std::u16string& line) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  for (auto _ : state) {
    benchmark::DoNotOptimize(PairAtCaret(line, line.size()));
    benchmark::DoNotOptimize(LiveNumber(line, {}, {}, macros));
  }
}

std::u16string Repeated(std::u16string_view text, int times) {
  std::u16string line;
  for (int i = 0; i < times; ++i) line += text;
  return line;
}

void Matrix(benchmark::State& state, const std::u16string& line) {
  Matrices matrices;
  matrices.fill(MatrixOfSize(kLargestMatrix, kLargestMatrix));
  for (MatrixValue& matrix : matrices) {
    for (int row = 0; row < kLargestMatrix; ++row) {
      for (int column = 0; column < kLargestMatrix; ++column) {
        const double other = (row * 7 + column * 3) % 11 / 9.0;
        matrix.At(row, column) = CellText(row == column ? 50 + row / 3.0 : other);
      }
    }
  }
  for (auto _ : state) benchmark::DoNotOptimize(LiveOrder(line, matrices));
}

BENCHMARK_CAPTURE(Number, short, u"2*sin(30)+3!");
BENCHMARK_CAPTURE(Number, longest, Repeated(u"170!+", 49) + u"1");
BENCHMARK_CAPTURE(Number, nested, Repeated(u"(", 70) + u"1" + Repeated(u")", 70));
BENCHMARK_CAPTURE(Number, too_long, Repeated(u"sin(", 490));
BENCHMARK_CAPTURE(Matrix, sum, u"[M1]+[M2]");
BENCHMARK_CAPTURE(Matrix, inverse, u"inverse([M1])");
BENCHMARK_CAPTURE(Matrix, products, u"[M1]*[M2]*[M3]*[M1]*[M2]*[M3]*[M1]*[M2]");
BENCHMARK_CAPTURE(Matrix, inverses, u"inverse([M1])+inverse([M2])+inverse([M3])+inverse([M1])");
BENCHMARK_CAPTURE(Matrix, power, u"[M1]^9");
BENCHMARK_CAPTURE(Matrix, powers, u"[M1]^9+[M2]^9+[M3]^9+[M1]^9");

}  // namespace
}  // namespace kav
