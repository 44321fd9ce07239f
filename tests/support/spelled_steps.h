// Steps as a line to read and compare: "mul 2 4; add 0 2; finish 0".
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "engine/steps.h"

namespace kav::test {

struct OperationName {
  Operation operation;
  std::string_view name;
  int operands;
};

inline constexpr std::array kOperationNames{
    OperationName{Operation::Negate, "neg", 1},
    OperationName{Operation::Factorial, "fact", 1},
    OperationName{Operation::Permutation, "perm", 2},
    OperationName{Operation::Combination, "comb", 2},
    OperationName{Operation::Power, "pow", 2},
    OperationName{Operation::LastPower, "lastpow", 2},
    OperationName{Operation::Multiply, "mul", 2},
    OperationName{Operation::Divide, "div", 2},
    OperationName{Operation::Remainder, "rem", 2},
    OperationName{Operation::ShiftLeft, "shl", 2},
    OperationName{Operation::ShiftRight, "shr", 2},
    OperationName{Operation::Add, "add", 2},
    OperationName{Operation::Subtract, "sub", 2},
    OperationName{Operation::And, "and", 2},
    OperationName{Operation::Or, "or", 2},
    OperationName{Operation::Xor, "xor", 2},
    OperationName{Operation::Xnor, "xnor", 2},
    OperationName{Operation::Not, "not", 1},
    OperationName{Operation::Sin, "sin", 1},
    OperationName{Operation::Cos, "cos", 1},
    OperationName{Operation::Tan, "tan", 1},
    OperationName{Operation::Asin, "asin", 1},
    OperationName{Operation::Acos, "acos", 1},
    OperationName{Operation::Atan, "atan", 1},
    OperationName{Operation::Log, "log", 1},
    OperationName{Operation::Ln, "ln", 1},
    OperationName{Operation::Exp, "exp", 1},
    OperationName{Operation::Sinh, "sinh", 1},
    OperationName{Operation::Cosh, "cosh", 1},
    OperationName{Operation::Tanh, "tanh", 1},
    OperationName{Operation::Sqrt, "sqrt", 1},
    OperationName{Operation::Abs, "abs", 1},
    OperationName{Operation::Int, "int", 1},
    OperationName{Operation::Frac, "frac", 1},
    OperationName{Operation::FailExpression, "fail", 0},
    OperationName{Operation::FailNeedsArgument, "fail!", 0},
    OperationName{Operation::Finish, "finish", 1},
};

inline std::string Spelled(const Step& step) {
  const OperationName& row = kOperationNames.at(static_cast<std::size_t>(step.operation));
  std::string line(row.name);
  if (row.operands > 0) line += " " + PrintInteger(step.target);
  if (row.operands > 1) line += " " + PrintInteger(step.right);
  return line;
}

inline std::string Spelled(const StepList& steps) {
  std::string line;
  for (const Step& step : steps) line += (line.empty() ? "" : "; ") + Spelled(step);
  return line;
}

}  // namespace kav::test
