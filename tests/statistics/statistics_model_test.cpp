// A statistics screen whose list grows: adding, total, selection, buttons.
#include "statistics/statistics_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "statistics/statistics_texts.h"
#include "statistics/two_variable_model.h"
#include "support/effort.h"
#include "support/random.h"
#include "support/statistics_fixture.h"

namespace kav::statistics_model_test {
namespace {

using OneVariable = test::StatisticsFixture<StatisticsModel>;
using TwoVariables = test::StatisticsFixture<TwoVariableModel>;

constexpr std::u16string_view kFresh = u"Add|Load|MEM";
constexpr std::u16string_view kOneRow = u"Add|Clear|Save|Load|MEM";
constexpr std::u16string_view kTwoRows =
    u"Add|Clear|Save|Load|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|\u03C3(n) of X|"
    u"MEM";
constexpr std::u16string_view kSelectedOfTwo =
    u"Add|Edit|Delete|Clear|Save|Load|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|"
    u"\u03C3(n) of X|MEM";

bool IsNothing(const StatisticsRequest& request) {
  return std::holds_alternative<Nothing>(request);
}

TEST_F(OneVariable, FreshScreenIsEmpty) {
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_EQ(model_->ResultText(), u"0");
  EXPECT_EQ(model_->Fields(), (TypedRow{u"", u"", u"1"}));
  EXPECT_EQ(model_->FocusedField(), DataField::X);
  EXPECT_EQ(Enabled(), kFresh);
  EXPECT_FALSE(model_->IsEditing());
  EXPECT_FALSE(model_->Selected());
  EXPECT_FALSE(model_->QuestionBeforeLeaving());
}

TEST_F(TwoVariables, FreshScreenIsEmptyAndLinear) {
  EXPECT_EQ(Enabled(), kFresh);
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_EQ(model_->ResultText(), u"0");
  EXPECT_EQ(model_->Caption(StatisticsKey::Model), u"Lin");
}

// Add.

TEST_F(OneVariable, NewestRowIsOnTop) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  EXPECT_EQ(Rows(), "4 1; 2 3");
  EXPECT_EQ(model_->TotalText(), u"4");
  EXPECT_TRUE(AsksToSave());
}

TEST_F(TwoVariables, RowsHaveBothValuesAndTheCount) {
  Add(u"1", u"2", u"3");
  Add(u"-4.5", u"1e3", u"10000");
  EXPECT_EQ(Rows(), "-4.5 1000 10000; 1 2 3");
  EXPECT_EQ(model_->TotalText(), u"10003");
}

TEST_F(OneVariable, AddingSelectsTheXFieldAndKeepsWhatWasTyped) {
  Type(u"2.50", u"3");
  model_->SetFocusedField(DataField::Count);
  const auto request = Press(u"Add");
  ASSERT_TRUE(std::holds_alternative<FocusField>(request));
  EXPECT_EQ(std::get<FocusField>(request).field, DataField::X);
  EXPECT_EQ(model_->FocusedField(), DataField::X);
  EXPECT_EQ(model_->Fields(), (TypedRow{u"2.50", u"", u"3"}));
}

TEST_F(OneVariable, CellsAreInFloatingPointWhateverResultsAreShownIn) {
  for (std::int32_t type = 0; type <= 4; ++type) {
    Set("Display Type", type);
    Set("Precision", 2);
    Open();
    Add(u"1,234,567.50", u"1");
    Add(u"0.1", u"1000");
    Add(u"1e15", u"1");
    EXPECT_EQ(Rows(), "1.00e+15 1; 0.1 1000; 1234567.5 1") << type;
  }
}

TEST_F(OneVariable, RefusedFieldsChangeNothing) {
  Add(u"1", u"1");
  const unsigned revision = model_->Revision();
  struct Row {
    std::u16string_view x;
    std::u16string_view count;
    std::u16string_view told;
    DataField focus;
  };
  for (const Row& row :
       {Row{u"x", u"1", u"X must be a number such as -12.5 or 1.5e-3.", DataField::X},
        Row{u"", u"0", u"X must be a number such as -12.5 or 1.5e-3.", DataField::X},
        Row{u"2", u"0", u"Count must be a whole number from 1 to 10000.", DataField::Count},
        Row{u"2", u"10001", u"Count must be a whole number from 1 to 10000.", DataField::Count},
        Row{u"2", u"1.5", u"Count must be a whole number from 1 to 10000.", DataField::Count}}) {
    Type(row.x, row.count);
    const auto request = Press(u"Add");
    ASSERT_TRUE(std::holds_alternative<FieldRefusal>(request)) << Narrow(row.x);
    EXPECT_EQ(Told(request), row.told);
    EXPECT_EQ(std::get<FieldRefusal>(request).focus, row.focus);
    EXPECT_EQ(model_->FocusedField(), row.focus);
  }
  EXPECT_EQ(Rows(), "1 1");
  EXPECT_EQ(model_->TotalText(), u"1");
  EXPECT_EQ(model_->Revision(), revision);
  EXPECT_EQ(Enabled(), kOneRow);
}

TEST_F(TwoVariables, YIsAskedForBetweenXAndCount) {
  Type(u"1", u"?", u"0");
  const auto request = Press(u"Add");
  EXPECT_EQ(Told(request), u"Y must be a number such as -12.5 or 1.5e-3.");
  EXPECT_EQ(std::get<FieldRefusal>(request).focus, DataField::Y);
  EXPECT_EQ(Rows(), "");
  EXPECT_FALSE(AsksToSave());
}

TEST_F(OneVariable, OneRowEnablesClearAndSaveAndTheSecondTheResults) {
  Add(u"1", u"5");
  EXPECT_EQ(Enabled(), kOneRow);
  Add(u"2", u"1");
  EXPECT_EQ(Enabled(), kTwoRows);
  Add(u"3", u"1");
  EXPECT_EQ(Enabled(), kTwoRows);
}

TEST_F(TwoVariables, SecondRowEnablesResultsModelsAndPlot) {
  Add(u"1", u"1", u"9");
  EXPECT_EQ(Enabled(), kOneRow);
  Add(u"2", u"1", u"1");
  EXPECT_EQ(Enabled(),
            u"Add|Clear|Save|Load|\u03A3X|\u03A3X^2|Mean of X|\u03C3(n-1) of X|\u03C3(n) of X|"
            u"\u03A3Y|\u03A3Y^2|Mean of Y|\u03C3(n-1) of Y|\u03C3(n) of Y|\u03A3XY|A|B|r|Lin|Y'|"
            u"Plot|X'|MEM");
  for (const auto hidden :
       {StatisticsKey::C, StatisticsKey::EstimateX1, StatisticsKey::EstimateX2}) {
    EXPECT_TRUE(model_->IsEnabled(hidden));
    EXPECT_FALSE(model_->IsVisible(hidden));
  }
}

TEST_F(OneVariable, DisabledAndHiddenButtonsDoNothing) {
  Type(u"1", u"1");
  for (const StatisticsKey key :
       {StatisticsKey::Edit, StatisticsKey::Ok, StatisticsKey::Cancel, StatisticsKey::Delete,
        StatisticsKey::Clear, StatisticsKey::Save, StatisticsKey::SumX, StatisticsKey::SumY,
        StatisticsKey::Model, StatisticsKey::Plot, StatisticsKey::EstimateX}) {
    EXPECT_TRUE(IsNothing(model_->Press(key)));
  }
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(model_->ResultText(), u"0");
}

TEST_F(OneVariable, ButtonsOfTheOtherScreenAreHidden) {
  Add(u"1", u"1");
  Add(u"2", u"1");
  for (const StatisticsKey key : {StatisticsKey::SumY, StatisticsKey::Products,
                                  StatisticsKey::Model, StatisticsKey::A, StatisticsKey::Plot}) {
    EXPECT_FALSE(model_->IsVisible(key));
    EXPECT_EQ(model_->Caption(key), u"");
    EXPECT_TRUE(IsNothing(model_->Press(key)));
  }
  EXPECT_EQ(model_->ResultText(), u"0");
}

// Only a file gives a total beyond 32 bits: no user adds that many rows.
TEST_F(OneVariable, TotalBeyondThirtyTwoBitsIsRefused) {
  ASSERT_FALSE(Load("1\t2147483640\r\n2\t3\r\n"));
  Type(u"5", u"5");
  const auto request = Press(u"Add");
  EXPECT_EQ(Told(request),
            u"The total of all counts must be from -2147483648 to 2147483647. The list was not "
            u"changed.");
  ASSERT_TRUE(std::holds_alternative<FieldRefusal>(request));
  EXPECT_EQ(std::get<FieldRefusal>(request).focus, DataField::Count);
  EXPECT_EQ(Rows(), "1 2147483640; 2 3");
  EXPECT_FALSE(AsksToSave());
  Add(u"5", u"4");
  EXPECT_EQ(model_->TotalText(), u"2147483647");
}

TEST_F(OneVariable, EditThatTakesTheTotalBeyondThirtyTwoBitsIsRefused) {
  ASSERT_FALSE(Load("1\t2147483640\r\n2\t3\r\n"));
  model_->Select(1);
  Press(u"Edit");
  Type(u"2", u"8");
  const auto request = Press(u"Ok");
  EXPECT_EQ(Told(request),
            u"The total of all counts must be from -2147483648 to 2147483647. The list was not "
            u"changed.");
  EXPECT_TRUE(model_->IsEditing());
  EXPECT_EQ(Rows(), "1 2147483640; 2 3");
  Type(u"2", u"7");
  Press(u"Ok");
  EXPECT_FALSE(model_->IsEditing());
  EXPECT_EQ(model_->TotalText(), u"2147483647");
}

TEST_F(OneVariable, DeletingTheRowThatKeepsTheTotalInRangeIsRefused) {
  ASSERT_FALSE(Load("1\t2000000000\r\n2\t-2000000000\r\n3\t2000000000\r\n"));
  model_->Select(1);
  const auto request = Press(u"Delete");
  ASSERT_TRUE(std::holds_alternative<TellStop>(request));
  EXPECT_EQ(Told(request),
            u"The total of all counts must be from -2147483648 to 2147483647. The list was not "
            u"changed.");
  model_->DeleteRow();
  EXPECT_EQ(model_->List().RowCount(), 3U);
  EXPECT_FALSE(AsksToSave());
}

TEST(StatisticsTexts, RowsThatDoNotFitAreToldWhatAListHolds) {
  EXPECT_EQ(WhyRowsDoNotFit(DataRefusal::TooManyRows),
            u"A list holds up to 20000000 rows. The list was not changed.");
  EXPECT_EQ(WhyRowsDoNotFit(DataRefusal::ValueTooLong),
            u"A value holds up to 30000 characters. The list was not changed.");
  EXPECT_EQ(WhyRowsDoNotFit(DataRefusal::NoMemory),
            u"There is not enough memory for more rows. The list was not changed.");
}

// Selection.

TEST_F(OneVariable, SelectionEnablesEditAndDelete) {
  Add(u"1", u"1");
  Add(u"2", u"1");
  model_->Select(1);
  EXPECT_EQ(model_->Selected(), 1U);
  EXPECT_EQ(Enabled(), kSelectedOfTwo);
  model_->Select(std::nullopt);
  EXPECT_EQ(Enabled(), kTwoRows);
}

TEST_F(OneVariable, RowThatIsNotThereCannotBeSelected) {
  Add(u"1", u"1");
  model_->Select(1);
  EXPECT_FALSE(model_->Selected());
  EXPECT_EQ(Enabled(), kOneRow);
}

TEST_F(OneVariable, SelectedRowStaysSelectedUnderANewOne) {
  Add(u"1", u"1");
  Add(u"2", u"1");
  model_->Select(0);
  Add(u"3", u"1");
  EXPECT_EQ(model_->Selected(), 1U);
  EXPECT_EQ(model_->List().ValueText(*model_->Selected(), 0), "2");
}

// After any steps in any order, total and buttons are what the steps made them.

struct Steps {
  std::vector<std::pair<int, int>> rows;
  bool hasRows = false;
  bool hasResults = false;

  int Total() const {
    int total = 0;
    for (const auto& row : rows) total += row.second;
    return total;
  }
};

TEST_F(OneVariable, TotalAndButtonsFollowEveryStep) {
  test::Random random(4101);
  Steps steps;
  for (int i = 0; i < test::Tries(20'000); ++i) {
    const int value = static_cast<int>(random.Below(100));
    const int count = 1 + static_cast<int>(random.Below(10'000));
    const bool isEmpty = steps.rows.empty();
    const std::size_t place = isEmpty ? 0 : random.Below(steps.rows.size());
    const std::size_t command = random.Below(9);
    if (command < 4) {
      Add(Widen(std::to_string(value)), Widen(std::to_string(count)));
      steps.rows.insert(steps.rows.begin(), {value, count});
      if (steps.rows.size() == 1) steps.hasRows = true;
      if (steps.rows.size() == 2) steps.hasResults = true;
    } else if (command < 7 && !isEmpty) {
      Delete(place);
      steps.rows.erase(steps.rows.begin() + static_cast<std::ptrdiff_t>(place));
      if (steps.rows.size() == 1) steps.hasResults = false;
      if (steps.rows.empty()) steps.hasRows = false;
    } else if (command == 7 && !isEmpty) {
      model_->Select(place);
      Press(u"Edit");
      Type(Widen(std::to_string(value)), Widen(std::to_string(count)));
      Press(random.Below(2) == 0 ? u"Ok" : u"Cancel");
      const DataList& list = model_->List();
      steps.rows[place] = {static_cast<int>(list.Value(place, 0)), list.Count(place)};
    } else if (!isEmpty && random.Below(20) == 0) {
      Clear();
      steps = Steps{};
    }
    ASSERT_EQ(model_->List().RowCount(), steps.rows.size());
    ASSERT_EQ(model_->TotalText(), Widen(std::to_string(steps.Total())));
    ASSERT_EQ(model_->IsEnabled(StatisticsKey::Clear), steps.hasRows);
    ASSERT_EQ(model_->IsEnabled(StatisticsKey::SumX), steps.hasResults);
    ASSERT_EQ(steps.hasRows, !steps.rows.empty());
    ASSERT_EQ(steps.hasResults, steps.rows.size() >= 2);
  }
}

}  // namespace
}  // namespace kav::statistics_model_test
