// The keys of the scientific screen, tapped one by one on the real widgets.
#include "screens/scientific/scientific_dlg.h"

#include <gtest/gtest.h>

#include "screens/screen_driver.h"
#include "settings/keys.h"

namespace kav::test::scientific_dlg_test {
namespace {

class ScientificDlgTest : public ScientificScreen {};

/// A key by its caption, and what a tap makes of "[8]" and of an empty line.
struct KeyRow {
  const char16_t* caption;
  const char16_t* bare;
  const char16_t* selected;
};

const std::vector<KeyRow> kDecimalKeys{
    {u"0", u"0|", u"0|"},
    {u"00", u"00|", u"00|"},
    {u"1", u"1|", u"1|"},
    {u"2", u"2|", u"2|"},
    {u"3", u"3|", u"3|"},
    {u"4", u"4|", u"4|"},
    {u"5", u"5|", u"5|"},
    {u"6", u"6|", u"6|"},
    {u"7", u"7|", u"7|"},
    {u"8", u"8|", u"8|"},
    {u"9", u"9|", u"9|"},
    {u".", u".|", u".|"},
    {u"Exp", u"E|", u"E|"},
    {u"+", u"+|", u"8+|"},
    {u"-", u"-|", u"8-|"},
    {u"*", u"*|", u"(8)*|"},
    {u"/", u"/|", u"(8)/|"},
    {u"(", u"(|", u"(|"},
    {u")", u")|", u")|"},
    {u"(...)", u"(|)", u"(8)|"},
    {u"SIN", u"sin(|)", u"sin(8)|"},
    {u"COS", u"cos(|)", u"cos(8)|"},
    {u"TAN", u"tan(|)", u"tan(8)|"},
    {u"SINH", u"sinh(|)", u"sinh(8)|"},
    {u"COSH", u"cosh(|)", u"cosh(8)|"},
    {u"TANH", u"tanh(|)", u"tanh(8)|"},
    {u"LOG", u"log(|)", u"log(8)|"},
    {u"LN", u"ln(|)", u"ln(8)|"},
    {u"SQRT", u"sqrt(|)", u"sqrt(8)|"},
    {u"X^2", u"^2|", u"(8)^2|"},
    {u"Y^X", u"^|", u"(8)^|"},
    {u"nCr", u"C|", u"(8)C|"},
    {u"ABS()", u"abs(|)", u"abs(8)|"},
    {u"Pi", u"Pi|", u"Pi|"},
    {u"%", u"%|", u"(8)%|"},
    {u"BS", u"|", u"|"},
    {u"DEL", u"|", u"|"},
    {u"CLR", u"|", u"|"},
};

const std::vector<KeyRow> kShiftedKeys{
    {u"ASIN", u"asin(|)", u"asin(8)|"}, {u"ACOS", u"acos(|)", u"acos(8)|"},
    {u"ATAN", u"atan(|)", u"atan(8)|"}, {u"10^X", u"10^|", u"10^(8)|"},
    {u"EXP", u"exp(|)", u"exp(8)|"},    {u"XthR", u"^(1/|)", u"(8)^(1/|)"},
    {u"1/X", u"1/|", u"1/(8)|"},        {u"nPr", u"P|", u"(8)P|"},
    {u"INT()", u"int(|)", u"int(8)|"},  {u"X!", u"!|", u"(8)!|"},
    {u"FRAC", u"frac(|)", u"frac(8)|"}, {u"<<", u"<<|", u"(8)<<|"},
    {u">>", u">>|", u"(8)>>|"},         {u"SINH", u"sinh(|)", u"sinh(8)|"},
    {u"COSH", u"cosh(|)", u"cosh(8)|"},
};

const std::vector<KeyRow> kHexadecimalKeys{
    {u"A", u"A|", u"A|"},
    {u"B", u"B|", u"B|"},
    {u"C", u"C|", u"C|"},
    {u"D", u"D|", u"D|"},
    {u"E", u"E|", u"E|"},
    {u"F", u"F|", u"F|"},
    {u"NOT", u" NOT |", u"NOT(8)|"},
    {u"AND", u" AND |", u"(8) AND |"},
    {u"OR", u" OR |", u"(8) OR |"},
    {u"XOR", u" XOR |", u"(8) XOR |"},
    {u"XNOR", u" XNOR |", u"(8) XNOR |"},
    {u"<<", u"<<|", u"(8)<<|"},
};

void ExpectKeys(QWidget& screen, const std::vector<KeyRow>& rows) {
  for (const KeyRow& row : rows) {
    SCOPED_TRACE(ToQt(row.caption).toStdString());
    PutLine(screen, u"|");
    Tap(screen, row.caption);
    EXPECT_EQ(LineOf(screen), row.bare);
    PutLine(screen, u"[8]");
    Tap(screen, row.caption);
    EXPECT_EQ(LineOf(screen), row.selected);
    EXPECT_EQ(QApplication::focusWidget(), &Expression(screen));
  }
}

void ChooseBase(QWidget& screen, std::u16string_view now, std::u16string_view base) {
  Tap(screen, now);
  Choose(base);
}

TEST_F(ScientificDlgTest, StartsEmptyWithZeroAndTheFocusOnTheLine) {
  EXPECT_EQ(Line(), u"|");
  EXPECT_EQ(Answer(), u"0");
  EXPECT_TRUE(LineHasFocus());
  EXPECT_EQ(dlg_->windowTitle(), "Kav Calculator");
}

TEST_F(ScientificDlgTest, SinThreeZeroEqualsIsOneHalf) {
  Tap(u"SIN 3 0");
  EXPECT_EQ(Line(), u"sin(30|)");
  Tap(u"=");
  EXPECT_EQ(Line(), u"[sin(30)]");
  EXPECT_EQ(Answer(), u"0.5");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScientificDlgTest, EveryKeyWritesWhatItsCaptionSays) {
  ExpectKeys(*dlg_, kDecimalKeys);
}

TEST_F(ScientificDlgTest, EveryKeyWritesItsSecondFunctionWithShiftOn) {
  Tap(u"Shift");
  ExpectKeys(*dlg_, kShiftedKeys);
}

TEST_F(ScientificDlgTest, EveryKeyOfHexadecimalWritesItsDigitOrOperator) {
  ChooseBase(*dlg_, u"DEC", u"Hexadecimal");
  ExpectKeys(*dlg_, kHexadecimalKeys);
}

TEST_F(ScientificDlgTest, ShiftStaysOnUntilItIsTappedAgain) {
  Tap(u"Shift ASIN ATAN 1");
  EXPECT_NE(FindKey(*dlg_, u"ASIN"), nullptr);
  Tap(u"Shift");
  EXPECT_EQ(FindKey(*dlg_, u"ASIN"), nullptr);
  EXPECT_NE(FindKey(*dlg_, u"SIN"), nullptr);
}

TEST_F(ScientificDlgTest, ExactlyOneShiftKeyIsVisible) {
  const auto visible = [this] {
    int count = 0;
    for (auto* key : dlg_->findChildren<QAbstractButton*>()) {
      count += key->text() == "Shift" && key->isVisible() ? 1 : 0;
    }
    return count;
  };
  EXPECT_EQ(visible(), 1);
  Tap(u"Shift");
  EXPECT_EQ(visible(), 1);
}

TEST_F(ScientificDlgTest, TheAngleKeyShowsTheUnitInForce) {
  Tap(u"DEG");
  EXPECT_NE(FindKey(*dlg_, u"RAD"), nullptr);
  Tap(u"SIN Pi =");
  EXPECT_EQ(Answer(), u"0");
  Tap(u"RAD");
  EXPECT_NE(FindKey(*dlg_, u"DEG"), nullptr);
}

TEST_F(ScientificDlgTest, TheBasePopupSwitchesTheBaseAndRewritesTheResult) {
  Tap(u"2 5 5 =");
  Tap(u"DEC");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"Binary", u"Octal", u"Decimal", u"Hexadecimal"}));
  Choose(u"Hexadecimal");
  EXPECT_EQ(Answer(), u"FF");
  EXPECT_TRUE(LineHasFocus());
  ChooseBase(*dlg_, u"HEX", u"Binary");
  EXPECT_EQ(Answer(), u"11111111");
  ChooseBase(*dlg_, u"BIN", u"Octal");
  EXPECT_EQ(Answer(), u"377");
  ChooseBase(*dlg_, u"OCT", u"Decimal");
  EXPECT_EQ(Answer(), u"255");
}

TEST_F(ScientificDlgTest, EachBaseEnablesItsDigitsOnly) {
  struct Row {
    const char16_t* base;
    const char16_t* caption;
    QString enabled;
  };
  const std::vector<Row> rows{{u"Hexadecimal", u"HEX", "0123456789ABCDEF"},
                              {u"Octal", u"OCT", "01234567"},
                              {u"Binary", u"BIN", "01"},
                              {u"Decimal", u"DEC", "0123456789"}};
  std::u16string now = u"DEC";
  for (const Row& row : rows) {
    ChooseBase(*dlg_, now, row.base);
    now = row.caption;
    QString enabled;
    for (const QChar digit : QStringLiteral("0123456789ABCDEF")) {
      const auto* key = FindKey(*dlg_, QString(digit).toStdU16String());
      if (key != nullptr && key->isEnabled()) enabled += digit;
    }
    EXPECT_EQ(enabled, row.enabled) << row.enabled.toStdString();
  }
}

TEST_F(ScientificDlgTest, OutsideDecimalTheFunctionsAreDisabledOrCovered) {
  ChooseBase(*dlg_, u"DEC", u"Octal");
  for (const char16_t* caption : {u"Mac", u"Cnv", u"SINH", u"COSH", u"ABS()", u"TAN", u"SIN",
                                  u"COS", u"SQRT", u"X^2", u"Shift"}) {
    ASSERT_NE(FindKey(*dlg_, caption), nullptr) << ToQt(caption).toStdString();
    EXPECT_FALSE(FindKey(*dlg_, caption)->isEnabled()) << ToQt(caption).toStdString();
  }
  ChooseBase(*dlg_, u"OCT", u"Hexadecimal");
  for (const char16_t* caption : {u"SIN", u"COS", u"SINH", u"COSH", u"SQRT", u"X^2"}) {
    EXPECT_EQ(FindKey(*dlg_, caption), nullptr) << ToQt(caption).toStdString();
  }
}

TEST_F(ScientificDlgTest, ADisabledKeyDoesNothing) {
  ChooseBase(*dlg_, u"DEC", u"Binary");
  Tap(u"1 9 0");
  EXPECT_EQ(Line(), u"10|");
}

TEST_F(ScientificDlgTest, KeysActOnTheSelectionMadeInTheWidget) {
  Put(u"12345|");
  Expression(*dlg_).setSelection(1, 2);
  Tap(u"+");
  EXPECT_EQ(Line(), u"1234+|5");
  Put(u"1+45|");
  Expression(*dlg_).setSelection(4, -2);  // from right to left
  Tap(u"SIN");
  EXPECT_EQ(Line(), u"1+sin(45)|");
}

TEST_F(ScientificDlgTest, KeysInsertAtTheCaretOfTheWidget) {
  Put(u"12|");
  Expression(*dlg_).setCursorPosition(1);
  Tap(u"00");
  EXPECT_EQ(Line(), u"100|2");
  Tap(u"BS DEL");
  EXPECT_EQ(Line(), u"10|");
}

TEST_F(ScientificDlgTest, TheHistoryKeyIsDisabledUntilThereIsSomethingToPlayBack) {
  EXPECT_FALSE(FindKey(*dlg_, u"PB")->isEnabled());
  Tap(u"1 + 1 =");
  EXPECT_TRUE(FindKey(*dlg_, u"PB")->isEnabled());
}

TEST_F(ScientificDlgTest, TheHistoryPopupListsTheNewestFirstAndInsertsTheWholeEntry) {
  Put(u"1000+1000+1000+1000+1|");
  Tap(u"= PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"1000+1000+1000+10...", u"=[D]4,001"}));
  Choose(u"1000+1000+1000+10...");
  EXPECT_EQ(Line(), u"1000+1000+1000+1000+1|");
  Tap(u"CLR PB");
  Choose(u"=[D]4,001");
  EXPECT_EQ(Line(), u"4001|");
}

TEST_F(ScientificDlgTest, AHistoryPopupThatIsCancelledLeavesTheLine) {
  Tap(u"1 = CLR 7 PB");
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  EXPECT_EQ(OpenMenu(), nullptr);
  EXPECT_EQ(Line(), u"7|");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScientificDlgTest, AnEntryWithAnAmpersandIsListedAsItStands) {
  Put(u"1&2|");
  Tap(u"= PB");
  ASSERT_EQ(Offered(OpenMenu()).size(), 1U);
  EXPECT_EQ(Offered(OpenMenu()).front(), u"1&&2");  // the toolkit shows "&&" as "&"
  Choose(u"1&&2");
  EXPECT_EQ(Line(), u"1&2|");
}

TEST_F(ScientificDlgTest, TheMemoryKeepsAddsAndRecalls) {
  Tap(u"4 2 = M/C");
  Choose(u"Memory +");
  Tap(u"M/C");
  Choose(u"Memory +");
  Tap(u"CLR M/C");
  Choose(u"Memory Recall");
  EXPECT_EQ(Line(), u"84|");
  Tap(u"M/C");
  Choose(u"Memory -");
  Tap(u"CLR M/C");
  Choose(u"Memory Recall");
  EXPECT_EQ(Line(), u"42|");
  Tap(u"M/C");
  Choose(u"Memory Clear");
  Tap(u"CLR M/C");
  Choose(u"Memory Recall");
  EXPECT_EQ(Line(), u"0|");
}

TEST_F(ScientificDlgTest, AfterAFailureTheMemoryOffersNothingThatTakesTheAnswer) {
  Tap(u"=");
  EXPECT_EQ(Answer(), u"Expression is null.");
  Tap(u"M/C");
  EXPECT_EQ(Offered(OpenMenu()),
            (Texts{u"Memory Recall", u"Memory Clear", u"-", u"ReCall MemVar", u"-", u"Constants"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(ScientificDlgTest, WhatIsShownAtTheEndIsShownAtTheNextStart) {
  Tap(u"DEG 1 + 1 =");
  ChooseBase(*dlg_, u"DEC", u"Hexadecimal");
  Open();
  EXPECT_NE(FindKey(*dlg_, u"RAD"), nullptr);
  EXPECT_NE(FindKey(*dlg_, u"HEX"), nullptr);
  EXPECT_EQ(Answer(), u"0");
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"1+1", u"=[D]2"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(ScientificDlgTest, TheAnswerIsToBeSeenBeforeItIsSaved) {
  Tap(u"1 + 1 =");
  EXPECT_EQ(Answer(), u"2");
  EXPECT_EQ(frame_.saves, 0);
  EXPECT_EQ(frame_.store.Get(kCalHistoryCount), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(frame_.saves, 1);
  EXPECT_EQ(frame_.store.Get(kCalHistoryCount), 2);
}

TEST_F(ScientificDlgTest, OtherKeysSaveNothing) {
  Tap(u"SIN 1 CLR Shift Shift DEG");
  QCoreApplication::processEvents();
  EXPECT_EQ(frame_.saves, 0);
}

TEST_F(ScientificDlgTest, AScreenClosedRightAfterEqualsStillLeavesItsHistory) {
  Tap(u"1 + 1 =");
  dlg_.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(frame_.store.Get(kCalHistoryCount), 2);
}

TEST_F(ScientificDlgTest, ALongResultIsMadeSmallerUntilItFits) {
  const int before = Result(*dlg_).font().pixelSize();
  const auto fits = [this] {
    const QFontMetricsF metrics(Result(*dlg_).font());
    return metrics.horizontalAdvance(Result(*dlg_).text()) < Result(*dlg_).width();
  };
  Put(u"0-1|");
  Tap(u"=");
  ChooseBase(*dlg_, u"DEC", u"Binary");
  EXPECT_EQ(Answer(), u"11111111111111111111111111111111");
  EXPECT_LT(Result(*dlg_).font().pixelSize(), before);
  EXPECT_TRUE(fits());
  ChooseBase(*dlg_, u"BIN", u"Decimal");
  EXPECT_EQ(Result(*dlg_).font().pixelSize(), before);
  Put(u"10^400|");
  Tap(u"=");
  EXPECT_EQ(Answer(), u"Out of range(overflow or underflow)");
  EXPECT_TRUE(fits());
}

TEST_F(ScientificDlgTest, AResultThatFitsAtNoSizeShowsItsBeginningAndIsToldWhole) {
  dlg_->resize(180, 240);
  Put(u"0-1|");
  Tap(u"=");
  ChooseBase(*dlg_, u"DEC", u"Binary");
  EXPECT_EQ(Result(*dlg_).cursorPosition(), 0);
  EXPECT_EQ(Result(*dlg_).toolTip(), "11111111111111111111111111111111");
}

}  // namespace
}  // namespace kav::test::scientific_dlg_test
