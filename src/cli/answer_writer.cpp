#include "cli/answer_writer.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <utility>

#include "cli/cli_texts.h"
#include "cli/visible_text.h"
#include "common/number_text.h"
#include "display/number_format.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

constexpr std::size_t kBlock = 65536;

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

}  // namespace

std::string Line(std::string_view text) {
  std::string line(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line += '\n';
}

std::string Row(std::initializer_list<std::string_view> columns) {
  std::string row;
  for (const std::string_view column : columns) {
    std::replace_copy_if(column.begin(), column.end(), std::back_inserter(row), IsControl, ' ');
    row += '\t';
  }
  row.back() = '\n';
  return row;
}

std::optional<CalcError> AppendShown(std::string& out, double value, const Options& options) {
  if (options.isRaw) {
    AppendRoundTrip(out, value);
    return std::nullopt;
  }
  auto shown = FormatNumber(value, options.display, options.base);
  if (!shown) return std::move(shown).error();
  out += *shown;
  return std::nullopt;
}

AnswerWriter::AnswerWriter(const Options& options)
    : options_(options), isTerminal_(isatty(STDOUT_FILENO) != 0) {}

void AnswerWriter::Write(const Answer& answer) {
  if (const auto* number = std::get_if<double>(&answer)) {
    auto error = AppendShown(text_, *number, options_);
    error ? WriteFailure(error->message) : text_.push_back('\n');
  } else if (const auto* lines = std::get_if<std::string>(&answer)) {
    text_ += isTerminal_ ? Visible(*lines) : *lines;
  } else {
    WriteFailure(std::get_if<Failure>(&answer)->message);
  }
  if (isTerminal_ || text_.size() >= kBlock) Flush();
}

void AnswerWriter::WriteFailure(std::string_view message) {
  isComplete_ = false;
  text_.append(kFailureMark).append(Visible(Line(message)));
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

int AnswerOnce(const Answer& answer, const Options& options) {
  AnswerWriter answers(options);
  answers.Write(answer);
  return answers.Finish();
}

void Tell(std::string_view text) {
  const std::string line = std::string(kProgramName).append(": ").append(Visible(Line(text)));
  static_cast<void>(WriteAll(STDERR_FILENO, line));
}

std::string SystemReason(int number) {
  return std::strerror(number);
}

}  // namespace kav
