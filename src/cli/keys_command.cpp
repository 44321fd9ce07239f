#include "cli/commands.h"

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

std::string ResultShown(const ScientificModel& screen, const Options& options) {
  const bool isNumber = screen.ResultText() != screen.ErrorText();
  if (options.isRaw && isNumber) return PrintRoundTrip(screen.LastAnswer());
  return Narrow(screen.ResultText());
}

}  // namespace

int RunKeys(const CommandLine& line) {
  MemorySettingsStore settings;
  SetUp(settings, line.options);
  ScientificModel screen(settings);
  KeySequence sequence(screen);
  AnswerWriter answers(line.options);
  std::optional<std::string> complaint;
  ForEachItem(line, kLongestText, answers, [&](std::string_view item, Extent extent) {
    if (complaint) return;
    complaint = extent == Extent::Shortened ? IsTooLong(kLongestText) : sequence.Take(item);
  });
  if (complaint) {
    answers.Write(Failure{*complaint});
  } else {
    answers.Write(Line(MarkedLine(screen.Line()) + "\t" + ResultShown(screen, line.options)));
  }
  return answers.Finish();
}

}  // namespace kav
