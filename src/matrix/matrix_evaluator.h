// Matrix expressions, from their text to their result.
#pragma once

#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "matrix/intermediate_matrices.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Evaluates expressions over the four matrices.
class MatrixEvaluator {
 public:
  /// Both must outlive the evaluator.
  MatrixEvaluator(const Matrices& matrices, IntermediateMatrices& files)
      : matrices_(matrices), files_(files) {}

  /// The matrix that `text` (UTF-8) stands for; the case of letters does not count. Fails with an
  /// error of the engine or of matrix_error.h, with its place in `text` if it has one. Either way
  /// it leaves no file behind. The word "ans" is the number `answer`, if there is one.
  CalcResult<MatrixValue> Evaluate(std::string_view text, std::optional<double> answer = {});

 private:
  const Matrices& matrices_;
  IntermediateMatrices& files_;
};

}  // namespace kav
