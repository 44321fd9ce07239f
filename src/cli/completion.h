// The names that a line being typed can go on with.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// What the Tab key makes of a line: the text to insert at the caret, and the names to list where
/// there are several and none can be told apart further.
struct Completion {
  std::string insertion;
  std::vector<std::string> choices;
};

/// Completes the name that ends at the caret: `before` is the line up to it. `names` are written
/// with what follows them, as "sin(" and "M:area("; capitals count in those that hold any.
Completion Complete(std::string_view before, std::span<const std::string> names);

}  // namespace kav
