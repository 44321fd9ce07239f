#include "cli/evaluation.h"

#include <utility>

#include "cli/failure_note.h"
#include "common/number_text.h"
#include "macros/line_fault.h"

namespace kav {

Evaluation::Evaluation(const Options& options)
    : options_(options), settings_(options), macros_(settings_.Store()) {}

Expected<double, LineFailure> Evaluation::Value(std::string_view line) {
  return EvaluateLine(line, ModesFor(line), macros_);
}

std::string Evaluation::NoteOn(std::string_view line, const LineFailure& failure) {
  const std::u16string typed = Widen(line);
  return FailureNote(typed, FaultOf(typed, failure, ModesFor(line), macros_));
}

CalcModes Evaluation::ModesFor(std::string_view line) {
  return {settings_.AngleFor(line, {}), options_.base, answer_};
}

Answer Evaluation::AnswerTo(std::string_view line) {
  auto value = Value(line);
  if (!value) return FailureOf(std::move(value).error());
  return *value;
}

}  // namespace kav
