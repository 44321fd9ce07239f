#include "plotter/plotter_model.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/effort.h"
#include "support/plotter_screen.h"
#include "support/random.h"

namespace kav::plotter_model_test {
namespace {

using test::PlotterScreen;

constexpr std::u16string_view kQuestion =
    u"Are you sure you want to delete the selected graph equation?";

// The fresh screen, and what it loads and stores.

TEST_F(PlotterScreen, FreshScreenHasTheDefaultRangeAndNoEquations) {
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_TRUE(List().empty());
  EXPECT_EQ(model_->Range(), (RangeTexts{u"-10", u"10", u"-10", u"10"}));
  EXPECT_EQ(model_->Options(), (GraphOptions{true, true, true}));
  EXPECT_EQ(model_->Caption(PlotterKey::Deg), u"DEG");
  EXPECT_TRUE(IsEnabled(PlotterKey::Add));
  EXPECT_FALSE(IsEnabled(PlotterKey::DeleteEquation));
  EXPECT_FALSE(IsEnabled(PlotterKey::PlayBack));
}

TEST_F(PlotterScreen, LoadsWhatIsStored) {
  Set("Config", "Angle Type", 2);
  Set("Grapher", "Grapher FunTotalNumber", 2);
  SetText("Grapher", "Fun0", "sin(x)");
  SetText("Grapher", "Fun1", "x^2");
  SetText("Grapher", "X Min", "-360");
  SetText("Grapher", "X Max", "360.0");
  SetText("Grapher", "Y Min", "-1.5");
  SetText("Grapher", "Y Max", "1.5");
  Set("History", "GrapHistoryCount", 2);
  SetText("History", "GrapHistory1", "x");
  SetText("History", "GrapHistory2", "sin(x)");
  Open();
  EXPECT_EQ(model_->Caption(PlotterKey::Deg), u"RAD");
  EXPECT_EQ(List(), (Equations{u"sin(x)", u"x^2"}));
  EXPECT_EQ(model_->Range(), (RangeTexts{u"-360", u"360.0", u"-1.5", u"1.5"}));
  EXPECT_EQ(model_->MenuOf(PlotterKey::PlayBack), (Menu{{2, u"sin(x)"}, {1, u"x"}}));
  EXPECT_TRUE(IsEnabled(PlotterKey::PlayBack));
  EXPECT_TRUE(IsEnabled(PlotterKey::DeleteEquation));
}

TEST_F(PlotterScreen, WithThreeStoredEquationsNoneCanBeAdded) {
  Set("Grapher", "Grapher FunTotalNumber", 3);
  for (const char* name : {"Fun0", "Fun1", "Fun2"}) SetText("Grapher", name, name);
  Open();
  EXPECT_FALSE(IsEnabled(PlotterKey::Add));
  EXPECT_TRUE(Is<Nothing>(Press(u"A")));
}

TEST_F(PlotterScreen, IsSavedUnderItsKeys) {
  Add(u"sin(x)");
  Add(u"x");
  Press(u"DEG");
  SetRange({u"-1", u"1,000", u"abc", u""});
  model_->Save();
  EXPECT_EQ(Stored("Config", "Angle Type"), 2);
  EXPECT_EQ(Stored("Grapher", "Grapher FunTotalNumber"), 2);
  EXPECT_EQ(StoredText("Grapher", "Fun0"), "sin(x)");
  EXPECT_EQ(StoredText("Grapher", "Fun1"), "x");
  EXPECT_EQ(StoredText("Grapher", "X Min"), "-1");
  EXPECT_EQ(StoredText("Grapher", "X Max"), "1,000");
  EXPECT_EQ(StoredText("Grapher", "Y Min"), "abc");
  EXPECT_EQ(StoredText("Grapher", "Y Max"), "");
  EXPECT_EQ(Stored("History", "GrapHistoryCount"), 2);
  EXPECT_EQ(StoredText("History", "GrapHistory1"), "sin(x)");
  EXPECT_EQ(StoredText("History", "GrapHistory2"), "x");
}

TEST_F(PlotterScreen, DefaultsAreSavedAsWell) {
  model_->Save();
  EXPECT_EQ(Stored("Config", "Angle Type"), 1);
  EXPECT_EQ(Stored("Grapher", "Grapher FunTotalNumber"), 0);
  EXPECT_EQ(StoredText("Grapher", "X Min"), "-10");
  EXPECT_EQ(StoredText("Grapher", "Y Max"), "10");
  EXPECT_EQ(Stored("History", "GrapHistoryCount"), 0);
}

TEST_F(PlotterScreen, AHistoryCountOutOfRangeIsBroughtIntoIt) {
  for (int i = 1; i <= 25; ++i) {
    SetText("History", "GrapHistory" + std::to_string(i), std::to_string(i));
  }
  for (const std::int32_t count : {21, std::numeric_limits<std::int32_t>::max()}) {
    Set("History", "GrapHistoryCount", count);
    Open();
    ASSERT_EQ(Entries().size(), 20U);
    EXPECT_EQ(Entries().front(), u"1");
    EXPECT_EQ(Entries().back(), u"20");
  }
  Set("History", "GrapHistoryCount", std::numeric_limits<std::int32_t>::min());
  Open();
  EXPECT_TRUE(Entries().empty());
}

TEST_F(PlotterScreen, StoredTextsOfAnyLengthDoNoHarm) {
  const std::string text = "\n\t\xff" + std::string(test::Sized(2'000'000), 'x');
  Set("Grapher", "Grapher FunTotalNumber", 1);
  Set("History", "GrapHistoryCount", 1);
  for (const char* name : {"Fun0", "X Min", "X Max", "Y Min", "Y Max"}) {
    SetText("Grapher", name, text);
  }
  SetText("History", "GrapHistory1", text);
  Open();
  EXPECT_LT(Told(Press(u"Plot")).size(), 200U);
  SetRange({u"0", u"1", u"0", u"1"});
  EXPECT_LT(Told(Press(u"Plot")).size(), 200U);
  model_->ChooseEquation(0);
  model_->Choose(PlotterKey::PlayBack, 1);
  EXPECT_LT(model_->Input().Text().size(), 40'000U);
  EXPECT_LE(model_->MenuOf(PlotterKey::PlayBack).front().text.size(), 20U);
}

// Adding.

TEST_F(PlotterScreen, AddAppendsTheTrimmedTextSelectsItAndClearsTheInput) {
  EXPECT_EQ(Add(u"x"), u"");
  EXPECT_EQ(Add(u"  sin( x ) "), u"");
  EXPECT_EQ(List(), (Equations{u"x", u"sin( x )"}));
  EXPECT_EQ(model_->Equations().Selected(), 1U);
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_TRUE(IsEnabled(PlotterKey::DeleteEquation));
  EXPECT_EQ(Entries(), (Equations{u"x", u"sin( x )"}));
}

TEST_F(PlotterScreen, TheKeyAddsToo) {
  Put(u"x|");
  EXPECT_TRUE(Is<Nothing>(Press(u"A")));
  EXPECT_EQ(List(), (Equations{u"x"}));
  EXPECT_EQ(Told(Press(u"A")), u"Equation is null.");
}

TEST_F(PlotterScreen, AnEmptyEquationIsRefused) {
  for (const std::u16string_view text : {u"", u" ", u"     "}) {
    EXPECT_EQ(Add(text), u"Equation is null.");
  }
  EXPECT_TRUE(List().empty());
  EXPECT_TRUE(Entries().empty());
  EXPECT_FALSE(IsEnabled(PlotterKey::PlayBack));
}

TEST_F(PlotterScreen, WhatTheEngineRefusesIsRefusedInItsWords) {
  EXPECT_EQ(Add(u"(x"), u"Not matched '(' and ')'.");
  EXPECT_EQ(Add(u"foo(x)"), u"foo is not supported.");
  EXPECT_EQ(Add(u"5"), u"Argument error : Missing variable X");
  EXPECT_EQ(Add(u"y"), u"Can not use variable Y");
  EXPECT_TRUE(List().empty());
  EXPECT_EQ(MarkedNow(), u"y|");
  EXPECT_EQ(Entries(), (Equations{u"(x", u"foo(x)", u"5", u"y"}));
}

TEST_F(PlotterScreen, AnEquationMayHaveAnUpperCaseX) {
  EXPECT_EQ(Add(u"X^2"), u"");
}

TEST_F(PlotterScreen, TheSameTextTwiceIsRefusedAndRecordedOnce) {
  Add(u"x");
  EXPECT_EQ(Add(u" x "), u"x is added already.");
  EXPECT_EQ(List(), (Equations{u"x"}));
  EXPECT_EQ(Entries(), (Equations{u"x"}));
  EXPECT_EQ(MarkedNow(), u" x |");
}

TEST_F(PlotterScreen, MoreThanSeventeenCharactersAreCutToFourteen) {
  Add(u"x+1234567890+1234");  // 17
  EXPECT_EQ(Add(u"x+1234567890+1234"), u"x+1234567890+1234 is added already.");
  Add(u"x+1234567890+12345");  // 18
  EXPECT_EQ(Add(u"x+1234567890+12345"), u"x+1234567890+1... is added already.");
}

TEST_F(PlotterScreen, AFourthEquationIsRefusedAfterItIsRecorded) {
  for (const char16_t* equation : {u"x", u"2*x", u"3*x"}) EXPECT_EQ(Add(equation), u"");
  EXPECT_FALSE(IsEnabled(PlotterKey::Add));
  EXPECT_EQ(Add(u"4*x"), u"Maximum of graph equation is 3");
  EXPECT_EQ(Add(u"sin("), u"Maximum of graph equation is 3");
  EXPECT_EQ(Add(u"x"), u"Maximum of graph equation is 3");
  EXPECT_EQ(List(), (Equations{u"x", u"2*x", u"3*x"}));
  EXPECT_EQ(Entries(), (Equations{u"x", u"2*x", u"3*x", u"4*x", u"sin(", u"x"}));
  EXPECT_EQ(Add(u""), u"Equation is null.");
}

// Choosing and deleting.

TEST_F(PlotterScreen, ChoosingAnEquationCopiesItIntoTheInput) {
  Add(u"sin(x)");
  Add(u"x");
  Put(u"12[3]");
  model_->ChooseEquation(0);
  EXPECT_EQ(MarkedNow(), u"sin(x)|");
  EXPECT_EQ(model_->Equations().Selected(), 0U);
  model_->ChooseEquation(2);
  EXPECT_EQ(MarkedNow(), u"sin(x)|");
  EXPECT_EQ(model_->Equations().Selected(), 0U);
}

TEST_F(PlotterScreen, DeletingIsAskedFirst) {
  EXPECT_TRUE(Is<Nothing>(Press(u"D")));
  Add(u"x");
  const PlotterRequest request = Press(u"D");
  ASSERT_TRUE(Is<AskFirst<PlotterKey>>(request));
  EXPECT_EQ(std::get<AskFirst<PlotterKey>>(request).key, PlotterKey::DeleteEquation);
  EXPECT_EQ(std::get<AskFirst<PlotterKey>>(request).question, kQuestion);
  EXPECT_EQ(List().size(), 1U);
}

TEST_F(PlotterScreen, DeletingOneOfThreeLetsAnotherBeAdded) {
  for (const char16_t* equation : {u"x", u"2*x", u"3*x"}) Add(equation);
  model_->ChooseEquation(1);
  model_->DeleteEquation();
  EXPECT_EQ(List(), (Equations{u"x", u"3*x"}));
  EXPECT_EQ(model_->Equations().Selected(), 0U);
  EXPECT_TRUE(IsEnabled(PlotterKey::Add));
  EXPECT_EQ(Add(u"2*x"), u"");
  EXPECT_FALSE(IsEnabled(PlotterKey::Add));
}

TEST_F(PlotterScreen, WithoutEquationsNothingCanBeDeleted) {
  Add(u"x");
  model_->DeleteEquation();
  EXPECT_TRUE(List().empty());
  EXPECT_FALSE(IsEnabled(PlotterKey::DeleteEquation));
  EXPECT_TRUE(IsEnabled(PlotterKey::Add));
}

TEST_F(PlotterScreen, AnyKeysLeaveAScreenThatHoldsItsRules) {
  test::Random random(5);
  const auto rows = PlotterKeyRows();
  for (int i = 0; i < test::Tries(20'000); ++i) {
    const PlotterKeyRow& row = rows[random.Below(rows.size())];
    const PlotterRequest request = model_->Press(row.key);
    if (Is<AskFirst<PlotterKey>>(request)) model_->DeleteEquation();
    if (random.Below(50) == 0)
      model_->Choose(PlotterKey::PlayBack, static_cast<int>(random.Below(22)));
    if (model_->Input().Text().size() > 200) Press(u"CLR");
    ASSERT_LE(List().size(), 3U);
    ASSERT_LE(model_->MenuOf(PlotterKey::PlayBack).size(), 20U);
    ASSERT_EQ(IsEnabled(PlotterKey::Add), List().size() < 3);
    ASSERT_EQ(IsEnabled(PlotterKey::DeleteEquation), !List().empty());
    ASSERT_EQ(model_->Equations().Selected().has_value(), !List().empty());
    ASSERT_NE(model_->IsVisible(PlotterKey::Shift), model_->IsVisible(PlotterKey::ShiftActive));
  }
  const Equations list = List();
  const Equations entries = Entries();
  model_->Save();
  Open();
  EXPECT_EQ(List(), list);
  EXPECT_EQ(Entries(), entries);
}

}  // namespace
}  // namespace kav::plotter_model_test
