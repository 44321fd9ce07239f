// kavcalc plot: the samples of curves.
#pragma once

#include "cli/options.h"

namespace kav {

int RunPlot(const CommandLine& line);

}  // namespace kav
