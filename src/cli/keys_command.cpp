#include "cli/commands.h"

#include <optional>
#include <string>
#include <string_view>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/key_sequence.h"
#include "cli/stored_settings.h"
#include "common/number_text.h"
#include "macros/macro_store.h"
#include "settings/keys.h"

namespace kav {
namespace {

void CopyMacros(const SettingsStore& from, SettingsStore& to) {
  const int count = MacroStore(from).Count();
  to.Set(kMacroCount, count);
  for (int i = 0; i < count; ++i) {
    for (const NumberedKey& key : {MacroName(i), MacroType(i), MacroFormula(i)}) {
      to.Set(key, from.Get(key));
    }
  }
}

/// Fills the settings of a screen that was never used: the macros are the user's, there is no
/// history, and the rest is as the options say.
void SetUp(SettingsStore& screen, const Options& options) {
  StoredSettings stored(options);
  CopyMacros(stored.Store(), screen);
  screen.Set(kAngleType, static_cast<std::int32_t>(stored.Angle()));
  screen.Set(kBaseType, static_cast<std::int32_t>(options.base));
  screen.Set(kDisplayType, static_cast<std::int32_t>(options.display.type));
  screen.Set(kPrecision, options.display.precision);
}

/// The two lines of the screen as one row.
Rows ScreenShown(const ScientificModel& screen, const Options& options) {
  const bool isNumber = screen.ResultText() != screen.ErrorText();
  const std::string line = MarkedLine(screen.Line());
  const std::string result =
      options.isRaw && isNumber ? PrintRoundTrip(screen.LastAnswer()) : Narrow(screen.ResultText());
  Rows rows(options);
  rows.AddLines(Line(line + "\t" + result));
  rows.AddValues({line, isNumber ? Cell(result, screen.LastAnswer()) : Cell(result)});
  return rows;
}

}  // namespace

int RunKeys(const CommandLine& line) {
  MemorySettingsStore settings;
  SetUp(settings, line.options);
  ScientificModel screen(settings);
  KeySequence sequence(screen);
  AnswerWriter answers(line.options);
  std::optional<std::string> complaint;
  std::optional<std::string> key;
  ForEachItem(line, kLongestText, answers, [&](std::string_view item, Extent extent) {
    if (complaint) return;
    key = item;
    complaint = extent == Extent::Shortened ? IsTooLong(kLongestText) : sequence.Take(item);
  });
  // One answer to all keys: it follows the last one, or the one that cannot be pressed.
  answers.Begin(key);
  answers.Write(complaint ? Answer(Failure{*complaint}) : ScreenShown(screen, line.options));
  return answers.Finish();
}

}  // namespace kav
