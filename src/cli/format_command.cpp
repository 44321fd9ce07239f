#include "cli/commands.h"

#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/items.h"
#include "common/number_text.h"

namespace kav {
namespace {

Answer AnswerText(std::string_view text, const Options& options) {
  const auto value = ReadWholeNumber(text);
  if (!value) return Failure{NotANumber(text)};
  return NumberAnswer(*value, options);
}

}  // namespace

int RunFormat(const CommandLine& line) {
  return AnswerItems(line.items, LineReader::kAnyLength,
                     [&](std::string_view item) { return AnswerText(item, line.options); });
}

}  // namespace kav
