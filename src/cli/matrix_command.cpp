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
#include "matrix/matrix_error.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_file.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_properties.h"
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
      : options_(options),
        matrices_(std::move(matrices)),
        property_(options.property),
        evaluation_(options) {}

  Answer AnswerTo(std::string_view item) {
    const std::u16string line = Widen(item);
    if (!IsMatrixExpression(line)) {
      if (property_ == nullptr) return evaluation_.AnswerTo(item);
      return Failure{MatrixArgumentError(property_->operation).message};
    }
    if (const auto invalid = FirstInvalidMatrix(line, matrices_)) {
      return Failure{Narrow(MatrixIsInvalid(*invalid))};
    }
    auto result = MatrixEvaluator(matrices_, files_).Evaluate(item);
    if (!result) return FailureOf(std::move(result).error());
    matrices_[kAnswerMatrix] = *std::move(result);
    if (property_ != nullptr) return Found();
    return RowsOf(matrices_[kAnswerMatrix], options_);
  }

 private:
  /// What was asked of [M Ans], which stays as it is.
  Answer Found() const {
    auto value = PropertyOf(*property_, matrices_[kAnswerMatrix]);
    if (!value) return Failure{std::move(value).error().message};
    if (value->number) return *value->number;
    return RowsOf(value->matrix, options_);
  }

  const Options& options_;
  Matrices matrices_;
  const MatrixProperty* property_;
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
