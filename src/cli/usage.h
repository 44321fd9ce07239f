// What standard error is told where the arguments are unusable.
#pragma once

#include <string>
#include <string_view>

#include "cli/commands.h"

namespace kav {

/// The exit status for unusable arguments.
inline constexpr int kUnusable = 2;

std::string UsageLine(const Command& command);

/// `reason` behind the program's name, and the usage line.
std::string Complaint(std::string_view reason, const Command& command);

/// Tells standard error so, for what only carrying out shows; answers kUnusable.
int Complain(std::string_view reason, const Command& command);

}  // namespace kav
