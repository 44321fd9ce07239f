#include "cli/items.h"

#include <unistd.h>

#include <optional>
#include <string>

#include "cli/cli_texts.h"
#include "cli/typed_lines.h"

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

/// The line of standard input that holds the same `parts`.
std::string LineOf(const Parts& parts) {
  std::string line;
  for (const std::string_view part : parts) line.append(part).append("\t");
  line.pop_back();
  return line;
}

using Take = std::function<void(std::string_view item, Extent extent)>;

void ForEachLineRead(std::size_t longest, AnswerWriter& answers, const Take& take) {
  LineReader lines(STDIN_FILENO, longest, [&answers] { answers.Flush(); });
  while (!answers.IsBroken()) {
    const auto item = lines.Next();
    if (!item) break;
    answers.Begin(*item);
    take(*item, lines.IsShortened() ? Extent::Shortened : Extent::Whole);
  }
  if (lines.Error() == 0 && !lines.IsEndless()) return;
  answers.MarkIncomplete();
  Tell(lines.IsEndless() ? HasEndlessLine(LineReader::kEndless)
                         : CannotRead(SystemReason(lines.Error())));
}

void ForEachLineTyped(const CommandLine& line, AnswerWriter& answers, const Take& take) {
  TypedLines lines(line.Awaited().tab);
  while (!answers.IsBroken()) {
    const auto item = lines.Next();
    if (!item) break;
    answers.Begin(*item);
    take(*item, Extent::Whole);
  }
}

void ForEachLine(const CommandLine& line, std::size_t longest, AnswerWriter& answers,
                 const Take& take) {
  TellAwaitedLines(line.Awaited().what);
  CanPrompt() ? ForEachLineTyped(line, answers, take) : ForEachLineRead(longest, answers, take);
}

}  // namespace

void ForEachItem(const CommandLine& line, std::size_t longest, AnswerWriter& answers,
                 const std::function<void(std::string_view item, Extent extent)>& take) {
  if (line.items.empty()) {
    ForEachLine(line, longest, answers, take);
  } else {
    for (const std::string_view item : line.items) {
      answers.Begin(item);
      take(item, Extent::Whole);
    }
  }
  answers.Begin(std::nullopt);
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
  if (!line.items.empty())
    return AnswerOnce(answerTo(line.items), line.options, LineOf(line.items));
  return AnswerItems(line, longest,
                     [&](std::string_view item) { return answerTo(PartsOf(item, most)); });
}

std::string_view PartAt(const Parts& parts, std::size_t index) {
  return index < parts.size() ? parts[index] : std::string_view();
}

}  // namespace kav
