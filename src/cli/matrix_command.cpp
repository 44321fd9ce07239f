#include "cli/commands.h"

#include <string>
#include <string_view>
#include <utility>

#include "cli/evaluation.h"
#include "cli/items.h"
#include "cli/matrix_files.h"
#include "common/number_text.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_file.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_value.h"
#include "matrix/temporary_matrices.h"

namespace kav {
namespace {

/// Answers items. The matrix that answers one is [M Ans] for the next.
class MatrixSession {
 public:
  MatrixSession(const Options& options, Matrices matrices)
      : matrices_(std::move(matrices)), evaluation_(options) {}

  Answer AnswerTo(std::string_view item) {
    const std::u16string line = Widen(item);
    if (!IsMatrixExpression(line)) return evaluation_.AnswerTo(item);
    if (const auto invalid = FirstInvalidMatrix(line, matrices_)) {
      return Failure{Narrow(MatrixIsInvalid(*invalid))};
    }
    auto result = MatrixEvaluator(matrices_, files_).Evaluate(item);
    if (!result) return Failure{std::move(result).error().message};
    matrices_[kAnswerMatrix] = *std::move(result);
    return PrintMatrix(matrices_[kAnswerMatrix]);
  }

 private:
  Matrices matrices_;
  Evaluation evaluation_;
  TemporaryMatrices files_;
};

}  // namespace

int RunMatrix(const CommandLine& line) {
  auto matrices = LoadMatrices(line);
  if (!matrices) return Complain(matrices.error(), *line.command);
  MatrixSession session(line.options, *std::move(matrices));
  return AnswerItems(line, kLongestExpression,
                     [&](std::string_view item) { return session.AnswerTo(item); });
}

}  // namespace kav
