#include "scientific/scientific_model.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/scientific_screen.h"

namespace kav::scientific_model_keys_test {
namespace {

using test::kBinaryItem;
using test::kDecimalItem;
using test::Keys;
using test::kHexadecimalItem;
using test::kOctalItem;
using test::Lines;
using test::LinesOf;
using test::Marked;
using test::Press;
using test::Screen;

// Keys.

TEST_F(Screen, KeysWriteAndEqualsEvaluates) {
  EXPECT_EQ(Keys(u"SIN 3 0 ="), (Lines{u"sin(30)", u"0.5"}));
  EXPECT_EQ(Keys(u"2 + 3 * 4 ="), (Lines{u"2+3*4", u"14"}));
  EXPECT_EQ(Keys(u"5 Shift X! ="), (Lines{u"5!", u"120"}));
  EXPECT_EQ(Keys(u"1 Exp 3 ="), (Lines{u"1E3", u"1,000"}));
  EXPECT_EQ(Keys(u"Pi ="), (Lines{u"Pi", u"3.14159265359"}));
  EXPECT_EQ(Keys(u"5 nCr 2 ="), (Lines{u"5C2", u"10"}));
  EXPECT_EQ(Keys(u"5 Shift nPr 2 ="), (Lines{u"5P2", u"20"}));
  EXPECT_EQ(Keys(u"1 00 / 8 ="), (Lines{u"100/8", u"12.5"}));
  EXPECT_EQ(Keys(u"\"2*(3+4)\" ="), (Lines{u"2*(3+4)", u"14"}));
}

TEST_F(Screen, AnswerIsWrappedByTheNextKeyBecauseTheLineIsSelected) {
  Press(*model_, u"2 + 3 =");
  EXPECT_EQ(MarkedNow(), u"[2+3]");
  Press(*model_, u"*");
  EXPECT_EQ(MarkedNow(), u"(2+3)*|");
  Press(*model_, u"2 =");
  EXPECT_EQ(Result(), u"10");
  Press(*model_, u"7");
  EXPECT_EQ(MarkedNow(), u"7|");
}

TEST_F(Screen, ShiftStaysUntilItIsPressedAgain) {
  Press(*model_, u"Shift ASIN 1 = ACOS 1 BS CLR");
  EXPECT_TRUE(IsShiftOn());
  EXPECT_EQ(model_->Caption(Key::Sin), u"ASIN");
  Press(*model_, u"Shift");
  EXPECT_FALSE(IsShiftOn());
  EXPECT_EQ(model_->Caption(Key::Sin), u"SIN");
  Press(*model_, u"Shift Shift Shift");
  EXPECT_TRUE(IsShiftOn());
}

TEST_F(Screen, AngleKeyTogglesAndShowsTheUnitInForce) {
  Press(*model_, u"DEG");
  EXPECT_EQ(model_->Caption(Key::Deg), u"RAD");
  Evaluate(u"sin(Pi/2)");
  EXPECT_EQ(Result(), u"1");
  Press(*model_, u"RAD");
  EXPECT_EQ(model_->Caption(Key::Deg), u"DEG");
  Evaluate(u"sin(90)");
  EXPECT_EQ(Result(), u"1");
}

TEST_F(Screen, DeletingKeysDeleteACharacterOrTheSelection) {
  SetMarked(u"12|34");
  Press(*model_, u"BS");
  EXPECT_EQ(MarkedNow(), u"1|34");
  Press(*model_, u"DEL");
  EXPECT_EQ(MarkedNow(), u"1|4");
  SetMarked(u"1[23]4");
  Press(*model_, u"BS");
  EXPECT_EQ(MarkedNow(), u"1|4");
  SetMarked(u"1[23]4");
  Press(*model_, u"DEL");
  EXPECT_EQ(MarkedNow(), u"1|4");
  SetMarked(u"|14");
  Press(*model_, u"BS");
  EXPECT_EQ(MarkedNow(), u"|14");
}

TEST_F(Screen, ClearTakesTheLineIntoTheExpressionBeforeItEmptiesIt) {
  Evaluate(u"1+1");
  SetMarked(u" 2+[3]");
  Press(*model_, u"CLR");
  EXPECT_EQ(model_->Expression(), u" 2+3");
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_EQ(Result(), u"2");
}

TEST_F(Screen, SelectionFromRightToLeftReachesTheWrap) {
  SetMarked(u"1]23[45");
  Press(*model_, u"*");
  EXPECT_EQ(MarkedNow(), u"12(|3)*45");
}

TEST_F(Screen, SignGoesOneCharacterBehindTheSelection) {
  SetMarked(u"1[23]45");
  Press(*model_, u"+");
  EXPECT_EQ(MarkedNow(), u"1234+|5");
}

TEST_F(Screen, EnabledKeysWriteTheFaceTheyShowAndOthersDoNothing) {
  for (const auto& [item, base] :
       {std::pair(kDecimalItem, BaseMode::Decimal),
        std::pair(kHexadecimalItem, BaseMode::Hexadecimal),
        std::pair(kBinaryItem, BaseMode::Binary), std::pair(kOctalItem, BaseMode::Octal)}) {
    for (const ShiftState shift : {ShiftState::Off, ShiftState::On}) {
      for (const KeyPlace& place : KeyPlaces()) {
        Open();
        if (shift == ShiftState::On) Press(*model_, u"Shift");
        model_->Choose(Key::Dec, item);
        SetMarked(u"1[23]45");
        ExpressionLine expected = model_->Line();
        const KeyFace& face = FaceShown(place.key, base, shift);
        const bool writes = face.selected.has_value();
        if (!writes && model_->IsEnabled(place.key)) continue;
        if (model_->IsEnabled(place.key)) ApplyFace(face, expected);
        const auto request = model_->Press(place.key);
        EXPECT_EQ(MarkedNow(), Marked(expected));
        EXPECT_TRUE(std::holds_alternative<Nothing>(request));
        EXPECT_EQ(IsShiftOn(), shift == ShiftState::On);
      }
    }
  }
}

TEST_F(Screen, KeysAreFoundByTheCaptionTheyShow) {
  EXPECT_EQ(model_->KeyShowing(u"SIN"), Key::Sin);
  EXPECT_EQ(model_->KeyShowing(u"ASIN"), std::nullopt);
  EXPECT_EQ(model_->KeyShowing(u"Shift"), Key::Shift);
  EXPECT_EQ(model_->KeyShowing(u"A"), std::nullopt);
  EXPECT_EQ(model_->KeyShowing(u""), std::nullopt);
  Press(*model_, u"Shift");
  EXPECT_EQ(model_->KeyShowing(u"ASIN"), Key::Sin);
  EXPECT_EQ(model_->KeyShowing(u"Shift"), Key::ShiftActive);
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(model_->KeyShowing(u"A"), Key::A);
  EXPECT_EQ(model_->KeyShowing(u"HEX"), Key::Dec);
  EXPECT_EQ(model_->KeyShowing(u"ASIN"), std::nullopt);
}

TEST_F(Screen, KeysThatNeedTheOutsideAskForIt) {
  EXPECT_EQ(std::get<ShowMenu<Key>>(Press(*model_, u"DEC")).key, Key::Dec);
  EXPECT_EQ(std::get<ShowMenu<Key>>(Press(*model_, u"M/C")).key, Key::MemoryMenu);
  EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Press(Key::PlayBack)));
  Evaluate(u"1");
  EXPECT_EQ(std::get<ShowMenu<Key>>(Press(*model_, u"PB")).key, Key::PlayBack);
  EXPECT_TRUE(std::holds_alternative<Nothing>(Press(*model_, u"7")));
}

// Bases.

TEST_F(Screen, BaseChangeRewritesTheAnswer) {
  Evaluate(u"255");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"FF");
  EXPECT_EQ(model_->Caption(Key::Dec), u"HEX");
  model_->Choose(Key::Dec, kBinaryItem);
  EXPECT_EQ(Result(), u"11111111");
  EXPECT_EQ(model_->Caption(Key::Dec), u"BIN");
  model_->Choose(Key::Dec, kOctalItem);
  EXPECT_EQ(Result(), u"377");
  EXPECT_EQ(model_->Caption(Key::Dec), u"OCT");
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(Result(), u"255");
  EXPECT_EQ(model_->LastAnswer(), 255);
}

TEST_F(Screen, BaseChangeKeepsTheFractionOfTheAnswer) {
  Evaluate(u"2.75");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"2");
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(Result(), u"2.75");
}

TEST_F(Screen, BaseInForceChosenAgainChangesNothing) {
  Evaluate(u"1/0");
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(Result(), u"Division exceeded calculation limit.");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(Result(), u"0");
}

TEST_F(Screen, ItemsThatAreNoBaseChangeNothing) {
  for (const int id : {0, -1, 2, 32804, 32809}) model_->Choose(Key::Dec, id);
  EXPECT_EQ(model_->Caption(Key::Dec), u"DEC");
}

TEST_F(Screen, ShiftThatIsOnOutlivesBaseChanges) {
  Press(*model_, u"Shift");
  model_->Choose(Key::Dec, kHexadecimalItem);
  EXPECT_EQ(model_->Caption(Key::Pi), u"AND");
  EXPECT_EQ(model_->Caption(Key::Power), u">>");
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(model_->Caption(Key::Pi), u"X!");
  EXPECT_EQ(model_->Caption(Key::Sin), u"ASIN");
}

TEST_F(Screen, ShiftSwitchedOffInHexadecimalLeavesTheLogicKeys) {
  Press(*model_, u"Shift");
  model_->Choose(Key::Dec, kHexadecimalItem);
  Press(*model_, u"Shift");
  EXPECT_FALSE(IsShiftOn());
  EXPECT_FALSE(model_->IsEnabled(Key::Shift));
  EXPECT_EQ(model_->Caption(Key::Log), u"XOR");
  EXPECT_EQ(model_->Caption(Key::Tanh), u"<<");
  model_->Press(Key::Shift);
  EXPECT_FALSE(IsShiftOn());
  model_->Choose(Key::Dec, kDecimalItem);
  EXPECT_EQ(model_->Caption(Key::Log), u"LOG");
  EXPECT_EQ(model_->Caption(Key::Tanh), u"TANH");
  EXPECT_TRUE(model_->IsEnabled(Key::Shift));
}

TEST_F(Screen, LogicKeysCalculateInTheBase) {
  model_->Choose(Key::Dec, kHexadecimalItem);
  Press(*model_, u"F F AND F =");
  EXPECT_EQ(LinesOf(*model_), (Lines{u"FF AND F", u"F"}));
  Press(*model_, u"CLR NOT 0 =");
  EXPECT_EQ(LinesOf(*model_), (Lines{u" NOT 0", u"FFFFFFFF"}));
  model_->Choose(Key::Dec, kBinaryItem);
  Press(*model_, u"CLR 1 0 1 XOR 1 =");
  EXPECT_EQ(LinesOf(*model_), (Lines{u"101 XOR 1", u"100"}));
  Press(*model_, u"CLR 1 << 1 0 =");
  EXPECT_EQ(LinesOf(*model_), (Lines{u"1<<10", u"100"}));
}

}  // namespace
}  // namespace kav::scientific_model_keys_test
