#include "cli/commands.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "common/ascii.h"
#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "engine/formula_runner.h"
#include "plotter/curve_sampling.h"
#include "plotter/graph_input.h"
#include "plotter/graph_model.h"
#include "plotter/graph_svg.h"
#include "plotter/plotter_texts.h"
#include "plotter/value_table.h"

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

/// Answers an equation with the table of its values.
Answer TableOf(std::string_view equation, const Options& options, StoredSettings& settings) {
  auto formula = CheckFormula(equation, VariableType::X);
  if (!formula) return FailureOf(std::move(formula).error());
  FormulaRunner runner(*formula, settings.AngleFor(equation, "xX"));
  Rows rows(options);
  const std::size_t count = TableRows(*options.table).value_or(0);
  for (std::size_t i = 0; i < count; ++i) {
    const double x = TablePlace(*options.table, i);
    const auto y = runner.At({.x = x});
    std::string shownX;
    std::string shownY;
    if (AppendShown(shownX, x, options)) shownX.clear();
    const bool hasValue = y && !AppendShown(shownY, *y, options);
    rows.Add({{shownX, x}, hasValue ? Cell(shownY, *y) : Cell("")});
  }
  return rows;
}

/// The picture of all equations, as the graph saves it.
Answer PictureOf(const std::vector<std::string>& equations, const Options& options) {
  // Those of a plot that stands beside nothing, with the margins of a saved picture.
  constexpr int kLeft = 2;
  constexpr int kTop = 3;
  GraphInput input;
  std::string all;
  for (const std::string& equation : equations) {
    auto formula = CheckFormula(equation, VariableType::X);
    if (!formula) return FailureOf(std::move(formula).error());
    const std::size_t index = input.curves.size();
    input.curves.push_back(
        {std::u16string(kCurvePrefixes[index]) + Widen(equation), *std::move(formula)});
    all += equation + ' ';
  }
  input.range = options.range;
  input.angle = StoredSettings(options).AngleFor(all, "xX");
  input.format = options.display;
  GraphModel model(std::move(input));
  model.SetArea(
      {kLeft, kTop, kLeft + kSampleCount - 1, kTop + options.area.bottom - options.area.top});
  return PrintGraphSvg(model);
}

int RunPicture(const CommandLine& line) {
  AnswerWriter answers(line.options);
  std::vector<std::string> equations;
  ForEachItem(line, kLongestExpression, answers, [&](std::string_view item, Extent) {
    if (equations.size() <= kMostCurves) equations.emplace_back(item);
  });
  if (equations.size() > kMostCurves) return Complain(kTooManyCurves, *line.command);
  if (!equations.empty()) answers.Write(PictureOf(equations, line.options));
  return answers.Finish();
}

}  // namespace

int RunPlot(const CommandLine& line) {
  const Options& options = line.options;
  if (options.table && options.asksSvg) return Complain(kTableOrPicture, *line.command);
  if (options.table && !TableRows(*options.table)) {
    return Complain(kTableLeadsNowhere, *line.command);
  }
  if (const auto refusal = RangeRefusal(options.range)) {
    return Complain(Narrow(*refusal), *line.command);
  }
  if (options.area.top >= options.area.bottom) return Complain(kAreaIsEmpty, *line.command);
  if (options.asksSvg) return RunPicture(line);
  AnswerWriter answers(options);
  StoredSettings settings(options);
  PlotSession session(options);
  bool isFirst = true;
  ForEachItem(line, kLongestExpression, answers, [&](std::string_view item, Extent) {
    if (!std::exchange(isFirst, false)) answers.Separate();
    answers.Write(options.table ? TableOf(item, options, settings) : session.AnswerTo(item));
  });
  return answers.Finish();
}

}  // namespace kav
