#include "cli/commands.h"

#include <string>
#include <utility>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "engine/formula_checker.h"

namespace kav {
namespace {

Answer AnswerFormula(std::string_view formula, const Options& options) {
  auto checked = CheckFormula(formula, options.variables);
  if (!checked) return Failure{std::move(checked).error().message};
  std::string lines = Line(kDone);
  if (!options.showsSteps) return lines;
  const StepList& steps = checked->Steps();
  for (int i = 0; i < steps.Count(); ++i) lines += Line("  " + DescribeStep(steps[i]));
  return lines;
}

}  // namespace

int RunCheck(const CommandLine& line) {
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return AnswerFormula(item, line.options); });
}

}  // namespace kav
