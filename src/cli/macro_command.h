// kavcalc macro: the user's macros.
#pragma once

#include "cli/options.h"

namespace kav {

int RunMacro(const CommandLine& line);

}  // namespace kav
