// kavcalc convert: values in other units.
#pragma once

#include "cli/options.h"

namespace kav {

int RunConvert(const CommandLine& line);

}  // namespace kav
