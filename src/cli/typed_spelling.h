// Lines typed at the prompt, in the calculator's own spelling.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kav {

/// Asks and waits for the answer; nullopt if there is none.
using AskAtPrompt = std::function<std::optional<std::string>(const std::string& question)>;

/// `line` (UTF-8) as OwnSpelling writes it. A comma that can be read in two ways is asked about; it
/// stays if the answer is neither the number of a meaning nor what the number becomes by it.
std::string TypedSpelling(const std::string& line, const AskAtPrompt& ask);

}  // namespace kav
