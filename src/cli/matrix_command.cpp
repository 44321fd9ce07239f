#include "cli/commands.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

/// The rows of `matrix`, shown as a matrix file holds them.
Rows RowsOf(const MatrixValue& matrix, const Options& options) {
  Rows rows(options, PrintMatrix(matrix, options.hasCrLf ? kMatrixLineEnd : "\n"));
  if (!rows.KeepsValues()) return rows;
  for (int row = 0; row < matrix.rows; ++row) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(matrix.columns));
    for (int column = 0; column < matrix.columns; ++column) {
      texts.push_back(Narrow(matrix.At(row, column)));
    }
    std::vector<Cell> cells;
    cells.reserve(texts.size());
    std::transform(texts.begin(), texts.end(), std::back_inserter(cells), CellOf);
    rows.AddValues(cells);
  }
  return rows;
}

/// Answers items. The matrix that answers one is [M Ans] for the next.
class MatrixSession {
 public:
  MatrixSession(const Options& options, Matrices matrices)
      : options_(options), matrices_(std::move(matrices)), evaluation_(options) {}

  Answer AnswerTo(std::string_view item) {
    const std::u16string line = Widen(item);
    if (!IsMatrixExpression(line)) return evaluation_.AnswerTo(item);
    if (const auto invalid = FirstInvalidMatrix(line, matrices_)) {
      return Failure{Narrow(MatrixIsInvalid(*invalid))};
    }
    auto result = MatrixEvaluator(matrices_, files_).Evaluate(item);
    if (!result) return FailureOf(std::move(result).error());
    matrices_[kAnswerMatrix] = *std::move(result);
    return RowsOf(matrices_[kAnswerMatrix], options_);
  }

 private:
  const Options& options_;
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
