#include "plotter/plotter_keypad.h"

#include <array>
#include <cstddef>

#include "line/line_texts.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

using Source = KeySource<PlotterKey>;

// clang-format off
constexpr std::array kSources{
    Source{{PlotterKey::Add,           KeyAt(109,   2, 24), KeyColour::Orange},
           {}, kAddCaption, Faces::Both, {}, kAddName},
    Source{{PlotterKey::Plot,          KeyAt(109,  13, 24), KeyColour::Equals},         {}, kPlotCaption, Faces::Both, {}, kPlotName},
    Source{{PlotterKey::DeleteEquation, KeyAt(109,  25, 24), KeyColour::Orange, "Alt+R"},
           {}, kDeleteEquationCaption, Faces::Both, {}, kDeleteEquationName},

    Source{{PlotterKey::Deg,           KeyAt(  3,  63, 20), KeyColour::Mode, "Alt+D"},  Key::Deg},
    Source{{PlotterKey::Macro,         KeyAt( 26,  63, 19), KeyColour::Orange, "Alt+A"}, Key::Macro},
    Source{{PlotterKey::Backspace,     KeyAt( 47,  63, 19), KeyColour::Editing},        Key::Backspace},
    Source{{PlotterKey::Delete,        KeyAt( 68,  63, 20), KeyColour::Editing},        Key::Delete},
    Source{{PlotterKey::PlayBack,      KeyAt( 90,  63, 19), KeyColour::Editing, "Alt+P"}, Key::PlayBack},
    Source{{PlotterKey::Clear,         KeyAt(111,  63, 22), KeyColour::Editing},        Key::Clear},

    Source{{PlotterKey::Shift,         KeyAt(  3,  74, 24), KeyColour::Orange, "Alt+S"}, Key::Shift},
    Source{{PlotterKey::ShiftActive,   KeyAt(  3,  74, 24), KeyColour::ActiveShift, "Alt+S"}, Key::ShiftActive},
    Source{{PlotterKey::Variable,      KeyAt( 29,  74, 24), KeyColour::Function},
           {}, kVariableCaption, Faces::Both, kVariable, kVariableName},
    Source{{PlotterKey::Abs,           KeyAt( 55,  74, 25), KeyColour::Function},       Key::Abs},
    Source{{PlotterKey::Factorial,     KeyAt( 82,  74, 24), KeyColour::Function},       Key::Pi, {}, Faces::Shifted},
    Source{{PlotterKey::Ncr,           KeyAt(108,  74, 25), KeyColour::Function},       Key::Ncr},

    Source{{PlotterKey::Sin,           KeyAt(  3,  85, 24), KeyColour::Function},       Key::Sin},
    Source{{PlotterKey::Cos,           KeyAt( 29,  85, 24), KeyColour::Function},       Key::Cos},
    Source{{PlotterKey::Tan,           KeyAt( 55,  85, 25), KeyColour::Function},       Key::Tan},
    Source{{PlotterKey::Log,           KeyAt( 82,  85, 24), KeyColour::Function},       Key::Log},
    Source{{PlotterKey::Ln,            KeyAt(108,  85, 25), KeyColour::Function},       Key::Ln},

    Source{{PlotterKey::Sinh,          KeyAt(  3,  96, 24), KeyColour::Function},       Key::Sinh},
    Source{{PlotterKey::Cosh,          KeyAt( 29,  96, 24), KeyColour::Function},       Key::Cosh},
    Source{{PlotterKey::Tanh,          KeyAt( 55,  96, 25), KeyColour::Function},       Key::Tanh},
    Source{{PlotterKey::Sqrt,          KeyAt( 82,  96, 24), KeyColour::Function},       Key::Sqrt},
    Source{{PlotterKey::Square,        KeyAt(108,  96, 25), KeyColour::Function},       Key::Square},

    Source{{PlotterKey::Seven,         KeyAt(  3, 109, 24), KeyColour::Digit},          Key::Seven},
    Source{{PlotterKey::Eight,         KeyAt( 29, 109, 24), KeyColour::Digit},          Key::Eight},
    Source{{PlotterKey::Nine,          KeyAt( 55, 109, 25), KeyColour::Digit},          Key::Nine},
    Source{{PlotterKey::Parentheses,   KeyAt( 82, 109, 24), KeyColour::Function},       Key::Parentheses},
    Source{{PlotterKey::Power,         KeyAt(108, 109, 25), KeyColour::Function},       Key::Power},

    Source{{PlotterKey::Four,          KeyAt(  3, 120, 24), KeyColour::Digit},          Key::Four},
    Source{{PlotterKey::Five,          KeyAt( 29, 120, 24), KeyColour::Digit},          Key::Five},
    Source{{PlotterKey::Six,           KeyAt( 55, 120, 25), KeyColour::Digit},          Key::Six},
    Source{{PlotterKey::Multiply,      KeyAt( 82, 120, 24), KeyColour::Function},       Key::Multiply},
    Source{{PlotterKey::Divide,        KeyAt(108, 120, 25), KeyColour::Function},       Key::Divide},

    Source{{PlotterKey::One,           KeyAt(  3, 131, 24), KeyColour::Digit},          Key::One},
    Source{{PlotterKey::Two,           KeyAt( 29, 131, 24), KeyColour::Digit},          Key::Two},
    Source{{PlotterKey::Three,         KeyAt( 55, 131, 25), KeyColour::Digit},          Key::Three},
    Source{{PlotterKey::Plus,          KeyAt( 82, 131, 24), KeyColour::Function},       Key::Add},
    Source{{PlotterKey::Minus,         KeyAt(108, 131, 25), KeyColour::Function},       Key::Subtract},

    Source{{PlotterKey::Zero,          KeyAt(  3, 142, 24), KeyColour::Digit},          Key::Zero},
    Source{{PlotterKey::Point,         KeyAt( 29, 142, 24), KeyColour::Digit},          Key::Point},
    Source{{PlotterKey::Exp,           KeyAt( 55, 142, 25), KeyColour::Digit},          Key::Exp},
    // The factorial has a key of its own here, and so this one has no second function.
    Source{{PlotterKey::Pi,            KeyAt( 82, 142, 24), KeyColour::Function},       Key::Pi, {}, Faces::Plain},
    Source{{PlotterKey::Percent,       KeyAt(108, 142, 25), KeyColour::Function},       Key::Percent},
};
// clang-format on

static_assert(HoldEveryKey(kSources, PlotterKey::Percent));

const auto& AllRows() {
  static const auto kRows = RowsFrom(kSources);
  return kRows;
}

}  // namespace

std::span<const PlotterKeyRow> PlotterKeyRows() {
  return AllRows();
}

const PlotterKeyRow& RowOf(PlotterKey key) {
  return AllRows()[static_cast<std::size_t>(key)];
}

RangeFieldPlace PlaceOf(RangeField field) {
  const bool isUpper = field == RangeField::XMax || field == RangeField::YMax;
  const bool isOfX = field == RangeField::XMin || field == RangeField::XMax;
  const int x = isUpper ? 53 : 3;
  const int y = isOfX ? kGridBoxPlace.y : kLineBoxPlace.y;
  return {{x, y, 19, 11}, {x + 19, y, 29, 11}};
}

}  // namespace kav
