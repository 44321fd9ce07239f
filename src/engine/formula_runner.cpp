#include "engine/formula_runner.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace kav {
namespace {

constexpr std::uint16_t kVariables = 3;

using Handler = RunnerInstruction::Handler;

// The instructions. Formulas are short, so the stack holds the calls even if a compiler does not
// turn them into jumps.

double Next(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return self[1].handler(self + 1, state, accumulator);
}

double& OperandOf(const RunnerInstruction* self, RunnerState& state) {
  return state.values[self->operand];
}

double Fail(const RunnerInstruction* self, RunnerState& state, CalcErrorCode code) {
  state.failure = {code, self->operation};
  return std::numeric_limits<double>::quiet_NaN();
}

/// The accumulator takes the operand.
double Load(const RunnerInstruction* self, RunnerState& state, double /*accumulator*/) {
  return Next(self, state, OperandOf(self, state));
}

/// The operand takes the accumulator.
double Save(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  OperandOf(self, state) = accumulator;
  return Next(self, state, accumulator);
}

double CheckAccumulator(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  if (!std::isfinite(accumulator)) return Fail(self, state, CalcErrorCode::OutOfRange);
  return Next(self, state, accumulator);
}

double CheckOperand(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  if (!std::isfinite(OperandOf(self, state))) return Fail(self, state, CalcErrorCode::OutOfRange);
  return Next(self, state, accumulator);
}

double Negate(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return Next(self, state, accumulator * -1.0);
}

double Add(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return Next(self, state, accumulator + OperandOf(self, state));
}

double Subtract(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return Next(self, state, accumulator - OperandOf(self, state));
}

double SubtractFrom(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return Next(self, state, OperandOf(self, state) - accumulator);
}

double Multiply(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  return Next(self, state, accumulator * OperandOf(self, state));
}

double Divide(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  const double divisor = OperandOf(self, state);
  if (divisor == 0) return Fail(self, state, CalcErrorCode::CalculationLimit);
  return Next(self, state, accumulator / divisor);
}

/// The function on the accumulator and the operand.
double Apply(const RunnerInstruction* self, RunnerState& state, double accumulator) {
  const Outcome done = self->function(accumulator, OperandOf(self, state), state.unit);
  if (!done) return Fail(self, state, done.Code());
  return Next(self, state, accumulator);
}

double Finish(const RunnerInstruction* /*self*/, RunnerState& /*state*/, double accumulator) {
  return accumulator;
}

/// A step on values that are each written once, by index.
struct ValueStep {
  Operation operation;
  std::uint16_t left;
  std::uint16_t right;
  std::uint16_t result;
  bool isChecked;  ///< whether its operands are checked to be finite
};

/// Whether a result that is finite proves both operands finite: infinities and not-a-number survive
/// sums and products, while 1/infinity is 0.
bool KeepsInfinities(Operation operation) {
  return operation == Operation::Add || operation == Operation::Subtract ||
         operation == Operation::Multiply || operation == Operation::Negate;
}

/// Whether `operation` itself refuses operands that are not finite.
bool ChecksOperands(Operation operation) {
  return operation != Operation::Factorial && MayRaise(operation, CalcErrorCode::OutOfRange);
}

/// Whether `operation` may raise an error that must come before one of being out of range.
bool RaisesOtherErrors(Operation operation) {
  for (int code = 0; code <= static_cast<int>(CalcErrorCode::Free); ++code) {
    const auto error = static_cast<CalcErrorCode>(code);
    if (error != CalcErrorCode::OutOfRange && MayRaise(operation, error)) return true;
  }
  return false;
}

/// The steps of `formula` on `values`, which is filled: the variables, the formula's numbers, and a
/// place for each result.
std::vector<ValueStep> OnValues(const CheckedFormula& formula, std::vector<double>& values) {
  // Where the value of each of the formula's slots is at this point of the calculation.
  std::vector<std::uint16_t> home;
  values.resize(kVariables);
  for (int slot = 0; slot < formula.SlotCount(); ++slot) {
    const auto variable = formula.VariableIn(slot);
    const auto number = static_cast<std::uint16_t>(values.size());
    home.push_back(variable ? static_cast<std::uint16_t>(*variable) : number);
    if (!variable) values.push_back(formula.ValueIn(slot));
  }
  std::vector<ValueStep> steps;
  for (const Step& step : formula.Steps()) {
    const auto result = static_cast<std::uint16_t>(values.size());
    steps.push_back({step.operation, home[step.target], home[step.right], result, true});
    home[step.target] = result;
    values.push_back(0);
  }
  return steps;
}

/// Drops the checks whose outcome a later one repeats before any other error can be raised.
void DropImpliedChecks(std::vector<ValueStep>& steps, std::size_t valueCount) {
  std::vector<bool> isFoundOut(valueCount, false);
  std::for_each(steps.rbegin(), steps.rend(), [&](ValueStep& step) {
    if (RaisesOtherErrors(step.operation)) isFoundOut.assign(valueCount, false);
    const bool isImplied = KeepsInfinities(step.operation) && isFoundOut[step.result];
    step.isChecked = ChecksOperands(step.operation) && !isImplied;
    if (!step.isChecked && !isImplied) return;
    isFoundOut[step.left] = true;
    isFoundOut[step.right] = true;
  });
}

/// How an operation is done without its function. `mirrored` does it with the right operand in the
/// accumulator; null if that is not possible.
struct OwnHandler {
  Handler handler;
  Handler mirrored;
};

std::optional<OwnHandler> OwnHandlerOf(Operation operation) {
  switch (operation) {
    case Operation::Negate:
      return OwnHandler{Negate, nullptr};
    case Operation::Add:
      return OwnHandler{Add, Add};
    case Operation::Subtract:
      return OwnHandler{Subtract, SubtractFrom};
    case Operation::Multiply:
      return OwnHandler{Multiply, Multiply};
    case Operation::Divide:
      return OwnHandler{Divide, nullptr};
    case Operation::Finish:
      return OwnHandler{Finish, nullptr};
    default:
      return std::nullopt;
  }
}

/// Turns steps into instructions, keeping in mind what the accumulator holds.
class InstructionWriter {
 public:
  explicit InstructionWriter(std::vector<bool> isFiniteNumber)
      : isFiniteNumber_(std::move(isFiniteNumber)) {}

  void Write(const ValueStep& step) {
    const auto own = OwnHandlerOf(step.operation);
    if (own && own->mirrored != nullptr && held_ == step.right) {
      WriteOwn(own->mirrored, step, step.right, step.left);
    } else if (own) {
      WriteOwn(own->handler, step, step.left, step.right);
    } else {
      Bring(step.left);
      Emit(Apply, step.operation, step.right);
    }
    held_ = step.result;
  }

  std::vector<RunnerInstruction> Take() { return std::move(instructions_); }

 private:
  void WriteOwn(Handler handler, const ValueStep& step, std::uint16_t first, std::uint16_t second) {
    Bring(first);
    const auto check = [&](Handler checking, std::uint16_t value) {
      if (step.isChecked && !isFiniteNumber_[value]) Emit(checking, step.operation, value);
    };
    check(CheckAccumulator, first);
    if (second != first) check(CheckOperand, second);
    Emit(handler, step.operation, second);
  }

  /// Brings `value` into the accumulator and saves what it held.
  void Bring(std::uint16_t value) {
    if (held_ == value) return;
    if (held_) Emit(Save, Operation::Finish, *held_);
    Emit(Load, Operation::Finish, value);
  }

  void Emit(Handler handler, Operation operation, std::uint16_t operand) {
    instructions_.push_back({handler, FunctionFor(operation), operand, operation});
  }

  std::vector<bool> isFiniteNumber_;
  std::vector<RunnerInstruction> instructions_;
  std::optional<std::uint16_t> held_;
};

}  // namespace

FormulaRunner::FormulaRunner(const CheckedFormula& formula, AngleUnit unit)
    : state_{{}, unit, {CalcErrorCode::OutOfRange, Operation::Finish}} {
  std::vector<double>& values = state_.values;
  std::vector<ValueStep> steps = OnValues(formula, values);
  DropImpliedChecks(steps, values.size());
  std::vector<bool> isFiniteNumber;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool isNumber = i >= kVariables && i + steps.size() < values.size();
    isFiniteNumber.push_back(isNumber && std::isfinite(values[i]));
  }
  InstructionWriter writer(std::move(isFiniteNumber));
  for (const ValueStep& step : steps) writer.Write(step);
  instructions_ = writer.Take();
}

Expected<double, StepFailure> FormulaRunner::At(const VariableValues& at) {
  double* const values = state_.values.data();
  values[0] = at.x;
  values[1] = at.y;
  values[2] = at.z;
  const double answer = instructions_.front().handler(instructions_.data(), state_, 0);
  if (std::isfinite(answer)) return answer;
  return state_.failure;
}

}  // namespace kav
