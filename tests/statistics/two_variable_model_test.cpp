#include "statistics/two_variable_model.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "support/effort.h"
#include "support/random.h"
#include "support/statistics_fixture.h"

namespace kav::two_variable_model_test {
namespace {

constexpr std::u16string_view kOutOfRange = u"Out of range(overflow or underflow)";

class TwoVariableScreen : public test::StatisticsFixture<TwoVariableModel> {
 protected:
  double Number(std::u16string_view caption) { return ReadLeadingNumber(Narrow(Result(caption))); }
};

// Sums, means, deviations.

TEST_F(TwoVariableScreen, SumsMeansAndDeviationsOfBothVariables) {
  Add(u"2", u"20", u"3");
  Add(u"4", u"40", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
  EXPECT_EQ(Result(u"\u03A3X^2"), u"28");
  EXPECT_EQ(Result(u"Mean of X"), u"2.5");
  EXPECT_EQ(Result(u"\u03C3(n-1) of X"), u"1");
  EXPECT_EQ(Result(u"\u03C3(n) of X"), u"0.866025403784");
  EXPECT_EQ(Result(u"\u03A3Y"), u"100");
  EXPECT_EQ(Result(u"\u03A3Y^2"), u"2,800");
  EXPECT_EQ(Result(u"Mean of Y"), u"25");
  EXPECT_EQ(Result(u"\u03C3(n-1) of Y"), u"10");
  EXPECT_EQ(Result(u"\u03C3(n) of Y"), u"8.660254037844");
  EXPECT_EQ(Result(u"\u03A3XY"), u"280");
}

TEST_F(TwoVariableScreen, SumsDoNotDependOnTheModel) {
  Add(u"2", u"20", u"3");
  Add(u"4", u"40", u"1");
  for (int id = 1; id <= 6; ++id) {
    model_->Choose(StatisticsKey::Model, id);
    EXPECT_EQ(Result(u"\u03A3XY"), u"280") << id;
    EXPECT_EQ(Result(u"\u03A3Y^2"), u"2,800") << id;
  }
}

// The models.

TEST_F(TwoVariableScreen, LinearModel) {
  Fill({{u"1", u"2"}, {u"2", u"4"}, {u"3", u"6"}});
  EXPECT_EQ(Result(u"A"), u"2");
  EXPECT_EQ(Result(u"B"), u"0");
  EXPECT_EQ(Result(u"r"), u"1");
  Type(u"4", u"5", u"1");
  EXPECT_EQ(Result(u"Y'"), u"8");
  EXPECT_EQ(Result(u"X'"), u"2.5");
}

TEST_F(TwoVariableScreen, CountsWeighPoints) {
  Add(u"0", u"0", u"1");
  Add(u"0", u"3", u"2");
  Add(u"4", u"6", u"1");
  // Means 1 and 3; Sxx = 16 - 16/4 = 12, Sxy = 24 - 12*4/4 = 12, Syy = 54 - 144/4 = 18.
  EXPECT_EQ(Result(u"A"), u"1");
  EXPECT_EQ(Result(u"B"), u"2");
  EXPECT_NEAR(Number(u"r"), 12 / std::sqrt(12.0 * 18.0), 1e-11);
}

TEST_F(TwoVariableScreen, FallingLineHasACorrelationOfMinusOne) {
  Fill({{u"1", u"3"}, {u"2", u"1"}, {u"3", u"-1"}});
  EXPECT_EQ(Result(u"A"), u"-2");
  EXPECT_EQ(Result(u"B"), u"5");
  EXPECT_EQ(Result(u"r"), u"-1");
}

TEST_F(TwoVariableScreen, PowerModel) {
  Fill({{u"1", u"3"}, {u"2", u"12"}, {u"4", u"48"}});
  model_->Choose(StatisticsKey::Model, 2);
  EXPECT_NEAR(Number(u"A"), 3, 1e-9);
  EXPECT_NEAR(Number(u"B"), 2, 1e-9);
  Type(u"3", u"27", u"1");
  EXPECT_NEAR(Number(u"Y'"), 27, 1e-8);
  EXPECT_NEAR(Number(u"X'"), 3, 1e-9);
}

// The model fits logarithms, not 1/x.
TEST_F(TwoVariableScreen, InverseModel) {
  Fill({{u"1", u"3"}, {u"2", u"2"}});
  model_->Choose(StatisticsKey::Model, 3);
  const double slope = (std::log(2.0) - std::log(3.0)) / std::log(2.0);
  const double b = std::exp(-slope);
  const double a = 3 - b;
  EXPECT_NEAR(Number(u"A"), a, 1e-9);
  EXPECT_NEAR(Number(u"B"), b, 1e-9);
  Type(u"2", u"5", u"1");
  EXPECT_NEAR(Number(u"Y'"), a / 2 + b, 1e-9);
  EXPECT_NEAR(Number(u"X'"), a / (5 - b), 1e-9);
}

TEST_F(TwoVariableScreen, LogarithmicModel) {
  ASSERT_FALSE(Load("1 5 1 2.718281828459045 7 1 7.38905609893065 9 1 "));
  model_->Choose(StatisticsKey::Model, 4);
  EXPECT_NEAR(Number(u"A"), 2, 1e-9);
  EXPECT_NEAR(Number(u"B"), 5, 1e-9);
  Type(u"1", u"9", u"1");
  EXPECT_NEAR(Number(u"Y'"), 5, 1e-9);
  EXPECT_NEAR(Number(u"X'"), std::exp(2.0), 1e-8);
}

TEST_F(TwoVariableScreen, ExponentialModel) {
  ASSERT_FALSE(Load("1 2.718281828459045 1 2 7.38905609893065 1 "));
  model_->Choose(StatisticsKey::Model, 5);
  EXPECT_NEAR(Number(u"A"), 1, 1e-9);
  EXPECT_NEAR(Number(u"B"), 1, 1e-9);
  Type(u"0", u"20.085536923187668", u"1");
  EXPECT_NEAR(Number(u"Y'"), 1, 1e-9);
  EXPECT_NEAR(Number(u"X'"), 3, 1e-9);
}

TEST_F(TwoVariableScreen, QuadraticModel) {
  Fill({{u"1", u"1"}, {u"2", u"4"}, {u"3", u"9"}});
  model_->Choose(StatisticsKey::Model, 6);
  EXPECT_EQ(Result(u"A"), u"1");
  EXPECT_EQ(Result(u"B"), u"0");
  EXPECT_EQ(Result(u"C"), u"0");
  Type(u"5", u"4", u"1");
  EXPECT_EQ(Result(u"X1'"), u"2");
  EXPECT_EQ(Result(u"X2'"), u"-2");
  EXPECT_EQ(Result(u"Y'"), u"25");
}

TEST_F(TwoVariableScreen, ParabolaThatIsNotReachedHasNoX) {
  Fill({{u"1", u"1"}, {u"2", u"4"}, {u"3", u"9"}});
  model_->Choose(StatisticsKey::Model, 6);
  Type(u"0", u"-1", u"1");
  EXPECT_EQ(Result(u"X1'"), kOutOfRange);
  EXPECT_EQ(Result(u"X2'"), kOutOfRange);
}

TEST_F(TwoVariableScreen, LogarithmsOfWhatIsNotPositiveAreTold) {
  Fill({{u"0", u"1"}, {u"1", u"2"}, {u"2", u"3"}});
  for (const int id : {2, 3, 4}) {
    model_->Choose(StatisticsKey::Model, id);
    EXPECT_EQ(Result(u"A"), kOutOfRange) << id;
    EXPECT_EQ(Result(u"B"), kOutOfRange) << id;
  }
  Clear();
  Fill({{u"1", u"-1"}, {u"2", u"2"}, {u"3", u"3"}});
  for (const int id : {2, 3, 5}) {
    model_->Choose(StatisticsKey::Model, id);
    EXPECT_EQ(Result(u"A"), kOutOfRange) << id;
    EXPECT_EQ(Result(u"B"), kOutOfRange) << id;
  }
  EXPECT_EQ(model_->MenuOf(StatisticsKey::MemoryMenu), (Menu{{2, u"ReCall MemVar"}}));
}

TEST_F(TwoVariableScreen, PointsAboveEachOtherHaveNoLine) {
  Fill({{u"1", u"1"}, {u"1", u"2"}});
  EXPECT_EQ(Result(u"A"), kOutOfRange);
  EXPECT_EQ(Result(u"r"), kOutOfRange);
}

TEST_F(TwoVariableScreen, LevelLineHasNoXAndNoCorrelation) {
  Fill({{u"1", u"2"}, {u"3", u"2"}});
  EXPECT_EQ(Result(u"A"), u"0");
  EXPECT_EQ(Result(u"B"), u"2");
  EXPECT_EQ(Result(u"r"), kOutOfRange);
  Type(u"1", u"5", u"1");
  EXPECT_EQ(Result(u"X'"), kOutOfRange);
  EXPECT_EQ(Result(u"Y'"), u"2");
}

// Lines with exact binary coefficients give exact results, for Y' and for X'.
TEST_F(TwoVariableScreen, RandomLinesAreFound) {
  test::Random random(42);
  for (int i = 0; i < test::Tries(500); ++i) {
    const int slope = 1 + static_cast<int>(random.Below(50));
    const int height = static_cast<int>(random.Below(100)) - 50;
    std::string rows;
    for (int x = 0; x < 4; ++x) {
      const int count = 1 + static_cast<int>(random.Below(9));
      rows += std::to_string(x) + "\t" + std::to_string(slope * x + height) + "\t" +
              std::to_string(count) + "\n";
    }
    Replace(rows);
    EXPECT_NEAR(Number(u"A"), slope, 1e-9);
    EXPECT_NEAR(Number(u"B"), height, 1e-9);
    EXPECT_NEAR(Number(u"r"), 1, 1e-9);
    Type(u"7", Widen(std::to_string(slope * 7 + height)), u"1");
    EXPECT_NEAR(Number(u"Y'"), slope * 7 + height, 1e-8);
    EXPECT_NEAR(Number(u"X'"), 7, 1e-8);
  }
}

// Estimates read the fields as adding a row does.

TEST_F(TwoVariableScreen, EstimatesRefuseFieldsThatHoldNoRow) {
  Fill({{u"1", u"2"}, {u"2", u"4"}});
  struct Row {
    std::array<std::u16string_view, 3> typed;
    std::u16string_view told;
    DataField focus;
  };
  for (const int id : {1, 6}) {
    model_->Choose(StatisticsKey::Model, id);
    for (const Row& row :
         {Row{{u"", u"1", u"1"}, u"X must be a number such as -12.5 or 1.5e-3.", DataField::X},
          Row{{u"1", u"", u"1"}, u"Y must be a number such as -12.5 or 1.5e-3.", DataField::Y},
          Row{{u"1", u"1", u"0"},
              u"Count must be a whole number from 1 to 10000.",
              DataField::Count}}) {
      Type(row.typed[0], row.typed[1], row.typed[2]);
      for (const std::u16string_view caption : {u"Y'", id == 6 ? u"X1'" : u"X'"}) {
        const auto request = Press(caption);
        EXPECT_EQ(Told(request), row.told);
        ASSERT_TRUE(std::holds_alternative<FieldRefusal>(request));
        EXPECT_EQ(std::get<FieldRefusal>(request).focus, row.focus);
      }
    }
  }
  EXPECT_EQ(model_->ResultText(), u"0");
}

// Memory variables.

TEST_F(TwoVariableScreen, ValueCanBeRecalledIntoY) {
  Type(u"1", u"2", u"3");
  model_->SetFocusedField(DataField::Y);
  const auto request = model_->TakeVariable(u"-4.50");
  EXPECT_EQ(std::get<FocusField>(request).field, DataField::Y);
  EXPECT_EQ(model_->Fields(), (TypedRow{u"1", u"-4.5", u"3"}));
}

}  // namespace
}  // namespace kav::two_variable_model_test
