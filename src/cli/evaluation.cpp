#include "cli/evaluation.h"

#include <utility>

namespace kav {

Evaluation::Evaluation(const Options& options)
    : options_(options), settings_(options), macros_(settings_.Store()) {}

Expected<double, LineFailure> Evaluation::Value(std::string_view line) {
  return EvaluateLine(line, {settings_.AngleFor(line, {}), options_.base}, macros_);
}

Answer Evaluation::AnswerTo(std::string_view line) {
  auto value = Value(line);
  if (!value) return Failure{std::move(value).error().message};
  return *value;
}

}  // namespace kav
