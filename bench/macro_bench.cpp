// A line that calls a macro, beside the same line with the formula of the macro in its place. The
// macro is the last of sixty, which is found last.
#include <benchmark/benchmark.h>

#include <string>

#include "macros/line_evaluator.h"
#include "settings/keys.h"

namespace kav {
namespace {

void StoreMacro(SettingsStore& settings, int index, const std::string& name, VariableType type,
                const std::string& formula) {
  settings.Set(MacroName(index), name);
  settings.Set(MacroType(index), MacroTypeText(type));
  settings.Set(MacroFormula(index), formula);
}

void FillStore(SettingsStore& settings) {
  for (int i = 0; i < MacroStore::kCapacity; ++i) {
    StoreMacro(settings, i, "another" + std::to_string(i), VariableType::X, "x");
  }
  const int last = MacroStore::kCapacity - 1;
  StoreMacro(settings, last - 3, "square", VariableType::X, "x^2");
  StoreMacro(settings, last - 2, "quad", VariableType::X, "x^2+3*x-5");
  StoreMacro(settings, last - 1, "damped", VariableType::X, "sin(x)*exp(-x/10)+sqrt(abs(x))");
  StoreMacro(settings, last, "hyp", VariableType::XY, "sqrt(x^2+y^2)");
  settings.Set(kMacroCount, MacroStore::kCapacity);
}

void RunLine(benchmark::State& state, const char* line) {
  MemorySettingsStore settings;
  FillStore(settings);
  const MacroStore macros(settings);
  for (auto _ : state) {
    const auto value = EvaluateLine(line, {AngleUnit::Radians, BaseMode::Decimal}, macros);
    if (!value) return state.SkipWithError(value.error().message.c_str());
    benchmark::DoNotOptimize(*value);
  }
}

#define KAV_CALL(NAME, CALLED, TYPED)              \
  BENCHMARK_CAPTURE(RunLine, NAME##_typed, TYPED); \
  BENCHMARK_CAPTURE(RunLine, NAME##_called, CALLED)

KAV_CALL(Square, "M:square(7.25)", "7.25^2");
KAV_CALL(SquareInside, "2*M:square(7.25)+1", "2*7.25^2+1");
KAV_CALL(Quadratic, "M:quad(7.25)", "7.25^2+3*7.25-5");
KAV_CALL(QuadraticInside, "2*M:quad(7.25)+1", "2*(7.25^2+3*7.25-5)+1");
KAV_CALL(Damped, "M:damped(7.25)", "sin(7.25)*exp(-7.25/10)+sqrt(abs(7.25))");
KAV_CALL(DampedInside, "2*M:damped(7.25)+1", "2*(sin(7.25)*exp(-7.25/10)+sqrt(abs(7.25)))+1");
KAV_CALL(TwoArguments, "M:hyp(3.5,4.5)", "sqrt(3.5^2+4.5^2)");
KAV_CALL(TwoCalls, "M:quad(2)+M:quad(3)", "(2^2+3*2-5)+(3^2+3*3-5)");

}  // namespace
}  // namespace kav
