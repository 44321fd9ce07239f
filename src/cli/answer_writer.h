// Standard output, one line for each item.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace kav {

/// Collects answers and writes them in blocks, at a terminal each at once. Remembers whether every
/// item was answered. Once a write has failed, nothing more is written or kept.
class AnswerWriter {
 public:
  AnswerWriter();

  /// The answer being made: append its text, then call End. What was there before must stay.
  std::string& Text() { return text_; }
  void End() {
    text_ += '\n';
    if (text_.size() >= flushAt_) Flush();
  }
  void Answer(std::string_view text);
  /// Answers with columns, a tab between them. Tabs, line breaks and the like within them become
  /// blanks, so that a row stays one.
  void AnswerRow(std::initializer_list<std::string_view> columns);
  /// Answers that the item failed, and why.
  void Fail(std::string_view message);
  /// Remembers that an item stays without an answer.
  void MarkIncomplete() { isComplete_ = false; }

  void Flush();
  /// Whether writing on makes no sense any more.
  bool IsBroken() const { return error_ != 0; }

  /// Writes what is left and tells standard error of a failure to write, unless it was that nobody
  /// reads any more. Answers the exit status: 0 where every item was answered, else 1.
  int Finish();

 private:
  void AppendOnOneLine(std::string_view text);

  std::string text_;
  std::size_t flushAt_;
  bool isComplete_ = true;
  int error_ = 0;  ///< the system's number of the failure to write
};

/// Writes `text` to standard error behind the program's name.
void Tell(std::string_view text);

/// The system's words for its error `number`.
std::string SystemReason(int number);

}  // namespace kav
