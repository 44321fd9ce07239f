#include "cli/commands.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "common/ascii.h"
#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "plotter/curve_sampling.h"

namespace kav {
namespace {

/// Answers equations with their samples, which have the same x for all of them.
class PlotSession {
 public:
  explicit PlotSession(const Options& options) : options_(options), settings_(options) {
    for (std::size_t i = 0; i < starts_.size(); ++i) {
      const int sample = static_cast<int>(i);
      starts_[i] = PrintInteger(sample) + '\t';
      const auto error = AppendShown(starts_[i], SampleX(options.range, sample), options);
      starts_[i].append(error ? error->message : "") += '\t';
    }
  }

  Answer AnswerTo(std::string_view equation) {
    auto formula = CheckFormula(equation, VariableType::X);
    if (!formula) return FailureOf(std::move(formula).error());
    const AngleUnit unit = settings_.AngleFor(equation, "xX");
    const CurveRows curve = SampleCurve(*formula, options_.range, unit, options_.area);
    std::string lines;
    constexpr std::size_t kRoomInALine = 32;
    lines.reserve(curve.size() * kRoomInALine);
    for (std::size_t i = 0; i < curve.size(); ++i) {
      lines += starts_[i];
      if (curve[i]) lines += PrintInteger(*curve[i]);
      lines += '\n';
    }
    return RowsOf(curve, std::move(lines));
  }

 private:
  /// The samples of `curve`, which `lines` show.
  Rows RowsOf(const CurveRows& curve, std::string lines) const {
    Rows rows(options_, std::move(lines));
    if (!rows.KeepsValues()) return rows;
    for (std::size_t i = 0; i < curve.size(); ++i) {
      const int sample = static_cast<int>(i);
      const std::string row = curve[i] ? PrintInteger(*curve[i]) : "";
      rows.AddValues(
          {CellOf(PrintInteger(sample)), {"", SampleX(options_.range, sample)}, CellOf(row)});
    }
    return rows;
  }

  const Options& options_;
  StoredSettings settings_;
  std::array<std::string, kSampleCount> starts_;  ///< of the lines, up to the row
};

}  // namespace

int RunPlot(const CommandLine& line) {
  const Options& options = line.options;
  if (const auto refusal = RangeRefusal(options.range)) {
    return Complain(Narrow(*refusal), *line.command);
  }
  if (options.area.top >= options.area.bottom) return Complain(kAreaIsEmpty, *line.command);
  AnswerWriter answers(options);
  PlotSession session(options);
  bool isFirst = true;
  ForEachItem(line, kLongestExpression, answers, [&](std::string_view item, Extent) {
    if (!std::exchange(isFirst, false)) answers.Separate();
    answers.Write(session.AnswerTo(item));
  });
  return answers.Finish();
}

}  // namespace kav
