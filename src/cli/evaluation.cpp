#include "cli/evaluation.h"

#include <algorithm>

#include "common/number_text.h"

namespace kav {
namespace {

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

Evaluation::Evaluation(const Options& options)
    : options_(options), settings_(options), macros_(settings_.Store()), angle_(options.angle) {}

Expected<double, LineFailure> Evaluation::Value(std::string_view line) {
  return EvaluateLine(line, ModesFor(line), macros_);
}

void Evaluation::Answer(std::string_view line, AnswerWriter& answers) {
  const auto value = Value(line);
  if (!value) return answers.Fail(value.error().message);
  AnswerNumber(*value, options_, answers);
}

/// Only functions and macros depend on the angle unit, and both are written with letters. Until one
/// comes the settings stay unread, which would take longer than the calculation.
CalcModes Evaluation::ModesFor(std::string_view line) {
  if (!angle_ && std::any_of(line.begin(), line.end(), IsLetter)) angle_ = settings_.Angle();
  return {angle_.value_or(AngleUnit::Degrees), options_.base};
}

void AnswerNumber(double value, const Options& options, AnswerWriter& answers) {
  if (options.isRaw) {
    AppendRoundTrip(answers.Text(), value);
    return answers.End();
  }
  const auto shown = FormatNumber(value, options.display, options.base);
  if (!shown) return answers.Fail(shown.error().message);
  answers.Text() += *shown;
  answers.End();
}

}  // namespace kav
