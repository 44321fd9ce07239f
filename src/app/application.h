// The program as a whole: who runs, on which settings, until when.
#pragma once

namespace kav {

/// Runs the calculator until its user leaves it and returns the exit status of the process: 0, also
/// where another copy runs already and was called to the foreground; 2 where there were arguments,
/// of which it takes none but the toolkit's own.
int RunApplication(int argc, char** argv);

}  // namespace kav
