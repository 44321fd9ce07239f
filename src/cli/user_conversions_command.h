// kavcalc convert user: the conversions that the user defines.
#pragma once

#include "cli/options.h"

namespace kav {

/// `line` is one of the command convert, without the word "user".
int RunUserConversions(CommandLine line);

}  // namespace kav
