// The interactive prompt for expressions.
#pragma once

#include "cli/options.h"

namespace kav {

/// Whether somebody sits at both ends: standard input and output are a terminal.
bool CanPrompt();

/// Prompts for expressions and answers each, until the end of the input; the exit status. Lines can
/// be edited, recalled from earlier and completed. The options must outlive the call.
int RunPrompt(const Options& options);

}  // namespace kav
