// The keys of the scientific screen: where they stand, how they look and what they write.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "line/expression_line.h"

namespace kav {

/// A key by what it is at its own place; its caption depends on the face it shows. Both Shift keys
/// share a place, as each of A to F does with a function key.
enum class Key {
  // clang-format off
  Deg, Dec, Backspace, Delete, PlayBack, Clear,
  Shift, ShiftActive, Macro, Converter, Abs, MemoryMenu,
  Sin, Cos, Tan, Pi, Ncr,
  Sinh, Cosh, Tanh, Log, Ln,
  Sqrt, Square, Power, Percent, Parentheses,
  Seven, Eight, Nine, Open, Close,
  Four, Five, Six, Multiply, Divide,
  One, Two, Three, Add, Subtract,
  Zero, DoubleZero, Point, Exp, Equals,
  A, B, C, D, E, F,
  // clang-format on
};

/// Which of its captions a key shows.
enum class Face { Plain, Shifted, Base };

enum class KeyColour { Digit, Orange, ActiveShift, Mode, Editing, Equals, Function };

/// Where a key stands, in dialog units (a quarter of the font's width, an eighth of its height) of
/// the screen's kScreenWidth by kScreenHeight; keys are kKeyHeight high.
struct KeyPlace {
  Key key;
  int x;
  int y;
  int width;
  KeyColour colour;
};

inline constexpr int kKeyHeight = 10;
inline constexpr int kScreenWidth = 136;
inline constexpr int kScreenHeight = 153;

/// Where the two lines above the keys stand, in the same units.
struct LinePlace {
  int x;
  int y;
  int width;
  int height;
};

inline constexpr LinePlace kExpressionPlace{3, 3, 130, 28};
inline constexpr LinePlace kResultPlace{3, 47, 130, 11};

/// What a key writes: an insertion, or one or two wraps around the selection.
struct KeyEdit {
  enum class Kind { Insert, Wrap, WrapTwice };
  Kind kind = Kind::Insert;
  std::u16string_view prefix;  ///< the text of an insertion
  std::u16string_view suffix;
  std::size_t shift = 0;  ///< see ExpressionLine::WrapSelection
};

/// One caption of a key and what pressing it then writes; nullopt edits for keys that act on more
/// than the line.
struct KeyFace {
  Key key;
  Face face;
  std::u16string_view caption;
  std::optional<KeyEdit> bare;      ///< without a selection
  std::optional<KeyEdit> selected;  ///< with one
};

/// All keys, row by row.
std::span<const KeyPlace> KeyPlaces();

/// The row of `key` for `face`; where it has none, that of its plain face.
const KeyFace& FaceOf(Key key, Face face);

/// Carries an edit out on a line.
void ApplyEdit(const KeyEdit& edit, ExpressionLine& line);

/// Presses a key of the given face that only writes: `line` takes its edit for a bare caret or for
/// a selection.
void ApplyFace(const KeyFace& face, ExpressionLine& line);

}  // namespace kav
