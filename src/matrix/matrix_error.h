// Why a matrix expression has no result.
#pragma once

#include <string_view>

#include "engine/calc_error.h"

namespace kav {

/// The error `code` of a matrix expression about `subject`: with the engine's own message, but for
/// CalcErrorCode::NotInteger, which says here that the integer may not be negative either.
CalcError MakeMatrixError(CalcErrorCode code, std::string_view subject = {});

}  // namespace kav
