// The keys of the function plotter: where they stand, how they look and what they write.
#pragma once

#include <span>

#include "line/key_rows.h"
#include "plotter/range_fields.h"

namespace kav {

/// The keys, row by row. Both Shift keys share a place.
enum class PlotterKey {
  // clang-format off
  Add, Plot, DeleteEquation,
  Deg, Macro, Backspace, Delete, PlayBack, Clear,
  Shift, ShiftActive, Variable, Abs, Factorial, Ncr,
  Sin, Cos, Tan, Log, Ln,
  Sinh, Cosh, Tanh, Sqrt, Square,
  Seven, Eight, Nine, Parentheses, Power,
  Four, Five, Six, Multiply, Divide,
  One, Two, Three, Plus, Minus,
  Zero, Point, Exp, Pi, Percent,
  // clang-format on
};

using PlotterKeyRow = KeyRow<PlotterKey>;

/// All keys, in the order of PlotterKey.
std::span<const PlotterKeyRow> PlotterKeyRows();
const PlotterKeyRow& RowOf(PlotterKey key);

// Where the rest of the screen stands.
inline constexpr LinePlace kEquationInputPlace{3, 2, 104, 21};
inline constexpr LinePlace kEquationListPlace{3, 25, 104, 10};
inline constexpr LinePlace kGridBoxPlace{104, 37, 29, 11};
inline constexpr LinePlace kLineBoxPlace{104, 49, 29, 11};

/// A field of the range and the caption before it.
struct RangeFieldPlace {
  LinePlace caption;
  LinePlace field;
};
RangeFieldPlace PlaceOf(RangeField field);

}  // namespace kav
