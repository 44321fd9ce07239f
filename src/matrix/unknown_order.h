// In which order the unknowns of linear equations come back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "matrix/intermediate_matrices.h"
#include "matrix/matrix_value.h"

namespace kav {

/// Which unknown stands in each row of what `line` (UTF-8) comes to, counted from 1: "2, 1, 3".
/// nullopt if they stand in their own order, if the elimination ended early and the answer is no
/// solution, or if the line is anything but one call of the function for linear equations that
/// succeeds. To be asked before the answer replaces a matrix that the line names.
std::optional<std::u16string> OrderOfUnknowns(std::string_view line, const Matrices& matrices,
                                              IntermediateMatrices& files,
                                              std::optional<double> answer);

}  // namespace kav
