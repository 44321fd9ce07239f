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
  Rows rows(line.options);
  for (const auto& [text, rateText] : LoadUserConversions(settings.Store())) {
    rows.Add({text, CellOf(rateText)});
  }
  return AnswerOnce(rows, line.options);
}

Answer AddConversion(const Parts& parts, StoredSettings& settings) {
  const auto part = [&parts](std::size_t i) { return Widen(PartAt(parts, i)); };
  const auto saved = SaveConversion({part(0), part(1), part(2)}, std::nullopt, settings.Store());
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  if (!saved) return Failure{Narrow(saved.error().text)};
  return Line(LoadUserConversions(settings.Store())[static_cast<std::size_t>(*saved)].text);
}

int AddConversions(const CommandLine& line) {
  constexpr std::size_t kParts = 3;
  StoredSettings settings(line.options);
  return AnswerParts(line, kParts, kLongestText,
                     [&](const Parts& parts) { return AddConversion(parts, settings); });
}

/// The index of the conversion called `text` or, if there is none, of the one called so without the
/// blanks around it: it may be stored with blanks, or they may be typed by mistake.
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

Answer AnswerConversionRemoval(std::string_view text, StoredSettings& settings) {
  SettingsStore& store = settings.Store();
  store.Refresh();
  const auto stored = LoadUserConversions(store);
  const auto place = PlaceCalled(text, stored);
  if (!place) return Failure{NotAUserConversion(text)};
  const bool isRemoved =
      RemoveConversion({*place, stored[static_cast<std::size_t>(*place)].text}, store);
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  if (!isRemoved) return Failure{NotAUserConversion(text)};
  TellLosing(LosingDigits(stored, *place));
  return Line(kDone);
}

int RemoveConversions(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerItems(line, kLongestText, [&](std::string_view text) {
    return AnswerConversionRemoval(text, settings);
  });
}

}  // namespace

int RunUserConversions(CommandLine line) {
  static constexpr Command kUser{"convert user",
                                 "convert user list|add|remove [OPTION]... [--] [ARGUMENT]...",
                                 {},
                                 kConvertDetails,
                                 kConvertItems,
                                 RunConvert};
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListConversions},
      Verb{"add",
           Arguments::ThreeOrNone,
           "a unit, the unit to convert it to and the rate",
           AddConversions,
           {"A unit, a tab, the unit to convert it to, a tab and the rate"}},
      Verb{"remove", Arguments::Any, "conversions", RemoveConversions, {"A conversion"}},
  };
  line.command = &kUser;
  return RunVerb(line, kVerbs);
}

}  // namespace kav
