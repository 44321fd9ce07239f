#include "cli/commands.h"

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <system_error>

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

/// The variable, from 0, that the user calls `text`.
std::optional<int> VariableCalled(std::string_view text) {
  text = TrimBlanks(text);
  const char* end = text.data() + text.size();
  int number = 0;
  const auto read = std::from_chars(text.data(), end, number);
  const bool isOne =
      read.ec == std::errc{} && read.ptr == end && number >= 1 && number <= MemoryVariables::kCount;
  return isOne ? std::optional(number - 1) : std::nullopt;
}

void AnswerAll(const MemoryVariables& variables, AnswerWriter& answers) {
  for (int i = 0; i < MemoryVariables::kCount; ++i) answers.Answer(Narrow(variables.Line(i)));
}

int ListMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  AnswerAll(MemoryVariables(settings.Store()), answers);
  return answers.Finish();
}

void StoreValue(const std::vector<std::string_view>& columns, Evaluation& evaluation,
                AnswerWriter& answers) {
  const auto index = VariableCalled(columns[0]);
  if (!index) return answers.Fail(NotAMemoryVariable(columns[0], MemoryVariables::kCount));
  const auto value = evaluation.Value(columns.size() > 1 ? columns[1] : std::string_view());
  if (!value) return answers.Fail(value.error().message);
  SettingsStore& store = evaluation.Settings().Store();
  // As the scientific screen hands it to the dialog that stores it.
  const auto text = InsertedNumber(*value, LoadDisplayFormat(store), BaseMode::Decimal);
  MemoryVariables variables(store);
  variables.Set(*index, Narrow(text));
  if (const auto failure = evaluation.Settings().TakeFailure()) return answers.Fail(*failure);
  answers.Answer(Narrow(variables.Line(*index)));
}

int StoreMemory(const CommandLine& line) {
  constexpr std::size_t kColumns = 2;
  Evaluation evaluation(line.options);
  AnswerWriter answers;
  ForEachRow(line.items, kColumns, kLongestExpression, answers,
             [&](const auto& columns) { StoreValue(columns, evaluation, answers); });
  return answers.Finish();
}

void ClearAll(StoredSettings& settings, AnswerWriter& answers) {
  MemoryVariables variables(settings.Store());
  variables.ClearAll();
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  AnswerAll(variables, answers);
}

void ClearItem(std::string_view item, StoredSettings& settings, AnswerWriter& answers) {
  if (TrimBlanks(item) == kAll) return ClearAll(settings, answers);
  const auto index = VariableCalled(item);
  if (!index) return answers.Fail(NotAMemoryVariable(item, MemoryVariables::kCount));
  MemoryVariables variables(settings.Store());
  variables.Clear(*index);
  if (const auto failure = settings.TakeFailure()) return answers.Fail(*failure);
  answers.Answer(Narrow(variables.Line(*index)));
}

int ClearMemory(const CommandLine& line) {
  StoredSettings settings(line.options);
  AnswerWriter answers;
  bool isAnyNamed = false;
  ForEachItem(line.items, kLongestExpression, answers, [&](std::string_view item) {
    isAnyNamed = true;
    ClearItem(item, settings, answers);
  });
  const int status = answers.Finish();
  // Whoever names none may have meant all, or have lost them on the way: better not to guess.
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
