#include "cli/items.h"

#include <unistd.h>

#include "cli/cli_texts.h"

namespace kav {
namespace {

Parts PartsOf(std::string_view line, std::size_t most) {
  Parts parts;
  parts.reserve(most);
  for (std::size_t tab = line.find('\t'); tab != line.npos && parts.size() + 1 < most;
       tab = line.find('\t')) {
    parts.push_back(line.substr(0, tab));
    line.remove_prefix(tab + 1);
  }
  parts.push_back(line);
  return parts;
}

}  // namespace

void ForEachItem(const CommandLine& line, std::size_t longest, AnswerWriter& answers,
                 const std::function<void(std::string_view item, Extent extent)>& take) {
  for (const std::string_view item : line.items) take(item, Extent::Whole);
  if (!line.items.empty()) return;
  LineReader lines(STDIN_FILENO, longest, [&answers] { answers.Flush(); });
  while (!answers.IsBroken()) {
    const auto item = lines.Next();
    if (!item) break;
    take(*item, lines.IsShortened() ? Extent::Shortened : Extent::Whole);
  }
  if (lines.Error() == 0 && !lines.IsEndless()) return;
  answers.MarkIncomplete();
  Tell(lines.IsEndless() ? HasEndlessLine(LineReader::kEndless)
                         : CannotRead(SystemReason(lines.Error())));
}

int AnswerItems(const CommandLine& line, std::size_t longest,
                const std::function<Answer(std::string_view item)>& answerTo) {
  AnswerWriter answers(line.options);
  ForEachItem(line, longest, answers, [&](std::string_view item, Extent extent) {
    const bool isLost = extent == Extent::Shortened && longest >= kLongestText;
    answers.Write(isLost ? Failure{IsTooLong(kLongestText)} : answerTo(item));
  });
  return answers.Finish();
}

int AnswerParts(const CommandLine& line, std::size_t most, std::size_t longest,
                const std::function<Answer(const Parts& parts)>& answerTo) {
  if (!line.items.empty()) return AnswerOnce(answerTo(line.items), line.options);
  return AnswerItems(line, longest,
                     [&](std::string_view item) { return answerTo(PartsOf(item, most)); });
}

std::string_view PartAt(const Parts& parts, std::size_t index) {
  return index < parts.size() ? parts[index] : std::string_view();
}

}  // namespace kav
