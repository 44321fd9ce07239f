// The keys of the function plotter: where they stand, how they look and what they write.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "line/key_state.h"
#include "line/keypad.h"
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

/// A caption of a key, and what pressing the key then writes without and with a selection; nullopt
/// for keys that act on more than the input.
struct PlotterFace {
  std::u16string_view caption;
  std::optional<KeyEdit> bare;
  std::optional<KeyEdit> selected;
};

/// All there is to say about one key; its place in dialog units of a screen of kScreenWidth by
/// kScreenHeight, kKeyHeight high.
struct PlotterKeyRow {
  PlotterKey key;
  int x;
  int y;
  int width;
  KeyColour colour;
  PlotterFace plain;    ///< while Shift is off
  PlotterFace shifted;  ///< while it is on; the same for keys without a second function

  const PlotterFace& Shown(ShiftState shift) const {
    return shift == ShiftState::On ? shifted : plain;
  }
};

/// All keys, in the order of PlotterKey.
std::span<const PlotterKeyRow> PlotterKeyRows();
const PlotterKeyRow& RowOf(PlotterKey key);

// Where the rest of the screen stands, in the same units.
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
