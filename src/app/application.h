// The program as a whole.
#pragma once

namespace kav {

/// Runs the calculator until the user ends it. Returns the exit status of the process: 0, even if
/// another copy was already running and only was called to the foreground. If that does not answer,
/// asks whether to run beside it. 2 if there are arguments
/// other than the toolkit's own.
int RunApplication(int argc, char** argv);

}  // namespace kav
