#include "matrix/matrix_keypad.h"

#include <array>
#include <cstddef>

namespace kav {
namespace {

using Source = KeySource<MatrixKey>;

// clang-format off
constexpr std::array kSources{
    Source{{MatrixKey::Deg,         KeyAt(  3,  24, 20), KeyColour::Mode, "Alt+D"},   Key::Deg},
    Source{{MatrixKey::Functions,   KeyAt( 24,  24, 22), KeyColour::Orange, "Alt+X"}, {}, u"F(X)", Faces::Both, {}, u"choose a function of numbers"},
    Source{{MatrixKey::Tools,       KeyAt( 47,  24, 24), KeyColour::Orange, "Alt+T"}, {}, u"Tools", Faces::Both, {}, u"constants, memory variables, the converter and macros"},
    Source{{MatrixKey::Backspace,   KeyAt( 72,  24, 19), KeyColour::Editing},         Key::Backspace},
    Source{{MatrixKey::Delete,      KeyAt( 92,  24, 20), KeyColour::Editing},         Key::Delete},
    Source{{MatrixKey::Clear,       KeyAt(113,  24, 20), KeyColour::Editing},         Key::Clear},

    Source{{MatrixKey::ClearCells,  KeyAt(108,  35, 25), KeyColour::Orange, "Alt+C"}, {}, u"M CLS", Faces::Both, {}, u"empty the selected cells"},

    Source{{MatrixKey::PlayBack,    KeyAt(  3,  98, 24), KeyColour::Orange, "Alt+P"}, {}, u"MPB", Faces::Both, {}, u"play back: put a line of the history at the caret"},
    Source{{MatrixKey::Operations,  KeyAt( 29,  98, 24), KeyColour::Orange, "Alt+O"}, {}, u"MOpers", Faces::Both, {}, u"choose an operation of matrices, such as the inverse"},
    Source{{MatrixKey::MatrixTools, KeyAt( 55,  98, 25), KeyColour::Orange, "Alt+L"}, {}, u"MTools", Faces::Both, {}, u"cut, copy, paste, save and load the matrix, and fit its columns"},
    Source{{MatrixKey::Variables,   KeyAt( 82,  98, 24), KeyColour::Orange, "Alt+V"}, {}, u"MVar", Faces::Both, {}, u"write the name of a matrix"},
    Source{{MatrixKey::Size,        KeyAt(108,  98, 25), KeyColour::Orange, "Alt+S"}, {}, u"MSize", Faces::Both, {}, u"choose the numbers of rows and columns"},

    Source{{MatrixKey::Seven,       KeyAt(  3, 109, 24), KeyColour::Digit},           Key::Seven},
    Source{{MatrixKey::Eight,       KeyAt( 29, 109, 24), KeyColour::Digit},           Key::Eight},
    Source{{MatrixKey::Nine,        KeyAt( 55, 109, 25), KeyColour::Digit},           Key::Nine},
    Source{{MatrixKey::Parentheses, KeyAt( 82, 109, 24), KeyColour::Function},        Key::Parentheses},
    Source{{MatrixKey::Power,       KeyAt(108, 109, 25), KeyColour::Function},        Key::Power, u"Y^N", Faces::Plain, {}, u"power: Y to the power of N"},

    Source{{MatrixKey::Four,        KeyAt(  3, 120, 24), KeyColour::Digit},           Key::Four},
    Source{{MatrixKey::Five,        KeyAt( 29, 120, 24), KeyColour::Digit},           Key::Five},
    Source{{MatrixKey::Six,         KeyAt( 55, 120, 25), KeyColour::Digit},           Key::Six},
    Source{{MatrixKey::Multiply,    KeyAt( 82, 120, 24), KeyColour::Function},        Key::Multiply},
    Source{{MatrixKey::Divide,      KeyAt(108, 120, 25), KeyColour::Function},        Key::Divide},

    Source{{MatrixKey::One,         KeyAt(  3, 131, 24), KeyColour::Digit},           Key::One},
    Source{{MatrixKey::Two,         KeyAt( 29, 131, 24), KeyColour::Digit},           Key::Two},
    Source{{MatrixKey::Three,       KeyAt( 55, 131, 25), KeyColour::Digit},           Key::Three},
    Source{{MatrixKey::Add,         KeyAt( 82, 131, 24), KeyColour::Function},        Key::Add},
    Source{{MatrixKey::Subtract,    KeyAt(108, 131, 25), KeyColour::Function},        Key::Subtract},

    Source{{MatrixKey::Zero,        KeyAt(  3, 142, 24), KeyColour::Digit},           Key::Zero},
    Source{{MatrixKey::DoubleZero,  KeyAt( 29, 142, 24), KeyColour::Digit},           Key::DoubleZero},
    Source{{MatrixKey::Point,       KeyAt( 55, 142, 25), KeyColour::Digit},           Key::Point},
    Source{{MatrixKey::Exp,         KeyAt( 82, 142, 24), KeyColour::Digit},           Key::Exp},
    Source{{MatrixKey::Equals,      KeyAt(108, 142, 25), KeyColour::Equals},          Key::Equals},
};
// clang-format on

static_assert(HoldEveryKey(kSources, MatrixKey::Equals));

const auto& AllRows() {
  static const auto kRows = RowsFrom(kSources);
  return kRows;
}

}  // namespace

std::span<const MatrixKeyRow> MatrixKeyRows() {
  return AllRows();
}

const MatrixKeyRow& RowOf(MatrixKey key) {
  return AllRows()[static_cast<std::size_t>(key)];
}

}  // namespace kav
