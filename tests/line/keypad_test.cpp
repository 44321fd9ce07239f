#include "line/keypad.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/number_text.h"
#include "support/marked_line.h"

namespace kav::keypad_test {
namespace {

using test::Marked;
using test::MarkedLine;

/// A key that writes: what it makes of "12|34" and of "1[23]45".
struct WritingRow {
  Key key;
  Face face;
  std::u16string_view caption;
  std::u16string_view bare;
  std::u16string_view selected;
};

// clang-format off
constexpr WritingRow kWritingRows[] = {
    {Key::Zero,       Face::Plain, u"0",   u"120|34",  u"10|45"},
    {Key::DoubleZero, Face::Plain, u"00",  u"1200|34", u"100|45"},
    {Key::Point,      Face::Plain, u".",   u"12.|34",  u"1.|45"},
    {Key::Exp,        Face::Plain, u"Exp", u"12E|34",  u"1E|45"},
    {Key::One,        Face::Plain, u"1",   u"121|34",  u"11|45"},
    {Key::Two,        Face::Plain, u"2",   u"122|34",  u"12|45"},
    {Key::Three,      Face::Plain, u"3",   u"123|34",  u"13|45"},
    {Key::Four,       Face::Plain, u"4",   u"124|34",  u"14|45"},
    {Key::Five,       Face::Plain, u"5",   u"125|34",  u"15|45"},
    {Key::Six,        Face::Plain, u"6",   u"126|34",  u"16|45"},
    {Key::Seven,      Face::Plain, u"7",   u"127|34",  u"17|45"},
    {Key::Eight,      Face::Plain, u"8",   u"128|34",  u"18|45"},
    {Key::Nine,       Face::Plain, u"9",   u"129|34",  u"19|45"},
    {Key::A,          Face::Plain, u"A",   u"12A|34",  u"1A|45"},
    {Key::B,          Face::Plain, u"B",   u"12B|34",  u"1B|45"},
    {Key::C,          Face::Plain, u"C",   u"12C|34",  u"1C|45"},
    {Key::D,          Face::Plain, u"D",   u"12D|34",  u"1D|45"},
    {Key::E,          Face::Plain, u"E",   u"12E|34",  u"1E|45"},
    {Key::F,          Face::Plain, u"F",   u"12F|34",  u"1F|45"},

    {Key::Add,         Face::Plain, u"+",     u"12+|34",   u"1234+|5"},
    {Key::Subtract,    Face::Plain, u"-",     u"12-|34",   u"1234-|5"},
    {Key::Multiply,    Face::Plain, u"*",     u"12*|34",   u"1(23)*|45"},
    {Key::Divide,      Face::Plain, u"/",     u"12/|34",   u"1(23)/|45"},
    {Key::Open,        Face::Plain, u"(",     u"12(|34",   u"1(|45"},
    {Key::Close,       Face::Plain, u")",     u"12)|34",   u"1)|45"},
    {Key::Parentheses, Face::Plain, u"(...)", u"12(|)34",  u"1(23)|45"},

    {Key::Sinh, Face::Plain,   u"SINH", u"12sinh(|)34", u"1sinh(23)|45"},
    {Key::Cosh, Face::Plain,   u"COSH", u"12cosh(|)34", u"1cosh(23)|45"},
    {Key::Tanh, Face::Plain,   u"TANH", u"12tanh(|)34", u"1tanh(23)|45"},
    {Key::Tanh, Face::Shifted, u"<<",   u"12<<|34",     u"1(23)<<|45"},
    {Key::Tanh, Face::Base,    u"<<",   u"12<<|34",     u"1(23)<<|45"},
    {Key::Sin,  Face::Plain,   u"SIN",  u"12sin(|)34",  u"1sin(23)|45"},
    {Key::Sin,  Face::Shifted, u"ASIN", u"12asin(|)34", u"1asin(23)|45"},
    {Key::Cos,  Face::Plain,   u"COS",  u"12cos(|)34",  u"1cos(23)|45"},
    {Key::Cos,  Face::Shifted, u"ACOS", u"12acos(|)34", u"1acos(23)|45"},
    {Key::Tan,  Face::Plain,   u"TAN",  u"12tan(|)34",  u"1tan(23)|45"},
    {Key::Tan,  Face::Shifted, u"ATAN", u"12atan(|)34", u"1atan(23)|45"},

    {Key::Log,     Face::Plain,   u"LOG",   u"12log(|)34",  u"1log(23)|45"},
    {Key::Log,     Face::Shifted, u"10^X",  u"1210^|34",    u"110^(23)|45"},
    {Key::Log,     Face::Base,    u"XOR",   u"12 XOR |34",  u"1(23) XOR |45"},
    {Key::Ln,      Face::Plain,   u"LN",    u"12ln(|)34",   u"1ln(23)|45"},
    {Key::Ln,      Face::Shifted, u"EXP",   u"12exp(|)34",  u"1exp(23)|45"},
    {Key::Ln,      Face::Base,    u"XNOR",  u"12 XNOR |34", u"1(23) XNOR |45"},
    {Key::Sqrt,    Face::Plain,   u"SQRT",  u"12sqrt(|)34", u"1sqrt(23)|45"},
    {Key::Sqrt,    Face::Shifted, u"XthR",  u"12^(1/|)34",  u"1(23)^(1/|)45"},
    {Key::Square,  Face::Plain,   u"X^2",   u"12^2|34",     u"1(23)^2|45"},
    {Key::Square,  Face::Shifted, u"1/X",   u"121/|34",     u"11/(23)|45"},
    {Key::Power,   Face::Plain,   u"Y^X",   u"12^|34",      u"1(23)^|45"},
    {Key::Power,   Face::Shifted, u">>",    u"12>>|34",     u"1(23)>>|45"},
    {Key::Ncr,     Face::Plain,   u"nCr",   u"12C|34",      u"1(23)C|45"},
    {Key::Ncr,     Face::Shifted, u"nPr",   u"12P|34",      u"1(23)P|45"},
    {Key::Ncr,     Face::Base,    u"OR",    u"12 OR |34",   u"1(23) OR |45"},
    {Key::Abs,     Face::Plain,   u"ABS()", u"12abs(|)34",  u"1abs(23)|45"},
    {Key::Abs,     Face::Shifted, u"INT()", u"12int(|)34",  u"1int(23)|45"},
    {Key::Pi,      Face::Plain,   u"Pi",    u"12Pi|34",     u"1Pi|45"},
    {Key::Pi,      Face::Shifted, u"X!",    u"12!|34",      u"1(23)!|45"},
    {Key::Pi,      Face::Base,    u"AND",   u"12 AND |34",  u"1(23) AND |45"},
    {Key::Percent, Face::Plain,   u"%",     u"12%|34",      u"1(23)%|45"},
    {Key::Percent, Face::Shifted, u"FRAC",  u"12frac(|)34", u"1frac(23)|45"},
    {Key::Percent, Face::Base,    u"NOT",   u"12 NOT |34",  u"1NOT(23)|45"},
};

/// A key that acts on more than the line.
struct CommandRow {
  Key key;
  std::u16string_view caption;
};
constexpr CommandRow kCommandRows[] = {
    {Key::Deg, u"DEG"}, {Key::Dec, u"DEC"}, {Key::Backspace, u"BS"}, {Key::Delete, u"DEL"},
    {Key::PlayBack, u"PB"}, {Key::Clear, u"CLR"}, {Key::Shift, u"Shift"},
    {Key::ShiftActive, u"Shift"}, {Key::Macro, u"Mac"}, {Key::Converter, u"Cnv"},
    {Key::MemoryMenu, u"M/C"}, {Key::Equals, u"="},
};

struct PlaceRow {
  Key key;
  int x;
  int y;
  int width;
  KeyColour colour;
};
constexpr PlaceRow kPlaceRows[] = {
    {Key::Deg,           3,  34, 20, KeyColour::Mode},
    {Key::Dec,          26,  34, 19, KeyColour::Mode},
    {Key::Backspace,    47,  34, 19, KeyColour::Editing},
    {Key::Delete,       68,  34, 20, KeyColour::Editing},
    {Key::PlayBack,     90,  34, 19, KeyColour::Editing},
    {Key::Clear,       111,  34, 22, KeyColour::Editing},
    {Key::Shift,         3,  61, 24, KeyColour::Orange},
    {Key::ShiftActive,   3,  61, 24, KeyColour::ActiveShift},
    {Key::Macro,        29,  61, 24, KeyColour::Orange},
    {Key::Converter,    55,  61, 25, KeyColour::Orange},
    {Key::Abs,          82,  61, 24, KeyColour::Function},
    {Key::MemoryMenu,  108,  61, 24, KeyColour::Orange},
    {Key::Sin,           3,  72, 24, KeyColour::Function},
    {Key::E,             3,  72, 24, KeyColour::Digit},
    {Key::Cos,          29,  72, 24, KeyColour::Function},
    {Key::F,            29,  72, 24, KeyColour::Digit},
    {Key::Tan,          55,  72, 25, KeyColour::Function},
    {Key::Pi,           82,  72, 24, KeyColour::Function},
    {Key::Ncr,         108,  72, 24, KeyColour::Function},
    {Key::Sinh,          3,  83, 24, KeyColour::Function},
    {Key::C,             3,  83, 24, KeyColour::Digit},
    {Key::Cosh,         29,  83, 24, KeyColour::Function},
    {Key::D,            29,  83, 24, KeyColour::Digit},
    {Key::Tanh,         55,  83, 25, KeyColour::Function},
    {Key::Log,          82,  83, 24, KeyColour::Function},
    {Key::Ln,          108,  83, 24, KeyColour::Function},
    {Key::Sqrt,          3,  94, 24, KeyColour::Function},
    {Key::A,             3,  94, 24, KeyColour::Digit},
    {Key::Square,       29,  94, 24, KeyColour::Function},
    {Key::B,            29,  94, 24, KeyColour::Digit},
    {Key::Power,        55,  94, 25, KeyColour::Function},
    {Key::Percent,      82,  94, 24, KeyColour::Function},
    {Key::Parentheses, 108,  94, 24, KeyColour::Function},
    {Key::Seven,         3, 107, 24, KeyColour::Digit},
    {Key::Eight,        29, 107, 24, KeyColour::Digit},
    {Key::Nine,         55, 107, 25, KeyColour::Digit},
    {Key::Open,         82, 107, 24, KeyColour::Function},
    {Key::Close,       108, 107, 24, KeyColour::Function},
    {Key::Four,          3, 118, 24, KeyColour::Digit},
    {Key::Five,         29, 118, 24, KeyColour::Digit},
    {Key::Six,          55, 118, 25, KeyColour::Digit},
    {Key::Multiply,     82, 118, 24, KeyColour::Function},
    {Key::Divide,      108, 118, 24, KeyColour::Function},
    {Key::One,           3, 129, 24, KeyColour::Digit},
    {Key::Two,          29, 129, 24, KeyColour::Digit},
    {Key::Three,        55, 129, 25, KeyColour::Digit},
    {Key::Add,          82, 129, 24, KeyColour::Function},
    {Key::Subtract,    108, 129, 24, KeyColour::Function},
    {Key::Zero,          3, 140, 24, KeyColour::Digit},
    {Key::DoubleZero,   29, 140, 24, KeyColour::Digit},
    {Key::Point,        55, 140, 25, KeyColour::Digit},
    {Key::Exp,          82, 140, 24, KeyColour::Digit},
    {Key::Equals,      108, 140, 24, KeyColour::Equals},
};
// clang-format on

std::u16string After(std::u16string_view before, const KeyFace& face) {
  ExpressionLine line = MarkedLine(before);
  ApplyFace(face, line);
  return Marked(line);
}

TEST(Keypad, WritingKeysEditTheLineWithAndWithoutASelection) {
  for (const WritingRow& row : kWritingRows) {
    ASSERT_NE(FindFace(row.key, row.face), nullptr) << Narrow(row.caption);
    const KeyFace& face = FaceOf(row.key, row.face);
    EXPECT_EQ(face.caption, row.caption);
    EXPECT_EQ(After(u"12|34", face), row.bare) << Narrow(row.caption);
    EXPECT_EQ(After(u"1[23]45", face), row.selected) << Narrow(row.caption);
  }
}

TEST(Keypad, CommandKeysWriteNothing) {
  for (const CommandRow& row : kCommandRows) {
    const KeyFace& face = FaceOf(row.key, Face::Plain);
    EXPECT_EQ(face.caption, row.caption);
    EXPECT_FALSE(face.bare || face.selected) << Narrow(row.caption);
    EXPECT_EQ(After(u"1[23]45", face), u"1[23]45");
  }
}

TEST(Keypad, EveryKeyIsInTheTablesOfThisTest) {
  for (const KeyPlace& place : KeyPlaces()) {
    const auto isKey = [&place](const auto& row) { return row.key == place.key; };
    const auto writing = std::count_if(std::begin(kWritingRows), std::end(kWritingRows), isKey);
    const auto commands = std::count_if(std::begin(kCommandRows), std::end(kCommandRows), isKey);
    EXPECT_TRUE((writing > 0) != (commands == 1)) << static_cast<int>(place.key);
  }
}

TEST(Keypad, KeysWithoutAFaceOfItsOwnShowThePlainOne) {
  EXPECT_EQ(FaceOf(Key::Sinh, Face::Shifted).caption, u"SINH");
  EXPECT_EQ(FaceOf(Key::Cosh, Face::Shifted).caption, u"COSH");
  EXPECT_EQ(FaceOf(Key::Seven, Face::Base).caption, u"7");
  EXPECT_EQ(FaceOf(Key::Sin, Face::Base).caption, u"SIN");
  EXPECT_EQ(FaceOf(Key::Equals, Face::Shifted).caption, u"=");
}

TEST(Keypad, ThirteenKeysHaveASecondFunction) {
  std::vector<Key> shifted;
  for (const KeyPlace& place : KeyPlaces()) {
    if (FindFace(place.key, Face::Shifted) != nullptr) shifted.push_back(place.key);
  }
  EXPECT_EQ(shifted.size(), 13U);
}

TEST(Keypad, EmptyLineTakesAFunctionWithTheCaretInItsParentheses) {
  EXPECT_EQ(After(u"|", FaceOf(Key::Sin, Face::Plain)), u"sin(|)");
  EXPECT_EQ(After(u"[45]", FaceOf(Key::Sin, Face::Plain)), u"sin(45)|");
  EXPECT_EQ(After(u"[45]", FaceOf(Key::Sin, Face::Shifted)), u"asin(45)|");
  EXPECT_EQ(After(u"[8]", FaceOf(Key::Sqrt, Face::Shifted)), u"(8)^(1/|)");
}

TEST(Keypad, SignGoesOneCharacterBehindTheSelectionOrToTheEndOfTheLine) {
  EXPECT_EQ(After(u"1[23]45", FaceOf(Key::Add, Face::Plain)), u"1234+|5");
  EXPECT_EQ(After(u"123[45]", FaceOf(Key::Add, Face::Plain)), u"12345+|");
  EXPECT_EQ(After(u"123[4]5", FaceOf(Key::Subtract, Face::Plain)), u"12345-|");
}

TEST(Keypad, KeysStandWhereTheyAlwaysStood) {
  const auto places = KeyPlaces();
  ASSERT_EQ(places.size(), std::size(kPlaceRows));
  for (const PlaceRow& row : kPlaceRows) {
    const auto place = std::find_if(places.begin(), places.end(),
                                    [&row](const KeyPlace& each) { return each.key == row.key; });
    ASSERT_NE(place, places.end());
    EXPECT_EQ(place->place.x, row.x) << static_cast<int>(row.key);
    EXPECT_EQ(place->place.y, row.y) << static_cast<int>(row.key);
    EXPECT_EQ(place->place.width, row.width) << static_cast<int>(row.key);
    EXPECT_EQ(place->colour, row.colour) << static_cast<int>(row.key);
  }
  EXPECT_EQ(kKeyHeight, 10);
}

TEST(Keypad, ScreenEndsThreeUnitsBehindTheOutermostKeys) {
  int right = 0;
  int bottom = 0;
  for (const KeyPlace& key : KeyPlaces()) {
    right = std::max(right, key.place.x + key.place.width);
    bottom = std::max(bottom, key.place.y + kKeyHeight);
  }
  EXPECT_EQ(right, 133);
  EXPECT_EQ(bottom, 150);
  EXPECT_EQ(kScreenWidth, 136);
  EXPECT_EQ(kScreenHeight, 153);
}

TEST(Keypad, LinesStandAboveTheKeys) {
  EXPECT_EQ(kExpressionPlace.x, 3);
  EXPECT_EQ(kExpressionPlace.y, 3);
  EXPECT_EQ(kExpressionPlace.width, 130);
  EXPECT_EQ(kExpressionPlace.height, 28);
  EXPECT_EQ(kResultPlace.x, 3);
  EXPECT_EQ(kResultPlace.y, 47);
  EXPECT_EQ(kResultPlace.width, 130);
  EXPECT_EQ(kResultPlace.height, 11);
}

}  // namespace
}  // namespace kav::keypad_test
