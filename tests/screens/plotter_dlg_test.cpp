// The plotter screen: its keys pressed, its texts read.
#include <gtest/gtest.h>

#include <QClipboard>

#include "screens/offer_driver.h"
#include "screens/plotter_driver.h"
#include "support/stored_macros.h"

namespace kav::test::plotter_dlg_test {
namespace {

class PlotterDlgTest : public PlotterScreen {};

TEST_F(PlotterDlgTest, StartsWithTheDefaultsAndTheFocusOnTheInput) {
  EXPECT_EQ(dlg_->windowTitle(), "Kav Calculator");
  EXPECT_EQ(Text(), u"");
  EXPECT_EQ(Equations(), Texts());
  EXPECT_EQ(Range(), "-10 10 -10 10");
  EXPECT_TRUE(Box(u"Grid").isChecked());
  EXPECT_TRUE(Box(u"Line").isChecked());
  EXPECT_TRUE(IsOn(u"A"));
  EXPECT_FALSE(IsOn(u"D"));
  EXPECT_FALSE(IsOn(u"PB"));
  EXPECT_NE(FindKey(*dlg_, u"DEG"), nullptr);
  EXPECT_TRUE(InputHasFocus());
  EXPECT_EQ(Offered(MenuOf(*dlg_, u"&File"))[3], u"Edit &Macro...");
}

// Keys that write.

TEST_F(PlotterDlgTest, KeysWriteIntoTheInput) {
  Tap(u"7 8 9 4 5 6 1 2 3 0 . Exp + - * / Y^X Pi % X! nCr X-Var");
  EXPECT_EQ(Text(), u"7894561230.E+-*/^Pi%!Cx");
  Tap(u"BS BS");
  EXPECT_EQ(Text(), u"7894561230.E+-*/^Pi%!");
  // To the start of the formula. Home alone goes to the start of a line, which depends on the font.
  Key(Qt::Key_Home, Qt::ControlModifier);
  Tap(u"DEL");
  EXPECT_EQ(Text(), u"894561230.E+-*/^Pi%!");
  Tap(u"CLR (...) 5");
  EXPECT_EQ(Text(), u"(5)");
  EXPECT_TRUE(InputHasFocus());
}

TEST_F(PlotterDlgTest, FunctionsEncloseTheSelection) {
  for (const auto& [key, text] : {std::pair{u"SIN", u"sin(x)"},
                                  {u"COS", u"cos(x)"},
                                  {u"TAN", u"tan(x)"},
                                  {u"SINH", u"sinh(x)"},
                                  {u"COSH", u"cosh(x)"},
                                  {u"TANH", u"tanh(x)"},
                                  {u"LOG", u"log(x)"},
                                  {u"LN", u"ln(x)"},
                                  {u"SQRT", u"sqrt(x)"},
                                  {u"X^2", u"(x)^2"},
                                  {u"ABS()", u"abs(x)"}}) {
    Put(u"[x]");
    Tap(key);
    EXPECT_EQ(Text(), text);
  }
  Put(u"2*|");
  Tap(u"SIN X-Var");
  EXPECT_EQ(Marked(), u"2*sin(x|)");
}

TEST_F(PlotterDlgTest, ShiftShowsTheSecondFunctionsUntilItIsTappedAgain) {
  Tap(u"Shift ASIN 10^X 1/X");
  EXPECT_EQ(Text(), u"asin(10^1/)");
  EXPECT_EQ(FindKey(*dlg_, u"SIN"), nullptr);
  Tap(u"INT() nPr FRAC << >> EXP XthR ACOS ATAN");
  Tap(u"Shift");
  EXPECT_NE(FindKey(*dlg_, u"SIN"), nullptr);
  EXPECT_EQ(FindKey(*dlg_, u"ASIN"), nullptr);
  EXPECT_TRUE(InputHasFocus());
}

TEST_F(PlotterDlgTest, WhatIsTypedGoesToTheInputWhereverItMeansNothingElse) {
  Type("x^2");
  EXPECT_EQ(Text(), u"x^2");
  FindKey(*dlg_, u"7")->setFocus(Qt::TabFocusReason);
  Type("+1");
  EXPECT_EQ(Text(), u"x^2+1");
  EXPECT_TRUE(InputHasFocus());
  Box(u"Grid").setFocus(Qt::TabFocusReason);
  Type("2");
  EXPECT_EQ(Text(), u"x^2+12");
  EXPECT_TRUE(Box(u"Grid").isChecked());
}

TEST_F(PlotterDlgTest, WhileAFieldHasTheFocusTypingGoesThere) {
  TypeInto("X min", "-360");
  EXPECT_EQ(Range(), "-360 10 -10 10");
  EXPECT_EQ(Text(), u"");
  Tap(u"1");
  EXPECT_TRUE(InputHasFocus());
  EXPECT_EQ(Text(), u"1");
  EXPECT_EQ(Range(), "-360 10 -10 10");
}

TEST_F(PlotterDlgTest, PastedLinesBecomeOne) {
  QApplication::clipboard()->setText("x\n+\t1");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(), u"x + 1");
}

TEST_F(PlotterDlgTest, EscapeClearsTheInputButOnlyLeavesAField) {
  Type("x");
  Click(Field("X min"));
  Key(Qt::Key_Escape);
  EXPECT_TRUE(InputHasFocus());
  EXPECT_EQ(Text(), u"x");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Text(), u"");
}

TEST_F(PlotterDlgTest, AltWithALetterThatNoKeyHasWritesNothing) {
  Key(Qt::Key_R, Qt::AltModifier);
  Key(Qt::Key_Q, Qt::AltModifier);
  EXPECT_EQ(Text(), u"");
}

TEST_F(PlotterDlgTest, ShortcutsPressTheirKeys) {
  const auto shows = [this](std::u16string_view caption) {
    return QTest::qWaitFor([&] { return FindKey(*dlg_, caption) != nullptr; });
  };
  Key(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(shows(u"RAD"));
  Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(shows(u"ASIN"));
}

// Adding.

TEST_F(PlotterDlgTest, AddMovesTheInputIntoTheList) {
  Add("x");
  Add(" sin(x) ");
  EXPECT_EQ(Equations(), (Texts{u"x", u"sin(x)"}));
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Text(), u"");
  EXPECT_TRUE(InputHasFocus());
  EXPECT_TRUE(IsOn(u"D"));
  EXPECT_TRUE(IsOn(u"PB"));
  EXPECT_GT(frame_.saves, 0);
}

TEST_F(PlotterDlgTest, EnterAdds) {
  Type("x");
  Key(Qt::Key_Return);
  Type("2*x");
  Key(Qt::Key_Enter);
  EXPECT_EQ(Equations(), (Texts{u"x", u"2*x"}));
}

TEST_F(PlotterDlgTest, AnEmptyEquationIsRefused) {
  ExpectRefusal(u"A", u"Equation is null.");
  EXPECT_TRUE(InputHasFocus());
  Type("  ");
  ExpectRefusal(u"A", u"Equation is null.");
  EXPECT_FALSE(IsOn(u"PB"));
}

TEST_F(PlotterDlgTest, WhatTheEngineRefusesStaysInTheInputAndInTheHistory) {
  Type("sin(x");
  ExpectRefusal(u"A", u"Not matched '(' and ')'.");
  EXPECT_EQ(Text(), u"sin(x");
  EXPECT_EQ(Equations(), Texts());
  EXPECT_TRUE(InputHasFocus());
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"sin(x"}));
  Key(Qt::Key_Escape);
}

TEST_F(PlotterDlgTest, AddingTheSameTextTwiceIsRefusedAndRecordedOnce) {
  Add("sin(x)+12345678901");
  ExpectBox();
  Add("sin(x)+12345678901");
  ExpectSeen(u"sin(x)+1234567... is added already.");
  EXPECT_TRUE(InputHasFocus());
  EXPECT_EQ(Equations(), (Texts{u"sin(x)+12345678901"}));
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"sin(x)+12345678901"}));
  Key(Qt::Key_Escape);
  Add("sin(x)+1234567890");
  ExpectBox();
  Add("sin(x)+1234567890");
  ExpectSeen(u"sin(x)+1234567890 is added already.");
}

TEST_F(PlotterDlgTest, AfterThreeEquationsNoneCanBeAddedUntilOneIsDeleted) {
  for (const char* equation : {"x", "2*x", "3*x"}) Add(equation);
  EXPECT_FALSE(IsOn(u"A"));
  Type("4*x");
  ExpectBox();
  Key(Qt::Key_Return);
  ExpectSeen(u"Maximum of graph equation is 3");
  EXPECT_EQ(Text(), u"4*x");
  EXPECT_EQ(Equations(), (Texts{u"x", u"2*x", u"3*x"}));
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()).front(), u"4*x");
  Key(Qt::Key_Escape);
  Delete();
  EXPECT_TRUE(IsOn(u"A"));
  Tap(u"A");
  EXPECT_EQ(Equations(), (Texts{u"x", u"2*x", u"4*x"}));
}

// The list.

TEST_F(PlotterDlgTest, ChoosingAnEquationCopiesItIntoTheInput) {
  Add("x");
  Add("sin(x)");
  Type("12");
  ChooseEquation(0);
  EXPECT_EQ(Marked(), u"x|");
  EXPECT_EQ(Selected(), 0);
  EXPECT_TRUE(InputHasFocus());
  Tap(u"CLR");
  ChooseEquation(0);
  EXPECT_EQ(Text(), u"x") << "the one that is selected already";
}

TEST_F(PlotterDlgTest, DeletingSelectsTheEquationBefore) {
  for (const char* equation : {"x", "2*x", "3*x"}) Add(equation);
  Delete(QMessageBox::No);
  EXPECT_EQ(Equations().size(), 3U);
  Delete();
  EXPECT_EQ(Equations(), (Texts{u"x", u"2*x"}));
  EXPECT_EQ(Selected(), 1);
  ChooseEquation(0);
  Delete();
  EXPECT_EQ(Equations(), (Texts{u"2*x"}));
  EXPECT_EQ(Selected(), 0);
  Delete();
  EXPECT_EQ(Equations(), Texts());
  EXPECT_FALSE(IsOn(u"D"));
  EXPECT_TRUE(InputHasFocus());
}

// The history and macros.

TEST_F(PlotterDlgTest, AnEntryOfTheHistoryIsInsertedWhole) {
  Add("x");
  Add("sin(x)+cos(x)+123456");
  Add("sin(x)+cos(x)+1234567");
  Put(u"2*|");
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"sin(x)+cos(x)+123...", u"sin(x)+cos(x)+123456", u"x"}));
  Choose(u"sin(x)+cos(x)+123...");
  EXPECT_EQ(Marked(), u"2*sin(x)+cos(x)+1234567|");
}

TEST_F(PlotterDlgTest, TheTwentyFirstEntryDropsTheOldest) {
  for (int i = 1; i <= 21; ++i) {
    if (!IsOn(u"A")) Delete();
    Add("x+" + QString::number(i));
  }
  Tap(u"PB");
  const Texts offered = Offered(OpenMenu());
  ASSERT_EQ(offered.size(), 20U);
  EXPECT_EQ(offered.front(), u"x+21");
  EXPECT_EQ(offered.back(), u"x+2");
  Key(Qt::Key_Escape);
}

TEST_F(PlotterDlgTest, WithoutMacrosTheUserIsToldSo) {
  frame_.dialogs.macroList = [](QWidget*) -> std::optional<int> {
    ADD_FAILURE() << "the list was opened";
    return std::nullopt;
  };
  Open();
  ExpectRefusal(u"Mac", u"Not exist saved macro");
}

TEST_F(PlotterDlgTest, TheFormulaOfTheChosenMacroIsInserted) {
  StoreMacros(frame_.store, {{"sq", "TYPE1 : F(X)", "x^2"}, {"cu", "TYPE1 : F(X)", "x^3"}});
  std::optional<int> chosen = 1;
  frame_.dialogs.macroList = [&chosen](QWidget*) { return chosen; };
  Open();
  Put(u"1+[2]");
  Tap(u"Mac");
  EXPECT_EQ(Marked(), u"1+x^3|");
  EXPECT_TRUE(InputHasFocus());
  for (const std::optional<int> none : {std::optional<int>(), {2}, {-1}}) {
    chosen = none;
    Tap(u"Mac");
    EXPECT_EQ(Marked(), u"1+x^3|");
  }
}

// What is left to the next screen.

TEST_F(PlotterDlgTest, AllIsThereAgainOnTheNextScreen) {
  Add("x");
  Add("sin(x)");
  Tap(u"DEG");
  TypeInto("X min", "-6.28");
  TypeInto("Y max", "1e1");
  Open();
  EXPECT_EQ(Equations(), (Texts{u"x", u"sin(x)"}));
  EXPECT_EQ(Range(), "-6.28 10 -10 1e1");
  EXPECT_NE(FindKey(*dlg_, u"RAD"), nullptr);
  Tap(u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"sin(x)", u"x"}));
  Key(Qt::Key_Escape);
}

TEST_F(PlotterDlgTest, TheSettingsAreThoseOfItsKeys) {
  Add("x");
  TypeInto("X max", "99");
  dlg_.reset();
  EXPECT_EQ(Stored("Config", "Angle Type"), 1);
  EXPECT_EQ(Stored("Grapher", "Grapher FunTotalNumber"), 1);
  EXPECT_EQ(StoredText("Grapher", "Fun0"), "x");
  EXPECT_EQ(StoredText("Grapher", "X Min"), "-10");
  EXPECT_EQ(StoredText("Grapher", "X Max"), "99");
  EXPECT_EQ(StoredText("Grapher", "Y Min"), "-10");
  EXPECT_EQ(StoredText("Grapher", "Y Max"), "10");
  EXPECT_EQ(Stored("History", "GrapHistoryCount"), 1);
  EXPECT_EQ(StoredText("History", "GrapHistory1"), "x");
}

TEST_F(PlotterDlgTest, StoredTextsOfAnyLengthAreShownAndKept) {
  const std::string text(1'000'000, 'x');
  Set("Grapher", "Grapher FunTotalNumber", 1 << 30);
  Set("History", "GrapHistoryCount", 1 << 30);
  for (const char* name : {"Fun0", "X Min", "Y Max"}) SetText("Grapher", name, text);
  SetText("History", "GrapHistory1", text);
  Open();
  EXPECT_EQ(Equations().size(), 1U);
  ChooseEquation(0);
  EXPECT_LT(Text().size(), 20'000U);
  dlg_.reset();
  // Not the texts themselves: to print them takes long.
  for (const char* name : {"Fun0", "X Min", "Y Max"}) {
    EXPECT_TRUE(StoredText("Grapher", name) == text) << name;
  }
  EXPECT_TRUE(StoredText("History", "GrapHistory1") == text);
}

// The menus.

TEST_F(PlotterDlgTest, TheEditMenuWorksOnTheInputOrTheFieldThatHasTheFocus) {
  Put(u"12[34]5");
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), "34");
  ChooseFrom(*dlg_, u"&Edit", u"Cu&t");
  EXPECT_EQ(Text(), u"125");
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(Text(), u"12345");
  Click(Field("X min"));
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  EXPECT_EQ(Range(), "34 10 -10 10");
  EXPECT_EQ(Text(), u"12345");
  Tap(u"CLR");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  EXPECT_EQ(Text(), u"34");
}

TEST_F(PlotterDlgTest, OtherSpellingOfEquationsAndRangesIsTakenAsItIsMeant) {
  Type("x*1,5");
  Key(Qt::Key_Return);
  EXPECT_EQ(Asked(*dlg_), "15 or 1.5?");
  Key(Qt::Key_2);
  EXPECT_EQ(Equations(), Texts{u"x*1.5"});
  TypeInto("X max", "1,234");
  Key(Qt::Key_Return);
  EXPECT_EQ(Asked(*dlg_), "1234 or 1.234?");
  Key(Qt::Key_Escape);
  TypeInto("X max", "2'000");
  Click(Input());
  EXPECT_EQ(Asked(*dlg_), "");
}

TEST_F(PlotterDlgTest, TheModeMenuLeadsToTheOtherScreens) {
  frame_.others = {{ScreenMode::Scientific, u"Scientific Calculator"}};
  Open();
  ChooseFrom(*dlg_, u"&Mode", u"Scientific Calculator");
  ASSERT_EQ(frame_.modes.size(), 1U);
  EXPECT_EQ(frame_.modes.front(), ScreenMode::Scientific);
}

}  // namespace
}  // namespace kav::test::plotter_dlg_test
