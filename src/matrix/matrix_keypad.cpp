#include "matrix/matrix_keypad.h"

#include <algorithm>
#include <array>

namespace kav {
namespace {

/// A key and, where it writes, the key of the scientific screen that writes the same.
struct KeySource {
  MatrixKey key;
  int x;
  int y;
  int width;
  KeyColour colour;
  std::u16string_view caption;
  std::optional<Key> writesAs;
};

// clang-format off
constexpr std::array kSources{
    KeySource{MatrixKey::Deg,           3,  24, 20, KeyColour::Mode,    u"DEG",    {}},
    KeySource{MatrixKey::Functions,    24,  24, 22, KeyColour::Orange,  u"F(X)",   {}},
    KeySource{MatrixKey::Tools,        47,  24, 24, KeyColour::Orange,  u"Tools",  {}},
    KeySource{MatrixKey::Backspace,    72,  24, 19, KeyColour::Editing, u"BS",     {}},
    KeySource{MatrixKey::Delete,       92,  24, 20, KeyColour::Editing, u"DEL",    {}},
    KeySource{MatrixKey::Clear,       113,  24, 20, KeyColour::Editing, u"CLR",    {}},

    KeySource{MatrixKey::ClearCells,  108,  35, 25, KeyColour::Orange,  u"M CLS",  {}},

    KeySource{MatrixKey::PlayBack,      3,  98, 24, KeyColour::Orange,  u"MPB",    {}},
    KeySource{MatrixKey::Operations,   29,  98, 24, KeyColour::Orange,  u"MOpers", {}},
    KeySource{MatrixKey::MatrixTools,  55,  98, 25, KeyColour::Orange,  u"MTools", {}},
    KeySource{MatrixKey::Variables,    82,  98, 24, KeyColour::Orange,  u"MVar",   {}},
    KeySource{MatrixKey::Size,        108,  98, 25, KeyColour::Orange,  u"MSize",  {}},

    KeySource{MatrixKey::Seven,         3, 109, 24, KeyColour::Digit,    u"7",     Key::Seven},
    KeySource{MatrixKey::Eight,        29, 109, 24, KeyColour::Digit,    u"8",     Key::Eight},
    KeySource{MatrixKey::Nine,         55, 109, 25, KeyColour::Digit,    u"9",     Key::Nine},
    KeySource{MatrixKey::Parentheses,  82, 109, 24, KeyColour::Function, u"(...)", Key::Parentheses},
    KeySource{MatrixKey::Power,       108, 109, 25, KeyColour::Function, u"Y^N",   Key::Power},

    KeySource{MatrixKey::Four,          3, 120, 24, KeyColour::Digit,    u"4",     Key::Four},
    KeySource{MatrixKey::Five,         29, 120, 24, KeyColour::Digit,    u"5",     Key::Five},
    KeySource{MatrixKey::Six,          55, 120, 25, KeyColour::Digit,    u"6",     Key::Six},
    KeySource{MatrixKey::Multiply,     82, 120, 24, KeyColour::Function, u"*",     Key::Multiply},
    KeySource{MatrixKey::Divide,      108, 120, 25, KeyColour::Function, u"/",     Key::Divide},

    KeySource{MatrixKey::One,           3, 131, 24, KeyColour::Digit,    u"1",     Key::One},
    KeySource{MatrixKey::Two,          29, 131, 24, KeyColour::Digit,    u"2",     Key::Two},
    KeySource{MatrixKey::Three,        55, 131, 25, KeyColour::Digit,    u"3",     Key::Three},
    KeySource{MatrixKey::Add,          82, 131, 24, KeyColour::Function, u"+",     Key::Add},
    KeySource{MatrixKey::Subtract,    108, 131, 25, KeyColour::Function, u"-",     Key::Subtract},

    KeySource{MatrixKey::Zero,          3, 142, 24, KeyColour::Digit,    u"0",     Key::Zero},
    KeySource{MatrixKey::DoubleZero,   29, 142, 24, KeyColour::Digit,    u"00",    Key::DoubleZero},
    KeySource{MatrixKey::Point,        55, 142, 25, KeyColour::Digit,    u".",     Key::Point},
    KeySource{MatrixKey::Exp,          82, 142, 24, KeyColour::Digit,    u"Exp",   Key::Exp},
    KeySource{MatrixKey::Equals,      108, 142, 25, KeyColour::Equals,   u"=",     {}},
};
// clang-format on

constexpr std::size_t IndexOf(MatrixKey key) {
  return static_cast<std::size_t>(key);
}

constexpr bool AreInOrder() {
  std::size_t index = 0;
  for (const KeySource& source : kSources) {
    if (IndexOf(source.key) != index++) return false;
  }
  return index == IndexOf(MatrixKey::Equals) + 1;
}
static_assert(AreInOrder());

using Rows = std::array<MatrixKeyRow, kSources.size()>;

MatrixKeyRow RowFrom(const KeySource& source) {
  MatrixKeyRow row{source.key,    source.x,       source.y, source.width,
                   source.colour, source.caption, {},       {}};
  if (!source.writesAs) return row;
  const KeyFace& face = FaceOf(*source.writesAs, Face::Plain);
  row.bare = face.bare;
  row.selected = face.selected;
  return row;
}

const Rows& AllRows() {
  static const Rows kRows = [] {
    Rows rows;
    std::transform(kSources.begin(), kSources.end(), rows.begin(), RowFrom);
    return rows;
  }();
  return kRows;
}

}  // namespace

std::span<const MatrixKeyRow> MatrixKeyRows() {
  return AllRows();
}

const MatrixKeyRow& RowOf(MatrixKey key) {
  return AllRows()[IndexOf(key)];
}

}  // namespace kav
