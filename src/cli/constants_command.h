// kavcalc constants: the table of constants.
#pragma once

#include "cli/options.h"

namespace kav {

int RunConstants(const CommandLine& line);

}  // namespace kav
