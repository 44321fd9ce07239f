// Items: the arguments after the options or, without any, the lines of standard input.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "cli/answer_writer.h"
#include "cli/command.h"
#include "cli/line_reader.h"

namespace kav {

/// The parts of an item, which they view.
using Parts = std::vector<std::string_view>;

/// More bytes than any expression with a value has, blanks aside: 151 tokens, each of which may be
/// a call of a macro with 151 tokens in each argument, none longer than a number of 30 digits.
inline constexpr std::size_t kLongestExpression = std::size_t{1} << 20U;

/// The longest item in bytes of commands whose items are no expressions. What is longer on standard
/// input is not taken.
inline constexpr std::size_t kLongestText = std::size_t{1} << 24U;

/// Whether an item is all that was given, or a line that was shortened.
enum class Extent { Whole, Shortened };

/// Calls `take` for each item of `line` or, without any, for each line of standard input (see
/// LineReader for `longest`) until `answers` is broken. Flushes `answers` before each wait for
/// input, for a program that waits for an answer before it asks on. Tells standard error if the
/// input cannot be read or has an endless line, and marks `answers` as incomplete.
void ForEachItem(const CommandLine& line, std::size_t longest, AnswerWriter& answers,
                 const std::function<void(std::string_view item, Extent extent)>& take);

/// Writes what `answerTo` returns for each item of ForEachItem. A line of more than kLongestText
/// fails; of an expression the beginning decides which message answers it. Returns the exit status.
int AnswerItems(const CommandLine& line, std::size_t longest,
                const std::function<Answer(std::string_view item)>& answerTo);

/// The same for items that consist of up to `most` parts. The arguments are the parts of one item.
/// Without any, tabs separate the parts on each line of standard input; the last part may hold
/// tabs.
int AnswerParts(const CommandLine& line, std::size_t most, std::size_t longest,
                const std::function<Answer(const Parts& parts)>& answerTo);

/// The part at `index`, empty if it is missing.
std::string_view PartAt(const Parts& parts, std::size_t index);

}  // namespace kav
