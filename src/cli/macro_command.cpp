#include "cli/commands.h"

#include <array>
#include <cstddef>
#include <string>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/option_rows.h"
#include "cli/stored_settings.h"
#include "cli/verbs.h"
#include "common/number_text.h"
#include "macros/macro_saving.h"
#include "macros/macro_store.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

int ListMacros(const CommandLine& line) {
  StoredSettings settings(line.options);
  const MacroStore macros(settings.Store());
  AnswerWriter answers;
  for (int i = 0; i < macros.Count(); ++i) {
    answers.AnswerRow({Narrow(MacroLabel(macros.At(i))), macros.At(i).formula});
  }
  return answers.Finish();
}

// The columns of an item to add. Those behind the name may be missing.
constexpr std::size_t kName = 0;
constexpr std::size_t kFormula = 1;
constexpr std::size_t kVariables = 2;
constexpr std::size_t kColumns = 3;

/// Adds what `columns` say, with the variables `usual` unless they name others.
void AddMacro(const std::vector<std::string_view>& columns, VariableType usual,
              StoredSettings& settings, AnswerWriter& answers) {
  const auto column = [&columns](std::size_t i) {
    return i < columns.size() ? columns[i] : std::string_view();
  };
  TypedMacro macro{Widen(column(kName)), usual, Widen(column(kFormula))};
  if (columns.size() == kColumns) macro.type = VariablesCalled(column(kVariables));
  if (!macro.type && !column(kVariables).empty()) {
    return answers.Fail(NotVariables(column(kVariables)));
  }
  const auto saved = SaveMacro(macro, std::nullopt, settings.Store());
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  if (!saved) return answers.Fail(Narrow(saved.error().text));
  answers.Answer(Narrow(MacroLabel(MacroStore(settings.Store()).At(*saved))));
}

int AddMacros(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  ForEachRow(line.items, kColumns, LineReader::kAnyLength, answers, [&](const auto& columns) {
    AddMacro(columns, line.options.variables, settings, answers);
  });
  return answers.Finish();
}

/// The user may mean a name that somebody stored with blanks around it, or may have typed them.
bool RemoveCalled(std::string_view name, SettingsStore& settings) {
  constexpr int kAnywhere = -1;
  const auto remove = [&settings](std::string_view called) {
    return RemoveMacro({kAnywhere, std::string(called)}, settings);
  };
  const std::string_view trimmed = TrimBlanks(name);
  return remove(name) || (trimmed != name && remove(trimmed));
}

void AnswerRemoval(std::string_view name, StoredSettings& settings, AnswerWriter& answers) {
  const bool isRemoved = RemoveCalled(name, settings.Store());
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  if (!isRemoved) return answers.Fail(kMacroNameUnknown);
  answers.Answer(kDone);
}

int RemoveMacros(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  ForEachItem(line.items, LineReader::kAnyLength, answers,
              [&](std::string_view name) { AnswerRemoval(name, settings, answers); });
  return answers.Finish();
}

}  // namespace

int RunMacro(const CommandLine& line) {
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListMacros},
      Verb{"add", Arguments::TwoOrNone, "a name and a formula", AddMacros},
      Verb{"remove", Arguments::Any, "names", RemoveMacros},
  };
  return RunVerb(line, kVerbs);
}

}  // namespace kav
