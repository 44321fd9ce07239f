// Editing, deleting, clearing and sorting the rows of a statistics screen.
#include <gtest/gtest.h>

#include <string>

#include "statistics/statistics_model.h"
#include "statistics/two_variable_model.h"
#include "support/statistics_fixture.h"

namespace kav::statistics_model_rows_test {
namespace {

using OneVariableRows = test::StatisticsFixture<StatisticsModel>;
using TwoVariableRows = test::StatisticsFixture<TwoVariableModel>;

constexpr std::u16string_view kFresh = u"Add|Load|MEM";
constexpr std::u16string_view kOneRow = u"Add|Clear|Save|Load|MEM";
constexpr std::u16string_view kSelectedOfTwo =
    u"Add|Edit|Delete|Clear|Save|Load|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|"
    u"\u03C3(n) of X|MEM";

bool IsNothing(const StatisticsRequest& request) {
  return std::holds_alternative<Nothing>(request);
}

// Edit, Ok and Cancel.

TEST_F(OneVariableRows, EditingTakesTheRowIntoTheFields) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Type(u"77", u"7");
  const auto request = Press(u"Edit");
  ASSERT_TRUE(std::holds_alternative<FocusField>(request));
  EXPECT_EQ(std::get<FocusField>(request).field, DataField::X);
  EXPECT_EQ(model_->Fields(), (TypedRow{u"2", u"", u"3"}));
  EXPECT_TRUE(model_->IsEditing());
  EXPECT_EQ(Enabled(),
            u"Ok|Cancel|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|\u03C3(n) of X|"
            u"MEM");
  EXPECT_FALSE(model_->IsVisible(StatisticsKey::Add));
}

TEST_F(TwoVariableRows, EditingTakesBothValuesIntoTheFields) {
  Add(u"2", u"-7", u"3");
  model_->Select(0);
  Type(u"", u"", u"");
  Press(u"Edit");
  EXPECT_EQ(model_->Fields(), (TypedRow{u"2", u"-7", u"3"}));
  Type(u"2", u"8", u"3");
  EXPECT_TRUE(IsNothing(Press(u"Ok")));
  EXPECT_EQ(Rows(), "2 8 3");
}

TEST_F(OneVariableRows, OkRewritesTheRowAndTheTotal) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Press(u"Edit");
  Type(u"2.5000", u"10");
  EXPECT_TRUE(IsNothing(Press(u"Ok")));
  EXPECT_EQ(Rows(), "4 1; 2.5 10");
  EXPECT_EQ(model_->TotalText(), u"11");
  EXPECT_FALSE(model_->IsEditing());
  EXPECT_EQ(Enabled(), kSelectedOfTwo);
  EXPECT_EQ(model_->Selected(), 1U);
}

TEST_F(OneVariableRows, OkMarksTheListAsModified) {
  Add(u"2", u"3");
  ASSERT_FALSE(model_->SaveTo(folder_.File("data.txt"), {}));
  ASSERT_FALSE(AsksToSave());
  model_->Select(0);
  Press(u"Edit");
  EXPECT_FALSE(AsksToSave());
  Press(u"Ok");
  EXPECT_TRUE(AsksToSave());
}

TEST_F(OneVariableRows, EditWithoutAnotherCountLeavesCountAndTotal) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Press(u"Edit");
  Type(u"9", u"3");
  Press(u"Ok");
  EXPECT_EQ(Rows(), "4 1; 9 3");
  EXPECT_EQ(model_->TotalText(), u"4");
}

TEST_F(OneVariableRows, RefusedEditGoesOn) {
  Add(u"2", u"3");
  model_->Select(0);
  Press(u"Edit");
  Type(u"2", u"10001");
  EXPECT_EQ(Told(Press(u"Ok")), u"Count must be a whole number from 1 to 10000.");
  EXPECT_TRUE(model_->IsEditing());
  Type(u"-", u"3");
  EXPECT_EQ(Told(Press(u"Ok")), u"X must be a number such as -12.5 or 1.5e-3.");
  EXPECT_TRUE(model_->IsEditing());
  EXPECT_EQ(Rows(), "2 3");
}

TEST_F(OneVariableRows, CancelLeavesTheRow) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Press(u"Edit");
  Type(u"9", u"9");
  const unsigned revision = model_->Revision();
  EXPECT_TRUE(IsNothing(Press(u"Cancel")));
  EXPECT_EQ(Rows(), "4 1; 2 3");
  EXPECT_EQ(model_->TotalText(), u"4");
  EXPECT_EQ(model_->Revision(), revision);
  EXPECT_FALSE(model_->IsEditing());
  EXPECT_EQ(Enabled(), kSelectedOfTwo);
}

TEST_F(OneVariableRows, NothingElseChangesTheListWhileARowIsEdited) {
  PutFile(folder_.File("data.txt"), "8\t8\r\n");
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Press(u"Edit");
  model_->Select(0);
  model_->SortBy(0);
  model_->DeleteRow();
  model_->ClearRows();
  EXPECT_FALSE(model_->LoadFrom(folder_.File("data.txt"), {}));
  EXPECT_FALSE(model_->PasteRows(u"7\t7", {}));
  EXPECT_EQ(Rows(), "4 1; 2 3");
  EXPECT_EQ(model_->Selected(), 1U);
  Type(u"5", u"5");
  Press(u"Ok");
  EXPECT_EQ(Rows(), "4 1; 5 5");
}

TEST_F(OneVariableRows, ResultsCanBeHadWhileARowIsEdited) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  Press(u"Edit");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
}

// Delete.

TEST_F(OneVariableRows, DeletingDownToOneRowAndToNone) {
  Add(u"1", u"5");
  Add(u"2", u"1");
  Add(u"3", u"2");
  Delete(1);
  EXPECT_EQ(Rows(), "3 2; 1 5");
  EXPECT_EQ(model_->TotalText(), u"7");
  EXPECT_TRUE(model_->IsEnabled(StatisticsKey::SumX));
  Delete(0);
  EXPECT_EQ(Rows(), "1 5");
  EXPECT_FALSE(model_->IsEnabled(StatisticsKey::SumX));
  EXPECT_TRUE(model_->IsEnabled(StatisticsKey::Clear));
  EXPECT_TRUE(model_->IsEnabled(StatisticsKey::Save));
  Delete(0);
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_FALSE(model_->IsEnabled(StatisticsKey::Clear));
  EXPECT_FALSE(model_->IsEnabled(StatisticsKey::Save));
  Add(u"1", u"5");
  EXPECT_FALSE(model_->IsEnabled(StatisticsKey::SumX));
  Add(u"2", u"5");
  EXPECT_TRUE(model_->IsEnabled(StatisticsKey::SumX));
}

TEST_F(OneVariableRows, DeletingAsksFirst) {
  Add(u"1", u"1");
  model_->Select(0);
  const auto request = Press(u"Delete");
  ASSERT_TRUE(std::holds_alternative<AskFirst<StatisticsKey>>(request));
  EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(request).key, StatisticsKey::Delete);
  EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(request).question,
            u"Are you sure you want to delete the selected data?");
  EXPECT_EQ(Rows(), "1 1");
}

TEST_F(OneVariableRows, DeletingMarksTheListAsModified) {
  ASSERT_FALSE(Load("1\t2\r\n3\t4\r\n"));
  Delete(0);
  EXPECT_TRUE(AsksToSave());
}

// Deleting a row does not disable Edit and Delete: they stay enabled until the next choice of a
// row.
TEST_F(OneVariableRows, DeletingOnceMoreTellsThatNothingIsSelected) {
  Add(u"1", u"1");
  Add(u"2", u"1");
  Delete(0);
  EXPECT_FALSE(model_->Selected());
  model_->Select(std::nullopt);
  EXPECT_EQ(Told(Press(u"Delete")), u"No items were selected!");
  EXPECT_TRUE(IsNothing(Press(u"Edit")));
  EXPECT_FALSE(model_->IsEditing());
  EXPECT_EQ(Rows(), "1 1");
  model_->Select(0);
  model_->Select(std::nullopt);
  EXPECT_EQ(Enabled(), kOneRow);
}

// Clear.

TEST_F(OneVariableRows, ClearingAsksAndMakesACleanList) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
  model_->Select(0);
  const auto request = Press(u"Clear");
  ASSERT_TRUE(std::holds_alternative<AskFirst<StatisticsKey>>(request));
  EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(request).key, StatisticsKey::Clear);
  EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(request).question,
            u"Are you sure you want to delete all data?");
  EXPECT_EQ(model_->List().RowCount(), 2U);
  model_->ClearRows();
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_EQ(model_->ResultText(), u"10");
  EXPECT_EQ(Enabled(), kFresh);
  EXPECT_FALSE(model_->Selected());
  EXPECT_FALSE(AsksToSave());
}

// Sorting.

TEST_F(OneVariableRows, EachSortGoesTheOtherWayWhicheverColumnItIs) {
  Add(u"10", u"2");
  Add(u"9", u"30");
  Add(u"-1e3", u"4");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "-1000 4; 9 30; 10 2");
  model_->SortBy(1);
  EXPECT_EQ(Rows(), "9 30; -1000 4; 10 2");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "-1000 4; 9 30; 10 2");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "10 2; 9 30; -1000 4");
}

TEST_F(TwoVariableRows, EveryColumnSorts) {
  Add(u"1", u"20", u"300");
  Add(u"2", u"30", u"100");
  Add(u"3", u"10", u"200");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "1 20 300; 2 30 100; 3 10 200");
  model_->SortBy(1);
  EXPECT_EQ(Rows(), "2 30 100; 1 20 300; 3 10 200");
  model_->SortBy(2);
  EXPECT_EQ(Rows(), "2 30 100; 3 10 200; 1 20 300");
}

TEST_F(OneVariableRows, ColumnThatIsNotThereDoesNotSort) {
  Add(u"1", u"1");
  Add(u"2", u"1");
  model_->SortBy(2);
  EXPECT_EQ(Rows(), "2 1; 1 1");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "1 1; 2 1");
}

TEST_F(OneVariableRows, SortingIsNoModification) {
  ASSERT_FALSE(Load("3\t4\r\n1\t2\r\n"));
  const unsigned revision = model_->Revision();
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "1 2; 3 4");
  EXPECT_EQ(model_->TotalText(), u"6");
  EXPECT_FALSE(AsksToSave());
  EXPECT_NE(model_->Revision(), revision);
}

TEST_F(OneVariableRows, SortingNoRowsTurnsTheDirectionToo) {
  model_->SortBy(0);
  Add(u"1", u"1");
  Add(u"2", u"1");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "2 1; 1 1");
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "1 1; 2 1");
}

// Texts that are dropped on the list.

TEST_F(TwoVariableRows, ADroppedNumberIsTypedIntoItsCell) {
  Add(u"1", u"2", u"3");
  Add(u"4", u"5", u"6");
  Type(u"77", u"88", u"9");
  EXPECT_FALSE(model_->PasteAt(DataCell{1, 0}, u" 1.50 \r\n", {}));
  EXPECT_EQ(Rows(), "4 5 6; 1.5 2 3");
  EXPECT_EQ(model_->Selected(), 1U);
  EXPECT_FALSE(model_->PasteAt(DataCell{1, 1}, u"-7", {}));
  EXPECT_FALSE(model_->PasteAt(DataCell{0, 2}, u"10", {}));
  EXPECT_EQ(Rows(), "4 5 10; 1.5 -7 3");
  EXPECT_EQ(model_->TotalText(), u"13");
  EXPECT_EQ(model_->Fields(), (TypedRow{u"77", u"88", u"9"})) << "what is being typed stays";
  EXPECT_TRUE(AsksToSave());
}

TEST_F(TwoVariableRows, ACellRefusesADroppedTextAsItsFieldDoes) {
  Add(u"1", u"2", u"3");
  struct Row {
    std::size_t column;
    std::u16string text;
    std::u16string told;
  };
  for (const Row& row : {
           Row{0, u"abc", u"X must be a number such as -12.5 or 1.5e-3."},
           Row{1, u"2*x", u"Y must be a number such as -12.5 or 1.5e-3."},
           Row{1, u"1e999", u"Y is too large: it must be a number from -1.79e308 to 1.79e308."},
           Row{2, u"0", u"Count must be a whole number from 1 to 10000."},
           Row{2, u"1.5", u"Count must be a whole number from 1 to 10000."},
       }) {
    EXPECT_EQ(model_->PasteAt(DataCell{0, row.column}, row.text, {}), row.told);
    EXPECT_EQ(Rows(), "1 2 3");
  }
}

TEST_F(OneVariableRows, ADroppedTextThatIsNotOneCellIsPasted) {
  Add(u"1", u"2");
  EXPECT_FALSE(model_->PasteAt(DataCell{0, 0}, u"5\t6\n7\t8\n", {}));
  EXPECT_EQ(Rows(), "5 6; 7 8; 1 2");
  EXPECT_FALSE(model_->PasteAt(std::nullopt, u"9", {}));
  EXPECT_EQ(Rows(), "9 1; 5 6; 7 8; 1 2");
  EXPECT_FALSE(model_->PasteAt(DataCell{0, 1}, u"4", {}));
  EXPECT_EQ(Rows(), "9 4; 5 6; 7 8; 1 2");
}

TEST_F(OneVariableRows, NothingIsDroppedWhereThereIsNoCellOrWhileARowIsEdited) {
  Add(u"1", u"2");
  EXPECT_FALSE(model_->PasteAt(DataCell{1, 0}, u"5", {}));
  EXPECT_FALSE(model_->PasteAt(DataCell{0, 2}, u"5", {}));
  model_->Select(0);
  Press(u"Edit");
  EXPECT_FALSE(model_->PasteAt(DataCell{0, 0}, u"5", {}));
  EXPECT_EQ(Rows(), "1 2");
}

}  // namespace
}  // namespace kav::statistics_model_rows_test
