// Answers to items, and how they are written to standard output.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "cli/options.h"
#include "engine/calc_error.h"

namespace kav {

/// Why an item has no answer. The message may hold line breaks.
struct Failure {
  std::string message;
};

/// What an item is answered with: a number, lines of text, each with its end, or a failure.
using Answer = std::variant<double, std::string, Failure>;

/// `text` as one line, with its end. Line breaks within it become blanks: a message may name a
/// character, and an argument may hold line breaks.
std::string Line(std::string_view text);

/// `columns` as one line, with a tab between two of them and its end. Tabs, line breaks and other
/// control characters within them become blanks.
std::string Row(std::initializer_list<std::string_view> columns);

/// Appends `value` to `out` in the display, precision and base of the options, or with 17
/// significant digits if they ask for raw numbers. Returns why it cannot be shown so; `out` is
/// unchanged then.
std::optional<CalcError> AppendShown(std::string& out, double value, const Options& options);

/// Writes answers to standard output in blocks, or each at once if it is a terminal. Remembers
/// whether every item was answered. Once a write has failed, nothing more is written or kept.
/// Control characters are made visible in failures, and on a terminal everywhere.
class AnswerWriter {
 public:
  /// `options` decide how numbers are shown. They must outlive the writer.
  explicit AnswerWriter(const Options& options);

  /// Numbers and failures become one line each, a failure with its mark.
  void Write(const Answer& answer);
  /// Remembers that an item stays without an answer.
  void MarkIncomplete() { isComplete_ = false; }

  void Flush();
  /// Whether a write has failed, so that there is no use in going on.
  bool IsBroken() const { return error_ != 0; }

  /// Writes what is left. Tells standard error if writing failed, unless the reader has gone.
  /// Returns the exit status: 0 if every item was answered, else 1.
  int Finish();

 private:
  void WriteFailure(std::string_view message);

  const Options& options_;
  std::string text_;
  bool isTerminal_;
  bool isComplete_ = true;
  int error_ = 0;  ///< errno of the write that failed, or 0
};

/// Writes `answer` as an AnswerWriter with `options` does. Returns the exit status as its Finish
/// does.
int AnswerOnce(const Answer& answer, const Options& options);

/// Writes the program's name and `text` to standard error, as one line without control characters.
void Tell(std::string_view text);

/// The system's text for the errno `number`.
std::string SystemReason(int number);

}  // namespace kav
