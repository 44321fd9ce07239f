// Why an operation on matrices has no result. The engine's own errors are in calc_error.h.
#pragma once

#include <string_view>

#include "engine/calc_error.h"

namespace kav {

// `operation` is a name from matrix_texts.h.
CalcError MatrixSizeMismatch(std::string_view operation);
/// A function has a number, or nothing, in the place of a matrix.
CalcError MatrixArgumentError(std::string_view operation);

/// An iteration did not come to its end.
CalcError MatrixHasNoConvergence(std::string_view operation);

CalcError MatrixIsNotInvertible();
CalcError MatrixHasZeroInDiagonal();
/// The exponent is not a whole number from 0 on: CalcErrorCode::NotInteger with a message of its
/// own.
CalcError MatrixExponentIsNotNatural();
/// The temporary file of an intermediate result cannot be written, or is gone.
CalcError NoRoomForMatrix();

}  // namespace kav
