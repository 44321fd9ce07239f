// The models of the two-variable screen: their menu, their buttons, kept coefficients, the plot.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "statistics/two_variable_model.h"
#include "support/statistics_fixture.h"

namespace kav::two_variable_model_fit_test {
namespace {

class TwoVariableFit : public test::StatisticsFixture<TwoVariableModel> {
 protected:
  /// Of the buttons that depend on the model, those that are visible and enabled.
  std::u16string ModelButtons() const {
    std::u16string text;
    for (const StatisticsKey key :
         {StatisticsKey::Correlation, StatisticsKey::C, StatisticsKey::EstimateX,
          StatisticsKey::EstimateX1, StatisticsKey::EstimateX2}) {
      if (!model_->IsVisible(key)) continue;
      text.append(model_->IsEnabled(key) ? u"+" : u"-").append(model_->Caption(key));
    }
    return text;
  }
};

// The button of the model.

TEST_F(TwoVariableFit, ModelButtonOpensItsMenu) {
  EXPECT_FALSE(model_->IsEnabled(StatisticsKey::Model));
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  EXPECT_EQ(std::get<ShowMenu<StatisticsKey>>(Press(u"Lin")).key, StatisticsKey::Model);
  EXPECT_EQ(model_->MenuOf(StatisticsKey::Model), (Menu{{1, u"Linear : A*X+B"},
                                                        {2, u"Power : A*X^B"},
                                                        {3, u"Inverse : A/X+B"},
                                                        {4, u"Logarithmic : A*ln(X)+B"},
                                                        {5, u"Exponential : A*exp(B*X)"},
                                                        {6, u"Quadratic : A*X^2+B*X+C"}}));
}

TEST_F(TwoVariableFit, ModelsHaveTheirButtons) {
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  struct Row {
    int id;
    std::u16string_view caption;
    std::u16string_view buttons;
  };
  for (const Row& row :
       {Row{6, u"Quad", u"+C+X1'+X2'"}, Row{5, u"Exp", u"-r+X'"}, Row{4, u"Log", u"-r+X'"},
        Row{3, u"Inv", u"-r+X'"}, Row{2, u"Pow", u"-r+X'"}, Row{1, u"Lin", u"+r+X'"}}) {
    model_->Choose(StatisticsKey::Model, row.id);
    EXPECT_EQ(model_->Caption(StatisticsKey::Model), row.caption);
    EXPECT_EQ(ModelButtons(), row.buttons) << row.id;
  }
}

TEST_F(TwoVariableFit, CorrelationStaysDisabledForOtherModelsWhenRowsComeAndGo) {
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  model_->Choose(StatisticsKey::Model, 2);
  Delete(0);
  EXPECT_EQ(ModelButtons(), u"-r-X'");
  Add(u"3", u"6", u"1");
  EXPECT_EQ(ModelButtons(), u"-r+X'");
  Clear();
  EXPECT_EQ(ModelButtons(), u"-r-X'");
  EXPECT_EQ(model_->Caption(StatisticsKey::Model), u"Pow");
}

TEST_F(TwoVariableFit, HiddenButtonsDoNothing) {
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  Type(u"1", u"1", u"1");
  EXPECT_EQ(Result(u"A"), u"2");
  for (const StatisticsKey key :
       {StatisticsKey::C, StatisticsKey::EstimateX1, StatisticsKey::EstimateX2}) {
    EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Press(key)));
    EXPECT_EQ(model_->ResultText(), u"2");
  }
  model_->Choose(StatisticsKey::Model, 6);
  for (const StatisticsKey key : {StatisticsKey::Correlation, StatisticsKey::EstimateX}) {
    EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Press(key)));
    EXPECT_EQ(model_->ResultText(), u"2");
  }
}

TEST_F(TwoVariableFit, ItemsThatAreNotOfferedChangeNothing) {
  for (const int id : {-1, 0, 7}) {
    model_->Choose(StatisticsKey::Model, id);
    EXPECT_EQ(model_->Caption(StatisticsKey::Model), u"Lin") << id;
  }
}

// Coefficients are kept until the data or the model change. The sums of these rows depend on their
// order: from the top, the sums of y and of x*y are 2 and 6, so that A is (6 - 2*8/4) / 2. Sorted
// by y, the small values are lost in the large ones, and both sums are 0.
class KeptCoefficients : public TwoVariableFit {
 protected:
  void SetUp() override {
    Fill({{u"2", u"1e17"}, {u"1", u"1"}, {u"2", u"-1e17"}, {u"3", u"2"}});
    ASSERT_EQ(Result(u"A"), u"1");
    model_->SortBy(1);
    ASSERT_EQ(Result(u"\u03A3Y"), u"0");
  }
};

TEST_F(KeptCoefficients, SortingAndPressingAgainKeepsThem) {
  EXPECT_EQ(Result(u"A"), u"1");
  EXPECT_EQ(Result(u"B"), u"-1.5");
  Type(u"4", u"1", u"1");
  EXPECT_EQ(Result(u"Y'"), u"2.5");
  EXPECT_EQ(Result(u"X'"), u"2.5");
}

TEST_F(KeptCoefficients, ChoosingAModelFitsAnew) {
  model_->Choose(StatisticsKey::Model, 1);
  EXPECT_EQ(Result(u"A"), u"0");
}

TEST_F(KeptCoefficients, DismissingTheMenuKeepsThem) {
  Press(u"Lin");
  EXPECT_EQ(Result(u"A"), u"1");
}

TEST_F(KeptCoefficients, AppliedEditFitsAnewAndCancelledOneDoesNot) {
  model_->Select(1);
  Press(u"Edit");
  EXPECT_EQ(Result(u"A"), u"1");
  Press(u"Cancel");
  EXPECT_EQ(Result(u"A"), u"1");
  Press(u"Edit");
  Press(u"Ok");
  EXPECT_EQ(Result(u"A"), u"0");
}

TEST_F(KeptCoefficients, AddingDeletingAndClearingFitAnew) {
  Add(u"2", u"0", u"1");
  EXPECT_EQ(Result(u"A"), u"0");
  Clear();
  Fill({{u"1", u"2"}, {u"2", u"4"}, {u"3", u"7"}});
  EXPECT_EQ(Result(u"A"), u"2.5");
  Delete(2);
  EXPECT_EQ(Result(u"A"), u"2");
}

TEST_F(KeptCoefficients, LoadingAndPastingFitAnew) {
  EXPECT_FALSE(model_->PasteRows(u"2\t0\t1", {}));
  EXPECT_EQ(Result(u"A"), u"0");
  ASSERT_FALSE(Load("1 2 1 2 5 1 "));
  EXPECT_EQ(Result(u"A"), u"3");
}

TEST_F(KeptCoefficients, FailedLoadKeepsThem) {
  EXPECT_TRUE(model_->LoadFrom(folder_.File("missing.txt"), {}));
  EXPECT_EQ(Result(u"A"), u"1");
}

// Plot.

TEST_F(TwoVariableFit, PlotOpensTheGraphOfPointsAndCurve) {
  Fill({{u"1", u"2"}, {u"2", u"4"}, {u"3", u"6"}});
  const auto request = Press(u"Plot");
  ASSERT_TRUE(std::holds_alternative<OpenGraph>(request));
  const GraphInput& input = std::get<OpenGraph>(request).input;
  ASSERT_EQ(input.curves.size(), 1U);
  EXPECT_EQ(input.curves[0].label, u"R:F1(X)=2*X+0");
  EXPECT_EQ(input.points, (std::vector<DataPoint>{{1, 2}, {2, 4}, {3, 6}}));
  EXPECT_EQ(input.angle, AngleUnit::Degrees);
  EXPECT_EQ(input.format.type, DisplayType::Thousands);
  EXPECT_EQ(model_->ResultText(), u"0");
}

TEST_F(TwoVariableFit, PlotTakesTheAngleUnitOfTheSettings) {
  Set("Angle Type", 2);
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  const auto request = Press(u"Plot");
  ASSERT_TRUE(std::holds_alternative<OpenGraph>(request));
  EXPECT_EQ(std::get<OpenGraph>(request).input.angle, AngleUnit::Radians);
}

TEST_F(TwoVariableFit, PlotNeedsNoFields) {
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  Type(u"", u"", u"");
  EXPECT_TRUE(std::holds_alternative<OpenGraph>(Press(u"Plot")));
}

TEST_F(TwoVariableFit, PlotTellsWhenDataDoNotSpread) {
  Fill({{u"1", u"2"}, {u"1", u"4"}});
  EXPECT_EQ(Told(Press(u"Plot")),
            u"The maximum value of X should be bigger than the minimum value of X.");
  Clear();
  Fill({{u"1", u"2"}, {u"3", u"2"}});
  EXPECT_EQ(Told(Press(u"Plot")),
            u"The maximum value of Y should be bigger than the minimum value of Y.");
}

TEST_F(TwoVariableFit, PlotTellsWhenTheModelHasNoCurve) {
  Fill({{u"0", u"1"}, {u"1", u"2"}});
  model_->Choose(StatisticsKey::Model, 2);
  EXPECT_EQ(Told(Press(u"Plot")), u"The model \"Power : A*X^B\" has no curve for these data.");
}

TEST_F(TwoVariableFit, PlotIsThatOfTheChosenModel) {
  Fill({{u"1", u"1"}, {u"2", u"4"}, {u"3", u"9"}});
  model_->Choose(StatisticsKey::Model, 6);
  const auto request = Press(u"Plot");
  ASSERT_TRUE(std::holds_alternative<OpenGraph>(request));
  EXPECT_EQ(std::get<OpenGraph>(request).input.curves[0].label, u"R:F1(X)=1*X^2+0*X+0");
}

}  // namespace
}  // namespace kav::two_variable_model_fit_test
