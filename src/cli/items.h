// What the commands have in common: their items are the arguments or the lines of standard input.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "cli/answer_writer.h"
#include "cli/line_reader.h"

namespace kav {

/// Longer than any expression that has a value, blanks aside: 151 tokens, each perhaps a call of a
/// macro with 151 more in each of its arguments, none longer than a number of 30 digits.
inline constexpr std::size_t kLongestExpression = std::size_t{1} << 20U;

/// Calls `take` for each of `items` or, where there are none, for each line of standard input (see
/// LineReader for `longest`), until nobody can be answered any more. A failure to read is told and
/// remembered by `answers`.
template <class Take>
void ForEachItem(const std::vector<std::string_view>& items, std::size_t longest,
                 AnswerWriter& answers, Take take);

/// The first `most` - 1 columns of `line`, which tabs end, and what is left of it.
std::vector<std::string_view> Columns(std::string_view line, std::size_t most);

/// As above, for items of several parts: they are the arguments or, where there are none, the
/// Columns of each line.
template <class Take>
void ForEachRow(const std::vector<std::string_view>& items, std::size_t most, std::size_t longest,
                AnswerWriter& answers, Take take) {
  if (!items.empty()) return take(items);
  ForEachItem(items, longest, answers, [&](std::string_view line) { take(Columns(line, most)); });
}

/// Standard input read for `answers`: they are flushed before each wait, so that whoever waits for
/// an answer before the next question gets it.
class InputLines {
 public:
  InputLines(std::size_t longest, AnswerWriter& answers);
  ~InputLines();
  InputLines(const InputLines&) = delete;
  InputLines& operator=(const InputLines&) = delete;

  std::optional<std::string_view> Next() { return reader_.Next(); }

 private:
  AnswerWriter& answers_;
  LineReader reader_;
};

template <class Take>
void ForEachItem(const std::vector<std::string_view>& items, std::size_t longest,
                 AnswerWriter& answers, Take take) {
  for (const std::string_view item : items) take(item);
  if (!items.empty()) return;
  InputLines lines(longest, answers);
  while (!answers.IsBroken()) {
    const auto line = lines.Next();
    if (!line) return;
    take(*line);
  }
}

}  // namespace kav
