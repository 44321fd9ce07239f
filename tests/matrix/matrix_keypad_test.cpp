#include "matrix/matrix_keypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "common/number_text.h"
#include "support/marked_line.h"

namespace kav::matrix_keypad_test {
namespace {

using test::Marked;
using test::MarkedLine;

struct PlaceRow {
  MatrixKey key;
  int x;
  int y;
  int width;
  KeyColour colour;
  std::u16string_view caption;
};

// clang-format off
constexpr PlaceRow kPlaceRows[] = {
    {MatrixKey::Deg,           3,  24, 20, KeyColour::Mode,     u"DEG"},
    {MatrixKey::Functions,    24,  24, 22, KeyColour::Orange,   u"F(X)"},
    {MatrixKey::Tools,        47,  24, 24, KeyColour::Orange,   u"Tools"},
    {MatrixKey::Backspace,    72,  24, 19, KeyColour::Editing,  u"BS"},
    {MatrixKey::Delete,       92,  24, 20, KeyColour::Editing,  u"DEL"},
    {MatrixKey::Clear,       113,  24, 20, KeyColour::Editing,  u"CLR"},
    {MatrixKey::ClearCells,  108,  35, 25, KeyColour::Orange,   u"M CLS"},
    {MatrixKey::PlayBack,      3,  98, 24, KeyColour::Orange,   u"MPB"},
    {MatrixKey::Operations,   29,  98, 24, KeyColour::Orange,   u"MOpers"},
    {MatrixKey::MatrixTools,  55,  98, 25, KeyColour::Orange,   u"MTools"},
    {MatrixKey::Variables,    82,  98, 24, KeyColour::Orange,   u"MVar"},
    {MatrixKey::Size,        108,  98, 25, KeyColour::Orange,   u"MSize"},
    {MatrixKey::Seven,         3, 109, 24, KeyColour::Digit,    u"7"},
    {MatrixKey::Eight,        29, 109, 24, KeyColour::Digit,    u"8"},
    {MatrixKey::Nine,         55, 109, 25, KeyColour::Digit,    u"9"},
    {MatrixKey::Parentheses,  82, 109, 24, KeyColour::Function, u"(...)"},
    {MatrixKey::Power,       108, 109, 25, KeyColour::Function, u"Y^N"},
    {MatrixKey::Four,          3, 120, 24, KeyColour::Digit,    u"4"},
    {MatrixKey::Five,         29, 120, 24, KeyColour::Digit,    u"5"},
    {MatrixKey::Six,          55, 120, 25, KeyColour::Digit,    u"6"},
    {MatrixKey::Multiply,     82, 120, 24, KeyColour::Function, u"*"},
    {MatrixKey::Divide,      108, 120, 25, KeyColour::Function, u"/"},
    {MatrixKey::One,           3, 131, 24, KeyColour::Digit,    u"1"},
    {MatrixKey::Two,          29, 131, 24, KeyColour::Digit,    u"2"},
    {MatrixKey::Three,        55, 131, 25, KeyColour::Digit,    u"3"},
    {MatrixKey::Add,          82, 131, 24, KeyColour::Function, u"+"},
    {MatrixKey::Subtract,    108, 131, 25, KeyColour::Function, u"-"},
    {MatrixKey::Zero,          3, 142, 24, KeyColour::Digit,    u"0"},
    {MatrixKey::DoubleZero,   29, 142, 24, KeyColour::Digit,    u"00"},
    {MatrixKey::Point,        55, 142, 25, KeyColour::Digit,    u"."},
    {MatrixKey::Exp,          82, 142, 24, KeyColour::Digit,    u"Exp"},
    {MatrixKey::Equals,      108, 142, 25, KeyColour::Equals,   u"="},
};

/// What a key makes of 12|34 and of 1[23]45.
struct WritingRow {
  MatrixKey key;
  std::u16string_view bare;
  std::u16string_view selected;
};

constexpr WritingRow kWritingRows[] = {
    {MatrixKey::Zero,        u"120|34",   u"10|45"},
    {MatrixKey::One,         u"121|34",   u"11|45"},
    {MatrixKey::Two,         u"122|34",   u"12|45"},
    {MatrixKey::Three,       u"123|34",   u"13|45"},
    {MatrixKey::Four,        u"124|34",   u"14|45"},
    {MatrixKey::Five,        u"125|34",   u"15|45"},
    {MatrixKey::Six,         u"126|34",   u"16|45"},
    {MatrixKey::Seven,       u"127|34",   u"17|45"},
    {MatrixKey::Eight,       u"128|34",   u"18|45"},
    {MatrixKey::Nine,        u"129|34",   u"19|45"},
    {MatrixKey::DoubleZero,  u"1200|34",  u"100|45"},
    {MatrixKey::Point,       u"12.|34",   u"1.|45"},
    {MatrixKey::Exp,         u"12E|34",   u"1E|45"},
    {MatrixKey::Add,         u"12+|34",   u"1234+|5"},
    {MatrixKey::Subtract,    u"12-|34",   u"1234-|5"},
    {MatrixKey::Multiply,    u"12*|34",   u"1(23)*|45"},
    {MatrixKey::Divide,      u"12/|34",   u"1(23)/|45"},
    {MatrixKey::Power,       u"12^|34",   u"1(23)^|45"},
    {MatrixKey::Parentheses, u"12(|)34",  u"1(23)|45"},
};
// clang-format on

std::u16string After(std::u16string_view before, const MatrixKeyRow& row) {
  ExpressionLine line = MarkedLine(before);
  ApplyFace(row.plain, line);
  return Marked(line);
}

TEST(MatrixKeypad, KeysStandInTheirPlacesInTheirOrder) {
  const auto rows = MatrixKeyRows();
  ASSERT_EQ(rows.size(), std::size(kPlaceRows));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const PlaceRow& expected = kPlaceRows[i];
    EXPECT_EQ(rows[i].key, expected.key) << i;
    EXPECT_EQ(rows[i].place.x, expected.x) << Narrow(expected.caption);
    EXPECT_EQ(rows[i].place.y, expected.y) << Narrow(expected.caption);
    EXPECT_EQ(rows[i].place.width, expected.width) << Narrow(expected.caption);
    EXPECT_EQ(rows[i].colour, expected.colour) << Narrow(expected.caption);
    EXPECT_EQ(rows[i].plain.caption, expected.caption);
  }
}

TEST(MatrixKeypad, RowOfAKeyIsItsRow) {
  for (const PlaceRow& row : kPlaceRows) EXPECT_EQ(RowOf(row.key).plain.caption, row.caption);
}

TEST(MatrixKeypad, WritingKeysEditTheLineWithAndWithoutASelection) {
  for (const WritingRow& row : kWritingRows) {
    EXPECT_EQ(After(u"12|34", RowOf(row.key)), row.bare) << Narrow(RowOf(row.key).plain.caption);
    EXPECT_EQ(After(u"1[23]45", RowOf(row.key)), row.selected)
        << Narrow(RowOf(row.key).plain.caption);
  }
}

TEST(MatrixKeypad, AllOtherKeysWriteNothing) {
  int silent = 0;
  for (const MatrixKeyRow& row : MatrixKeyRows()) {
    const bool isWriting =
        std::any_of(std::begin(kWritingRows), std::end(kWritingRows),
                    [&row](const WritingRow& each) { return each.key == row.key; });
    if (isWriting) continue;
    ++silent;
    EXPECT_FALSE(row.plain.bare || row.plain.selected) << Narrow(row.plain.caption);
  }
  EXPECT_EQ(silent, 13);
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

TEST(MatrixKeypad, NothingOverlapsAndAllIsOnTheScreen) {
  std::vector<Area> areas{AreaOf(kMatrixLinePlace), AreaOf(kMatrixResultPlace),
                          AreaOf(kMatrixTabsPlace), AreaOf(kGridPlace)};
  for (const MatrixKeyRow& row : MatrixKeyRows()) {
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

}  // namespace
}  // namespace kav::matrix_keypad_test
