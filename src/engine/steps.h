// The steps of a calculation in their order, and running them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/expected.h"
#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "engine/calc_token.h"

namespace kav {

/// What one step does to its operand slots.
enum class Operation : std::uint8_t {
  Negate,
  Factorial,
  Permutation,
  Combination,
  Power,
  LastPower,  ///< the last of a sweep: only its operands are checked to be finite
  Multiply,
  Divide,
  Remainder,
  ShiftLeft,
  ShiftRight,
  Add,
  Subtract,
  And,
  Or,
  Xor,
  Xnor,
  Not,
  Sin,
  Cos,
  Tan,
  Asin,
  Acos,
  Atan,
  Log,
  Ln,
  Exp,
  Sinh,
  Cosh,
  Tanh,
  Sqrt,
  Abs,
  Int,
  Frac,
  FailExpression,     ///< an operator or function found no live operand, or values are left over
  FailNeedsArgument,  ///< '!' found no live operand
  Finish,             ///< `target` holds the answer
};

/// The operation of the function `code`, which is not None.
constexpr Operation OperationOf(FunctionCode code) {
  const auto place = static_cast<int>(code) - static_cast<int>(FunctionCode::Sin);
  return static_cast<Operation>(place + static_cast<int>(Operation::Sin));
}
static_assert(OperationOf(FunctionCode::Frac) == Operation::Frac,
              "codes and operations are enumerated in the same order");

/// One step: slot `target` takes the result of the operation on slots `target` and `right` (the
/// latter only if the operation has two operands). A slot has the number of its token.
struct Step {
  Step() = default;  // Sets nothing: lists of steps are filled as far as they are used.
  constexpr Step(Operation what, std::uint8_t targetSlot, std::uint8_t rightSlot,
                 std::uint8_t about = 0)
      : operation(what), target(targetSlot), right(rightSlot), token(about) {}

  Operation operation;
  std::uint8_t target;
  std::uint8_t right;
  std::uint8_t token;  ///< that a failure of the step is about: its operator or function
};

/// The values of all tokens of a text, by slot; meaningless if the token is no operand.
using SlotValues = std::array<double, TokenArray::kCapacity>;

/// The steps of one calculation, at least one. Only the last one finishes or fails.
class StepList {
 public:
  // Every step but the last uses up a token.
  static constexpr int kCapacity = TokenArray::kCapacity + 1;

  int Count() const { return count_; }
  void Append(Step step) { steps_[static_cast<std::size_t>(count_++)] = step; }
  Step& operator[](int index) { return steps_[static_cast<std::size_t>(index)]; }
  const Step& operator[](int index) const { return steps_[static_cast<std::size_t>(index)]; }
  const Step& Last() const { return steps_[static_cast<std::size_t>(count_ - 1)]; }
  const Step* begin() const { return steps_.data(); }
  const Step* end() const { return begin() + count_; }

 private:
  std::array<Step, kCapacity> steps_;
  int count_ = 0;
};

/// Which error ended a run, and the operation that it names. Small, since runs come by the
/// thousand. `token`, which only RunSteps tells, is that of the step; it does not tell two failures
/// apart.
struct StepFailure {
  CalcErrorCode code;
  Operation operation;
  std::uint8_t token = 0;

  bool operator==(const StepFailure& other) const {
    return code == other.code && operation == other.operation;
  }
};

/// The same as an error with its message.
CalcError MakeError(StepFailure failure);

/// How an operation ends: done, or with the code of an error. One byte, since every step answers
/// it.
class Outcome {
 public:
  constexpr Outcome() = default;
  constexpr Outcome(CalcErrorCode code)  // NOLINT: a code is an outcome
      : byte_(static_cast<std::uint8_t>(static_cast<unsigned>(code) + 1U)) {}

  constexpr explicit operator bool() const { return byte_ == 0; }
  /// Only if the outcome is an error.
  constexpr CalcErrorCode Code() const { return static_cast<CalcErrorCode>(byte_ - 1U); }

 private:
  std::uint8_t byte_ = 0;
};

/// Replaces `left` by the result of an operation on it and, if that has two operands, `right`.
/// After a failure `left` is meaningless.
using ApplyFunction = Outcome (*)(double& left, double right, AngleUnit unit);

ApplyFunction FunctionFor(Operation operation);

/// Whether some values make `operation` end with `code`.
bool MayRaise(Operation operation, CalcErrorCode code);

/// Runs `steps` (not empty) on `values`, which are overwritten, and answers a finite value. Fails
/// at the first step that cannot be done; an operand or an answer that is not finite is out of
/// range.
Expected<double, StepFailure> RunSteps(const StepList& steps, SlotValues& values, AngleUnit unit);

/// A line that explains `step`: its slots, its operation, and the messages it may end with.
std::string DescribeStep(const Step& step);

}  // namespace kav
