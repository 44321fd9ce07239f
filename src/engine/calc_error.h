// Why a calculation has no result: a code and its finished message.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/expected.h"

namespace kav {

/// The causes, by their fixed numbers. The comments give the message; NAME is the subject that
/// whoever raises the error hands over.
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

/// Characters of a text that was evaluated. Of length 0: behind the character before `position`.
struct TextPlace {
  std::size_t position = 0;
  std::size_t length = 0;

  bool operator==(const TextPlace&) const = default;
};

/// A failure of the engine. The message is 8-bit and shown as it is. `place`, if known, is where in
/// the text the failure lies, in bytes; it does not tell two failures apart.
struct CalcError {
  CalcErrorCode code;
  std::string message;
  std::optional<TextPlace> place = {};

  bool operator==(const CalcError& other) const {
    return code == other.code && message == other.message;
  }
};

/// The error `code` with its message about `name` (ignored if the message names nothing).
CalcError MakeError(CalcErrorCode code, std::string_view name = {});

template <class T>
using CalcResult = Expected<T, CalcError>;

/// The message of an answer that failed; empty for any other. Valid as long as `answer` is.
template <class T>
std::string_view MessageOf(const CalcResult<T>& answer) {
  return answer ? std::string_view() : std::string_view(answer.error().message);
}

/// What is shown of `text`: itself or, if there is none, the message in its place.
inline std::string TextOrMessage(CalcResult<std::string> text) {
  return text ? *std::move(text) : std::move(text).error().message;
}

}  // namespace kav
