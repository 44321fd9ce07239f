// Macro calls in a line, written "M:name(arguments)", replaced by their values.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "macros/macro_store.h"

namespace kav {

/// Whether a macro call begins anywhere in `line`.
bool HoldsMacroCall(std::string_view line);

/// A line whose macro calls are replaced by their values in six decimals. If the whole line was one
/// call, `wholeValue` is the value of that call with all its digits.
struct ExpandedLine {
  std::string text;
  std::optional<double> wholeValue;

  /// The value of a call in `text`, and the call in the line.
  struct EmbeddedValue {
    TextPlace value;
    TextPlace call;
  };
  std::vector<EmbeddedValue> values;  ///< from the left

  /// Where in the line stands what stands at `place` of `text`: for a value, its whole call.
  TextPlace PlaceInLine(TextPlace place) const;
};

/// Why calls cannot be expanded, and where in the line.
struct MacroFailure {
  std::string message;
  TextPlace place;
};

/// Expands every call in `line` (trimmed, as typed), from the left. Arguments are evaluated in
/// `modes`, formulas in decimal with the angle unit of `modes`. Fails with the message of the first
/// call that is misplaced, names no macro, has the wrong arguments or does not evaluate.
Expected<ExpandedLine, MacroFailure> ExpandMacros(std::string_view line, CalcModes modes,
                                                  const MacroStore& macros);

}  // namespace kav
