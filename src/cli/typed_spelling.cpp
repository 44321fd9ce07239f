#include "cli/typed_spelling.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "common/number_text.h"
#include "display/comma_reading.h"
#include "display/own_spelling.h"

namespace kav {
namespace {

/// "1,234: 1234 or 1.234? [1/2] "
std::string QuestionText(const CommaQuestion& question) {
  const std::string numbers = question.meanings.size() > 1 ? " [1/2] " : " [1] ";
  return Narrow(question.number) + ": " + Narrow(LineQuestionText(question)) + numbers;
}

std::optional<CommaMeaning> MeaningOf(std::string_view answer, const CommaQuestion& question) {
  for (std::size_t i = 0; i < question.meanings.size(); ++i) {
    const CommaMeaning meaning = question.meanings[i];
    const bool isMeant = answer == PrintInteger(static_cast<std::int64_t>(i + 1)) ||
                         answer == Narrow(CommaMeaningText(question.number, meaning));
    if (isMeant) return meaning;
  }
  return std::nullopt;
}

}  // namespace

std::string TypedSpelling(const std::string& line, const AskAtPrompt& ask) {
  const std::u16string typed = Widen(line);
  std::u16string own = OwnSpelling(typed);
  while (const auto question = QuestionOfLine(own)) {
    const auto answer = ask(QuestionText(*question));
    const auto meaning = answer ? MeaningOf(TrimBlanks(*answer), *question) : std::nullopt;
    if (!meaning) break;
    own = LineWithCommas(own, *question, *meaning);
  }
  // Bytes that are no text stay what they are.
  return own == typed ? line : Narrow(own);
}

}  // namespace kav
