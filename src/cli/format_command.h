// kavcalc format: numbers as the calculator shows them.
#pragma once

#include "cli/options.h"

namespace kav {

int RunFormat(const CommandLine& line);

}  // namespace kav
