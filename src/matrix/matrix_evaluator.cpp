#include "matrix/matrix_evaluator.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "common/number_text.h"
#include "engine/fold_case.h"
#include "matrix/matrix_order.h"
#include "matrix/matrix_reducer.h"
#include "matrix/matrix_tokenizer.h"

namespace kav {

CalcResult<MatrixValue> MatrixEvaluator::Evaluate(std::string_view text,
                                                  std::optional<double> answer) {
  const std::string folded = FoldCase(text, BaseMode::Decimal);
  if (TrimBlanks(folded).empty()) return MakeError(CalcErrorCode::NullExpression);
  auto tokens = TokenizeMatrixExpression(folded, answer);
  if (!tokens) return std::move(tokens).error();
  if (auto error = CheckMatrixOrder(*tokens)) {
    error->place = PlaceOfMatrixToken(folded, FaultyMatrixToken(*tokens));
    return *std::move(error);
  }
  auto result = ReduceMatrixTokens(*std::move(tokens), matrices_, files_);
  if (result || !result.error().place) return result;
  CalcError error = std::move(result).error();
  error.place = PlaceOfMatrixToken(folded, error.place->position);
  return error;
}

}  // namespace kav
