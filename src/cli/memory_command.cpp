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

Answer AnswerAll(const MemoryVariables& variables) {
  std::string lines;
  for (int i = 0; i < MemoryVariables::kCount; ++i) lines += Line(Narrow(variables.Line(i)));
  return lines;
}

int ListMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerOnce(AnswerAll(MemoryVariables(settings.Store())), line.options);
}

Answer StoreValue(const Parts& parts, Evaluation& evaluation) {
  const auto index = VariableCalled(parts[0]);
  if (!index) return Failure{NotAMemoryVariable(parts[0], MemoryVariables::kCount)};
  auto value = evaluation.Value(PartAt(parts, 1));
  if (!value) return Failure{std::move(value).error().message};
  SettingsStore& store = evaluation.Settings().Store();
  // The same text that the scientific screen passes to the dialog of the memory variables.
  const auto text = InsertedNumber(*value, LoadDisplayFormat(store), BaseMode::Decimal);
  MemoryVariables variables(store);
  variables.Set(*index, Narrow(text));
  if (auto failure = evaluation.Settings().TakeFailure()) return *std::move(failure);
  return Line(Narrow(variables.Line(*index)));
}

int StoreMemory(const CommandLine& line) {
  constexpr std::size_t kNumberAndExpression = 2;
  Evaluation evaluation(line.options);
  return AnswerParts(line, kNumberAndExpression, kLongestExpression,
                     [&](const Parts& parts) { return StoreValue(parts, evaluation); });
}

Answer ClearItem(std::string_view item, StoredSettings& settings) {
  MemoryVariables variables(settings.Store());
  const bool isAll = TrimBlanks(item) == kAll;
  const auto index = VariableCalled(item);
  if (!isAll && !index) return Failure{NotAMemoryVariable(item, MemoryVariables::kCount)};
  isAll ? variables.ClearAll() : variables.Clear(*index);
  if (auto failure = settings.TakeFailure()) return *std::move(failure);
  if (isAll) return AnswerAll(variables);
  return Line(Narrow(variables.Line(*index)));
}

int ClearMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  bool isAnyNamed = false;
  const int status = AnswerItems(line, kLongestExpression, [&](std::string_view item) {
    isAnyNamed = true;
    return ClearItem(item, settings);
  });
  // No item at all may mean all of them, or be a mistake: better not to guess.
  return isAnyNamed || status != 0 ? status : Complain(kNothingToClear, *line.command);
}

}  // namespace

int RunMemory(const CommandLine& line) {
  static constexpr std::array kVerbs{
      Verb{"list", Arguments::None, "no arguments", ListMemory},
      Verb{"store", Arguments::TwoOrNone, "a number and an expression", StoreMemory},
      Verb{"clear", Arguments::Any, "numbers", ClearMemory},
  };
  return RunVerb(line, kVerbs);
}

}  // namespace kav
