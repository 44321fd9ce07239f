// The functions of the engine: their names, and their codes in tokens.
#pragma once

#include <array>
#include <string_view>

#include "engine/calc_token.h"

namespace kav {

/// A function by the name that a text calls it by.
struct FunctionName {
  std::string_view name;
  FunctionCode code;
};

/// All functions, in the order in which lists show them.
inline constexpr std::array kFunctionNames{
    FunctionName{"sin", FunctionCode::Sin},   FunctionName{"cos", FunctionCode::Cos},
    FunctionName{"tan", FunctionCode::Tan},   FunctionName{"asin", FunctionCode::Asin},
    FunctionName{"acos", FunctionCode::Acos}, FunctionName{"atan", FunctionCode::Atan},
    FunctionName{"sinh", FunctionCode::Sinh}, FunctionName{"cosh", FunctionCode::Cosh},
    FunctionName{"tanh", FunctionCode::Tanh}, FunctionName{"log", FunctionCode::Log},
    FunctionName{"ln", FunctionCode::Ln},     FunctionName{"exp", FunctionCode::Exp},
    FunctionName{"sqrt", FunctionCode::Sqrt}, FunctionName{"abs", FunctionCode::Abs},
    FunctionName{"int", FunctionCode::Int},   FunctionName{"frac", FunctionCode::Frac},
};

}  // namespace kav
