#include "plotter/plotter_keypad.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "plotter/plotter_texts.h"

namespace kav {
namespace {

/// Which faces a key has of those of the calculator's key that it does the work of.
enum class Faces { Both, Plain, Shifted };

/// A key and the calculator's key that is called so and writes the same; for a key that only this
/// screen has, its caption and what it writes.
struct KeySource {
  PlotterKey key;
  int x;
  int y;
  int width;
  KeyColour colour;
  std::optional<Key> sameAs;
  Faces faces = Faces::Both;
  std::u16string_view caption = {};
  std::u16string_view text = {};
};

constexpr KeySource Own(PlotterKey key, int x, int y, int width, KeyColour colour,
                        std::u16string_view caption, std::u16string_view text = {}) {
  return {key, x, y, width, colour, {}, Faces::Plain, caption, text};
}

// clang-format off
constexpr std::array kSources{
    Own(PlotterKey::Add,              109,   2, 24, KeyColour::Orange,  kAddCaption),
    Own(PlotterKey::Plot,             109,  13, 24, KeyColour::Equals,  kPlotCaption),
    Own(PlotterKey::DeleteEquation,   109,  25, 24, KeyColour::Orange,  kDeleteEquationCaption),

    KeySource{PlotterKey::Deg,          3,  63, 20, KeyColour::Mode,        Key::Deg},
    KeySource{PlotterKey::Macro,       26,  63, 19, KeyColour::Orange,      Key::Macro},
    KeySource{PlotterKey::Backspace,   47,  63, 19, KeyColour::Editing,     Key::Backspace},
    KeySource{PlotterKey::Delete,      68,  63, 20, KeyColour::Editing,     Key::Delete},
    KeySource{PlotterKey::PlayBack,    90,  63, 19, KeyColour::Editing,     Key::PlayBack},
    KeySource{PlotterKey::Clear,      111,  63, 22, KeyColour::Editing,     Key::Clear},

    KeySource{PlotterKey::Shift,        3,  74, 24, KeyColour::Orange,      Key::Shift},
    KeySource{PlotterKey::ShiftActive,  3,  74, 24, KeyColour::ActiveShift, Key::ShiftActive},
    Own(PlotterKey::Variable,          29,  74, 24, KeyColour::Function, kVariableCaption, kVariable),
    KeySource{PlotterKey::Abs,         55,  74, 25, KeyColour::Function,    Key::Abs},
    KeySource{PlotterKey::Factorial,   82,  74, 24, KeyColour::Function,    Key::Pi, Faces::Shifted},
    KeySource{PlotterKey::Ncr,        108,  74, 25, KeyColour::Function,    Key::Ncr},

    KeySource{PlotterKey::Sin,          3,  85, 24, KeyColour::Function,    Key::Sin},
    KeySource{PlotterKey::Cos,         29,  85, 24, KeyColour::Function,    Key::Cos},
    KeySource{PlotterKey::Tan,         55,  85, 25, KeyColour::Function,    Key::Tan},
    KeySource{PlotterKey::Log,         82,  85, 24, KeyColour::Function,    Key::Log},
    KeySource{PlotterKey::Ln,         108,  85, 25, KeyColour::Function,    Key::Ln},

    KeySource{PlotterKey::Sinh,         3,  96, 24, KeyColour::Function,    Key::Sinh},
    KeySource{PlotterKey::Cosh,        29,  96, 24, KeyColour::Function,    Key::Cosh},
    KeySource{PlotterKey::Tanh,        55,  96, 25, KeyColour::Function,    Key::Tanh},
    KeySource{PlotterKey::Sqrt,        82,  96, 24, KeyColour::Function,    Key::Sqrt},
    KeySource{PlotterKey::Square,     108,  96, 25, KeyColour::Function,    Key::Square},

    KeySource{PlotterKey::Seven,        3, 109, 24, KeyColour::Digit,       Key::Seven},
    KeySource{PlotterKey::Eight,       29, 109, 24, KeyColour::Digit,       Key::Eight},
    KeySource{PlotterKey::Nine,        55, 109, 25, KeyColour::Digit,       Key::Nine},
    KeySource{PlotterKey::Parentheses, 82, 109, 24, KeyColour::Function,    Key::Parentheses},
    KeySource{PlotterKey::Power,      108, 109, 25, KeyColour::Function,    Key::Power},

    KeySource{PlotterKey::Four,         3, 120, 24, KeyColour::Digit,       Key::Four},
    KeySource{PlotterKey::Five,        29, 120, 24, KeyColour::Digit,       Key::Five},
    KeySource{PlotterKey::Six,         55, 120, 25, KeyColour::Digit,       Key::Six},
    KeySource{PlotterKey::Multiply,    82, 120, 24, KeyColour::Function,    Key::Multiply},
    KeySource{PlotterKey::Divide,     108, 120, 25, KeyColour::Function,    Key::Divide},

    KeySource{PlotterKey::One,          3, 131, 24, KeyColour::Digit,       Key::One},
    KeySource{PlotterKey::Two,         29, 131, 24, KeyColour::Digit,       Key::Two},
    KeySource{PlotterKey::Three,       55, 131, 25, KeyColour::Digit,       Key::Three},
    KeySource{PlotterKey::Plus,        82, 131, 24, KeyColour::Function,    Key::Add},
    KeySource{PlotterKey::Minus,      108, 131, 25, KeyColour::Function,    Key::Subtract},

    KeySource{PlotterKey::Zero,         3, 142, 24, KeyColour::Digit,       Key::Zero},
    KeySource{PlotterKey::Point,       29, 142, 24, KeyColour::Digit,       Key::Point},
    KeySource{PlotterKey::Exp,         55, 142, 25, KeyColour::Digit,       Key::Exp},
    // The factorial has a key of its own here, and so this one has no second function.
    KeySource{PlotterKey::Pi,          82, 142, 24, KeyColour::Function,    Key::Pi, Faces::Plain},
    KeySource{PlotterKey::Percent,    108, 142, 25, KeyColour::Function,    Key::Percent},
};
// clang-format on

constexpr std::size_t IndexOf(PlotterKey key) {
  return static_cast<std::size_t>(key);
}

constexpr bool AreInOrder() {
  std::size_t index = 0;
  for (const KeySource& source : kSources) {
    if (IndexOf(source.key) != index++) return false;
  }
  return index == IndexOf(PlotterKey::Percent) + 1;
}
static_assert(AreInOrder());

PlotterFace FaceFrom(const KeySource& source, Face face) {
  if (source.sameAs) {
    const KeyFace& same = FaceOf(*source.sameAs, face);
    return {same.caption, same.bare, same.selected};
  }
  if (source.text.empty()) return {source.caption, {}, {}};
  const KeyEdit insertion{KeyEdit::Kind::Insert, source.text, {}, 0};
  return {source.caption, insertion, insertion};
}

PlotterKeyRow RowFrom(const KeySource& source) {
  const Face plain = source.faces == Faces::Shifted ? Face::Shifted : Face::Plain;
  const Face shifted = source.faces == Faces::Plain ? Face::Plain : Face::Shifted;
  return {source.key,
          source.x,
          source.y,
          source.width,
          source.colour,
          FaceFrom(source, plain),
          FaceFrom(source, shifted)};
}

using Rows = std::array<PlotterKeyRow, kSources.size()>;

const Rows& AllRows() {
  static const Rows kRows = [] {
    Rows rows;
    std::transform(kSources.begin(), kSources.end(), rows.begin(), RowFrom);
    return rows;
  }();
  return kRows;
}

}  // namespace

std::span<const PlotterKeyRow> PlotterKeyRows() {
  return AllRows();
}

const PlotterKeyRow& RowOf(PlotterKey key) {
  return AllRows()[IndexOf(key)];
}

RangeFieldPlace PlaceOf(RangeField field) {
  const bool isUpper = field == RangeField::XMax || field == RangeField::YMax;
  const bool isOfX = field == RangeField::XMin || field == RangeField::XMax;
  const int x = isUpper ? 53 : 3;
  const int y = isOfX ? kGridBoxPlace.y : kLineBoxPlace.y;
  return {{x, y, 19, 11}, {x + 19, y, 29, 11}};
}

}  // namespace kav
