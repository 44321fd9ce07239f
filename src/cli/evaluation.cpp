#include "cli/evaluation.h"

#include <utility>

#include "common/number_text.h"

namespace kav {

Evaluation::Evaluation(const Options& options)
    : options_(options), settings_(options), macros_(settings_.Store()) {}

Expected<double, LineFailure> Evaluation::Value(std::string_view line) {
  return EvaluateLine(line, {settings_.AngleFor(line, {}), options_.base}, macros_);
}

Answer Evaluation::AnswerTo(std::string_view line) {
  auto value = Value(line);
  if (!value) return Failure{std::move(value).error().message};
  return NumberAnswer(*value, options_);
}

CalcResult<std::string> ShownNumber(double value, const Options& options) {
  if (options.isRaw) return PrintRoundTrip(value);
  return FormatNumber(value, options.display, options.base);
}

Answer NumberAnswer(double value, const Options& options) {
  auto shown = ShownNumber(value, options);
  if (!shown) return Failure{std::move(shown).error().message};
  return *std::move(shown) + '\n';
}

}  // namespace kav
