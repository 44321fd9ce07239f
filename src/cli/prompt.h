// The interactive prompt for expressions.
#pragma once

#include "cli/options.h"

namespace kav {

/// Prompts for expressions and answers each, until the end of the input. Lines can be edited,
/// completed and recalled. Returns the exit status.
int RunPrompt(const Options& options);

}  // namespace kav
