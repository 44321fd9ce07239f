// The matrices that the options of `kavcalc matrix` name.
#pragma once

#include <string>

#include "cli/command.h"
#include "common/expected.h"
#include "matrix/matrix_value.h"

namespace kav {

/// The matrices in the files, pipes or standard input ("-") of the options; those without a file
/// are empty. Or why one cannot be loaded, with its name.
Expected<Matrices, std::string> LoadMatrices(const CommandLine& line);

}  // namespace kav
