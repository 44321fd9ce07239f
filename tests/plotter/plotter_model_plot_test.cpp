// What "Plot" hands to the graph view, and what it refuses.
#include <gtest/gtest.h>

#include "support/plotter_screen.h"

namespace kav::plotter_model_plot_test {
namespace {

using test::PlotterScreen;

class PlotterModelPlot : public PlotterScreen {
 protected:
  /// Presses "Plot", which is to open a graph.
  GraphInput Plotted() {
    PlotterRequest request = Press(u"Plot");
    EXPECT_TRUE(Is<OpenGraph>(request)) << Narrow(Told(request));
    return Is<OpenGraph>(request) ? std::get<OpenGraph>(request).input : GraphInput{};
  }
};

TEST_F(PlotterModelPlot, TheCurvesAreThoseOfTheListInItsOrder) {
  for (const char16_t* equation : {u"x", u"X^2", u"10+0*x"}) Add(equation);
  const GraphInput graph = Plotted();
  ASSERT_EQ(graph.curves.size(), 3U);
  EXPECT_EQ(graph.curves[0].label, u"R:F1(X)=x");
  EXPECT_EQ(graph.curves[1].label, u"G:F2(x)=X^2");
  EXPECT_EQ(graph.curves[2].label, u"B:F3(X)=10+0*x");
  EXPECT_EQ(*graph.curves[0].formula.At({3, 0, 0}, AngleUnit::Degrees), 3);
  EXPECT_EQ(*graph.curves[1].formula.At({3, 0, 0}, AngleUnit::Degrees), 9);
  EXPECT_EQ(*graph.curves[2].formula.At({3, 0, 0}, AngleUnit::Degrees), 10);
  EXPECT_TRUE(graph.points.empty());
}

TEST_F(PlotterModelPlot, TheGraphHasTheRangeTheAngleTheOptionsAndTheDisplayFormat) {
  Set("Config", "Display Type", 2);
  Set("Config", "Precision", 3);
  Add(u"x");
  SetRange({u"-1", u"2e1", u"-1,000.0", u" .5 "});
  Press(u"DEG");
  model_->Toggle(PlotterOption::Grid);
  const GraphInput graph = Plotted();
  EXPECT_EQ(graph.range, (PlotRange{-1, 20, -1000, 0.5}));
  EXPECT_EQ(graph.angle, AngleUnit::Radians);
  EXPECT_EQ(graph.options, (GraphOptions{false, true, true}));
  EXPECT_EQ(graph.format.type, DisplayType::ScientificNotation);
  EXPECT_EQ(graph.format.precision, 3);
}

TEST_F(PlotterModelPlot, EachOptionIsSwitchedByItself) {
  Add(u"x");
  model_->Toggle(PlotterOption::Line);
  EXPECT_EQ(Plotted().options, (GraphOptions{true, false, true}));
  model_->Toggle(PlotterOption::Grid);
  model_->Toggle(PlotterOption::Line);
  EXPECT_EQ(Plotted().options, (GraphOptions{false, true, true}));
}

TEST_F(PlotterModelPlot, WithAnEmptyListTheInputIsAddedAndPlotted) {
  Put(u" sin(x)|");
  const GraphInput graph = Plotted();
  ASSERT_EQ(graph.curves.size(), 1U);
  EXPECT_EQ(graph.curves[0].label, u"R:F1(X)=sin(x)");
  EXPECT_EQ(List(), (Equations{u"sin(x)"}));
  EXPECT_EQ(MarkedNow(), u"|");
}

TEST_F(PlotterModelPlot, WithEquationsTheInputIsNeitherAddedNorPlotted) {
  Add(u"x");
  Put(u"(|");
  EXPECT_EQ(Plotted().curves.size(), 1U);
  EXPECT_EQ(MarkedNow(), u"(|");
}

TEST_F(PlotterModelPlot, WithNothingToPlotTheUserIsToldSo) {
  const PlotterRequest request = Press(u"Plot");
  EXPECT_EQ(Told(request), u"Please, Add a graph equation.");
  EXPECT_EQ(FocusOf(request), std::nullopt);
}

TEST_F(PlotterModelPlot, BlanksAreTypedAndRefusedAsAddingRefusesThem) {
  Put(u"  |");
  EXPECT_EQ(Told(Press(u"Plot")), u"Equation is null.");
}

TEST_F(PlotterModelPlot, AnInputThatCannotBeAddedIsNotPlotted) {
  Put(u"sin(x|");
  EXPECT_EQ(Told(Press(u"Plot")), u"Not matched '(' and ')'.");
  EXPECT_TRUE(List().empty());
  EXPECT_EQ(Entries(), (Equations{u"sin(x"}));
}

TEST_F(PlotterModelPlot, FieldsAreReadBeforeAnythingElse) {
  SetRange({u"-10", u"10", u"abc", u"10"});
  const PlotterRequest request = Press(u"Plot");
  EXPECT_EQ(Told(request),
            u"Y min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not "
            u"\"abc\".");
  EXPECT_EQ(FocusOf(request), RangeField::YMin);
  Put(u"x|");
  Press(u"Plot");
  EXPECT_TRUE(List().empty());
}

TEST_F(PlotterModelPlot, BoundsOutOfOrderAreRefusedOnceTheInputIsAdded) {
  SetRange({u"1", u"1", u"1", u"0"});
  EXPECT_EQ(Told(Press(u"Plot")), u"Please, Add a graph equation.");
  Put(u"x|");
  const PlotterRequest x = Press(u"Plot");
  EXPECT_EQ(Told(x), u"The maximum value of X should be bigger than the minimum value of X.");
  EXPECT_EQ(FocusOf(x), RangeField::XMax);
  EXPECT_EQ(List(), (Equations{u"x"}));
  SetRange({u"0", u"1", u"1", u"0"});
  const PlotterRequest y = Press(u"Plot");
  EXPECT_EQ(Told(y), u"The maximum value of Y should be bigger than the minimum value of Y.");
  EXPECT_EQ(FocusOf(y), RangeField::YMax);
}

TEST_F(PlotterModelPlot, BoundsAreJudgedBeforeTheEquations) {
  Set("Grapher", "Grapher FunTotalNumber", 1);
  SetText("Grapher", "Fun0", "sin(");
  SetText("Grapher", "X Min", "10");
  Open();
  EXPECT_EQ(Told(Press(u"Plot")),
            u"The maximum value of X should be bigger than the minimum value of X.");
}

TEST_F(PlotterModelPlot, AStoredEquationThatFailsIsSelectedAndCopiedIntoTheInput) {
  Set("Grapher", "Grapher FunTotalNumber", 3);
  SetText("Grapher", "Fun0", "x");
  SetText("Grapher", "Fun1", "(x+1234");  // 7
  SetText("Grapher", "Fun2", "(");
  Open();
  const PlotterRequest request = Press(u"Plot");
  EXPECT_EQ(Told(request), u"(x+1234 : Not matched '(' and ')'.");
  EXPECT_EQ(FocusOf(request), std::nullopt);
  EXPECT_EQ(model_->Equations().Selected(), 1U);
  EXPECT_EQ(MarkedNow(), u"(x+1234|");
}

TEST_F(PlotterModelPlot, MoreThanSevenCharactersAreCutToFive) {
  Set("Grapher", "Grapher FunTotalNumber", 1);
  SetText("Grapher", "Fun0", "(x+12345");  // 8
  Open();
  EXPECT_EQ(Told(Press(u"Plot")), u"(x+12... : Not matched '(' and ')'.");
}

TEST_F(PlotterModelPlot, NoCharacterIsHalved) {
  Set("Grapher", "Grapher FunTotalNumber", 1);
  SetText("Grapher", "Fun0",
          "1234\xF0\x9D\x84\x9E"
          "678");
  Open();
  EXPECT_EQ(Told(Press(u"Plot")).substr(0, 10), u"1234... : ");
}

}  // namespace
}  // namespace kav::plotter_model_plot_test
