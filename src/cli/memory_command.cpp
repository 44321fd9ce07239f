#include "cli/commands.h"

#include <array>
#include <optional>
#include <string>

#include "cli/cli_texts.h"
#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "cli/verbs.h"
#include "common/number_text.h"
#include "display/number_format.h"
#include "line/shown_number.h"
#include "memory/memory_variables.h"

namespace kav {
namespace {

constexpr std::string_view kAll = "all";

/// The index (from 0) of the variable whose number (from 1) is `text`; nullopt if there is none.
std::optional<int> VariableCalled(std::string_view text) {
  const auto number = ReadInteger<int>(TrimBlanks(text));
  if (!number || *number < 1 || *number > MemoryVariables::kCount) return std::nullopt;
  return *number - 1;
}

void AddVariable(Rows& rows, const MemoryVariables& variables, int index) {
  rows.AddLines(Line(Narrow(variables.Line(index))));
  rows.AddValues({Narrow(MemoryVariables::Name(index)), CellOf(variables.Get(index))});
}

Rows OneVariable(const MemoryVariables& variables, int index, const Options& options) {
  Rows rows(options);
  AddVariable(rows, variables, index);
  return rows;
}

Rows AllVariables(const MemoryVariables& variables, const Options& options) {
  Rows rows(options);
  for (int i = 0; i < MemoryVariables::kCount; ++i) AddVariable(rows, variables, i);
  return rows;
}

int ListMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerOnce(AllVariables(MemoryVariables(settings.Store()), line.options), line.options);
}

Answer StoreValue(const Parts& parts, Evaluation& evaluation, const Options& options) {
  const auto index = VariableCalled(parts[0]);
  if (!index) return Failure{NotAMemoryVariable(parts[0], MemoryVariables::kCount)};
  auto value = evaluation.Value(PartAt(parts, 1));
  // A tab stands between the two parts.
  if (!value) return FailureOf(std::move(value).error(), parts[0].size() + 1);
  SettingsStore& store = evaluation.Settings().Store();
  // The same text that the scientific screen passes to the dialog of the memory variables.
  const auto text = InsertedNumber(*value, LoadDisplayFormat(store), BaseMode::Decimal);
  MemoryVariables variables(store);
  variables.Set(*index, Narrow(text));
  if (auto failure = evaluation.Settings().TakeFailure()) return *std::move(failure);
  return OneVariable(variables, *index, options);
}

int StoreMemory(const CommandLine& line) {
  constexpr std::size_t kNumberAndExpression = 2;
  Evaluation evaluation(line.options);
  return AnswerParts(line, kNumberAndExpression, kLongestExpression, [&](const Parts& parts) {
    return StoreValue(parts, evaluation, line.options);
  });
}

Answer ClearItem(std::string_view item, StoredSettings& settings, const Options& options) {
  MemoryVariables variables(settings.Store());
  const bool isAll = TrimBlanks(item) == kAll;
  const auto index = VariableCalled(item);
  if (!isAll && !index) return Failure{NotAMemoryVariable(item, MemoryVariables::kCount)};
  isAll ? variables.ClearAll() : variables.Clear(*index);
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  return isAll ? AllVariables(variables, options) : OneVariable(variables, *index, options);
}

int ClearMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  bool isAnyNamed = false;
  const int status = AnswerItems(line, kLongestExpression, [&](std::string_view item) {
    isAnyNamed = true;
    return ClearItem(item, settings, line.options);
  });
  // No item at all may mean all of them, or be a mistake: better not to guess.
  return isAnyNamed || status != 0 ? status : Complain(kNothingToClear, *line.command);
}

}  // namespace

int RunMemory(const CommandLine& line) {
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListMemory},
      Verb{"store",
           Arguments::TwoOrNone,
           "a number and an expression",
           StoreMemory,
           {"A number, a tab and an expression"}},
      Verb{"clear", Arguments::Any, "numbers", ClearMemory, {"A number, or \"all\","}},
  };
  return RunVerb(line, kVerbs);
}

}  // namespace kav
