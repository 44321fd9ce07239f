// Why a calculation has no result: a code and its finished message.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/expected.h"

namespace kav {

/// The causes, with the numbers they have always had. The comments give the message; NAME is the
/// subject handed over where the error is raised.
enum class CalcErrorCode : std::uint8_t {
  OutOfRange = 0,        ///< "Out of range(overflow or underflow)"
  UnmatchedParentheses,  ///< "Not matched '(' and ')'."
  Expression,            ///< "Expression error."
  TooManyOperators,      ///< "Too many operator."
  NeedsArgument,         ///< "(NAME) needs an argument."
  NotSupported,          ///< "NAME is not supported."; a long NAME is cut
  CalculationLimit,      ///< "NAME exceeded calculation limit."
  NotInteger,            ///< "NAME is not supported non-integer."
  LengthLimit,           ///< "number exceeded length limit."
  NullExpression,        ///< "Expression is null."
  Free,                  ///< NAME itself
};

/// A failure of the engine. The message is 8-bit and shown as it is.
struct CalcError {
  CalcErrorCode code;
  std::string message;

  bool operator==(const CalcError&) const = default;
};

/// The error `code` with its message about `name` (ignored where the message names nothing).
CalcError MakeError(CalcErrorCode code, std::string_view name = {});

template <class T>
using CalcResult = Expected<T, CalcError>;

}  // namespace kav
