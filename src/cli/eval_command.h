// kavcalc eval: the values of expressions.
#pragma once

#include "cli/options.h"

namespace kav {

int RunEval(const CommandLine& line);

}  // namespace kav
