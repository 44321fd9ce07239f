// Three curves sampled, the preparation of the formulas included, beside the same arithmetic
// compiled by the C++ compiler: bare ("native"), and with the calculator's rules ("rules"). Also
// the picture made of the samples, and the bytes of its file.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/functions.h"
#include "plotter/graph_picture.h"

namespace kav {
namespace {

using Value = std::optional<double>;

/// A value, or none if an operand is not finite.
struct Checked {
  bool ok = true;
  double operator()(double value) {
    ok = ok && std::isfinite(value);
    return value;
  }
  Value Answer(double value) {
    (*this)(value);
    return ok ? Value(value) : std::nullopt;
  }
};

Value SineNative(double x) {
  return 5 * std::sin(x);
}
Value SineRules(double x) {
  Checked c;
  return c.Answer(5 * c(Sine(c(x), AngleUnit::Radians)));
}

Value QuadraticNative(double x) {
  return x * x + 3 * x - 5;
}
Value QuadraticRules(double x) {
  Checked c;
  return c.Answer(c(c(Power(c(x), 2.0)) + c(3 * c(x))) - 5);
}

Value DampedNative(double x) {
  return std::sin(x) * std::exp(-x / 10) + std::sqrt(std::fabs(x));
}
Value DampedRules(double x) {
  Checked c;
  const double wave = c(Sine(c(x), AngleUnit::Radians)) * c(std::exp(c(c(-x) / 10)));
  const double size = c(std::fabs(c(x)));
  if (!(size > 0)) return std::nullopt;
  return c.Answer(c(wave) + c(Power(size, 0.5)));
}

struct Formula {
  std::string_view text;
  Value (*native)(double x);
  Value (*rules)(double x);
};

constexpr std::array kFormulas{
    Formula{"5*sin(x)", SineNative, SineRules},
    Formula{"x^2+3*x-5", QuadraticNative, QuadraticRules},
    Formula{"sin(x)*exp(-x/10)+sqrt(abs(x))", DampedNative, DampedRules},
};

/// The rows of samples, without points on the borders: the least that a plot needs.
template <class Evaluate>
int SumOfRows(Evaluate evaluate) {
  const PlotRange range;
  const double step = (range.xMax - range.xMin) / (kSampleCount - 1);
  const double rowsPerUnit = (kSampleCount - 1) / (range.yMax - range.yMin);
  int sum = 0;
  for (int i = 0; i < kSampleCount; ++i) {
    const Value y = evaluate(range.xMin + i * step);
    if (!y) continue;
    const double row = kSampleCount - 1 - rowsPerUnit * (*y - range.yMin);
    if (row >= 0 && row < kSampleCount) sum += static_cast<int>(row);
  }
  return sum;
}

void SamplesNative(benchmark::State& state) {
  for (auto _ : state) {
    for (const Formula& formula : kFormulas) benchmark::DoNotOptimize(SumOfRows(formula.native));
  }
}
BENCHMARK(SamplesNative);

void SamplesRules(benchmark::State& state) {
  for (auto _ : state) {
    for (const Formula& formula : kFormulas) benchmark::DoNotOptimize(SumOfRows(formula.rules));
  }
}
BENCHMARK(SamplesRules);

GraphModel ModelOf(int width, std::vector<DataPoint> points) {
  GraphInput input;
  for (const Formula& formula : kFormulas) {
    input.curves.push_back({u"", *CheckFormula(formula.text, VariableType::X)});
  }
  input.angle = AngleUnit::Radians;
  input.points = std::move(points);
  GraphModel model(std::move(input));
  model.SetArea({0, 0, width - 1, width - 1});
  return model;
}

void Samples(benchmark::State& state) {
  const GraphModel model = ModelOf(kSampleCount, {});
  for (auto _ : state) {
    for (const GraphCurve& curve : model.Input().curves) {
      benchmark::DoNotOptimize(SampleCurve(curve.formula, model.Range(), AngleUnit::Radians, {}));
    }
  }
}
BENCHMARK(Samples);

/// The same, starting from the texts of the formulas.
void CheckedSamples(benchmark::State& state) {
  for (auto _ : state) {
    for (const Formula& formula : kFormulas) {
      const auto checked = CheckFormula(formula.text, VariableType::X);
      benchmark::DoNotOptimize(SampleCurve(*checked, {}, AngleUnit::Radians, {}));
    }
  }
}
BENCHMARK(CheckedSamples);

void Picture(benchmark::State& state) {
  const GraphModel model = ModelOf(static_cast<int>(state.range(0)), {});
  for (auto _ : state) benchmark::DoNotOptimize(BuildPicture(model));
}
BENCHMARK(Picture)->Arg(kSampleCount)->Arg(1080);

void PictureOfAMillionPoints(benchmark::State& state) {
  std::vector<DataPoint> points;
  for (int i = 0; i < 1'000'000; ++i) {
    // Both coordinates cover their ranges evenly, and independently.
    points.push_back({20 * std::fmod(i * 0.6180339887498949, 1) - 10,
                      20 * std::fmod(i * 0.7548776662466927, 1) - 10});
  }
  const GraphModel model = ModelOf(static_cast<int>(state.range(0)), std::move(points));
  std::size_t shapes = 0;
  for (auto _ : state) shapes = BuildPicture(model).size();
  state.counters["shapes"] = static_cast<double>(shapes);
}
BENCHMARK(PictureOfAMillionPoints)->Arg(kSampleCount)->Arg(1080)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kav
