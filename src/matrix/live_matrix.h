// What a matrix expression comes to while it is being typed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// How much work may be done to see what a matrix expression comes to.
struct MatrixEffort {
  int intermediates;           ///< matrices to keep, at most
  std::size_t exponentDigits;  ///< of each exponent, at most
};
inline constexpr MatrixEffort kEffortAfterKeys{6, 1};
/// Once, for a line that "=" could not answer.
inline constexpr MatrixEffort kEffortAfterEquals{100, 3};

/// The order of the matrix that `line`, a matrix expression, comes to, such as "3x2". nullopt if it
/// comes to none, or is more work than `effort`. Makes no files. The word "ans" is the number
/// `answer`, if there is one.
std::optional<std::u16string> LiveOrder(std::u16string_view line, const Matrices& matrices,
                                        std::optional<double> answer = {},
                                        const MatrixEffort& effort = kEffortAfterKeys);

}  // namespace kav
