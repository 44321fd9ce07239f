#include "engine/calc_error.h"

#include <cstddef>

namespace kav {
namespace {

/// A name that fits a result line: one of more than 17 characters keeps its first 15.
std::string Shortened(std::string_view name) {
  constexpr std::size_t kLongest = 17;
  constexpr std::size_t kKept = 15;
  if (name.size() <= kLongest) return std::string(name);
  return std::string(name.substr(0, kKept)) + "...";
}

std::string Message(CalcErrorCode code, std::string_view name) {
  switch (code) {
    case CalcErrorCode::OutOfRange:
      return "Out of range(overflow or underflow)";
    case CalcErrorCode::UnmatchedParentheses:
      return "Not matched '(' and ')'.";
    case CalcErrorCode::Expression:
      return "Expression error.";
    case CalcErrorCode::TooManyOperators:
      return "Too many operator.";
    case CalcErrorCode::NeedsArgument:
      return "(" + std::string(name) + ") needs an argument.";
    case CalcErrorCode::NotSupported:
      return Shortened(name) + " is not supported.";
    case CalcErrorCode::CalculationLimit:
      return std::string(name) + " exceeded calculation limit.";
    case CalcErrorCode::NotInteger:
      return std::string(name) + " is not supported non-integer.";
    case CalcErrorCode::LengthLimit:
      return "number exceeded length limit.";
    case CalcErrorCode::NullExpression:
      return "Expression is null.";
    case CalcErrorCode::Free:
      break;
  }
  return std::string(name);
}

}  // namespace

CalcError MakeError(CalcErrorCode code, std::string_view name) {
  return {code, Message(code, name)};
}

}  // namespace kav
