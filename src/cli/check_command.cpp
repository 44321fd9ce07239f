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
  if (!checked) return FailureOf(std::move(checked).error());
  if (!options.showsSteps) return Line(kDone);
  Rows rows(options);
  rows.AddLines(Line(kDone));
  const StepList& steps = checked->Steps();
  for (int i = 0; i < steps.Count(); ++i) {
    const std::string step = DescribeStep(steps[i]);
    rows.AddLines(Line("  " + step));
    rows.AddValues({step});
  }
  return rows;
}

}  // namespace

int RunCheck(const CommandLine& line) {
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return AnswerFormula(item, line.options); });
}

}  // namespace kav
