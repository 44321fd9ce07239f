#include "statistics/statistics_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/effort.h"
#include "support/random.h"
#include "support/statistics_fixture.h"

namespace kav::statistics_model_results_test {
namespace {

class OneVariableScreen : public test::StatisticsFixture<StatisticsModel> {
 protected:
  std::u16string Stored() {
    const auto request = model_->Choose(StatisticsKey::MemoryMenu, 1);
    const auto* store = std::get_if<StoreMemoryVariable>(&request);
    return store == nullptr ? u"nothing" : store->value;
  }
};

TEST_F(OneVariableScreen, TwoAndFourWithCountsOfThreeAndOne) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
  EXPECT_EQ(Result(u"\u03A3X^2"), u"28");
  EXPECT_EQ(Result(u"Arithmetic Mean of X"), u"2.5");
  EXPECT_EQ(Result(u"\u03C3(n-1) of X"), u"1");
  // The square root of 0.75 is 0.866025403784438...
  EXPECT_EQ(Result(u"\u03C3(n) of X"), u"0.866025403784");
}

TEST_F(OneVariableScreen, ResultsAreShownAsTheDisplaySettingsSay) {
  struct Row {
    std::int32_t type;
    std::u16string_view shown;
  };
  for (const Row& row : {Row{0, u"12345.5"}, Row{1, u"12345.50"}, Row{2, u"1.23e+04"},
                         Row{3, u"12,345.5"}, Row{4, u"12.35E+003"}}) {
    Set("Display Type", row.type);
    Set("Precision", 2);
    Open();
    Add(u"12345", u"1");
    Add(u"0.5", u"1");
    EXPECT_EQ(Result(u"\u03A3X"), row.shown) << row.type;
  }
}

TEST_F(OneVariableScreen, ChangedDisplaySettingsShowTheResultAnew) {
  Add(u"12345", u"1");
  Add(u"0.5", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"12,345.5");
  Set("Display Type", 2);
  Set("Precision", 1);
  EXPECT_EQ(model_->ResultText(), u"12,345.5");
  model_->TakeDisplaySettings();
  EXPECT_EQ(model_->ResultText(), u"1.2e+04");
  Add(u"1e15", u"1");
  EXPECT_EQ(Rows(), "1.0e+15 1; 0.5 1; 12345 1");
}

TEST_F(OneVariableScreen, FreshResultLineStaysWhenDisplaySettingsChange) {
  Set("Display Type", 1);
  model_->TakeDisplaySettings();
  EXPECT_EQ(model_->ResultText(), u"0");
}

TEST_F(OneVariableScreen, ResultsReadTheTextsOfTheCells) {
  ASSERT_FALSE(Load("1.5e+3\t2\r\n2-3\t1\r\n-\t9\r\n"));
  // "2-3" starts with 2, and "-" is no number.
  EXPECT_EQ(Result(u"\u03A3X"), u"3,002");
  EXPECT_EQ(Result(u"\u03A3X^2"), u"4,500,004");
  EXPECT_EQ(model_->TotalText(), u"12");
}

TEST_F(OneVariableScreen, SumOfSquaresThatIsTooSmallHasNoRoot) {
  ASSERT_FALSE(Load("0\t1\r\n1\t-3\r\n"));
  EXPECT_EQ(Result(u"\u03A3X^2"), u"-3");
  EXPECT_EQ(Result(u"Arithmetic Mean of X"), u"1.5");
  // -3 - (-2) * 1.5 * 1.5 is 1.5: divided by -2 it is -0.75, by -3 it is -0.5.
  EXPECT_EQ(Result(u"\u03C3(n) of X"), u"Out of range(overflow or underflow)");
  EXPECT_EQ(Result(u"\u03C3(n-1) of X"), u"Out of range(overflow or underflow)");
}

TEST_F(OneVariableScreen, TotalOfZeroHasNoMean) {
  ASSERT_FALSE(Load("1\t0\r\n2\t0\r\n"));
  EXPECT_EQ(Result(u"\u03A3X"), u"0");
  EXPECT_EQ(Result(u"Arithmetic Mean of X"), u"Out of range(overflow or underflow)");
}

TEST_F(OneVariableScreen, SumBeyondTheRangeOfNumbersIsTold) {
  Add(u"1e308", u"2");
  Add(u"1", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"Out of range(overflow or underflow)");
}

TEST_F(OneVariableScreen, ResultsAreThoseOfTheRowsAsTheyAreNow) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
  Add(u"100", u"1");
  EXPECT_EQ(model_->ResultText(), u"10");
  EXPECT_EQ(Result(u"\u03A3X"), u"110");
}

// Memory variables.

TEST_F(OneVariableScreen, MemoryMenuIsAsked) {
  EXPECT_EQ(std::get<ShowMenu<StatisticsKey>>(Press(u"MEM")).key, StatisticsKey::MemoryMenu);
}

TEST_F(OneVariableScreen, FreshScreenOffersToStoreItsZero) {
  EXPECT_EQ(model_->MenuOf(StatisticsKey::MemoryMenu),
            (Menu{{1, u"Store MemVar"}, {2, u"ReCall MemVar"}}));
  EXPECT_EQ(Stored(), u"0");
}

TEST_F(OneVariableScreen, StoredResultIsInFloatingPoint) {
  Add(u"1000000", u"1");
  Add(u"234567.5", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"1,234,567.5");
  EXPECT_EQ(Stored(), u"1234567.5");
  EXPECT_EQ(model_->ResultText(), u"1,234,567.5");
}

TEST_F(OneVariableScreen, ResultThatCannotBeShownCannotBeStored) {
  Add(u"1e308", u"2");
  Add(u"1", u"1");
  Result(u"\u03A3X");
  EXPECT_EQ(model_->MenuOf(StatisticsKey::MemoryMenu), (Menu{{2, u"ReCall MemVar"}}));
  EXPECT_EQ(Stored(), u"nothing");
  // Adding a row is no result.
  Add(u"2", u"1");
  EXPECT_EQ(model_->MenuOf(StatisticsKey::MemoryMenu), (Menu{{2, u"ReCall MemVar"}}));
  Delete(2);
  EXPECT_EQ(Result(u"\u03A3X"), u"3");
  EXPECT_EQ(model_->MenuOf(StatisticsKey::MemoryMenu),
            (Menu{{1, u"Store MemVar"}, {2, u"ReCall MemVar"}}));
  EXPECT_EQ(Stored(), u"3");
}

TEST_F(OneVariableScreen, ItemsThatAreNotOfferedDoNothing) {
  for (const int id : {-1, 0, 3}) {
    EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(StatisticsKey::MemoryMenu, id)))
        << id;
  }
}

TEST_F(OneVariableScreen, RecalledValueReplacesTheFieldThatHadTheFocus) {
  Type(u"old", u"7");
  model_->SetFocusedField(DataField::X);
  EXPECT_TRUE(
      std::holds_alternative<RecallMemoryVariable>(model_->Choose(StatisticsKey::MemoryMenu, 2)));
  const auto request = model_->TakeVariable(u"1234567.50");
  ASSERT_TRUE(std::holds_alternative<FocusField>(request));
  EXPECT_EQ(std::get<FocusField>(request).field, DataField::X);
  EXPECT_EQ(model_->Fields(), (TypedRow{u"1234567.5", u"", u"7"}));
  EXPECT_TRUE(std::holds_alternative<TellStop>(model_->TakeVariable(u"1e999")));
  EXPECT_EQ(model_->Fields(), (TypedRow{u"1234567.5", u"", u"7"}));
}

TEST_F(OneVariableScreen, ValueCanBeRecalledIntoTheCount) {
  Type(u"1", u"7");
  model_->SetFocusedField(DataField::Count);
  const auto request = model_->TakeVariable(u"12 and more");
  EXPECT_EQ(std::get<FocusField>(request).field, DataField::Count);
  EXPECT_EQ(model_->Fields(), (TypedRow{u"1", u"", u"12"}));
}

TEST_F(OneVariableScreen, EditedRowCanTakeARecalledValue) {
  Add(u"2", u"3");
  model_->Select(0);
  Press(u"Edit");
  model_->TakeVariable(u"2.5");
  Press(u"Ok");
  EXPECT_EQ(Rows(), "2.5 3");
}

// For all counts: the mean lies between the smallest and the largest value. Adding a number to all
// values adds it to the mean and leaves the deviations as they are.
TEST_F(OneVariableScreen, DeviationsDoNotDependOnWhereTheValuesLie) {
  test::Random random(41);
  for (int i = 0; i < test::Tries(500); ++i) {
    const std::size_t rows = 2 + random.Below(20);
    std::string here;
    std::string there;
    for (std::size_t row = 0; row < rows; ++row) {
      const int value = static_cast<int>(random.Below(1000));
      const std::string count = "\t" + std::to_string(1 + random.Below(9)) + "\n";
      here += std::to_string(value) + count;
      there += std::to_string(value + 512) + count;
    }
    Replace(here);
    Result(u"Arithmetic Mean of X");
    const double mean = ReadLeadingNumber(Narrow(Stored()));
    Result(u"\u03C3(n) of X");
    const double deviation = ReadLeadingNumber(Narrow(Stored()));
    Replace(there);
    Result(u"Arithmetic Mean of X");
    EXPECT_NEAR(ReadLeadingNumber(Narrow(Stored())), mean + 512, 1e-9);
    Result(u"\u03C3(n) of X");
    if (deviation < 1e-3) continue;  // all values are the same: this is a rounding error
    EXPECT_NEAR(ReadLeadingNumber(Narrow(Stored())), deviation, 1e-6 * deviation);
  }
}

}  // namespace
}  // namespace kav::statistics_model_results_test
