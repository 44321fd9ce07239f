// What "Plot" hands to the graph view, and what it refuses.
#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "plotter/graph_model.h"
#include "plotter/graph_picture.h"
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

TEST_F(PlotterModelPlot, WithEquationsTheInputIsPlottedOnlyIfTheUserWantsIt) {
  Add(u"x");
  Put(u"(|");
  ASSERT_TRUE(Is<AskAboutTyped>(Press(u"Plot")));
  model_->PlotWith(TypedEquation::LeaveOut);
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

// Equations that were typed and not added.

TEST_F(PlotterModelPlot, ATypedEquationIsAskedAboutOnceAndAdded) {
  Add(u"x");
  Put(u" x^2 |");
  const PlotterRequest request = Press(u"Plot");
  ASSERT_TRUE(Is<AskAboutTyped>(request));
  const auto& question = std::get<AskAboutTyped>(request);
  EXPECT_EQ(question.question, u"Add the typed equation x^2 to the list first?");
  EXPECT_EQ(question.onYes, TypedEquation::Add);
  EXPECT_EQ(question.onNo, TypedEquation::LeaveOut);
  const PlotterRequest plot = model_->PlotWith(TypedEquation::Add);
  ASSERT_TRUE(Is<OpenGraph>(plot));
  EXPECT_EQ(std::get<OpenGraph>(plot).input.curves.size(), 2U);
  EXPECT_EQ(List(), (Equations{u"x", u"x^2"}));
  EXPECT_EQ(MarkedNow(), u"|");
}

TEST_F(PlotterModelPlot, WhoLeavesATypedEquationOutIsNotAskedAgain) {
  Add(u"x");
  Put(u"x^2|");
  ASSERT_TRUE(Is<AskAboutTyped>(Press(u"Plot")));
  ASSERT_TRUE(Is<AskAboutTyped>(Press(u"Plot"))) << "who gave up is asked again";
  const PlotterRequest plot = model_->PlotWith(TypedEquation::LeaveOut);
  ASSERT_TRUE(Is<OpenGraph>(plot));
  EXPECT_EQ(std::get<OpenGraph>(plot).input.curves.size(), 1U);
  EXPECT_EQ(List(), Equations{u"x"});
  EXPECT_EQ(MarkedNow(), u"x^2|");
  EXPECT_TRUE(Is<OpenGraph>(Press(u"Plot")));
  Put(u"x^3|");
  EXPECT_TRUE(Is<AskAboutTyped>(Press(u"Plot")));
}

TEST_F(PlotterModelPlot, AFullListIsPlottedWithoutTheTypedEquationOnlyIfTheUserWantsIt) {
  for (const char16_t* equation : {u"x", u"x^2", u"x^3"}) Add(equation);
  Put(u"x^4|");
  const PlotterRequest request = Press(u"Plot");
  ASSERT_TRUE(Is<AskAboutTyped>(request));
  EXPECT_EQ(std::get<AskAboutTyped>(request).question,
            u"The list is full, and the typed equation x^4 is not in it. Plot without it?");
  EXPECT_EQ(std::get<AskAboutTyped>(request).onYes, TypedEquation::LeaveOut);
  EXPECT_EQ(std::get<AskAboutTyped>(request).onNo, std::nullopt);
}

TEST_F(PlotterModelPlot, ATypedTextThatIsNoEquationStopsWhoWantsItAdded) {
  Add(u"x");
  Put(u"(x|");
  ASSERT_TRUE(Is<AskAboutTyped>(Press(u"Plot")));
  EXPECT_EQ(Told(model_->PlotWith(TypedEquation::Add)), u"Not matched '(' and ')'.");
  EXPECT_EQ(List(), Equations{u"x"});
}

TEST_F(PlotterModelPlot, AnEquationOfTheListInTheInputIsNotAskedAbout) {
  Add(u"x");
  Add(u"x^2");
  model_->ChooseEquation(0);
  EXPECT_EQ(Plotted().curves.size(), 2U);
}

TEST_F(PlotterModelPlot, TheRangeIsJudgedBeforeTheQuestion) {
  Add(u"x");
  Put(u"x^2|");
  SetRange({u"1", u"1", u"0", u"1"});
  EXPECT_EQ(Told(Press(u"Plot")),
            u"The maximum value of X should be bigger than the minimum value of X.");
}

TEST_F(PlotterModelPlot, TheFieldsOfTheRangeTakeExpressionsAndKeepThemAsTyped) {
  Add(u"x");
  SetRange({u"-2*Pi", u"2*Pi", u"-sqrt(4)", u"sin(90)"});
  const GraphInput graph = Plotted();
  EXPECT_DOUBLE_EQ(graph.range.xMin, -6.283185307179586);
  EXPECT_EQ(graph.range.yMin, -2);
  EXPECT_EQ(graph.range.yMax, 1);
  model_->Save();
  EXPECT_EQ(StoredText("Grapher", "X Max"), "2*Pi");
  Open();
  EXPECT_EQ(model_->Range()[1], u"2*Pi");
}

// Curves that are switched off.

TEST_F(PlotterModelPlot, ACurveThatIsOffIsLeftOutAndTheOthersKeepTheirColours) {
  for (const char16_t* equation : {u"x", u"x^2", u"x^3"}) Add(equation);
  model_->SwitchCurve(1);
  EXPECT_EQ(model_->ItemText(0), u"x");
  EXPECT_EQ(model_->ItemText(1), u"(off) x^2");
  const GraphInput graph = Plotted();
  ASSERT_EQ(graph.curves.size(), 2U);
  EXPECT_EQ(graph.curves[0].label, u"R:F1(X)=x");
  EXPECT_EQ(graph.curves[1].label, u"B:F3(X)=x^3");
  GraphModel model(graph);
  EXPECT_EQ(model.Calculate(u"2")->lines,
            (std::vector<std::u16string>{u"R:F1(X) = 2", u"B:F3(X) = 8"}));
  const GraphPicture picture = BuildPicture(model);
  std::vector<GraphColour> colours;
  for (const GraphShape& shape : picture) {
    if (const auto* stroke = std::get_if<GraphStroke>(&shape)) colours.push_back(stroke->colour);
  }
  EXPECT_EQ(colours.front(), GraphColour{0xFF0000});
  EXPECT_EQ(colours.back(), GraphColour{0x0000FF});
}

TEST_F(PlotterModelPlot, WhatIsSwitchedOffIsRememberedInAKeyOfItsOwn) {
  for (const char16_t* equation : {u"x", u"x^2", u"x^3"}) Add(equation);
  model_->SwitchCurve(0);
  model_->SwitchCurve(2);
  model_->Save();
  EXPECT_EQ(Stored("Grapher", "Curves Off"), 5);
  EXPECT_EQ(StoredText("Grapher", "Fun0"), "x");
  Open();
  EXPECT_FALSE(model_->Equations().IsOn(0));
  EXPECT_TRUE(model_->Equations().IsOn(1));
  model_->ChooseEquation(0);
  model_->DeleteEquation();
  EXPECT_TRUE(model_->Equations().IsOn(0)) << "what is off goes with its equation";
  EXPECT_FALSE(model_->Equations().IsOn(1));
  model_->SwitchCurve(1);
  EXPECT_TRUE(model_->Equations().IsOn(1));
  Add(u"x^4");
  EXPECT_TRUE(model_->Equations().IsOn(2));
}

TEST_F(PlotterModelPlot, WithoutAnyCurveThereIsNoGraph) {
  Add(u"x");
  model_->SwitchCurve(0);
  EXPECT_EQ(Told(Press(u"Plot")),
            u"All curves are switched off. Switch one on in the menu Edit, or press F8.");
}

// Equations that are edited in place.

TEST_F(PlotterModelPlot, TheInputTakesThePlaceOfTheSelectedEquation) {
  for (const char16_t* equation : {u"x", u"x^2", u"x^3"}) Add(equation);
  model_->ChooseEquation(1);
  Put(u" x^2+1|");
  EXPECT_EQ(model_->Replace(), std::nullopt);
  EXPECT_EQ(List(), (Equations{u"x", u"x^2+1", u"x^3"}));
  EXPECT_EQ(model_->Equations().Selected(), 1U);
  EXPECT_EQ(MarkedNow(), u"|");
  EXPECT_EQ(model_->PastLines().Entries().back(), u"x^2+1");
}

TEST_F(PlotterModelPlot, WhatCannotBeAddedCannotReplaceEither) {
  Add(u"x");
  Add(u"x^2");
  const auto refusal = [this](std::u16string_view typed) {
    Put(typed);
    const auto refused = model_->Replace();
    return refused ? refused->text : std::u16string();
  };
  EXPECT_EQ(refusal(u"|"), u"Equation is null.");
  EXPECT_EQ(refusal(u"(x|"), u"Not matched '(' and ')'.");
  EXPECT_EQ(refusal(u"x|"), u"x is added already.");
  EXPECT_EQ(refusal(u"x^2|"), u"") << "it is the same";
  EXPECT_EQ(List(), (Equations{u"x", u"x^2"}));
}

// The graph beside the keys.

TEST_F(PlotterModelPlot, TheLiveGraphShowsTheListAndWhatIsTyped) {
  EXPECT_TRUE(model_->LiveGraph()->curves.empty());
  Put(u"sin(x|");
  EXPECT_TRUE(model_->LiveGraph()->curves.empty());
  Put(u"sin(x)|");
  EXPECT_EQ(model_->LiveGraph()->curves[0].label, u"R:F1(X)=sin(x)");
  model_->Add();
  Put(u"x^2|");
  const auto graph = model_->LiveGraph();
  ASSERT_EQ(graph->curves.size(), 2U);
  EXPECT_EQ(graph->curves[1].label, u"G:F2(x)=x^2");
  model_->SwitchCurve(0);
  EXPECT_EQ(model_->LiveGraph()->curves.size(), 1U);
  SetRange({u"-Pi", u"0", u"5", u"6"});
  EXPECT_EQ(model_->LiveGraph()->range.yMax, 6);
  SetRange({u"0", u"0", u"5", u"6"});
  EXPECT_EQ(model_->LiveGraph().error(),
            u"The maximum value of X should be bigger than the minimum value of X.");
}

TEST_F(PlotterModelPlot, ARangeIsTakenIntoTheFields) {
  model_->TakeRange({-2.5, 3, -1e-7, 1000});
  EXPECT_EQ(model_->Range(), (RangeTexts{u"-2.5", u"3", u"-0.0000001", u"1000"}));
}

}  // namespace
}  // namespace kav::plotter_model_plot_test
