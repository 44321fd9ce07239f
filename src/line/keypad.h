// The keys of the scientific screen: where they stand, how they look and what they write.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "line/expression_line.h"

namespace kav {

/// The keys. Their captions depend on Shift and base. Both Shift keys share a place; each of A to F
/// shares one with a function key.
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

/// The size of the body of every screen with keys, in dialog units: a quarter of the font's width
/// and an eighth of its height.
inline constexpr int kScreenWidth = 136;
inline constexpr int kScreenHeight = 153;

/// Where a part of such a screen stands, in dialog units.
struct LinePlace {
  int x;
  int y;
  int width;
  int height;
};

/// The pixels that places of menus are counted in: those of a screen of its first size.
inline constexpr int kPlaceWidth = 240;
inline constexpr int kPlaceHeight = 320;

/// Where a menu opens: the corner of its top that is on `side`, in pixels of a screen of
/// kPlaceWidth by kPlaceHeight.
enum class MenuSide { Left, Right };
struct MenuPlace {
  int x;
  int y;
  MenuSide side;
};

inline constexpr int kKeyHeight = 10;
constexpr LinePlace KeyAt(int x, int y, int width) {
  return {x, y, width, kKeyHeight};
}

/// What a key of a screen is, whatever it shows: `K` is the enumeration of the screen's keys.
template <class K>
struct KeyPlaceOf {
  K key;
  LinePlace place;
  KeyColour colour;
  /// Such as "Alt+D", for a key whose work cannot be typed; empty for none. No letter is one of the
  /// menus' in the menu bar.
  std::string_view shortcut = {};
};
using KeyPlace = KeyPlaceOf<Key>;

// Where the two lines above the keys stand.
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

/// One caption of a key and what pressing it then does and writes; nullopt edits for keys that act
/// on more than the line.
struct KeyFace {
  std::u16string_view caption;
  std::optional<KeyEdit> bare;      ///< without a selection
  std::optional<KeyEdit> selected;  ///< with one
  std::u16string_view description;  ///< what the key does, in a few words
};

/// One of the captions that a key may ever show, and what the key then does.
struct FaceText {
  std::u16string_view caption;
  std::u16string_view description;
};

/// Where the menu of `key` opens; nullopt for a key without one.
std::optional<MenuPlace> MenuPlaceOf(Key key);

/// All keys, row by row.
std::span<const KeyPlace> KeyPlaces();

/// The `face` of `key`; null if it has no such face.
const KeyFace* FindFace(Key key, Face face);
/// The `face` of `key`, or if it has none, its plain one.
const KeyFace& FaceOf(Key key, Face face);

/// Writes what a key with this face writes into `line`: nothing if the face has no edit.
void ApplyFace(const KeyFace& face, ExpressionLine& line);

}  // namespace kav
