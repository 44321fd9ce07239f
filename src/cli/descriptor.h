// Open files as the program finds them.
#pragma once

#include <cstddef>
#include <string>

#include "common/expected.h"

namespace kav {

/// All bytes that can be read from `descriptor`, but no more than `most`; or the errno of what went
/// wrong.
Expected<std::string, int> ReadAll(int descriptor, std::size_t most);

/// Whether a read would have to wait.
bool WouldWait(int descriptor);

/// Takes the numbers of those standard files that were closed from the start, so that no file
/// opened later gets them. Reading and writing these standard files still fails.
void ReserveStandardFiles();

}  // namespace kav
