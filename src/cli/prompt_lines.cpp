#include "cli/prompt_lines.h"

#include <utility>
#include <variant>

#include "common/number_text.h"
#include "settings/keys.h"
#include "settings/past_lines.h"

namespace kav {
namespace {

/// `answer` as it is shown; empty for a failure.
std::string ShownAnswer(const Answer& answer, const Options& options) {
  std::string shown;
  if (const auto* number = std::get_if<double>(&answer)) {
    static_cast<void>(AppendShown(shown, *number, options));
  }
  return shown;
}

}  // namespace

PromptLines::PromptLines(LineEditor& editor, const SettingsStore& store, const Options& options)
    : editor_(editor), store_(store), options_(options), file_(StoreUser::Command) {}

void PromptLines::TakeOver() {
  for (const PastLine& past : file_.Of(PastRoom::Calculator)) {
    if (past.id <= newest_) continue;
    newest_ = past.id;
    editor_.Remember(past.line);
  }
}

void PromptLines::Add(const std::string& line, const Answer& answer) {
  // What no file keeps lasts until the prompt ends.
  const bool isKept = store_.Get(kHistoryKept) != 0 && line.size() <= PastLines::kLongestLine;
  if (!isKept) return editor_.Remember(line);
  PastLine past;
  past.origin = PastOrigin::Prompt;
  past.base = static_cast<std::int32_t>(options_.base);
  past.line = line;
  past.answer = ShownAnswer(answer, options_);
  file_.Add(std::move(past));
  if (const auto notice = file_.TakeNotice()) Tell(Narrow(*notice));
}

}  // namespace kav
