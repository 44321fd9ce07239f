#include "cli/commands.h"

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "common/number_text.h"

namespace kav {
namespace {

Answer AnswerText(std::string_view text) {
  const auto value = ReadWholeNumber(text);
  if (!value) return Failure{NotANumber(text)};
  return *value;
}

}  // namespace

int RunFormat(const CommandLine& line) {
  return AnswerItems(line, kLongestText, AnswerText);
}

}  // namespace kav
