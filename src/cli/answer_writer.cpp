#include "cli/answer_writer.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>

#include "cli/cli_texts.h"
#include "cli/descriptor.h"

namespace kav {
namespace {

constexpr std::size_t kBlock = 65536;

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

}  // namespace

AnswerWriter::AnswerWriter() : flushAt_(isatty(STDOUT_FILENO) != 0 ? 1 : kBlock) {}

void AnswerWriter::Answer(std::string_view text) {
  AppendOnOneLine(text);
  End();
}

void AnswerWriter::AnswerRow(std::initializer_list<std::string_view> columns) {
  for (const std::string_view column : columns) {
    std::replace_copy_if(column.begin(), column.end(), std::back_inserter(text_), IsControl, ' ');
    text_ += '\t';
  }
  text_.pop_back();
  End();
}

void AnswerWriter::Fail(std::string_view message) {
  isComplete_ = false;
  text_ += kFailureMark;
  Answer(message);
}

// A message may name a character, and an argument may hold line breaks.
void AnswerWriter::AppendOnOneLine(std::string_view text) {
  const std::size_t start = text_.size();
  text_ += text;
  std::replace(text_.begin() + static_cast<std::ptrdiff_t>(start), text_.end(), '\n', ' ');
}

void AnswerWriter::Flush() {
  if (!IsBroken()) error_ = WriteAll(STDOUT_FILENO, text_);
  text_.clear();
}

int AnswerWriter::Finish() {
  Flush();
  if (IsBroken() && error_ != EPIPE) Tell(CannotWrite(SystemReason(error_)));
  return isComplete_ && !IsBroken() ? 0 : 1;
}

void Tell(std::string_view text) {
  std::string line(kProgramName);
  line.append(": ").append(text) += '\n';
  static_cast<void>(WriteAll(STDERR_FILENO, line));
}

std::string SystemReason(int number) {
  return std::strerror(number);
}

}  // namespace kav
