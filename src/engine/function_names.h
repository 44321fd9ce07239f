// The words of the engine: the names of functions, with their codes in tokens, and of numbers.
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

/// The last answer, where there is one.
inline constexpr std::string_view kAnswerWord = "ans";
inline constexpr std::string_view kPiWord = "pi";

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
