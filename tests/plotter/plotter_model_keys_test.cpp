// Keys, history and macros of the plotter screen.
#include <gtest/gtest.h>

#include "support/plotter_screen.h"
#include "support/stored_macros.h"

namespace kav::plotter_model_keys_test {
namespace {

using test::PlotterScreen;
using test::StoreMacros;

TEST_F(PlotterScreen, WritingKeysEditTheInput) {
  struct Row {
    std::u16string_view caption;
    std::u16string_view before;
    std::u16string_view after;
  };
  for (const Row& row : {
           Row{u"7", u"1|2", u"17|2"},
           Row{u"SIN", u"|", u"sin(|)"},
           Row{u"SIN", u"[x]", u"sin(x)|"},
           Row{u"ABS()", u"2*[x]", u"2*abs(x)|"},
           Row{u"X-Var", u"sin(|)", u"sin(x|)"},
           Row{u"X-Var", u"1[23]4", u"1x|4"},
           Row{u"X^2", u"[x+1]", u"(x+1)^2|"},
           Row{u"X!", u"x|", u"x!|"},
           Row{u"+", u"1[23]45", u"1234+|5"},
           Row{u"BS", u"12|3", u"1|3"},
           Row{u"BS", u"|3", u"|3"},
           Row{u"BS", u"1[23]4", u"1|4"},
           Row{u"DEL", u"12|3", u"12|"},
           Row{u"DEL", u"123|", u"123|"},
           Row{u"DEL", u"1[23]4", u"1|4"},
           Row{u"CLR", u"1[23]4", u"|"},
       }) {
    Put(row.before);
    EXPECT_TRUE(Is<Nothing>(Press(row.caption)));
    EXPECT_EQ(MarkedNow(), row.after) << Narrow(row.caption);
  }
}

TEST_F(PlotterScreen, ShiftStaysOnUntilItIsPressedAgain) {
  EXPECT_TRUE(model_->IsVisible(PlotterKey::Shift));
  EXPECT_FALSE(model_->IsVisible(PlotterKey::ShiftActive));
  Press(u"Shift");
  EXPECT_FALSE(model_->IsVisible(PlotterKey::Shift));
  EXPECT_TRUE(model_->IsVisible(PlotterKey::ShiftActive));
  Press(u"ASIN");
  Press(u"10^X");
  EXPECT_EQ(MarkedNow(), u"asin(10^|)");
  EXPECT_EQ(model_->Caption(PlotterKey::Tanh), u"<<");
  Press(u"Shift");
  EXPECT_EQ(model_->Caption(PlotterKey::Tanh), u"TANH");
  EXPECT_EQ(model_->Caption(PlotterKey::Sin), u"SIN");
}

TEST_F(PlotterScreen, TheHiddenShiftKeyDoesNothing) {
  EXPECT_TRUE(Is<Nothing>(model_->Press(PlotterKey::ShiftActive)));
  EXPECT_EQ(model_->Caption(PlotterKey::Sin), u"SIN");
  Press(u"Shift");
  model_->Press(PlotterKey::Shift);
  EXPECT_EQ(model_->Caption(PlotterKey::Sin), u"ASIN");
}

TEST_F(PlotterScreen, TheAngleKeyShowsTheUnitNowInForce) {
  EXPECT_EQ(model_->Caption(PlotterKey::Deg), u"DEG");
  Press(u"DEG");
  EXPECT_EQ(model_->Caption(PlotterKey::Deg), u"RAD");
  Press(u"RAD");
  EXPECT_EQ(model_->Caption(PlotterKey::Deg), u"DEG");
}

// The history.

TEST_F(PlotterScreen, TheHistoryKeyWaitsForAFirstEquation) {
  EXPECT_FALSE(IsEnabled(PlotterKey::PlayBack));
  EXPECT_TRUE(Is<Nothing>(Press(u"PB")));
  Add(u"x");
  EXPECT_TRUE(IsEnabled(PlotterKey::PlayBack));
  EXPECT_EQ(std::get<ShowMenu<PlotterKey>>(Press(u"PB")).key, PlotterKey::PlayBack);
}

TEST_F(PlotterScreen, TheHistoryMenuShowsTheNewestOnTopCutToTwentyCharacters) {
  Add(u"x");
  Add(u"sin(x)+cos(x)+12345x");   // 20
  Add(u"sin(x)+cos(x)+123456x");  // 21
  EXPECT_EQ(model_->MenuOf(PlotterKey::PlayBack),
            (Menu{{3, u"sin(x)+cos(x)+123..."}, {2, u"sin(x)+cos(x)+12345x"}, {1, u"x"}}));
}

TEST_F(PlotterScreen, AHistoryEntryIsInsertedWholeInPlaceOfTheSelection) {
  Add(u"sin(x)+cos(x)+123456x");
  Put(u"2*[y]+1");
  model_->Choose(PlotterKey::PlayBack, 1);
  EXPECT_EQ(MarkedNow(), u"2*sin(x)+cos(x)+123456x|+1");
}

TEST_F(PlotterScreen, AnEntryThatBeginsLikeAnAnswerIsInsertedAsItStands) {
  Add(u"=[D]5");
  Put(u"|");
  model_->Choose(PlotterKey::PlayBack, 1);
  EXPECT_EQ(MarkedNow(), u"=[D]5|");
}

TEST_F(PlotterScreen, AHistoryEntryThatIsNotOfferedDoesNothing) {
  Add(u"x");
  Put(u"1|");
  for (const int id : {-1, 0, 2, 2147483647}) model_->Choose(PlotterKey::PlayBack, id);
  EXPECT_EQ(MarkedNow(), u"1|");
}

TEST_F(PlotterScreen, TheTwentyFirstEntryDropsTheOldest) {
  Equations expected;
  for (int i = 1; i <= 21; ++i) {
    const std::u16string equation = u"x+" + Widen(std::to_string(i));
    Add(equation);
    if (i > 1) expected.push_back(equation);
  }
  EXPECT_EQ(Entries(), expected);
}

TEST_F(PlotterScreen, OnlyTheNewestEntryIsNotRepeated) {
  for (const char16_t* equation : {u"x", u"x", u"2x", u"x"}) Add(equation);
  EXPECT_EQ(Entries(), (Equations{u"x", u"2x", u"x"}));
}

TEST_F(PlotterScreen, WhatHasAMistakeIsInTheHistoryAndNothingEmpty) {
  Add(u"");
  Add(u"sin(");
  Add(u"   ");
  EXPECT_EQ(Entries(), (Equations{u"sin("}));
}

// Macros.

TEST_F(PlotterScreen, WithoutMacrosTheUserIsToldSo) {
  const PlotterRequest request = Press(u"Mac");
  ASSERT_TRUE(Is<TellStop>(request));
  EXPECT_EQ(std::get<TellStop>(request).text, u"Not exist saved macro");
  Set("MacroInfo", "TotalNumber", -1);
  EXPECT_TRUE(Is<TellStop>(Press(u"Mac")));
}

TEST_F(PlotterScreen, WithMacrosTheirListIsAskedFor) {
  StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}});
  EXPECT_TRUE(Is<OpenMacroList>(Press(u"Mac")));
}

TEST_F(PlotterScreen, AMacrosFormulaIsInsertedInPlaceOfTheSelection) {
  StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}, {"up", "TYPE1 : F(X)", "x^2+1"}});
  Put(u"2*[y]");
  model_->TakeMacro(1);
  EXPECT_EQ(MarkedNow(), u"2*x^2+1|");
}

TEST_F(PlotterScreen, AMacroThatIsNotThereChangesNothing) {
  StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}});
  Put(u"2*[y]");
  for (const int index : {-1, 1, 60}) model_->TakeMacro(index);
  EXPECT_EQ(MarkedNow(), u"2*[y]");
}

TEST_F(PlotterScreen, TextsMuchTooLongToBeReadAreCutInTheInput) {
  StoreMacros(store_, {{"long", "TYPE1 : F(X)", std::string(1'000'000, 'x')}});
  model_->TakeMacro(0);
  EXPECT_LT(model_->Input().Text().size(), 20'000U);
  EXPECT_EQ(model_->Input().Text().back(), u'…');
}

TEST_F(PlotterScreen, WhatIsInsertedIsOneLine) {
  StoreMacros(store_, {{"lines", "TYPE1 : F(X)", "x\n+\t1"}});
  model_->TakeMacro(0);
  EXPECT_EQ(MarkedNow(), u"x + 1|");
}

}  // namespace
}  // namespace kav::plotter_model_keys_test
