// The standard files of the program.
#pragma once

namespace kav {

/// Whether a read would have to wait.
bool WouldWait(int descriptor);

/// Takes the numbers of those standard files that were closed from the start, so that no file
/// opened later gets them. Reading and writing these standard files still fails.
void ReserveStandardFiles();

}  // namespace kav
