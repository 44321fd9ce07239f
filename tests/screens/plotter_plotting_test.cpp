// The plotter screen: what its "Plot" key opens and what it refuses.
#include <gtest/gtest.h>

#include "screens/plotter_driver.h"

namespace kav::test::plotter_plotting_test {
namespace {

class PlotterPlottingTest : public PlotterScreen {};

TEST_F(PlotterPlottingTest, WhatIsPlottedIsStoredBeforeTheGraphIsSeen) {
  Type("x");
  int saves = 0;
  BoxWatch::Instance().ExpectDialog([&](QDialog& graph) {
    saves = frame_.saves;
    EXPECT_EQ(StoredText("Grapher", "Fun0"), "x");
    graph.reject();
  });
  Tap(u"Plot");
  EXPECT_GT(saves, 0);
}

TEST_F(PlotterPlottingTest, PlotsTheEquationsOfTheList) {
  for (const char* equation : {"x", "X^2", "1/x"}) Add(equation);
  EXPECT_EQ(Plotted(), (Texts{u"R:F1(X)=x", u"G:F2(x)=X^2", u"B:F3(X)=1/x"}));
  EXPECT_TRUE(InputHasFocus());
}

TEST_F(PlotterPlottingTest, WithAnEmptyListTheInputIsAddedAndPlotted) {
  Type("sin(x)");
  EXPECT_EQ(Plotted(), (Texts{u"R:F1(X)=sin(x)"}));
  EXPECT_EQ(Equations(), (Texts{u"sin(x)"}));
  EXPECT_EQ(Text(), u"");
}

TEST_F(PlotterPlottingTest, ControlEnterPlotsAndSoDoesEnterInAField) {
  Type("x");
  EXPECT_EQ(CurvesOf([this] { Key(Qt::Key_Return, Qt::ControlModifier); }), (Texts{u"R:F1(X)=x"}));
  Click(Field("Y max"));
  EXPECT_EQ(CurvesOf([this] { Key(Qt::Key_Return); }), (Texts{u"R:F1(X)=x"}));
}

TEST_F(PlotterPlottingTest, WithNothingToPlotTheUserIsToldSo) {
  ExpectRefusal(u"Plot", u"Please, Add a graph equation.");
  EXPECT_TRUE(InputHasFocus());
}

TEST_F(PlotterPlottingTest, AnInputThatCannotBeAddedIsNotPlotted) {
  Type("foo(x)");
  ExpectRefusal(u"Plot", u"foo is not supported.");
  EXPECT_EQ(Equations(), Texts());
}

TEST_F(PlotterPlottingTest, AFieldThatIsNoNumberIsRefusedAndGetsTheFocus) {
  Type("x");
  TypeInto("Y min", "abc");
  ExpectRefusal(u"Plot",
                u"Y min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not "
                u"\"abc\".");
  EXPECT_EQ(dlg_->focusWidget(), &Field("Y min"));
  EXPECT_EQ(Field("Y min").selectedText(), "abc");
  EXPECT_EQ(Text(), u"x");
  EXPECT_EQ(Equations(), Texts());
}

TEST_F(PlotterPlottingTest, BoundsOutOfOrderAreRefused) {
  Add("x");
  TypeInto("X min", "10");
  ExpectRefusal(u"Plot", u"The maximum value of X should be bigger than the minimum value of X.");
  EXPECT_EQ(dlg_->focusWidget(), &Field("X max"));
  TypeInto("X min", "11");
  ExpectRefusal(u"Plot", u"The maximum value of X should be bigger than the minimum value of X.");
  TypeInto("X min", "0");
  TypeInto("Y max", "-10");
  ExpectRefusal(u"Plot", u"The maximum value of Y should be bigger than the minimum value of Y.");
  EXPECT_EQ(dlg_->focusWidget(), &Field("Y max"));
}

TEST_F(PlotterPlottingTest, AStoredEquationThatFailsIsSelectedAndCopiedIntoTheInput) {
  Set("Grapher", "Grapher FunTotalNumber", 3);
  SetText("Grapher", "Fun0", "x");
  SetText("Grapher", "Fun1", "(x+1234");
  SetText("Grapher", "Fun2", "2*x");
  Open();
  ExpectRefusal(u"Plot", u"(x+1234 : Not matched '(' and ')'.");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(Text(), u"(x+1234");
  EXPECT_TRUE(InputHasFocus());
}

TEST_F(PlotterPlottingTest, AnEquationOfMoreThanSevenCharactersIsCutToFiveInItsMessage) {
  Set("Grapher", "Grapher FunTotalNumber", 1);
  SetText("Grapher", "Fun0", "(x+12345");
  Open();
  ExpectRefusal(u"Plot", u"(x+12... : Not matched '(' and ')'.");
}

TEST_F(PlotterPlottingTest, TheBoxesLeaveWhatWasTypedAndWhatIsSelected) {
  Put(u"2*x|");
  Type("+1");
  Key(Qt::Key_Left, Qt::ShiftModifier);
  Click(Box(u"Grid"));
  EXPECT_EQ(Marked(), u"2*x+[1]");
  EXPECT_EQ(Range(), "-10 10 -10 10");
}

TEST_F(PlotterPlottingTest, WhatEveryPartChangesLeavesTheOthersAlone) {
  Type("x+1");
  TypeInto("X min", "-5");
  Click(Input());
  Key(Qt::Key_End);
  Type("+2");
  Tap(u"DEG 3");
  Click(Box(u"Line"));
  EXPECT_EQ(Text(), u"x+1+23");
  EXPECT_EQ(Range(), "-5 10 -10 10");
  EXPECT_FALSE(Box(u"Line").isChecked());
}

TEST_F(PlotterPlottingTest, TheBoxesSwitchTheirOptionsAndLeaveTheFocus) {
  Click(Box(u"Grid"));
  Click(Box(u"Line"));
  EXPECT_FALSE(Box(u"Grid").isChecked());
  EXPECT_FALSE(Box(u"Line").isChecked());
  EXPECT_TRUE(InputHasFocus());
  Tap(u"1");
  EXPECT_FALSE(Box(u"Grid").isChecked());
  Click(Box(u"Grid"));
  EXPECT_TRUE(Box(u"Grid").isChecked());
  EXPECT_FALSE(Box(u"Line").isChecked());
}

}  // namespace
}  // namespace kav::test::plotter_plotting_test
