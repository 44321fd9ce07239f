// kavcalc keys: the scientific screen, pressed key by key.
#pragma once

#include "cli/options.h"

namespace kav {

int RunKeys(const CommandLine& line);

}  // namespace kav
