#include "cli/commands.h"

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "engine/formula_checker.h"

namespace kav {
namespace {

void AnswerSteps(const StepList& steps, AnswerWriter& answers) {
  for (int i = 0; i < steps.Count(); ++i) answers.Answer("  " + DescribeStep(steps[i]));
}

void AnswerFormula(std::string_view formula, const Options& options, AnswerWriter& answers) {
  const auto checked = CheckFormula(formula, options.variables);
  if (!checked) return answers.Fail(checked.error().message);
  answers.Answer(kDone);
  if (options.showsSteps) AnswerSteps(checked->Steps(), answers);
}

}  // namespace

int RunCheck(const CommandLine& line) {
  AnswerWriter answers;
  ForEachItem(line.items, kLongestExpression, answers,
              [&](std::string_view item) { AnswerFormula(item, line.options, answers); });
  return answers.Finish();
}

}  // namespace kav
