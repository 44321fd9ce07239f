// A checked formula, prepared to be evaluated for thousands of arguments.
#pragma once

#include <cstdint>
#include <vector>

#include "common/expected.h"
#include "engine/calc_modes.h"
#include "engine/formula_checker.h"
#include "engine/steps.h"

namespace kav {

/// What instructions work on besides the accumulator, which they hand on.
struct RunnerState {
  std::vector<double> values;  ///< x, y, z, the formula's numbers, results that have to wait
  AngleUnit unit;
  StepFailure failure;  ///< of the last run that failed
};

/// One instruction of a FormulaRunner: a function that does it and calls that of the next
/// instruction, which costs a jump. `operand` is an index into the values; a failure names
/// `operation`. The last instruction answers: a finite value, or not-a-number after a failure.
struct RunnerInstruction {
  using Handler = double (*)(const RunnerInstruction* self, RunnerState& state, double accumulator);

  Handler handler;
  ApplyFunction function;
  std::uint16_t operand;
  Operation operation;
};

/// Answers what CheckedFormula::At answers, but faster: the steps become instructions of a machine
/// with one accumulator, a run needs no copy of the formula's numbers, and operands are not checked
/// to be finite if a later step is bound to find the same. Worth making for more than a few
/// evaluations.
class FormulaRunner {
 public:
  FormulaRunner(const CheckedFormula& formula, AngleUnit unit);

  /// The value at `at`, always finite; fails as RunSteps does. Not for two threads at once.
  Expected<double, StepFailure> At(const VariableValues& at);

 private:
  RunnerState state_;
  std::vector<RunnerInstruction> instructions_;
};

}  // namespace kav
