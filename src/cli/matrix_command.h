// kavcalc matrix: the values of expressions over matrices.
#pragma once

#include "cli/options.h"

namespace kav {

int RunMatrix(const CommandLine& line);

}  // namespace kav
