#include "cli/answer_writer.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "cli/answer_json.h"
#include "cli/cli_texts.h"
#include "cli/visible_text.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

constexpr std::size_t kBlock = 65536;

}  // namespace

AnswerWriter::AnswerWriter(const Options& options)
    : options_(options), isTerminal_(isatty(STDOUT_FILENO) != 0) {}

void AnswerWriter::Write(const Answer& answer) {
  const bool isAnswered = options_.isJson ? AppendJsonAnswer(text_, item_, answer, options_)
                                          : AppendLines(text_, answer, options_);
  if (!isAnswered) isComplete_ = false;
  if (isTerminal_ || text_.size() >= kBlock) Flush();
}

void AnswerWriter::Separate() {
  if (!options_.isJson) text_ += '\n';
}

void AnswerWriter::Flush() {
  if (isTerminal_) text_ = Visible(text_);
  if (!IsBroken()) error_ = WriteAll(STDOUT_FILENO, text_);
  text_.clear();
}

int AnswerWriter::Finish() {
  Flush();
  if (IsBroken() && error_ != EPIPE) Tell(CannotWrite(SystemReason(error_)));
  return isComplete_ && !IsBroken() ? 0 : 1;
}

int AnswerOnce(const Answer& answer, const Options& options, std::optional<std::string_view> item) {
  AnswerWriter answers(options);
  answers.Begin(item);
  answers.Write(answer);
  return answers.Finish();
}

std::string ToldLine(std::string_view text) {
  return std::string(kProgramName).append(": ").append(Visible(Line(text)));
}

void Tell(std::string_view text) {
  static_cast<void>(WriteAll(STDERR_FILENO, ToldLine(text)));
}

std::string SystemReason(int number) {
  return std::strerror(number);
}

}  // namespace kav
