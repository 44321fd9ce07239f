// The screen of one-variable statistics, used as a user does: fields, list, editing, results.
#include <gtest/gtest.h>

#include "screens/statistics_driver.h"
#include "settings/keys.h"

namespace kav::test::one_variable_dlg_test {
namespace {

using OneVariableDlgTest = OneVariableScreen;

TEST_F(OneVariableDlgTest, AFreshScreenIsEmpty) {
  EXPECT_EQ(dlg_->windowTitle(), "Kav Calculator");
  EXPECT_EQ(TextIn("X"), "");
  EXPECT_EQ(TextIn("Count"), "1");
  EXPECT_EQ(Total(), "0");
  EXPECT_EQ(Answer(), u"0");
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(OnesOn(kRowKeys), "Load");
  EXPECT_EQ(OnesOn(kResultKeys), "");
  EXPECT_TRUE(IsOn(u"MEM"));
  EXPECT_TRUE(IsOn(u"Add"));
  EXPECT_FALSE(IsShown(u"Ok"));
  EXPECT_FALSE(IsShown(u"Cancel"));
  EXPECT_TRUE(HasFocus("X"));
}

TEST_F(OneVariableDlgTest, TheLabelsAndHeadingsAreThoseOfOneVariable) {
  QStringList labels;
  for (const auto* label : dlg_->findChildren<QLabel*>()) labels.append(label->text());
  labels.sort();
  EXPECT_EQ(labels, (QStringList{"0", "Count :", "Total : ", "X :"}));
  ASSERT_EQ(Table().model()->columnCount(), 2);
  EXPECT_EQ(Table().model()->headerData(0, Qt::Horizontal).toString(), "X");
  EXPECT_EQ(Table().model()->headerData(1, Qt::Horizontal).toString(), "Count");
  EXPECT_FALSE(IsShown(u"ΣXY"));
}

TEST_F(OneVariableDlgTest, AddPutsRowsOnTopAndTheFocusIntoX) {
  Put("X", "2");
  Put("Count", "3");
  Tap(u"Add");
  EXPECT_EQ(Rows(), "2 3");
  EXPECT_EQ(Total(), "3");
  EXPECT_TRUE(IsAllSelected("X"));
  Type("4");
  Put("Count", "1");
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows(), "4 1;2 3");
  EXPECT_EQ(Total(), "4");
  EXPECT_TRUE(IsAllSelected("X"));
}

TEST_F(OneVariableDlgTest, ValuesAreWrittenInFloatingPoint) {
  AddRows("007;1e3;-.5;1234567.25;1e15");
  EXPECT_EQ(Rows(), "1.0000000e+15 1;1234567.25 1;-0.5 1;1000 1;7 1");
}

TEST_F(OneVariableDlgTest, KeysAreEnabledStepByStep) {
  AddRows("2 5");
  EXPECT_EQ(OnesOn(kRowKeys), "Clear;Save;Load");
  EXPECT_EQ(OnesOn(kResultKeys), "") << "one row, whatever its count, has no spread";
  AddRows("4");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
}

TEST_F(OneVariableDlgTest, ResultsAreThoseOfTheWeightedValues) {
  AddRows("2 3;4 1");
  EXPECT_EQ(ResultOf(u"ΣX"), u"10");
  EXPECT_EQ(ResultOf(u"ΣX^2"), u"28");
  EXPECT_EQ(ResultOf(u"Arithmetic Mean of X"), u"2.5");
  EXPECT_EQ(ResultOf(u"σ(n-1) of X"), u"1");
  EXPECT_EQ(ResultOf(u"σ(n) of X"), u"0.866025403784");  // the root of 0.75
}

TEST_F(OneVariableDlgTest, ResultsTakeTheDisplaySettings) {
  frame_.store.Set(kDisplayType, 1);
  frame_.store.Set(kPrecision, 2);
  Open();
  AddRows("1000;500");
  EXPECT_EQ(ResultOf(u"ΣX"), u"1500.00");
}

TEST_F(OneVariableDlgTest, ChangedDisplaySettingsChangeWhatIsShown) {
  frame_.dialogs.displaySettings = [this](QWidget*, DisplayPage page) {
    EXPECT_EQ(page, DisplayPage::Normal);
    frame_.store.Set(kDisplayType, 2);
    frame_.store.Set(kPrecision, 1);
    return true;
  };
  Open();
  AddRows("1000;500");
  EXPECT_EQ(ResultOf(u"ΣX"), u"1,500");
  Put("X", "77");
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"1.5e+03");
  EXPECT_EQ(TextIn("X"), "77");
}

TEST_F(OneVariableDlgTest, WhatIsNoValueIsRefused) {
  for (const char* text : {"", " ", "abc", "1,5.2", "1e", "2*x", "--1", "1 2", "inf", "nan"}) {
    SCOPED_TRACE(text);
    Put("X", text);
    ExpectRefusal(u"Add", u"X must be a number such as -12.5 or 1.5e-3.");
    EXPECT_TRUE(IsAllSelected("X"));
  }
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Total(), "0");
}

TEST_F(OneVariableDlgTest, WhatIsNoCountIsRefused) {
  Put("X", "1");
  for (const char* text : {"", "0", "-1", "10001", "1.5", "abc", "1e5", "99999999999999999999"}) {
    SCOPED_TRACE(text);
    Put("Count", text);
    ExpectRefusal(u"Add", u"Count must be a whole number from 1 to 10000.");
    EXPECT_TRUE(IsAllSelected("Count"));
  }
  EXPECT_EQ(Rows(), "");
  AddRows("1 1;1 10000");
  EXPECT_EQ(Total(), "10001");
}

TEST_F(OneVariableDlgTest, ASelectedRowCanBeEditedAndDeleted) {
  AddRows("1;2;3");
  EXPECT_EQ(OnesOn(kRowKeys), "Clear;Save;Load");
  ClickRow(1);
  EXPECT_EQ(SelectedRows(), "1");
  EXPECT_EQ(OnesOn(kRowKeys), kRowKeys);
  ClickRow(1, Qt::ControlModifier);
  EXPECT_EQ(SelectedRows(), "");
  EXPECT_EQ(OnesOn(kRowKeys), "Clear;Save;Load");
}

TEST_F(OneVariableDlgTest, EditIsAStateOfItsOwn) {
  AddRows("1 5;2 6;3 7");
  ClickRow(1);
  Tap(u"Edit");
  EXPECT_EQ(TextIn("X"), "2");
  EXPECT_EQ(TextIn("Count"), "6");
  EXPECT_TRUE(IsAllSelected("X"));
  EXPECT_FALSE(IsShown(u"Add"));
  EXPECT_TRUE(IsOn(u"Ok"));
  EXPECT_TRUE(IsOn(u"Cancel"));
  EXPECT_EQ(Total(), "hidden");
  EXPECT_FALSE(Table().isEnabled());
  EXPECT_EQ(OnesOn(kRowKeys), "");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
}

TEST_F(OneVariableDlgTest, OkRewritesTheRow) {
  AddRows("1 5;2 6;3 7");
  ClickRow(1);
  Tap(u"Edit");
  Type("20");
  Put("Count", "8");
  Tap(u"Ok");
  EXPECT_EQ(Rows(), "3 7;20 8;1 5");
  EXPECT_EQ(Total(), "20");
  EXPECT_TRUE(IsShown(u"Add"));
  EXPECT_FALSE(IsShown(u"Ok"));
  EXPECT_TRUE(Table().isEnabled());
  EXPECT_EQ(SelectedRows(), "1");
  EXPECT_EQ(OnesOn(kRowKeys), kRowKeys);
}

TEST_F(OneVariableDlgTest, AnEditThatLeavesTheCountLeavesTheTotal) {
  AddRows("1 5;2 6");
  ClickRow(0);
  Tap(u"Edit");
  Type("-2");
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows(), "-2 6;1 5");
  EXPECT_EQ(Total(), "11");
}

TEST_F(OneVariableDlgTest, CancelAndEscLeaveTheRow) {
  AddRows("1 5;2 6");
  ClickRow(0);
  Tap(u"Edit");
  Put("X", "9");
  Tap(u"Cancel");
  EXPECT_EQ(Rows(), "2 6;1 5");
  EXPECT_TRUE(IsShown(u"Add"));
  EXPECT_EQ(Total(), "11");
  Tap(u"Edit");
  Put("X", "9");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Rows(), "2 6;1 5");
  EXPECT_TRUE(IsShown(u"Add"));
}

TEST_F(OneVariableDlgTest, AWrongEditIsRefusedAndGoesOn) {
  AddRows("1 5;2 6");
  ClickRow(0);
  Tap(u"Edit");
  Put("X", "two");
  ExpectRefusal(u"Ok", u"X must be a number such as -12.5 or 1.5e-3.");
  EXPECT_TRUE(IsAllSelected("X"));
  EXPECT_TRUE(IsShown(u"Ok"));
  Put("X", "2");
  Put("Count", "20000");
  ExpectRefusal(u"Ok", u"Count must be a whole number from 1 to 10000.");
  EXPECT_TRUE(IsAllSelected("Count"));
  EXPECT_EQ(Rows(), "2 6;1 5");
}

TEST_F(OneVariableDlgTest, DeleteAsksFirst) {
  AddRows("1 5;2 6;3 7");
  ClickRow(1);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::No);
  EXPECT_EQ(Rows(), "3 7;2 6;1 5");
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  EXPECT_EQ(Rows(), "3 7;1 5");
  EXPECT_EQ(Total(), "12");
  EXPECT_EQ(SelectedRows(), "");
}

TEST_F(OneVariableDlgTest, OnlyTheFirstOfSeveralSelectedRowsIsDeleted) {
  AddRows("1;2;3;4");
  ClickRow(3);
  ClickRow(1, Qt::ControlModifier);
  EXPECT_EQ(SelectedRows(), "1 3");
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  EXPECT_EQ(Rows(), "4 1;2 1;1 1");
}

TEST_F(OneVariableDlgTest, OnlyTheFirstOfSeveralSelectedRowsIsEdited) {
  AddRows("1;2;3;4");
  ClickRow(3);
  ClickRow(1, Qt::ControlModifier);
  Tap(u"Edit");
  EXPECT_EQ(TextIn("X"), "3");
}

TEST_F(OneVariableDlgTest, DeleteWithoutASelectionSaysSo) {
  AddRows("1;2;3");
  ClickRow(0);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  // Deleting a row removes the selection and leaves the key enabled.
  ExpectRefusal(u"Delete", u"No items were selected!");
  EXPECT_EQ(Rows(), "2 1;1 1");
}

TEST_F(OneVariableDlgTest, DeletingDisablesStepByStep) {
  AddRows("1;2");
  ClickRow(0);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  EXPECT_EQ(OnesOn(kResultKeys), "");
  EXPECT_EQ(OnesOn("Clear;Save;Load"), "Clear;Save;Load");
  ClickRow(0);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  EXPECT_EQ(OnesOn("Clear;Save;Load"), "Load");
  EXPECT_EQ(Total(), "0");
}

TEST_F(OneVariableDlgTest, ClearAsksAndLeavesTheResult) {
  AddRows("1 2;2 3");
  EXPECT_EQ(ResultOf(u"ΣX"), u"8");
  ClickRow(0);
  Answer(u"Clear", u"Are you sure you want to delete all data?", QMessageBox::No);
  EXPECT_EQ(Rows(), "2 3;1 2");
  Answer(u"Clear", u"Are you sure you want to delete all data?", QMessageBox::Yes);
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Total(), "0");
  EXPECT_EQ(Answer(), u"8");
  EXPECT_EQ(OnesOn(kRowKeys), "Load");
  EXPECT_EQ(OnesOn(kResultKeys), "");
}

TEST_F(OneVariableDlgTest, AClickOnAHeadingSortsUpAndDownByTurns) {
  AddRows("10 1;9 3;-2 2");
  ClickHeading(0);
  EXPECT_EQ(Rows(), "-2 2;9 3;10 1");
  ClickHeading(0);
  EXPECT_EQ(Rows(), "10 1;9 3;-2 2");
  ClickHeading(1);
  EXPECT_EQ(Rows(), "10 1;-2 2;9 3");
  ClickHeading(0);
  EXPECT_EQ(Rows(), "10 1;9 3;-2 2");
  EXPECT_EQ(Total(), "6");
}

TEST_F(OneVariableDlgTest, SortingKeepsWhatIsTyped) {
  AddRows("10;9");
  Put("X", "77");
  ClickHeading(0);
  EXPECT_EQ(TextIn("X"), "77");
}

TEST_F(OneVariableDlgTest, AddingShiftsTheSelectionWithItsRow) {
  AddRows("1;2");
  ClickRow(0);
  AddRows("3");
  EXPECT_EQ(SelectedRows(), "1");
  Tap(u"Edit");
  EXPECT_EQ(TextIn("X"), "2");
}

TEST_F(OneVariableDlgTest, TheModeMenuLeadsToTheOtherScreens) {
  frame_.others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
  Open();
  AddRows("1 1");
  // With a total of 1 there is nothing to lose.
  ChooseFrom(*dlg_, u"&Mode", u"Matrix Calculator");
  EXPECT_EQ(frame_.modes, std::vector<ScreenMode>{ScreenMode::Matrix});
}

}  // namespace
}  // namespace kav::test::one_variable_dlg_test
