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
#include "cli/descriptor.h"
#include "cli/items.h"
#include "common/number_text.h"
#include "settings/file_descriptor.h"
#include "settings/file_error.h"
#include "statistics/data_reader.h"
#include "statistics/data_texts.h"
#include "statistics/regression.h"

namespace kav {
namespace {

constexpr std::string_view kStandardInput = "-";
/// Longer than any path that can be opened.
constexpr std::size_t kLongestPath = std::size_t{1} << 16U;

/// A moment and the start of its name; the name of the variable follows.
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

/// What is kept of the rows of a file: they themselves may be any number.
class Summary {
 public:
  Summary(DataShape shape, RegressionModel model) : shape_(shape), sums_(model) {}

  std::optional<DataRefusal> Add(const DataRow& row) {
    const std::int32_t count = row.count.value_or(0);
    const std::int64_t total = std::int64_t{total_} + count;
    if (total != static_cast<std::int32_t>(total)) return DataRefusal::TotalOutOfRange;
    total_ = static_cast<std::int32_t>(total);
    ++rows_;
    const double x = row.Value(0);
    if (shape_ == DataShape::OneVariable) {
      x_.Add(x, count);
    } else {
      sums_.Add(x, row.Value(1), count);
    }
    return std::nullopt;
  }

  std::int64_t Rows() const { return rows_; }
  std::int32_t Total() const { return total_; }
  const WeightedSums& X() const { return shape_ == DataShape::OneVariable ? x_ : sums_.X(); }
  const RegressionSums& Sums() const { return sums_; }

 private:
  DataShape shape_;
  std::int64_t rows_ = 0;
  std::int32_t total_ = 0;
  WeightedSums x_;  ///< of the shape that has no other
  RegressionSums sums_;
};

/// Writes the lines of an answer.
class SummaryPrinter {
 public:
  SummaryPrinter(const Options& options, AnswerWriter& answers)
      : options_(options), answers_(answers) {}

  void Print(const Summary& summary) {
    AnswerInteger("rows", summary.Rows());
    AnswerInteger("total", summary.Total());
    PrintMoments("x", summary.X(), summary.Total());
    if (options_.shape == DataShape::TwoVariables) PrintTwo(summary);
  }

 private:
  void PrintMoments(std::string_view variable, const WeightedSums& sums, std::int32_t total) {
    for (const MomentRow& row : kMoments) {
      std::string name = std::string(row.name).append(variable);
      if (row.moment == Moment::SumOfSquares) name += kSquaresMark;
      AnswerValue(name, MomentOf(sums, total, row.moment));
    }
  }

  void PrintTwo(const Summary& summary) {
    const RegressionModel model = options_.model;
    PrintMoments("y", summary.Sums().Y(), summary.Total());
    AnswerValue("sum_xy", summary.Sums().Products());
    const Coefficients fitted = summary.Sums().Fit(summary.Total());
    AnswerValue("A", fitted.a);
    AnswerValue("B", fitted.b);
    if (model == RegressionModel::Quadratic) AnswerValue("C", fitted.c);
    if (model == RegressionModel::Linear) {
      AnswerValue("r", summary.Sums().Correlation(summary.Total()));
    }
    for (const double x : options_.estimatesAtX) {
      AnswerEstimate("y'", x, EstimateY(model, fitted, x));
    }
    for (const double y : options_.estimatesAtY) PrintEstimatesOfX(fitted, y);
  }

  void PrintEstimatesOfX(const Coefficients& fitted, double y) {
    if (options_.model != RegressionModel::Quadratic) {
      return AnswerEstimate("x'", y, EstimateX(options_.model, fitted, y));
    }
    const TwoEstimates estimates = EstimateQuadraticX(fitted, y);
    AnswerEstimate("x1'", y, estimates.first);
    AnswerEstimate("x2'", y, estimates.second);
  }

  void AnswerInteger(std::string_view name, std::int64_t value) {
    answers_.AnswerRow({name, PrintInteger(value)});
  }
  void AnswerValue(std::string_view name, double value) {
    answers_.AnswerRow({name, Printed(value)});
  }
  void AnswerEstimate(std::string_view name, double at, double value) {
    answers_.AnswerRow({name, Printed(at), Printed(value)});
  }

  /// What is not a number has no sign here.
  static std::string Printed(double value) {
    return PrintRoundTrip(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
  }

  const Options& options_;
  AnswerWriter& answers_;
};

/// Answers files one after the other, each read block by block.
class StatsSession {
 public:
  StatsSession(const Options& options, AnswerWriter& answers)
      : options_(options), answers_(answers) {}

  void AnswerFile(const std::string& path) {
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    const int error = errno;
    if (!file.IsOpen()) return Fail(path, ReasonOfReading(FileErrorFromErrno(error)));
    Answer(file.Number(), path);
  }

  void AnswerStandardInput() { Answer(STDIN_FILENO, kStandardInputName); }

 private:
  static constexpr std::string_view kStandardInputName = "standard input";

  void Answer(int descriptor, std::string_view name) {
    Summary summary(options_.shape, options_.model);
    DataReader reader(options_.shape, [&](const DataRow& row) { return summary.Add(row); });
    while (true) {
      const ReadBlock read = ReadSome(descriptor, block_.data(), block_.size());
      if (read.error != 0) return Fail(name, ReasonOfReading(FileErrorFromErrno(read.error)));
      const auto fault = read.size == 0
                             ? reader.Finish()
                             : reader.Read(std::string_view(block_).substr(0, read.size));
      if (fault) return Fail(name, ReasonOf(fault->refusal, fault->line));
      if (read.size == 0) return SummaryPrinter(options_, answers_).Print(summary);
    }
  }

  void Fail(std::string_view name, std::u16string_view reason) {
    answers_.Fail(Narrow(DataCannotBeLoaded(Widen(name), reason)));
  }

  const Options& options_;
  AnswerWriter& answers_;
  std::string block_ = std::string(std::size_t{1} << 16U, '\0');
};

bool LacksTwo(const Options& options) {
  if (options.shape == DataShape::TwoVariables) return false;
  return options.model != RegressionModel::Linear || !options.estimatesAtX.empty() ||
         !options.estimatesAtY.empty();
}

}  // namespace

int RunStats(const CommandLine& line) {
  if (LacksTwo(line.options)) return Complain(kNeedsTwo, *line.command);
  AnswerWriter answers;
  StatsSession session(line.options, answers);
  for (const std::string_view item : line.items) {
    if (item == kStandardInput) {
      session.AnswerStandardInput();
    } else {
      session.AnswerFile(std::string(item));
    }
  }
  if (!line.items.empty()) return answers.Finish();
  ForEachItem({}, kLongestPath, answers,
              [&](std::string_view path) { session.AnswerFile(std::string(path)); });
  return answers.Finish();
}

}  // namespace kav
