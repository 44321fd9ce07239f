// The inverse and the determinant of a matrix of ten rows and columns. Each step rounds each cell
// to its text. Beside them, the same eliminations with texts made by the C++ library.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <random>

#include "matrix/cell_number.h"
#include "matrix/matrix_operations.h"

namespace kav {
namespace {

constexpr std::size_t kSize = kLargestMatrix;
using Numbers = std::array<std::array<double, kSize>, kSize>;

/// Numbers with up to three decimals, as if typed. Those on the diagonal are so large that the
/// elimination exchanges no rows.
Numbers MakeNumbers() {
  std::mt19937_64 random(20260101);
  Numbers numbers{};
  for (std::size_t i = 0; i < kSize; ++i) {
    for (double& cell : numbers[i]) cell = (static_cast<double>(random() % 20'000) - 1e4) / 1000;
    numbers[i][i] += 50;
  }
  return numbers;
}

MatrixValue MakeTexts() {
  const Numbers numbers = MakeNumbers();
  MatrixValue texts = MatrixOfSize(kLargestMatrix, kLargestMatrix);
  for (std::size_t i = 0; i < kSize; ++i) {
    for (std::size_t j = 0; j < kSize; ++j) texts.cells[i][j] = CellText(numbers[i][j]);
  }
  return texts;
}

/// `value` printed with twelve decimals, and read back.
double ThroughText(double value) {
  std::array<char, 64> text;
  char* const last = text.data() + text.size();
  const auto end = std::to_chars(text.data(), last, value, std::chars_format::fixed, 12);
  std::from_chars(text.data(), end.ptr, value);
  return value;
}

void InverseThroughTexts(benchmark::State& state) {
  const Numbers numbers = MakeNumbers();
  for (auto _ : state) {
    Numbers a = numbers;
    Numbers right{};
    for (std::size_t i = 0; i < kSize; ++i) right[i][i] = 1;
    for (std::size_t k = 0; k < kSize; ++k) {
      const double scale = 1 / a[k][k];
      for (std::size_t j = k; j < kSize; ++j) a[k][j] = ThroughText(a[k][j] * scale);
      for (double& cell : right[k]) cell = ThroughText(cell * scale);
      for (std::size_t i = 0; i < kSize; ++i) {
        if (i == k) continue;
        const double f = a[i][k];
        for (std::size_t j = k; j < kSize; ++j) a[i][j] = ThroughText(a[i][j] - a[k][j] * f);
        for (std::size_t j = 0; j < kSize; ++j) {
          right[i][j] = ThroughText(right[i][j] - right[k][j] * f);
        }
      }
    }
    benchmark::DoNotOptimize(right);
  }
}
BENCHMARK(InverseThroughTexts);

void Inverse(benchmark::State& state) {
  const MatrixValue a = MakeTexts();
  for (auto _ : state) {
    auto inverse = InvertMatrix(a);
    if (!inverse) return state.SkipWithError(inverse.error().message.c_str());
    benchmark::DoNotOptimize(*inverse);
  }
}
BENCHMARK(Inverse);

void DeterminantThroughTexts(benchmark::State& state) {
  const Numbers numbers = MakeNumbers();
  for (auto _ : state) {
    Numbers a = numbers;
    double product = 1;
    for (std::size_t k = 0; k < kSize; ++k) {
      for (std::size_t i = k + 1; i < kSize; ++i) {
        const double factor = -a[i][k] / a[k][k];
        a[i][k] = ThroughText(0);
        for (std::size_t j = k + 1; j < kSize; ++j) {
          a[i][j] = ThroughText(a[i][j] + a[k][j] * factor);
        }
      }
      product *= a[k][k];
    }
    benchmark::DoNotOptimize(product);
  }
}
BENCHMARK(DeterminantThroughTexts);

void Determinant(benchmark::State& state) {
  const MatrixValue a = MakeTexts();
  for (auto _ : state) {
    auto determinant = MatrixDeterminant(a);
    if (!determinant) return state.SkipWithError(determinant.error().message.c_str());
    benchmark::DoNotOptimize(*determinant);
  }
}
BENCHMARK(Determinant);

void Multiply(benchmark::State& state) {
  const MatrixValue a = MakeTexts();
  for (auto _ : state) {
    auto product = MultiplyMatrices(a, a);
    if (!product) return state.SkipWithError(product.error().message.c_str());
    benchmark::DoNotOptimize(*product);
  }
}
BENCHMARK(Multiply);

}  // namespace
}  // namespace kav
