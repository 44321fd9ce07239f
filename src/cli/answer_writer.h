// How answers are written to standard output, as lines of text or as JSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/answer.h"
#include "cli/options.h"

namespace kav {

/// Writes answers to standard output in blocks, or each at once if it is a terminal. Remembers
/// whether every item was answered. Once a write has failed, nothing more is written or kept.
/// Control characters are made visible in failures, and on a terminal everywhere.
class AnswerWriter {
 public:
  /// `options` decide how answers are shown, and whether each is an object of JSON instead. They
  /// must outlive the writer.
  explicit AnswerWriter(const Options& options);

  /// The answers that follow are to `item`, which must outlive them; nullopt: to none.
  void Begin(std::optional<std::string_view> item) { item_ = item; }
  /// Numbers and failures become one line each, a failure with its mark. In JSON each answer is
  /// one line: its item, result or error, and the text that stands there without JSON.
  void Write(const Answer& answer);
  /// A blank line between two answers of several lines; JSON needs none.
  void Separate();
  /// Remembers that an item stays without an answer.
  void MarkIncomplete() { isComplete_ = false; }

  void Flush();
  /// Whether a write has failed, so that there is no use in going on.
  bool IsBroken() const { return error_ != 0; }

  /// Writes what is left. Tells standard error if writing failed, unless the reader has gone.
  /// Returns the exit status: 0 if every item was answered, else 1.
  int Finish();

 private:
  const Options& options_;
  std::optional<std::string_view> item_;
  std::string text_;
  bool isTerminal_;
  bool isComplete_ = true;
  int error_ = 0;  ///< errno of the write that failed, or 0
};

/// Writes `answer`, to `item` if there is one, as an AnswerWriter with `options` does. Returns the
/// exit status as its Finish does.
int AnswerOnce(const Answer& answer, const Options& options,
               std::optional<std::string_view> item = {});

/// The program's name and `text`, as one line without control characters.
std::string ToldLine(std::string_view text);

/// Writes the ToldLine of `text` to standard error.
void Tell(std::string_view text);

/// The system's text for the errno `number`.
std::string SystemReason(int number);

}  // namespace kav
