// One formula evaluated for many x, beside the same arithmetic compiled by the C++ compiler: bare
// ("native"), and with the calculator's rules ("rules": finite operands, exact zeros of the angle
// functions, the bits of pow). Also short texts, each evaluated once.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "engine/expression_engine.h"
#include "engine/formula_runner.h"
#include "engine/functions.h"

namespace kav {
namespace {

constexpr std::size_t kSamples = 1024;

std::array<double, kSamples> MakeSamples() {
  std::array<double, kSamples> samples{};
  for (std::size_t i = 0; i < kSamples; ++i) {
    samples[i] = -10 + 20.0 * (static_cast<double>(i) + 0.5) / kSamples;
  }
  return samples;
}

/// Makes the answer NaN if an operand is not finite, which the engine refuses.
struct Checked {
  bool ok = true;
  double operator()(double value) {
    ok = ok && std::isfinite(value);
    return value;
  }
};

double SineNative(double x) {
  return std::sin(x);
}
double SineRules(double x) {
  Checked c;
  const double y = c(Sine(c(x), AngleUnit::Radians));
  return c.ok ? y : 0;
}

double QuadraticNative(double x) {
  return x * x + 3 * x - 5;
}
double QuadraticRules(double x) {
  Checked c;
  const double y = c(c(Power(c(x), 2.0)) + c(3 * c(x))) - 5;
  return c(y), c.ok ? y : 0;
}

double DampedNative(double x) {
  return std::sin(x) * std::exp(-x / 10) + std::sqrt(std::fabs(x));
}
double DampedRules(double x) {
  Checked c;
  const double wave = c(Sine(c(x), AngleUnit::Radians)) * c(std::exp(c(c(-x) / 10)));
  const double size = c(std::fabs(c(x)));
  if (!(size > 0)) return 0;
  const double y = c(c(wave) + c(Power(size, 0.5)));
  return c.ok ? y : 0;
}

double RationalNative(double x) {
  return (x + 1) / ((x - 1) * (x - 1));
}
double RationalRules(double x) {
  Checked c;
  const double divisor = c(Power(c(c(x) - 1), 2.0));
  if (divisor == 0) return 0;
  const double y = c(c(c(x) + 1) / divisor);
  return c.ok ? y : 0;
}

double LogarithmNative(double x) {
  return std::log10(std::fabs(x) + 1) * std::cos(3 * x);
}
double LogarithmRules(double x) {
  Checked c;
  const double argument = c(c(std::fabs(c(x))) + 1);
  if (!(argument > 0)) return 0;
  const double y = c(c(std::log10(argument)) * c(Cosine(c(3 * c(x)), AngleUnit::Radians)));
  return c.ok ? y : 0;
}

void RunCompiled(benchmark::State& state, double (*function)(double)) {
  const auto samples = MakeSamples();
  // The compiler must not know which function it is, or it would inline it.
  benchmark::DoNotOptimize(function);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(function(samples[next]));
    next = (next + 1) % kSamples;
  }
}

void RunFormula(benchmark::State& state, const char* text) {
  const auto samples = MakeSamples();
  const auto formula = CheckFormula(text, VariableType::X);
  if (!formula) return state.SkipWithError(formula.error().message.c_str());
  FormulaRunner runner(*formula, AngleUnit::Radians);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(runner.At({samples[next]}));
    next = (next + 1) % kSamples;
  }
}

#define KAV_FORMULA(NAME, TEXT)                                \
  BENCHMARK_CAPTURE(RunCompiled, NAME##_native, NAME##Native); \
  BENCHMARK_CAPTURE(RunCompiled, NAME##_rules, NAME##Rules);   \
  BENCHMARK_CAPTURE(RunFormula, NAME##_kav, TEXT)

KAV_FORMULA(Sine, "sin(x)");
KAV_FORMULA(Quadratic, "x^2+3*x-5");
KAV_FORMULA(Damped, "sin(x)*exp(-x/10)+sqrt(abs(x))");
KAV_FORMULA(Rational, "(x+1)/(x-1)^2");
KAV_FORMULA(Logarithm, "log(abs(x)+1)*cos(3*x)");

/// Distinct texts of 28 characters on average, as typed on a calculator.
std::vector<std::string> MakeTexts(std::size_t count) {
  std::mt19937 random(20260101);
  const auto number = [&] {
    return std::to_string(random() % 9000 + 10) + "." + std::to_string(random() % 90 + 10);
  };
  const std::array<std::string, 4> operators{"+", "-", "*", "/"};
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& sign = operators[random() % 4];
    switch (random() % 4) {
      case 0:
        texts.push_back(number() + sign + number() + "*" + number());
        break;
      case 1:
        texts.push_back("sin(" + number() + ")" + sign + "(" + number() + "-" + number() + ")");
        break;
      case 2:
        texts.push_back("(" + number() + sign + number() + ")*" + number() + "^2");
        break;
      default:
        texts.push_back("sqrt(" + number() + ")" + sign + "ln(" + number() + ")*3!");
        break;
    }
  }
  return texts;
}

void EvaluateTexts(benchmark::State& state) {
  const auto texts = MakeTexts(2000);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Evaluate(texts[next], {AngleUnit::Radians, BaseMode::Decimal}));
    next = (next + 1) % texts.size();
  }
  std::size_t characters = 0;
  for (const auto& text : texts) characters += text.size();
  state.counters["characters"] =
      static_cast<double>(characters) / static_cast<double>(texts.size());
}
BENCHMARK(EvaluateTexts);

}  // namespace
}  // namespace kav
