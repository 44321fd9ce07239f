// What is shown of a line that "=" could not answer, besides the message.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/calc_error.h"

namespace kav {

/// Where the failure lies, in UTF-16 units of the line as it was typed, and the line with the one
/// small mend that makes it valid. Each is nullopt if it is not known.
struct LineFault {
  std::optional<TextPlace> place;
  std::optional<std::u16string> mended;
};

/// `place`, in bytes of `line` (UTF-8), in UTF-16 units of that line.
TextPlace WidenedPlace(std::string_view line, TextPlace place);

}  // namespace kav
