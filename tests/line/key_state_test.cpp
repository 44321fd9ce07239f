#include "line/key_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/number_text.h"

namespace kav::key_state_test {
namespace {

constexpr BaseMode kBases[] = {BaseMode::Decimal, BaseMode::Hexadecimal, BaseMode::Binary,
                               BaseMode::Octal};
constexpr ShiftState kShifts[] = {ShiftState::Off, ShiftState::On};

/// The captions of the visible keys as one reads them on the screen, a '~' before those that are
/// disabled, a line a row.
std::string Picture(BaseMode base, ShiftState shift) {
  std::vector<KeyPlace> places;
  for (const KeyPlace& place : KeyPlaces()) {
    if (IsKeyVisible(place.key, base, shift)) places.push_back(place);
  }
  std::stable_sort(places.begin(), places.end(), [](const KeyPlace& a, const KeyPlace& b) {
    return std::pair(a.place.y, a.place.x) < std::pair(b.place.y, b.place.x);
  });
  std::string picture;
  int row = 0;
  for (const KeyPlace& place : places) {
    picture += place.place.y == row ? " " : "\n";
    row = place.place.y;
    if (!IsKeyEnabled(place.key, base, shift)) picture += "~";
    picture += Narrow(FaceShown(place.key, base, shift).caption);
  }
  return picture;
}

struct Row {
  BaseMode base;
  ShiftState shift;
  std::string_view picture;
};

constexpr Row kRows[] = {
    {BaseMode::Decimal, ShiftState::Off, R"(
DEG DEC BS DEL PB CLR
Shift Mac Cnv ABS() M/C
SIN COS TAN Pi nCr
SINH COSH TANH LOG LN
SQRT X^2 Y^X % (...)
7 8 9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Decimal, ShiftState::On, R"(
DEG DEC BS DEL PB CLR
Shift Mac Cnv INT() M/C
ASIN ACOS ATAN X! nPr
SINH COSH << 10^X EXP
XthR 1/X >> FRAC (...)
7 8 9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Hexadecimal, ShiftState::Off, R"(
DEG DEC BS DEL PB CLR
~Shift ~Mac ~Cnv ~ABS() M/C
E F ~TAN AND OR
C D << XOR XNOR
A B Y^X NOT (...)
7 8 9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Hexadecimal, ShiftState::On, R"(
DEG DEC BS DEL PB CLR
Shift ~Mac ~Cnv ~INT() M/C
E F ~ATAN AND OR
C D << XOR XNOR
A B >> NOT (...)
7 8 9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Octal, ShiftState::Off, R"(
DEG DEC BS DEL PB CLR
~Shift ~Mac ~Cnv ~ABS() M/C
~SIN ~COS ~TAN AND OR
~SINH ~COSH << XOR XNOR
~SQRT ~X^2 Y^X NOT (...)
7 ~8 ~9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Octal, ShiftState::On, R"(
DEG DEC BS DEL PB CLR
Shift ~Mac ~Cnv ~INT() M/C
~ASIN ~ACOS ~ATAN AND OR
~SINH ~COSH << XOR XNOR
~XthR ~1/X >> NOT (...)
7 ~8 ~9 ( )
4 5 6 * /
1 2 3 + -
0 00 . Exp =)"},
    {BaseMode::Binary, ShiftState::Off, R"(
DEG DEC BS DEL PB CLR
~Shift ~Mac ~Cnv ~ABS() M/C
~SIN ~COS ~TAN AND OR
~SINH ~COSH << XOR XNOR
~SQRT ~X^2 Y^X NOT (...)
~7 ~8 ~9 ( )
~4 ~5 ~6 * /
1 ~2 ~3 + -
0 00 . Exp =)"},
    {BaseMode::Binary, ShiftState::On, R"(
DEG DEC BS DEL PB CLR
Shift ~Mac ~Cnv ~INT() M/C
~ASIN ~ACOS ~ATAN AND OR
~SINH ~COSH << XOR XNOR
~XthR ~1/X >> NOT (...)
~7 ~8 ~9 ( )
~4 ~5 ~6 * /
1 ~2 ~3 + -
0 00 . Exp =)"},
};

TEST(KeyState, EveryBaseAndShiftStateHasItsPicture) {
  for (const Row& row : kRows) EXPECT_EQ(Picture(row.base, row.shift), row.picture);
}

TEST(KeyState, OneOfTheTwoShiftKeysIsVisible) {
  for (const BaseMode base : kBases) {
    EXPECT_TRUE(IsKeyVisible(Key::Shift, base, ShiftState::Off));
    EXPECT_FALSE(IsKeyVisible(Key::ShiftActive, base, ShiftState::Off));
    EXPECT_FALSE(IsKeyVisible(Key::Shift, base, ShiftState::On));
    EXPECT_TRUE(IsKeyVisible(Key::ShiftActive, base, ShiftState::On));
  }
}

TEST(KeyState, ShiftThatIsOnCanBeSwitchedOffInEveryBase) {
  for (const BaseMode base : kBases) {
    EXPECT_TRUE(IsKeyEnabled(Key::ShiftActive, base, ShiftState::On));
    EXPECT_EQ(IsKeyEnabled(Key::Shift, base, ShiftState::Off), base == BaseMode::Decimal);
  }
}

TEST(KeyState, SixFunctionsGiveTheirPlacesToTheHexadecimalDigits) {
  constexpr Key kDigits[] = {Key::A, Key::B, Key::C, Key::D, Key::E, Key::F};
  constexpr Key kFunctions[] = {Key::Sqrt, Key::Square, Key::Sinh, Key::Cosh, Key::Sin, Key::Cos};
  for (const BaseMode base : kBases) {
    const bool isHexadecimal = base == BaseMode::Hexadecimal;
    for (const Key key : kDigits) {
      EXPECT_EQ(IsKeyVisible(key, base, ShiftState::Off), isHexadecimal);
    }
    for (const Key key : kFunctions) {
      EXPECT_EQ(IsKeyVisible(key, base, ShiftState::Off), !isHexadecimal);
    }
  }
}

TEST(KeyState, HiddenKeysAreDisabled) {
  for (const BaseMode base : kBases) {
    for (const ShiftState shift : kShifts) {
      for (const KeyPlace& place : KeyPlaces()) {
        EXPECT_LE(IsKeyEnabled(place.key, base, shift), IsKeyVisible(place.key, base, shift));
      }
    }
  }
}

TEST(KeyState, VisibleKeysStandBesideEachOther) {
  for (const BaseMode base : kBases) {
    for (const KeyPlace& a : KeyPlaces()) {
      for (const KeyPlace& b : KeyPlaces()) {
        const bool areVisible = IsKeyVisible(a.key, base, ShiftState::Off) &&
                                IsKeyVisible(b.key, base, ShiftState::Off);
        if (a.key == b.key || !areVisible) continue;
        const bool overlap =
            a.place.x < b.place.x + b.place.width && b.place.x < a.place.x + a.place.width &&
            a.place.y < b.place.y + kKeyHeight && b.place.y < a.place.y + kKeyHeight;
        EXPECT_FALSE(overlap) << static_cast<int>(a.key) << " " << static_cast<int>(b.key);
      }
    }
  }
}

TEST(KeyState, VisibleCaptionsAreAllDifferent) {
  for (const BaseMode base : kBases) {
    for (const ShiftState shift : kShifts) {
      std::vector<std::u16string_view> captions;
      for (const KeyPlace& place : KeyPlaces()) {
        if (!IsKeyVisible(place.key, base, shift)) continue;
        captions.push_back(FaceShown(place.key, base, shift).caption);
      }
      std::sort(captions.begin(), captions.end());
      EXPECT_EQ(std::adjacent_find(captions.begin(), captions.end()), captions.end());
    }
  }
}

}  // namespace
}  // namespace kav::key_state_test
