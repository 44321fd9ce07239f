#include "line/keypad.h"

#include <array>

#include "line/line_texts.h"

namespace kav {
namespace {

constexpr std::u16string_view kOpen = u"(";
constexpr std::u16string_view kClose = u")";

// clang-format off
constexpr std::array kPlaces{
    KeyPlace{Key::Deg,          KeyAt(  3,  34, 20), KeyColour::Mode, "Alt+D"},
    KeyPlace{Key::Dec,          KeyAt( 26,  34, 19), KeyColour::Mode, "Alt+B"},
    KeyPlace{Key::Backspace,    KeyAt( 47,  34, 19), KeyColour::Editing},
    KeyPlace{Key::Delete,       KeyAt( 68,  34, 20), KeyColour::Editing},
    KeyPlace{Key::PlayBack,     KeyAt( 90,  34, 19), KeyColour::Editing, "Alt+P"},
    KeyPlace{Key::Clear,        KeyAt(111,  34, 22), KeyColour::Editing},

    KeyPlace{Key::Shift,        KeyAt(  3,  61, 24), KeyColour::Orange, "Alt+S"},
    KeyPlace{Key::ShiftActive,  KeyAt(  3,  61, 24), KeyColour::ActiveShift, "Alt+S"},
    KeyPlace{Key::Macro,        KeyAt( 29,  61, 24), KeyColour::Orange, "Alt+A"},
    KeyPlace{Key::Converter,    KeyAt( 55,  61, 25), KeyColour::Orange, "Alt+N"},
    KeyPlace{Key::Abs,          KeyAt( 82,  61, 24), KeyColour::Function},
    KeyPlace{Key::MemoryMenu,   KeyAt(108,  61, 24), KeyColour::Orange, "Alt+C"},

    KeyPlace{Key::Sin,          KeyAt(  3,  72, 24), KeyColour::Function},
    KeyPlace{Key::Cos,          KeyAt( 29,  72, 24), KeyColour::Function},
    KeyPlace{Key::Tan,          KeyAt( 55,  72, 25), KeyColour::Function},
    KeyPlace{Key::Pi,           KeyAt( 82,  72, 24), KeyColour::Function},
    KeyPlace{Key::Ncr,          KeyAt(108,  72, 24), KeyColour::Function},

    KeyPlace{Key::Sinh,         KeyAt(  3,  83, 24), KeyColour::Function},
    KeyPlace{Key::Cosh,         KeyAt( 29,  83, 24), KeyColour::Function},
    KeyPlace{Key::Tanh,         KeyAt( 55,  83, 25), KeyColour::Function},
    KeyPlace{Key::Log,          KeyAt( 82,  83, 24), KeyColour::Function},
    KeyPlace{Key::Ln,           KeyAt(108,  83, 24), KeyColour::Function},

    KeyPlace{Key::Sqrt,         KeyAt(  3,  94, 24), KeyColour::Function},
    KeyPlace{Key::Square,       KeyAt( 29,  94, 24), KeyColour::Function},
    KeyPlace{Key::Power,        KeyAt( 55,  94, 25), KeyColour::Function},
    KeyPlace{Key::Percent,      KeyAt( 82,  94, 24), KeyColour::Function},
    KeyPlace{Key::Parentheses,  KeyAt(108,  94, 24), KeyColour::Function},

    KeyPlace{Key::Seven,        KeyAt(  3, 107, 24), KeyColour::Digit},
    KeyPlace{Key::Eight,        KeyAt( 29, 107, 24), KeyColour::Digit},
    KeyPlace{Key::Nine,         KeyAt( 55, 107, 25), KeyColour::Digit},
    KeyPlace{Key::Open,         KeyAt( 82, 107, 24), KeyColour::Function},
    KeyPlace{Key::Close,        KeyAt(108, 107, 24), KeyColour::Function},

    KeyPlace{Key::Four,         KeyAt(  3, 118, 24), KeyColour::Digit},
    KeyPlace{Key::Five,         KeyAt( 29, 118, 24), KeyColour::Digit},
    KeyPlace{Key::Six,          KeyAt( 55, 118, 25), KeyColour::Digit},
    KeyPlace{Key::Multiply,     KeyAt( 82, 118, 24), KeyColour::Function},
    KeyPlace{Key::Divide,       KeyAt(108, 118, 24), KeyColour::Function},

    KeyPlace{Key::One,          KeyAt(  3, 129, 24), KeyColour::Digit},
    KeyPlace{Key::Two,          KeyAt( 29, 129, 24), KeyColour::Digit},
    KeyPlace{Key::Three,        KeyAt( 55, 129, 25), KeyColour::Digit},
    KeyPlace{Key::Add,          KeyAt( 82, 129, 24), KeyColour::Function},
    KeyPlace{Key::Subtract,     KeyAt(108, 129, 24), KeyColour::Function},

    KeyPlace{Key::Zero,         KeyAt(  3, 140, 24), KeyColour::Digit},
    KeyPlace{Key::DoubleZero,   KeyAt( 29, 140, 24), KeyColour::Digit},
    KeyPlace{Key::Point,        KeyAt( 55, 140, 25), KeyColour::Digit},
    KeyPlace{Key::Exp,          KeyAt( 82, 140, 24), KeyColour::Digit},
    KeyPlace{Key::Equals,       KeyAt(108, 140, 24), KeyColour::Equals},

    // Each over the function key of that place.
    KeyPlace{Key::A,            KeyAt(  3,  94, 24), KeyColour::Digit},
    KeyPlace{Key::B,            KeyAt( 29,  94, 24), KeyColour::Digit},
    KeyPlace{Key::C,            KeyAt(  3,  83, 24), KeyColour::Digit},
    KeyPlace{Key::D,            KeyAt( 29,  83, 24), KeyColour::Digit},
    KeyPlace{Key::E,            KeyAt(  3,  72, 24), KeyColour::Digit},
    KeyPlace{Key::F,            KeyAt( 29,  72, 24), KeyColour::Digit},
};
// clang-format on

constexpr KeyEdit Insert(std::u16string_view text) {
  return {KeyEdit::Kind::Insert, text, {}, 0};
}

constexpr KeyEdit Wrap(std::u16string_view prefix, std::u16string_view suffix) {
  // An empty prefix moves nothing, yet its shift is that of a prefix of one character.
  return {KeyEdit::Kind::Wrap, prefix, suffix, prefix.empty() ? 0 : prefix.size() - 1};
}

/// A face of a key. In the functions below, `work` is its description.
struct FaceRow {
  Key key;
  Face face;
  KeyFace shown;
};

/// A key that acts on more than the line.
constexpr FaceRow Command(Key key, std::u16string_view caption, std::u16string_view work) {
  return {key, Face::Plain, {caption, {}, {}, work}};
}

/// Writes `text`, in place of a selection.
constexpr FaceRow Typed(Key key, Face face, std::u16string_view caption, std::u16string_view text,
                        std::u16string_view work) {
  return {key, face, {caption, Insert(text), Insert(text), work}};
}

/// Writes a function's name and parentheses around the selection.
constexpr FaceRow Function(Key key, Face face, std::u16string_view caption,
                           std::u16string_view prefix, std::u16string_view work) {
  return {key, face, {caption, Wrap(prefix, kClose), Wrap(prefix, kClose), work}};
}

/// Writes an operator; a selection becomes its left operand in parentheses. `closing` is ")" and
/// the operator.
constexpr FaceRow Operator(Key key, Face face, std::u16string_view caption,
                           std::u16string_view closing, std::u16string_view work) {
  return {key, face, {caption, Insert(closing.substr(kClose.size())), Wrap(kOpen, closing), work}};
}

/// Writes `text`; a selection becomes its operand within `prefix` and ")".
constexpr FaceRow Prefix(Key key, Face face, std::u16string_view caption, std::u16string_view text,
                         std::u16string_view prefix, std::u16string_view work) {
  return {key, face, {caption, Insert(text), Wrap(prefix, kClose), work}};
}

/// A sign. Without the parentheses of an operator, it is written one character behind the end of
/// the selection.
constexpr FaceRow Sign(Key key, std::u16string_view sign, std::u16string_view work) {
  return {key, Face::Plain, {sign, Insert(sign), Wrap({}, sign), work}};
}

constexpr KeyEdit RootEdit(KeyEdit::Kind kind) {
  return {kind, u"^(1/", kClose, 3};
}

// clang-format off
constexpr std::array kFaces{
    Command(Key::Deg, kDegreesCaption, u"degrees or radians: switches the unit of angles"),
    Command(Key::Dec, kDecimalCaption, u"choose the number base: binary, octal, decimal or hexadecimal"),
    Command(Key::Backspace, u"BS", u"delete the character before the caret, or the selection"),
    Command(Key::Delete, u"DEL", u"delete the character after the caret, or the selection"),
    Command(Key::PlayBack, u"PB", u"play back: put a line or an answer of the history at the caret"),
    Command(Key::Clear, u"CLR", u"clear the line"),

    Command(Key::Shift, u"Shift", u"show the second functions of the keys"),
    Command(Key::ShiftActive, u"Shift", u"on: go back to the first functions of the keys"),
    Command(Key::Macro, u"Mac", u"write a call of one of your macros"),
    Command(Key::Converter, u"Cnv", u"convert the answer between units"),
    Function(Key::Abs, Face::Plain,   u"ABS()", u"abs(", u"absolute value: the number without its sign"),
    Function(Key::Abs, Face::Shifted, u"INT()", u"int(", u"whole part of a number"),
    Command(Key::MemoryMenu, u"M/C", u"memory, memory variables and constants"),

    Function(Key::Sin, Face::Plain,   u"SIN",  u"sin(", u"sine of an angle"),
    Function(Key::Sin, Face::Shifted, u"ASIN", u"asin(", u"angle of a sine"),
    Function(Key::Cos, Face::Plain,   u"COS",  u"cos(", u"cosine of an angle"),
    Function(Key::Cos, Face::Shifted, u"ACOS", u"acos(", u"angle of a cosine"),
    Function(Key::Tan, Face::Plain,   u"TAN",  u"tan(", u"tangent of an angle"),
    Function(Key::Tan, Face::Shifted, u"ATAN", u"atan(", u"angle of a tangent"),
    Typed   (Key::Pi,  Face::Plain,   u"Pi",   u"Pi", u"the number pi, 3.14159..."),
    Operator(Key::Pi,  Face::Shifted, u"X!",   u")!", u"factorial: the product of the whole numbers up to X"),
    Operator(Key::Pi,  Face::Base,    u"AND",  u") AND ", u"logical and: the bits that both numbers have"),
    Operator(Key::Ncr, Face::Plain,   u"nCr",  u")C", u"combinations: ways to choose r of n, in any order"),
    Operator(Key::Ncr, Face::Shifted, u"nPr",  u")P", u"permutations: ways to choose r of n, in their order"),
    Operator(Key::Ncr, Face::Base,    u"OR",   u") OR ", u"logical or: the bits that either number has"),

    Function(Key::Sinh, Face::Plain,   u"SINH", u"sinh(", u"hyperbolic sine"),
    Function(Key::Cosh, Face::Plain,   u"COSH", u"cosh(", u"hyperbolic cosine"),
    Function(Key::Tanh, Face::Plain,   u"TANH", u"tanh(", u"hyperbolic tangent"),
    Operator(Key::Tanh, Face::Shifted, u"<<",   u")<<", u"shift left: times 2 to the power of the right number"),
    Operator(Key::Tanh, Face::Base,    u"<<",   u")<<", u"shift left: times 2 to the power of the right number"),
    Function(Key::Log,  Face::Plain,   u"LOG",  u"log(", u"logarithm to the base 10"),
    Prefix  (Key::Log,  Face::Shifted, u"10^X", u"10^", u"10^(", u"10 to the power of X"),
    Operator(Key::Log,  Face::Base,    u"XOR",  u") XOR ", u"exclusive or: the bits that just one number has"),
    Function(Key::Ln,   Face::Plain,   u"LN",   u"ln(", u"natural logarithm, to the base e"),
    Function(Key::Ln,   Face::Shifted, u"EXP",  u"exp(", u"e to the power of X"),
    Operator(Key::Ln,   Face::Base,    u"XNOR", u") XNOR ", u"negated exclusive or: the bits in which both numbers agree"),

    Function(Key::Sqrt,    Face::Plain,   u"SQRT", u"sqrt(", u"square root"),
    FaceRow {Key::Sqrt,    Face::Shifted, {u"XthR", RootEdit(KeyEdit::Kind::Wrap), RootEdit(KeyEdit::Kind::WrapTwice), u"X-th root of what stands before it"}},
    Operator(Key::Square,  Face::Plain,   u"X^2",  u")^2", u"square: X times X"),
    Prefix  (Key::Square,  Face::Shifted, u"1/X",  u"1/", u"1/(", u"reciprocal: 1 divided by X"),
    Operator(Key::Power,   Face::Plain,   u"Y^X",  u")^", u"power: Y to the power of X"),
    Operator(Key::Power,   Face::Shifted, u">>",   u")>>", u"shift right: divided by 2 to the power of the right number"),
    Operator(Key::Percent, Face::Plain,   u"%",    u")%", u"remainder of a division"),
    Function(Key::Percent, Face::Shifted, u"FRAC", u"frac(", u"fraction: what stands behind the point"),
    Prefix  (Key::Percent, Face::Base,    u"NOT",  u" NOT ", u"NOT(", u"logical not: every bit turned over"),
    Function(Key::Parentheses, Face::Plain, u"(...)", kOpen, u"parentheses around the selection, or around the caret"),

    Typed   (Key::Seven,    Face::Plain, u"7", u"7", u"the digit seven"),
    Typed   (Key::Eight,    Face::Plain, u"8", u"8", u"the digit eight"),
    Typed   (Key::Nine,     Face::Plain, u"9", u"9", u"the digit nine"),
    Typed   (Key::Open,     Face::Plain, u"(", u"(", u"opening parenthesis"),
    Typed   (Key::Close,    Face::Plain, u")", u")", u"closing parenthesis"),
    Typed   (Key::Four,     Face::Plain, u"4", u"4", u"the digit four"),
    Typed   (Key::Five,     Face::Plain, u"5", u"5", u"the digit five"),
    Typed   (Key::Six,      Face::Plain, u"6", u"6", u"the digit six"),
    Operator(Key::Multiply, Face::Plain, u"*", u")*", u"multiply by what follows"),
    Operator(Key::Divide,   Face::Plain, u"/", u")/", u"divide by what follows"),
    Typed   (Key::One,      Face::Plain, u"1", u"1", u"the digit one"),
    Typed   (Key::Two,      Face::Plain, u"2", u"2", u"the digit two"),
    Typed   (Key::Three,    Face::Plain, u"3", u"3", u"the digit three"),
    Sign    (Key::Add,      u"+", u"add what follows, or a plus sign"),
    Sign    (Key::Subtract, u"-", u"subtract what follows, or a minus sign"),
    Typed   (Key::Zero,       Face::Plain, u"0",   u"0", u"the digit zero"),
    Typed   (Key::DoubleZero, Face::Plain, u"00",  u"00", u"two zeros"),
    Typed   (Key::Point,      Face::Plain, u".",   u".", u"decimal point"),
    Typed   (Key::Exp,        Face::Plain, u"Exp", u"E", u"times 10 to the power of the number that follows"),
    Command (Key::Equals, u"=", u"calculate the line"),

    Typed(Key::A, Face::Plain, u"A", u"A", u"the hexadecimal digit A, 10"),
    Typed(Key::B, Face::Plain, u"B", u"B", u"the hexadecimal digit B, 11"),
    Typed(Key::C, Face::Plain, u"C", u"C", u"the hexadecimal digit C, 12"),
    Typed(Key::D, Face::Plain, u"D", u"D", u"the hexadecimal digit D, 13"),
    Typed(Key::E, Face::Plain, u"E", u"E", u"the hexadecimal digit E, 14"),
    Typed(Key::F, Face::Plain, u"F", u"F", u"the hexadecimal digit F, 15"),
};
// clang-format on

/// Whether there is a place for each key and one plain face, both in the order of the keys.
constexpr bool TablesHoldEveryKey() {
  std::size_t places = 0;
  for (const KeyPlace& place : kPlaces) {
    if (static_cast<std::size_t>(place.key) != places++) return false;
  }
  std::size_t faces = 0;
  for (const FaceRow& row : kFaces) {
    if (row.face != Face::Plain) continue;
    if (static_cast<std::size_t>(row.key) != faces++) return false;
  }
  return faces == places;
}
static_assert(kPlaces.size() == static_cast<std::size_t>(Key::F) + 1);
static_assert(TablesHoldEveryKey());

void ApplyEdit(const KeyEdit& edit, ExpressionLine& line) {
  switch (edit.kind) {
    case KeyEdit::Kind::Insert:
      line.InsertText(edit.prefix);
      return;
    case KeyEdit::Kind::WrapTwice:
      line.WrapSelection(kOpen, kClose, 0);
      [[fallthrough]];
    case KeyEdit::Kind::Wrap:
      line.WrapSelection(edit.prefix, edit.suffix, edit.shift);
  }
}

}  // namespace

std::optional<MenuPlace> MenuPlaceOf(Key key) {
  switch (key) {
    case Key::PlayBack:
      return MenuPlace{195, 95, MenuSide::Right};
    case Key::Dec:
      return MenuPlace{80, 90, MenuSide::Left};
    case Key::MemoryMenu:
      return MenuPlace{189, 138, MenuSide::Right};
    default:
      return std::nullopt;
  }
}

std::span<const KeyPlace> KeyPlaces() {
  return kPlaces;
}

const KeyFace* FindFace(Key key, Face face) {
  for (const FaceRow& row : kFaces) {
    if (row.key == key && row.face == face) return &row.shown;
  }
  return nullptr;
}

const KeyFace& FaceOf(Key key, Face face) {
  const KeyFace* plain = &kFaces.front().shown;  // until that of the key comes: every key has one
  for (const FaceRow& row : kFaces) {
    if (row.key != key) continue;
    if (row.face == face) return row.shown;
    if (row.face == Face::Plain) plain = &row.shown;
  }
  return *plain;
}

void ApplyFace(const KeyFace& face, ExpressionLine& line) {
  const auto& edit = line.Selected().IsEmpty() ? face.bare : face.selected;
  if (edit) ApplyEdit(*edit, line);
}

}  // namespace kav
