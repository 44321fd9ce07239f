// What a terminal shows of a line that failed, besides the message.
#pragma once

#include <string>
#include <string_view>

#include "line/line_mend.h"

namespace kav {

/// The part of `line` around the failure with a "^" below it, and the mended line as a question:
/// each as far as `fault` knows it, in lines of fewer than 80 columns if no mended line is longer.
/// Control characters are made visible.
std::string FailureNote(std::u16string_view line, const LineFault& fault);

}  // namespace kav
