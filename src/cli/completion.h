// Completion of the names of functions and macros while a line is typed.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// The functions of numbers and the number pi, each with the text that follows it in a line.
std::vector<std::string> NamesOfFunctions();

/// What the Tab key does to a line: it inserts a text at the caret or, if there is nothing to
/// insert, lists the names that are possible.
struct Completion {
  std::string insertion;
  std::vector<std::string> choices;
};

/// Completes the name that ends at the caret; `before` is the line up to there. Each of `names`
/// includes the text that follows it in a line, as in "sin(" and "M:area(". What is typed matches a
/// name as it is or in small letters.
Completion Complete(std::string_view before, std::span<const std::string> names);

}  // namespace kav
