// Answers as JSON, an object an item.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/answer.h"
#include "cli/options.h"

namespace kav {

/// Appends `answer` to `out` as a line with one object: "item" (`item`, or null without one),
/// "result", or "error" and perhaps "position", and "text". Returns false if there is no answer, or
/// none that can be shown.
bool AppendJsonAnswer(std::string& out, std::optional<std::string_view> item, const Answer& answer,
                      const Options& options);

}  // namespace kav
