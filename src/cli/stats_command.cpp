#include "cli/commands.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "cli/cli_texts.h"
#include "cli/data_sums.h"
#include "cli/items.h"
#include "cli/typed_lines.h"
#include "cli/unreadable.h"
#include "common/number_text.h"
#include "settings/file_descriptor.h"
#include "statistics/data_texts.h"
#include "statistics/regression.h"

namespace kav {
namespace {

// Longer than any path that can be opened.
constexpr std::size_t kLongestPath = std::size_t{1} << 16U;

/// A moment and its name, which the name of the variable follows.
struct MomentRow {
  std::string_view name;
  Moment moment;
};
constexpr std::string_view kSquaresMark = "2";
constexpr std::array kMoments{
    MomentRow{"sum_", Moment::Sum},
    MomentRow{"sum_", Moment::SumOfSquares},
    MomentRow{"mean_", Moment::Mean},
    MomentRow{"sd_sample_", Moment::SampleDeviation},
    MomentRow{"sd_population_", Moment::PopulationDeviation},
};

/// With 17 significant digits, and "nan" without a sign.
std::string Printed(double value) {
  return PrintRoundTrip(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
}

void AddValue(Rows& rows, std::string_view name, double value) {
  rows.Add({name, {Printed(value), value}});
}

void AddEstimate(Rows& rows, std::string_view name, double at, double value) {
  rows.Add({name, {Printed(at), at}, {Printed(value), value}});
}

void AddMoments(Rows& rows, std::string_view variable, const WeightedSums& sums,
                std::int32_t total) {
  for (const MomentRow& row : kMoments) {
    std::string name = std::string(row.name).append(variable);
    if (row.moment == Moment::SumOfSquares) name += kSquaresMark;
    AddValue(rows, name, MomentOf(sums, total, row.moment));
  }
}

void AddEstimatesOfX(Rows& rows, RegressionModel model, const Coefficients& fitted, double y) {
  if (model != RegressionModel::Quadratic) {
    return AddEstimate(rows, "x'", y, EstimateX(model, fitted, y));
  }
  const TwoEstimates estimates = EstimateQuadraticX(fitted, y);
  AddEstimate(rows, "x1'", y, estimates.first);
  AddEstimate(rows, "x2'", y, estimates.second);
}

void AddRegression(Rows& rows, const Summary& summary, const Options& options) {
  const RegressionModel model = options.model;
  const RegressionSums& sums = summary.Sums();
  const Coefficients fitted = sums.Fit(summary.Total());
  AddMoments(rows, "y", sums.Y(), summary.Total());
  AddValue(rows, "sum_xy", sums.Products());
  AddValue(rows, "A", fitted.a);
  AddValue(rows, "B", fitted.b);
  if (model == RegressionModel::Quadratic) AddValue(rows, "C", fitted.c);
  if (model == RegressionModel::Linear) AddValue(rows, "r", sums.Correlation(summary.Total()));
  for (const double x : options.estimatesAtX) {
    AddEstimate(rows, "y'", x, EstimateY(model, fitted, x));
  }
  for (const double y : options.estimatesAtY) AddEstimatesOfX(rows, model, fitted, y);
}

Rows SummaryRows(const Summary& summary, const Options& options) {
  Rows rows(options);
  rows.Add({"rows", CellOf(PrintInteger(summary.Rows()))});
  rows.Add({"total", CellOf(PrintInteger(summary.Total()))});
  AddMoments(rows, "x", summary.X(), summary.Total());
  if (options.shape == DataShape::TwoVariables) AddRegression(rows, summary, options);
  return rows;
}

/// Sums up the file `name`, open as `descriptor`, and tells what is unusual in it.
Answer AnswerData(int descriptor, std::string_view name, const Options& options) {
  const DataSums data = SumUp(descriptor, {options.shape, options.model});
  for (const Remark& remark : data.remarks) Tell(std::string(name) + ": " + remark.text);
  if (data.fault.empty()) return SummaryRows(data.summary, options);
  return Failure{Narrow(DataCannotBeLoaded(Widen(name), data.fault))};
}

Answer AnswerFile(const std::string& path, const Options& options) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (file.IsOpen()) return AnswerData(file.Number(), path, options);
  return Failure{Narrow(DataCannotBeLoaded(Widen(path), WhyUnreadable(errno)))};
}

bool LacksTwo(const Options& options) {
  if (options.shape == DataShape::TwoVariables) return false;
  return options.model != RegressionModel::Linear || !options.estimatesAtX.empty() ||
         !options.estimatesAtY.empty();
}

}  // namespace

int RunStats(const CommandLine& line) {
  if (LacksTwo(line.options)) return Complain(kNeedsTwo, *line.command);
  return AnswerItems(line, kLongestPath, [&](std::string_view item) {
    // Among the lines of standard input, "-" is a file of this name.
    if (item == kStandardInput && !line.items.empty()) {
      TellAwaitedText(kDataAwaited);
      return AnswerData(STDIN_FILENO, kStandardInputName, line.options);
    }
    return AnswerFile(std::string(item), line.options);
  });
}

}  // namespace kav
