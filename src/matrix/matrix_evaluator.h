// Matrix expressions: from text to tokens, and from tokens to one matrix.
#pragma once

#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"
#include "matrix/temporary_matrices.h"

namespace kav {

/// Evaluates expressions over the four matrices that it is given. The texts of its failures:
/// matrix_error.h and matrix_texts.h.
class MatrixEvaluator {
 public:
  static constexpr int kMostTokens = static_cast<int>(kMostMatrixTokens);

  /// Both must outlive the evaluator.
  MatrixEvaluator(const Matrices& matrices, TemporaryMatrices& files)
      : matrices_(matrices), files_(files) {}

  /// The matrix that `text` (UTF-8) stands for; the case of letters does not count. No file is left
  /// behind.
  CalcResult<MatrixValue> Evaluate(std::string_view text);

 private:
  const Matrices& matrices_;
  TemporaryMatrices& files_;
};

}  // namespace kav
