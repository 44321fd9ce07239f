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
  Rows rows(line.options);
  for (int i = 0; i < macros.Count(); ++i) {
    rows.Add({Narrow(MacroLabel(macros.At(i))), macros.At(i).formula});
  }
  return AnswerOnce(rows, line.options);
}

/// The parts of an item to add. Those after the name may be missing.
namespace macro_part {
constexpr std::size_t kName = 0;
constexpr std::size_t kFormula = 1;
constexpr std::size_t kVariables = 2;
constexpr std::size_t kCount = 3;
}  // namespace macro_part

/// Adds the macro of `parts`. Its variables are `usual` unless the parts name others.
Answer AddMacro(const Parts& parts, VariableType usual, StoredSettings& settings) {
  TypedMacro macro{Widen(PartAt(parts, macro_part::kName)), usual,
                   Widen(PartAt(parts, macro_part::kFormula))};
  const std::string_view variables = PartAt(parts, macro_part::kVariables);
  if (parts.size() == macro_part::kCount) macro.type = VariablesCalled(variables);
  if (!macro.type && !variables.empty()) return Failure{NotVariables(variables)};
  const auto saved = SaveMacro(macro, std::nullopt, settings.Store());
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  if (!saved) return Failure{Narrow(saved.error().text)};
  return Line(Narrow(MacroLabel(MacroStore(settings.Store()).At(*saved))));
}

int AddMacros(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerParts(line, macro_part::kCount, kLongestText, [&](const Parts& parts) {
    return AddMacro(parts, line.options.variables, settings);
  });
}

/// Removes the macro called `name` or, if there is none, the one called so without the blanks
/// around it: the name may be stored with blanks, or they may be typed by mistake.
bool RemoveCalled(std::string_view name, SettingsStore& settings) {
  constexpr int kAnywhere = -1;
  const auto remove = [&settings](std::string_view called) {
    return RemoveMacro({kAnywhere, std::string(called)}, settings);
  };
  const std::string_view trimmed = TrimBlanks(name);
  return remove(name) || (trimmed != name && remove(trimmed));
}

Answer AnswerMacroRemoval(std::string_view name, StoredSettings& settings) {
  const bool isRemoved = RemoveCalled(name, settings.Store());
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  if (!isRemoved) return Failure{std::string(kMacroNameUnknown)};
  return Line(kDone);
}

int RemoveMacros(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerItems(line, kLongestText,
                     [&](std::string_view name) { return AnswerMacroRemoval(name, settings); });
}

}  // namespace

int RunMacro(const CommandLine& line) {
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListMacros},
      Verb{"add",
           Arguments::TwoOrNone,
           "a name and a formula",
           AddMacros,
           {"A name, a tab and a formula"}},
      Verb{"remove", Arguments::Any, "names", RemoveMacros, {"The name of a macro"}},
  };
  return RunVerb(line, kVerbs);
}

}  // namespace kav
