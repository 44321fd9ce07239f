// The functions of the engine: their names, their codes in tokens and their operations.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "engine/calc_token.h"
#include "engine/steps.h"

namespace kav {

/// A function by the name that a text calls it by.
struct FunctionName {
  std::string_view name;
  FunctionCode code;
  Operation operation;
};

/// All functions, in the order in which lists show them.
inline constexpr std::array kFunctionNames{
    FunctionName{"sin", FunctionCode::Sin, Operation::Sin},
    FunctionName{"cos", FunctionCode::Cos, Operation::Cos},
    FunctionName{"tan", FunctionCode::Tan, Operation::Tan},
    FunctionName{"asin", FunctionCode::Asin, Operation::Asin},
    FunctionName{"acos", FunctionCode::Acos, Operation::Acos},
    FunctionName{"atan", FunctionCode::Atan, Operation::Atan},
    FunctionName{"sinh", FunctionCode::Sinh, Operation::Sinh},
    FunctionName{"cosh", FunctionCode::Cosh, Operation::Cosh},
    FunctionName{"tanh", FunctionCode::Tanh, Operation::Tanh},
    FunctionName{"log", FunctionCode::Log, Operation::Log},
    FunctionName{"ln", FunctionCode::Ln, Operation::Ln},
    FunctionName{"exp", FunctionCode::Exp, Operation::Exp},
    FunctionName{"sqrt", FunctionCode::Sqrt, Operation::Sqrt},
    FunctionName{"abs", FunctionCode::Abs, Operation::Abs},
    FunctionName{"int", FunctionCode::Int, Operation::Int},
    FunctionName{"frac", FunctionCode::Frac, Operation::Frac},
};

/// The operation of the function `code`, which is not None.
constexpr Operation OperationOf(FunctionCode code) {
  const auto place = static_cast<int>(code) - static_cast<int>(FunctionCode::Sin);
  return static_cast<Operation>(place + static_cast<int>(Operation::Sin));
}
static_assert(std::all_of(kFunctionNames.begin(), kFunctionNames.end(),
                          [](const FunctionName& row) {
                            return OperationOf(row.code) == row.operation;
                          }),
              "codes and operations are enumerated in the same order");

}  // namespace kav
