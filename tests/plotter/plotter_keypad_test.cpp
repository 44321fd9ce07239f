#include "plotter/plotter_keypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "common/number_text.h"
#include "support/marked_line.h"

namespace kav::plotter_keypad_test {
namespace {

using test::Marked;
using test::MarkedLine;

struct ExpectedRow {
  PlotterKey key;
  KeyColour colour;
  std::u16string_view plain;
  std::u16string_view shifted;
};

// clang-format off
constexpr ExpectedRow kKeyRows[] = {
    {PlotterKey::Add,            KeyColour::Orange,      u"A",     u"A"},
    {PlotterKey::Plot,           KeyColour::Equals,      u"Plot",  u"Plot"},
    {PlotterKey::DeleteEquation, KeyColour::Orange,      u"D",     u"D"},
    {PlotterKey::Deg,            KeyColour::Mode,        u"DEG",   u"DEG"},
    {PlotterKey::Macro,          KeyColour::Orange,      u"Mac",   u"Mac"},
    {PlotterKey::Backspace,      KeyColour::Editing,     u"BS",    u"BS"},
    {PlotterKey::Delete,         KeyColour::Editing,     u"DEL",   u"DEL"},
    {PlotterKey::PlayBack,       KeyColour::Editing,     u"PB",    u"PB"},
    {PlotterKey::Clear,          KeyColour::Editing,     u"CLR",   u"CLR"},
    {PlotterKey::Shift,          KeyColour::Orange,      u"Shift", u"Shift"},
    {PlotterKey::ShiftActive,    KeyColour::ActiveShift, u"Shift", u"Shift"},
    {PlotterKey::Variable,       KeyColour::Function,    u"X-Var", u"X-Var"},
    {PlotterKey::Abs,            KeyColour::Function,    u"ABS()", u"INT()"},
    {PlotterKey::Factorial,      KeyColour::Function,    u"X!",    u"X!"},
    {PlotterKey::Ncr,            KeyColour::Function,    u"nCr",   u"nPr"},
    {PlotterKey::Sin,            KeyColour::Function,    u"SIN",   u"ASIN"},
    {PlotterKey::Cos,            KeyColour::Function,    u"COS",   u"ACOS"},
    {PlotterKey::Tan,            KeyColour::Function,    u"TAN",   u"ATAN"},
    {PlotterKey::Log,            KeyColour::Function,    u"LOG",   u"10^X"},
    {PlotterKey::Ln,             KeyColour::Function,    u"LN",    u"EXP"},
    {PlotterKey::Sinh,           KeyColour::Function,    u"SINH",  u"SINH"},
    {PlotterKey::Cosh,           KeyColour::Function,    u"COSH",  u"COSH"},
    {PlotterKey::Tanh,           KeyColour::Function,    u"TANH",  u"<<"},
    {PlotterKey::Sqrt,           KeyColour::Function,    u"SQRT",  u"XthR"},
    {PlotterKey::Square,         KeyColour::Function,    u"X^2",   u"1/X"},
    {PlotterKey::Seven,          KeyColour::Digit,       u"7",     u"7"},
    {PlotterKey::Eight,          KeyColour::Digit,       u"8",     u"8"},
    {PlotterKey::Nine,           KeyColour::Digit,       u"9",     u"9"},
    {PlotterKey::Parentheses,    KeyColour::Function,    u"(...)", u"(...)"},
    {PlotterKey::Power,          KeyColour::Function,    u"Y^X",   u">>"},
    {PlotterKey::Four,           KeyColour::Digit,       u"4",     u"4"},
    {PlotterKey::Five,           KeyColour::Digit,       u"5",     u"5"},
    {PlotterKey::Six,            KeyColour::Digit,       u"6",     u"6"},
    {PlotterKey::Multiply,       KeyColour::Function,    u"*",     u"*"},
    {PlotterKey::Divide,         KeyColour::Function,    u"/",     u"/"},
    {PlotterKey::One,            KeyColour::Digit,       u"1",     u"1"},
    {PlotterKey::Two,            KeyColour::Digit,       u"2",     u"2"},
    {PlotterKey::Three,          KeyColour::Digit,       u"3",     u"3"},
    {PlotterKey::Plus,           KeyColour::Function,    u"+",     u"+"},
    {PlotterKey::Minus,          KeyColour::Function,    u"-",     u"-"},
    {PlotterKey::Zero,           KeyColour::Digit,       u"0",     u"0"},
    {PlotterKey::Point,          KeyColour::Digit,       u".",     u"."},
    {PlotterKey::Exp,            KeyColour::Digit,       u"Exp",   u"Exp"},
    {PlotterKey::Pi,             KeyColour::Function,    u"Pi",    u"Pi"},
    {PlotterKey::Percent,        KeyColour::Function,    u"%",     u"FRAC"},
};

/// What a key makes of 12|34 and of 1[23]45.
struct WritingRow {
  PlotterKey key;
  ShiftState shift;
  std::u16string_view bare;
  std::u16string_view selected;
};

constexpr auto kOff = ShiftState::Off;
constexpr auto kOn = ShiftState::On;

constexpr WritingRow kWritingRows[] = {
    {PlotterKey::Variable,    kOff, u"12x|34",      u"1x|45"},
    {PlotterKey::Abs,         kOff, u"12abs(|)34",  u"1abs(23)|45"},
    {PlotterKey::Abs,         kOn,  u"12int(|)34",  u"1int(23)|45"},
    {PlotterKey::Factorial,   kOff, u"12!|34",      u"1(23)!|45"},
    {PlotterKey::Factorial,   kOn,  u"12!|34",      u"1(23)!|45"},
    {PlotterKey::Ncr,         kOff, u"12C|34",      u"1(23)C|45"},
    {PlotterKey::Ncr,         kOn,  u"12P|34",      u"1(23)P|45"},
    {PlotterKey::Sin,         kOff, u"12sin(|)34",  u"1sin(23)|45"},
    {PlotterKey::Sin,         kOn,  u"12asin(|)34", u"1asin(23)|45"},
    {PlotterKey::Cos,         kOff, u"12cos(|)34",  u"1cos(23)|45"},
    {PlotterKey::Cos,         kOn,  u"12acos(|)34", u"1acos(23)|45"},
    {PlotterKey::Tan,         kOff, u"12tan(|)34",  u"1tan(23)|45"},
    {PlotterKey::Tan,         kOn,  u"12atan(|)34", u"1atan(23)|45"},
    {PlotterKey::Log,         kOff, u"12log(|)34",  u"1log(23)|45"},
    {PlotterKey::Log,         kOn,  u"1210^|34",    u"110^(23)|45"},
    {PlotterKey::Ln,          kOff, u"12ln(|)34",   u"1ln(23)|45"},
    {PlotterKey::Ln,          kOn,  u"12exp(|)34",  u"1exp(23)|45"},
    {PlotterKey::Sinh,        kOff, u"12sinh(|)34", u"1sinh(23)|45"},
    {PlotterKey::Sinh,        kOn,  u"12sinh(|)34", u"1sinh(23)|45"},
    {PlotterKey::Cosh,        kOff, u"12cosh(|)34", u"1cosh(23)|45"},
    {PlotterKey::Cosh,        kOn,  u"12cosh(|)34", u"1cosh(23)|45"},
    {PlotterKey::Tanh,        kOff, u"12tanh(|)34", u"1tanh(23)|45"},
    {PlotterKey::Tanh,        kOn,  u"12<<|34",     u"1(23)<<|45"},
    {PlotterKey::Sqrt,        kOff, u"12sqrt(|)34", u"1sqrt(23)|45"},
    {PlotterKey::Sqrt,        kOn,  u"12^(1/|)34",  u"1(23)^(1/|)45"},
    {PlotterKey::Square,      kOff, u"12^2|34",     u"1(23)^2|45"},
    {PlotterKey::Square,      kOn,  u"121/|34",     u"11/(23)|45"},
    {PlotterKey::Parentheses, kOff, u"12(|)34",     u"1(23)|45"},
    {PlotterKey::Power,       kOff, u"12^|34",      u"1(23)^|45"},
    {PlotterKey::Power,       kOn,  u"12>>|34",     u"1(23)>>|45"},
    {PlotterKey::Multiply,    kOff, u"12*|34",      u"1(23)*|45"},
    {PlotterKey::Divide,      kOff, u"12/|34",      u"1(23)/|45"},
    {PlotterKey::Plus,        kOff, u"12+|34",      u"1234+|5"},
    {PlotterKey::Minus,       kOff, u"12-|34",      u"1234-|5"},
    {PlotterKey::Zero,        kOff, u"120|34",      u"10|45"},
    {PlotterKey::One,         kOff, u"121|34",      u"11|45"},
    {PlotterKey::Two,         kOff, u"122|34",      u"12|45"},
    {PlotterKey::Three,       kOff, u"123|34",      u"13|45"},
    {PlotterKey::Four,        kOff, u"124|34",      u"14|45"},
    {PlotterKey::Five,        kOff, u"125|34",      u"15|45"},
    {PlotterKey::Six,         kOff, u"126|34",      u"16|45"},
    {PlotterKey::Seven,       kOff, u"127|34",      u"17|45"},
    {PlotterKey::Eight,       kOff, u"128|34",      u"18|45"},
    {PlotterKey::Nine,        kOff, u"129|34",      u"19|45"},
    {PlotterKey::Point,       kOff, u"12.|34",      u"1.|45"},
    {PlotterKey::Exp,         kOff, u"12E|34",      u"1E|45"},
    {PlotterKey::Pi,          kOff, u"12Pi|34",     u"1Pi|45"},
    {PlotterKey::Pi,          kOn,  u"12Pi|34",     u"1Pi|45"},
    {PlotterKey::Percent,     kOff, u"12%|34",      u"1(23)%|45"},
    {PlotterKey::Percent,     kOn,  u"12frac(|)34", u"1frac(23)|45"},
};
// clang-format on

std::u16string After(std::u16string_view before, const KeyFace& face) {
  ExpressionLine line = MarkedLine(before);
  ApplyFace(face, line);
  return Marked(line);
}

TEST(PlotterKeypad, KeysAreCalledAndColouredAsTheTableSays) {
  const auto rows = PlotterKeyRows();
  ASSERT_EQ(rows.size(), std::size(kKeyRows));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const ExpectedRow& expected = kKeyRows[i];
    EXPECT_EQ(rows[i].key, expected.key) << i;
    EXPECT_EQ(rows[i].colour, expected.colour) << Narrow(expected.plain);
    EXPECT_EQ(rows[i].Shown(kOff).caption, expected.plain);
    EXPECT_EQ(rows[i].Shown(kOn).caption, expected.shifted);
  }
}

TEST(PlotterKeypad, RowOfAKeyIsItsRow) {
  for (const ExpectedRow& row : kKeyRows) EXPECT_EQ(RowOf(row.key).key, row.key);
}

TEST(PlotterKeypad, WritingKeysEditTheInputWithAndWithoutASelection) {
  for (const WritingRow& row : kWritingRows) {
    const KeyFace& face = RowOf(row.key).Shown(row.shift);
    EXPECT_EQ(After(u"12|34", face), row.bare) << Narrow(face.caption);
    EXPECT_EQ(After(u"1[23]45", face), row.selected) << Narrow(face.caption);
  }
}

TEST(PlotterKeypad, ASelectionFromRightToLeftExchangesPrefixAndSuffix) {
  EXPECT_EQ(After(u"1]23[45", RowOf(PlotterKey::Sin).plain), u"123)4sin(|5");
}

TEST(PlotterKeypad, KeysWithoutASecondFunctionWriteTheSameUnderShift) {
  for (const WritingRow& row : kWritingRows) {
    if (row.shift == kOn) continue;
    const PlotterKeyRow& key = RowOf(row.key);
    if (key.plain.caption != key.shifted.caption) continue;
    EXPECT_EQ(After(u"12|34", key.shifted), row.bare) << Narrow(key.plain.caption);
    EXPECT_EQ(After(u"1[23]45", key.shifted), row.selected) << Narrow(key.plain.caption);
  }
}

TEST(PlotterKeypad, AllOtherKeysWriteNothing) {
  std::set<PlotterKey> writing;
  for (const WritingRow& row : kWritingRows) writing.insert(row.key);
  int silent = 0;
  for (const PlotterKeyRow& row : PlotterKeyRows()) {
    if (writing.contains(row.key)) continue;
    ++silent;
    EXPECT_FALSE(row.plain.bare || row.plain.selected) << Narrow(row.plain.caption);
    EXPECT_FALSE(row.shifted.bare || row.shifted.selected) << Narrow(row.plain.caption);
  }
  EXPECT_EQ(silent, 11);
}

struct Area {
  int left;
  int top;
  int right;
  int bottom;
};

Area AreaOf(const LinePlace& place) {
  return {place.x, place.y, place.x + place.width, place.y + place.height};
}

TEST(PlotterKeypad, NothingOverlapsAndAllIsOnTheScreen) {
  std::vector<Area> areas{AreaOf(kEquationInputPlace), AreaOf(kEquationListPlace),
                          AreaOf(kGridBoxPlace), AreaOf(kLineBoxPlace)};
  for (const RangeField field : kRangeFields) {
    areas.push_back(AreaOf(PlaceOf(field).caption));
    areas.push_back(AreaOf(PlaceOf(field).field));
  }
  for (const PlotterKeyRow& row : PlotterKeyRows()) {
    if (row.key == PlotterKey::ShiftActive) continue;  // over Shift
    areas.push_back(AreaOf(row.place));
  }
  for (std::size_t i = 0; i < areas.size(); ++i) {
    const Area& a = areas[i];
    EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.right <= kScreenWidth && a.bottom <= kScreenHeight)
        << i;
    for (std::size_t j = 0; j < i; ++j) {
      const Area& b = areas[j];
      const bool isApart =
          a.left >= b.right || b.left >= a.right || a.top >= b.bottom || b.top >= a.bottom;
      EXPECT_TRUE(isApart) << i << " and " << j;
    }
  }
}

TEST(PlotterKeypad, BothShiftKeysShareAPlace) {
  const PlotterKeyRow& off = RowOf(PlotterKey::Shift);
  const PlotterKeyRow& on = RowOf(PlotterKey::ShiftActive);
  EXPECT_EQ(std::tie(off.place.x, off.place.y, off.place.width),
            std::tie(on.place.x, on.place.y, on.place.width));
}

TEST(PlotterKeypad, FieldsOfAnAxisStandInARow) {
  EXPECT_EQ(PlaceOf(RangeField::XMin).field.y, PlaceOf(RangeField::XMax).field.y);
  EXPECT_EQ(PlaceOf(RangeField::YMin).field.y, PlaceOf(RangeField::YMax).field.y);
  EXPECT_EQ(PlaceOf(RangeField::XMin).field.x, PlaceOf(RangeField::YMin).field.x);
  EXPECT_LT(PlaceOf(RangeField::XMin).field.x, PlaceOf(RangeField::XMax).field.x);
  EXPECT_LT(PlaceOf(RangeField::XMin).field.y, PlaceOf(RangeField::YMin).field.y);
}

}  // namespace
}  // namespace kav::plotter_keypad_test
