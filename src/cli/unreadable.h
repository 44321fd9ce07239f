// Why a file that an argument names cannot be read.
#pragma once

#include <string>

namespace kav {

/// The reason that the errno `error` stands for, and what to do: a clause to follow "...: ",
/// without a full stop at its end.
std::u16string WhyUnreadable(int error);

}  // namespace kav
