// kavcalc memory: the numbered memory variables.
#pragma once

#include "cli/options.h"

namespace kav {

int RunMemory(const CommandLine& line);

}  // namespace kav
