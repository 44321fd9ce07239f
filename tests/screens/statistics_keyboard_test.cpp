// The statistics screens used by keyboard and by their Edit menu, and their memory variables.
#include <gtest/gtest.h>

#include <QClipboard>

#include "screens/offer_driver.h"
#include "screens/statistics_driver.h"

namespace kav::test::statistics_keyboard_test {
namespace {

using StatisticsKeyboardTest = OneVariableScreen;

TEST_F(StatisticsKeyboardTest, TheKeyboardSortsToo) {
  AddRows("10 1;9 3;-2 2");
  Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "10 1;-2 2;9 3");
  Key(Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "10 1;9 3;-2 2");
}

TEST_F(StatisticsKeyboardTest, TheListIsWorkedByTheKeyboard) {
  AddRows("1;2;3");
  ClickRow(0);
  Key(Qt::Key_Down);
  EXPECT_EQ(SelectedRows(), "1");
  Key(Qt::Key_End);
  EXPECT_EQ(SelectedRows(), "2");
  Key(Qt::Key_Home);
  EXPECT_EQ(SelectedRows(), "0");
  Key(Qt::Key_Return);
  EXPECT_EQ(TextIn("X"), "3");
  EXPECT_TRUE(IsShown(u"Ok"));
  Key(Qt::Key_Escape);
  Table().setFocus();
  ExpectBox(QMessageBox::Yes);
  Key(Qt::Key_Delete);
  ExpectSeen(u"Are you sure you want to delete the selected data?", QMessageBox::Question);
  EXPECT_EQ(Rows(), "2 1;1 1");
  Focused();
  EXPECT_TRUE(ListHasFocus()) << "the next row may be next";
}

TEST_F(StatisticsKeyboardTest, WhatIsTypedAfterTheTabKeyReplacesTheText) {
  AddRows("1.5 2");
  Key(Qt::Key_Tab);
  Type("7");
  EXPECT_EQ(TextIn("Count"), "7");
  Key(Qt::Key_Tab, Qt::ShiftModifier);
  Type("3");
  EXPECT_EQ(TextIn("X"), "3");
}

TEST_F(StatisticsKeyboardTest, ADoubleClickEditsTheRow) {
  AddRows("1;2;3");
  QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, PlaceOf(1));
  ClickRow(1);
  Tap(u"Cancel Edit");
  Tap(u"Cancel");
  QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_TRUE(IsShown(u"Ok"));
  EXPECT_EQ(TextIn("X"), "1");
}

TEST_F(StatisticsKeyboardTest, WhatIsTypedIntoTheListGoesToTheFieldOfLate) {
  AddRows("1;2");
  Field("Count").setFocus();
  Field("Count").selectAll();
  ClickRow(0);
  Type("35");
  EXPECT_EQ(TextIn("Count"), "35");
  EXPECT_TRUE(HasFocus("Count"));
}

TEST_F(StatisticsKeyboardTest, ANegativeSumUnderTheRootShowsTheMessageAndCannotBeStored) {
  frame_.dialogs.storeVariable = [](QWidget*, const std::u16string&) {};
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(); };
  Open();
  // Files can hold counts below 0: N = -1, and the sum is 2e18 / -1.
  Load("1.0e+9\t1\r\n1.0e+9\t-3\r\n0\t1\r\n");
  TapKey(u"σ(n) of X");
  EXPECT_EQ(Answer(), u"Out of range(overflow or underflow)");
  Tap(u"MEM");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"ReCall MemVar"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(StatisticsKeyboardTest, TheLastResultIsStored) {
  std::u16string stored;
  frame_.dialogs.storeVariable = [&](QWidget*, const std::u16string& value) { stored = value; };
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(); };
  Open();
  AddRows("1000000 1;500000.5 1");
  EXPECT_EQ(ResultOf(u"ΣX"), u"1,500,000.5");
  Tap(u"MEM");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"Store MemVar", u"ReCall MemVar"}));
  const int saves = frame_.saves;
  Choose(u"Store MemVar");
  EXPECT_EQ(stored, u"1500000.5");
  EXPECT_EQ(frame_.saves, saves + 1);
}

TEST_F(StatisticsKeyboardTest, ARecalledValueReplacesTheFieldOfLate) {
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(u"1.50"); };
  Open();
  Put("X", "77");
  Click(Field("X"));
  Tap(u"MEM");
  Choose(u"ReCall MemVar");
  EXPECT_EQ(TextIn("X"), "1.5");
  EXPECT_TRUE(IsAllSelected("X"));
  Click(Field("Count"));
  Tap(u"MEM");
  Choose(u"ReCall MemVar");
  EXPECT_EQ(TextIn("Count"), "1.5");
  EXPECT_TRUE(IsAllSelected("Count"));
}

TEST_F(StatisticsKeyboardTest, ARecallThatIsGivenUpChangesNothing) {
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(); };
  Open();
  Put("X", "77");
  Tap(u"MEM");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"Store MemVar", u"ReCall MemVar"}));
  Choose(u"ReCall MemVar");
  EXPECT_EQ(TextIn("X"), "77");
}

TEST_F(StatisticsKeyboardTest, TheEditMenuWorksOnTheFieldOfLate) {
  AddRows("1;2");
  Put("Count", "345");
  Click(Field("Count"));
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  ChooseFrom(*dlg_, u"&Edit", u"Cu&t");
  EXPECT_EQ(TextIn("Count"), "");
  EXPECT_EQ(QApplication::clipboard()->text(), "345");
  Click(Field("X"));
  ChooseFrom(*dlg_, u"&Edit", u"Select &All");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  EXPECT_EQ(TextIn("X"), "345");
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(TextIn("X"), "2");
}

TEST_F(StatisticsKeyboardTest, RowsAreUndoneAndRedoneByTheKeysAndTheMenu) {
  AddRows("1;2;3");
  ClickRow(1);
  BoxWatch::Instance().Expect(QMessageBox::Yes);
  Tap(u"Delete");
  BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(Rows(), "3 1;1 1");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "3 1;2 1;1 1");
  EXPECT_EQ(Total(), "3");
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "3 1;1 1");
  ChooseFrom(*dlg_, u"&Edit", u"&Undo");
  EXPECT_EQ(Rows(), "3 1;2 1;1 1");
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Rows(), "3 1;1 1");
}

TEST_F(StatisticsKeyboardTest, WhatWasTypedLaterIsUndoneBeforeTheRows) {
  AddRows("1;2");
  Field("X").setFocus();
  Field("X").selectAll();
  QTest::keyClicks(&Field("X"), "77");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextIn("X"), "2");
  EXPECT_EQ(Rows(), "2 1;1 1");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "1 1");
  EXPECT_EQ(TextIn("X"), "2");
}

TEST_F(StatisticsKeyboardTest, TheEditMenuWorksOnTheFieldOfLateWhileTheListHasTheFocus) {
  AddRows("1;2;3");
  Put("X", "77");
  Field("X").setFocus();
  Field("X").selectAll();
  ClickRow(1);
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), "77");
  ClickRow(2);
  QApplication::clipboard()->setText("5");
  ChooseFrom(*dlg_, u"&Edit", u"&Paste");
  EXPECT_EQ(TextIn("X"), "5");
  EXPECT_EQ(Rows(), "3 1;2 1;1 1");
}

TEST_F(StatisticsKeyboardTest, TheRowsHaveAMenuOfTheirOwn) {
  const auto open = [this] {
    QContextMenuEvent event(QContextMenuEvent::Mouse, PlaceOf(1),
                            Table().viewport()->mapToGlobal(PlaceOf(1)));
    QCoreApplication::sendEvent(Table().viewport(), &event);
  };
  AddRows("1;2;3");
  open();
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"&Copy", u"&Paste", u"Select &All"}));
  EXPECT_FALSE(OpenMenu()->actions().front()->isEnabled()) << "no row is selected";
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  ClickRow(1);
  open();
  Choose(u"&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), "2\t1\n");
  open();
  Choose(u"Select &All");
  EXPECT_EQ(SelectedRows(), "0 1 2");
  open();
  Choose(u"&Paste");
  EXPECT_EQ(Rows(), "2 1;3 1;2 1;1 1");
}

TEST_F(StatisticsKeyboardTest, ACommaInPastedRowsIsAskedAbout) {
  PasteIntoList("1,5\n2,25\n");
  EXPECT_EQ(Asked(*dlg_), "What is 1,5?");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Rows(), "");
  PasteIntoList("1,5\n2,25\n");
  TapOffer(*dlg_, "1.5");
  EXPECT_EQ(Rows(), "1.5 1;2.25 1");
  PasteIntoList("1,5\n");
  TapOffer(*dlg_, "1 | 5");
  EXPECT_EQ(Rows(), "1 5;1.5 1;2.25 1");
  PasteIntoList("1.234,5\n");
  TapOffer(*dlg_, "1234.5");
  EXPECT_EQ(Rows(), "1234.5 1;1 5;1.5 1;2.25 1");
  PasteIntoList("1.5,2\n");
  EXPECT_EQ(Rows(), "1.5 2;1234.5 1;1 5;1.5 1;2.25 1") << "that is no decimal comma";
}

TEST_F(StatisticsKeyboardTest, ALongNumberThatTheProgramWritesShowsItsFirstDigits) {
  AddRows("123456789012345678901234567890;1");
  ClickRow(1);
  Tap(u"Edit");
  EXPECT_TRUE(IsAllSelected("X"));
  EXPECT_EQ(Field("X").cursorPosition(), 0);
  Tap(u"Cancel");
  Key(Qt::Key_Tab);
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Field("X").cursorPosition(), 0);
}

TEST_F(StatisticsKeyboardTest, TheArrowShowsWhatTheRowsAreSortedByAsLongAsTheyAre) {
  const QHeaderView& headings = *Table().horizontalHeader();
  AddRows("10 1;9 3;-2 2");
  EXPECT_EQ(headings.sortIndicatorSection(), -1);
  ClickHeading(1);
  EXPECT_EQ(headings.sortIndicatorSection(), 1);
  const Qt::SortOrder ascending = headings.sortIndicatorOrder();
  ClickHeading(0);
  EXPECT_EQ(headings.sortIndicatorSection(), 0);
  EXPECT_NE(headings.sortIndicatorOrder(), ascending);
  AddRows("5");
  EXPECT_EQ(headings.sortIndicatorSection(), -1);
}

TEST_F(StatisticsKeyboardTest, EnterDoesNotClearTheList) {
  AddRows("1;2");
  ExpectBox(QMessageBox::NoButton);
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
    QTest::keyClick(box, Qt::Key_Return);
  });
  Tap(u"Clear");
  ExpectSeen(u"Are you sure you want to delete all data?", QMessageBox::Question);
  EXPECT_EQ(Rows(), "2 1;1 1");
}

TEST_F(StatisticsKeyboardTest, TheEditMenuCopiesWhatIsSelectedOfTheResult) {
  AddRows("1000;500");
  TapKey(u"ΣX");
  Result(*dlg_).setFocus();
  Result(*dlg_).selectAll();
  ChooseFrom(*dlg_, u"&Edit", u"&Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), "1,500");
}

TEST_F(StatisticsKeyboardTest, TheResultCannotBeCutOrPastedOver) {
  AddRows("1000;500");
  TapKey(u"ΣX");
  Result(*dlg_).setFocus();
  Result(*dlg_).selectAll();
  QApplication::clipboard()->setText("7");
  for (const EditCommand command : {EditCommand::Cut, EditCommand::Paste}) {
    EXPECT_FALSE(CanEditLine(Result(*dlg_), command));
  }
  EXPECT_TRUE(CanEditLine(Result(*dlg_), EditCommand::Copy));
  EXPECT_EQ(test::ResultOf(*dlg_), u"1,500");
}

TEST_F(StatisticsKeyboardTest, ArrowsLeadThroughFieldsAndKeys) {
  Key(Qt::Key_Down);
  EXPECT_TRUE(HasFocus("Count"));
  Key(Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), FindKey(*dlg_, u"Add"));
  Key(Qt::Key_Up);
  EXPECT_TRUE(HasFocus("Count"));
  Key(Qt::Key_Up);
  EXPECT_TRUE(HasFocus("X"));
  Key(Qt::Key_Up);
  EXPECT_TRUE(HasFocus("X"));
}

TEST_F(StatisticsKeyboardTest, AltAndALetterWritesNothingWhereTheKeyIsDisabled) {
  Key(Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(TextIn("X"), "");
}

TEST_F(StatisticsKeyboardTest, NumbersOfOtherSpellingBecomeRows) {
  Put("X", "1 234");
  Put("Count", "２");
  Tap(u"Add");
  EXPECT_EQ(Rows(), "1234 2");
  Put("X", "1,5");
  Tap(u"Add");
  EXPECT_EQ(Asked(*dlg_), "15 or 1.5?");
  EXPECT_EQ(Rows(), "1234 2") << "nothing is guessed";
  TapOffer(*dlg_, "1.5");
  EXPECT_EQ(Rows(), "1.5 2;1234 2");
  PasteIntoList("−1\u202F234\t５\n1'000\t3\n");
  EXPECT_EQ(Rows(), "-1234 5;1000 3;1.5 2;1234 2");
}

TEST_F(StatisticsKeyboardTest, CtrlCWithoutASelectionCopiesTheResult) {
  AddRows("1000;2000");
  Tap(u"ΣX");
  EXPECT_EQ(Answer(), u"3,000");
  Type("7");
  QWidget* const key = FindKey(*dlg_, u"ΣX");
  for (QWidget* from : {static_cast<QWidget*>(&Result(*dlg_)), key}) {
    QGuiApplication::clipboard()->setText("old");
    from->setFocus();
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "3000");
  }
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "7");
}

}  // namespace
}  // namespace kav::test::statistics_keyboard_test
