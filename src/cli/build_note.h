// Which build of the program this is.
#pragma once

#include <string_view>

namespace kav {

/// The commit, if it is known, and how it was compiled: "commit 0123456789, Release, GNU 12.2.0".
std::string_view BuildNote();

}  // namespace kav
