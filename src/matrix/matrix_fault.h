// What is wrong with a matrix expression, and how it may be mended.
#pragma once

#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "line/line_mend.h"
#include "macros/macro_store.h"
#include "matrix/matrix_value.h"

namespace kav {

/// What a line of the matrix screen is evaluated with.
struct MatrixLineContext {
  const Matrices& matrices;
  const CalcModes& modes;
  const MacroStore& macros;
  bool takesNumbers;  ///< whether a line may come to a number
};

/// About `line`, as typed. `place` is where in the line, in bytes, without its blanks at both ends,
/// evaluation failed, if that is known.
LineFault MatrixFaultOf(std::u16string_view line, std::optional<TextPlace> place,
                        const MatrixLineContext& context);

}  // namespace kav
