#include "cli/commands.h"

#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/items.h"
#include "common/number_text.h"

namespace kav {
namespace {

void AnswerText(std::string_view text, const Options& options, AnswerWriter& answers) {
  const auto value = ReadWholeNumber(text);
  if (!value) return answers.Fail(NotANumber(text));
  AnswerNumber(*value, options, answers);
}

}  // namespace

int RunFormat(const CommandLine& line) {
  AnswerWriter answers;
  ForEachItem(line.items, LineReader::kAnyLength, answers,
              [&](std::string_view item) { AnswerText(item, line.options, answers); });
  return answers.Finish();
}

}  // namespace kav
