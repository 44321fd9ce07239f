#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "plotter/curve_sampling.h"

namespace kav {
namespace {

/// `x` as the options want numbers shown.
std::string ShownX(double x, const Options& options) {
  if (options.isRaw) return PrintRoundTrip(x);
  const auto shown = FormatNumber(x, options.display, options.base);
  return shown ? *shown : shown.error().message;
}

bool IsOtherLetter(char c) {
  return c != 'x' && c != 'X' && ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'));
}

/// Answers equations with their samples, which stand at the same places for all of them.
class PlotSession {
 public:
  PlotSession(const Options& options, AnswerWriter& answers)
      : options_(options), answers_(answers), settings_(options), angle_(options.angle) {
    for (std::size_t i = 0; i < starts_.size(); ++i) {
      const int sample = static_cast<int>(i);
      starts_[i] = PrintInteger(sample) + '\t' + ShownX(SampleX(options.range, sample), options);
      starts_[i] += '\t';
    }
  }

  void Answer(std::string_view equation) {
    if (hasAnswered_) answers_.End();
    hasAnswered_ = true;
    const auto formula = CheckFormula(equation, VariableType::X);
    if (!formula) return answers_.Fail(formula.error().message);
    const AngleUnit unit = AngleFor(equation);
    AnswerRows(SampleCurve(*formula, options_.range, unit, options_.area));
  }

 private:
  void AnswerRows(const CurveRows& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      answers_.Text() += starts_[i];
      if (rows[i]) answers_.Text() += PrintInteger(*rows[i]);
      answers_.End();
    }
  }

  /// Only functions depend on the angle unit. Until one comes the settings stay unread.
  AngleUnit AngleFor(std::string_view equation) {
    const bool mayMatter = std::any_of(equation.begin(), equation.end(), IsOtherLetter);
    if (!angle_ && mayMatter) angle_ = settings_.Angle();
    return angle_.value_or(AngleUnit::Degrees);
  }

  const Options& options_;
  AnswerWriter& answers_;
  StoredSettings settings_;
  std::optional<AngleUnit> angle_;
  std::array<std::string, kSampleCount> starts_;  ///< of the lines, up to the row
  bool hasAnswered_ = false;
};

}  // namespace

int RunPlot(const CommandLine& line) {
  const Options& options = line.options;
  if (const auto refusal = RangeRefusal(options.range)) {
    return Complain(Narrow(*refusal), *line.command);
  }
  if (options.area.top >= options.area.bottom) return Complain(kAreaIsEmpty, *line.command);
  AnswerWriter answers;
  PlotSession session(options, answers);
  ForEachItem(line.items, kLongestExpression, answers,
              [&](std::string_view item) { session.Answer(item); });
  return answers.Finish();
}

}  // namespace kav
