// What a matrix expression comes to while it is being typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_value.h"

namespace kav {

/// The order of the matrix that `line`, a matrix expression, comes to, such as "3x2". nullopt if it
/// comes to none, and if that is too much work to do after each key: more than a few operations,
/// and powers above 9. Makes no files. The word "ans" is the number
/// `answer`, if there is one.
std::optional<std::u16string> LiveOrder(std::u16string_view line, const Matrices& matrices,
                                        std::optional<double> answer = {});

}  // namespace kav
