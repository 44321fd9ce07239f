#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/cli_texts.h"
#include "cli/help_texts.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "cli/verbs.h"
#include "common/number_text.h"
#include "converter/user_conversions.h"

namespace kav {
namespace {

int ListConversions(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  for (const auto& [text, rateText] : LoadUserConversions(settings.Store())) {
    answers.AnswerRow({text, rateText});
  }
  return answers.Finish();
}

/// The columns of an item to add; the missing ones are empty.
void AddConversion(const std::vector<std::string_view>& columns, StoredSettings& settings,
                   AnswerWriter& answers) {
  const auto column = [&columns](std::size_t i) {
    return i < columns.size() ? Widen(columns[i]) : std::u16string();
  };
  const auto saved =
      SaveConversion({column(0), column(1), column(2)}, std::nullopt, settings.Store());
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  if (!saved) return answers.Fail(Narrow(saved.error().text));
  answers.Answer(LoadUserConversions(settings.Store())[static_cast<std::size_t>(*saved)].text);
}

int AddConversions(const CommandLine& line) {
  constexpr std::size_t kColumns = 3;
  StoredSettings settings(line.options);
  AnswerWriter answers;
  ForEachRow(line.items, kColumns, LineReader::kAnyLength, answers,
             [&](const auto& columns) { AddConversion(columns, settings, answers); });
  return answers.Finish();
}

/// Where the conversion `text` stands: as it is, or else without the blanks around it, since the
/// user may mean one that somebody stored with blanks, or may have typed them.
std::optional<int> PlaceCalled(std::string_view text, const std::vector<UserConversion>& stored) {
  for (const std::string_view called : {text, TrimBlanks(text)}) {
    const auto found =
        std::find_if(stored.begin(), stored.end(),
                     [called](const UserConversion& one) { return one.text == called; });
    if (found != stored.end()) return static_cast<int>(found - stored.begin());
  }
  return std::nullopt;
}

void TellLosing(const std::vector<UserConversion>& losing) {
  if (losing.empty()) return;
  std::string texts;
  for (const UserConversion& one : losing) texts.append(" ").append(Quoted(one.text));
  Tell(RatesLostDigits(texts));
}

void AnswerRemoval(std::string_view text, StoredSettings& settings, AnswerWriter& answers) {
  SettingsStore& store = settings.Store();
  store.Refresh();
  const auto stored = LoadUserConversions(store);
  const auto place = PlaceCalled(text, stored);
  if (!place) return answers.Fail(NotAUserConversion(text));
  const bool isRemoved =
      RemoveConversion({*place, stored[static_cast<std::size_t>(*place)].text}, store);
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  if (!isRemoved) return answers.Fail(NotAUserConversion(text));
  TellLosing(LosingDigits(stored, *place));
  answers.Answer(kDone);
}

int RemoveConversions(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  ForEachItem(line.items, LineReader::kAnyLength, answers,
              [&](std::string_view text) { AnswerRemoval(text, settings, answers); });
  return answers.Finish();
}

}  // namespace

int RunUserConversions(CommandLine line) {
  static constexpr Command kUser{"convert user",
                                 "convert user list|add|remove [OPTION]... [--] [ARGUMENT]...",
                                 {},
                                 kConvertDetails,
                                 RunConvert};
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListConversions},
      Verb{"add", Arguments::ThreeOrNone, "a unit, the unit to convert it to and the rate",
           AddConversions},
      Verb{"remove", Arguments::Any, "conversions", RemoveConversions},
  };
  line.command = &kUser;
  return RunVerb(line, kVerbs);
}

}  // namespace kav
