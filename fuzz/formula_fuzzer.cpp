// Formulas of any content. Those that pass the checker have the same value for the same arguments
// every time, whether they are evaluated once or by a runner. The first byte chooses the variables
// and the angle unit. As a digit, 0 is F(X), 1 F(X,Y) and 2 F(X,Y,Z); 3 to 5 are the same in
// radians. The second byte chooses the arguments.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "engine/formula_checker.h"
#include "engine/formula_runner.h"
#include "support/effort.h"

namespace {

using kav::Expected;
using kav::StepFailure;

constexpr std::array kArguments{0.0,
                                1.0,
                                -1.0,
                                2.0,
                                0.5,
                                3.0,
                                -0.0,
                                30.0,
                                90.0,
                                -90.0,
                                180.0,
                                150.0,
                                170.0,
                                171.0,
                                1e10,
                                1e155,
                                -1e300,
                                1e308,
                                1e-160,
                                5e-324,
                                4294967296.0,
                                3.141592653589793,
                                1.5707963267948966,
                                std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};

void Check(bool holds) {
  if (!holds) std::abort();
}

bool AreEqual(const Expected<double, StepFailure>& a, const Expected<double, StepFailure>& b) {
  if (!a || !b) return !a && !b && kav::MakeError(a.error()) == kav::MakeError(b.error());
  return kav::test::BitsOf(*a) == kav::test::BitsOf(*b);
}

void CheckSteps(const kav::CheckedFormula& formula) {
  const kav::StepList& steps = formula.Steps();
  Check(steps.Count() > 0 && steps.Last().operation >= kav::Operation::FailExpression);
  for (const kav::Step& step : steps) {
    Check(step.target < formula.SlotCount() && step.right < formula.SlotCount());
    Check(!kav::DescribeStep(step).empty());
  }
}

void CheckValues(const kav::CheckedFormula& formula, kav::AngleUnit unit, std::size_t first) {
  kav::FormulaRunner runner(formula, unit);
  for (std::size_t i = 0; i < kArguments.size(); ++i) {
    const auto argument = [&](std::size_t step) {
      return kArguments[(first + i * step) % kArguments.size()];
    };
    const kav::VariableValues at{argument(1), argument(3), argument(7)};
    const auto value = formula.At(at, unit);
    Check(AreEqual(value, formula.At(at, unit)));
    Check(AreEqual(value, runner.At(at)));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const auto type = static_cast<kav::VariableType>(data[0] % 3);
  const auto unit = static_cast<kav::AngleUnit>(1 + data[0] / 3 % 2);
  const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
  const auto formula = kav::CheckFormula(text, type);
  const auto again = kav::CheckFormula(text, type);
  Check(static_cast<bool>(formula) == static_cast<bool>(again));
  if (!formula) {
    Check(formula.error() == again.error());
    return 0;
  }
  CheckSteps(*formula);
  CheckValues(*formula, unit, data[1]);
  return 0;
}
