#include "matrix/matrix_evaluator.h"

#include <string>
#include <utility>

#include "common/number_text.h"
#include "engine/fold_case.h"
#include "matrix/matrix_order.h"
#include "matrix/matrix_reducer.h"
#include "matrix/matrix_tokenizer.h"

namespace kav {

CalcResult<MatrixValue> MatrixEvaluator::Evaluate(std::string_view text) {
  const std::string folded = FoldCase(TrimBlanks(text), BaseMode::Decimal);
  if (folded.empty()) return MakeError(CalcErrorCode::NullExpression);
  auto tokens = TokenizeMatrixExpression(folded);
  if (!tokens) return std::move(tokens).error();
  if (auto error = CheckMatrixOrder(*tokens)) return *std::move(error);
  return ReduceMatrixTokens(*std::move(tokens), matrices_, files_);
}

}  // namespace kav
