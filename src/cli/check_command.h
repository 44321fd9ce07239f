// kavcalc check: whether formulas are well formed.
#pragma once

#include "cli/options.h"

namespace kav {

int RunCheck(const CommandLine& line);

}  // namespace kav
