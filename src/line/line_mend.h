// What is shown of a line that "=" could not answer, besides the message.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "line/line_words.h"

namespace kav {

/// Where the failure lies, in UTF-16 units of the line as it was typed, and the line with the one
/// small mend that makes it valid. Each is nullopt if it is not known.
struct LineFault {
  std::optional<TextPlace> place;
  std::optional<std::u16string> mended;

  bool operator==(const LineFault&) const = default;
};

/// Tells whether a line has a value.
using LineCheck = std::function<bool(std::u16string_view line)>;

/// `line`, which has no value, with the one small mend that gives it one: the ")" that are missing
/// at its end, the "*" that are missing between two operands, a sign less at its end, or known
/// words in place of unknown ones that are nearly the same. nullopt if there is none, or if there
/// are two different ones, and for a long line. `words` include the macros as Call, without their
/// mark.
std::optional<std::u16string> MendOf(std::u16string_view line, const KnownWords& words,
                                     BaseMode base, const LineCheck& hasValue);

/// The fault of `line` (UTF-8 in the failing stage): the place that `known` says in bytes or, if
/// that is nullopt, where `mended` differs.
LineFault MakeFault(std::u16string_view line, std::optional<TextPlace> known,
                    std::optional<std::u16string> mended);

/// `place`, in bytes of `line` (UTF-8), in UTF-16 units of that line.
TextPlace WidenedPlace(std::string_view line, TextPlace place);

}  // namespace kav
