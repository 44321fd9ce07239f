// kavcalc stats: sums, moments and fitted curves of data files.
#pragma once

#include "cli/options.h"

namespace kav {

int RunStats(const CommandLine& line);

}  // namespace kav
