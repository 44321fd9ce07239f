// Undoing and redoing what was done to the rows of a statistics screen.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "statistics/statistics_model.h"
#include "statistics/two_variable_model.h"
#include "support/statistics_fixture.h"

namespace kav::statistics_model_undo_test {
namespace {

/// A model with the rows "3 1; 2 5; 1 1", unless a test says something else.
template <class Model>
class Undoing : public test::StatisticsFixture<Model> {
 protected:
  void Undo() { EXPECT_EQ(this->model_->UndoRows(), std::nullopt); }
  void Redo() { EXPECT_EQ(this->model_->RedoRows(), std::nullopt); }
};

class RowUndoTest : public Undoing<StatisticsModel> {
 protected:
  RowUndoTest() {
    Add(u"1", u"1");
    Add(u"2", u"5");
    Add(u"3", u"1");
  }
};
using TwoVariableUndoTest = Undoing<TwoVariableModel>;

TEST_F(RowUndoTest, ADeletedRowComesBackToItsPlaceWithAllThatBelongsToIt) {
  ASSERT_FALSE(model_->SaveTo(folder_.File("data.txt"), {}));
  model_->Select(1);
  const std::u16string enabled = Enabled();
  Delete(1);
  EXPECT_EQ(Rows(), "3 1; 1 1");
  EXPECT_TRUE(AsksToSave());
  const unsigned revision = model_->Revision();
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  EXPECT_EQ(model_->TotalText(), u"7");
  EXPECT_EQ(model_->Selected(), 1U);
  EXPECT_EQ(Enabled(), enabled);
  EXPECT_FALSE(AsksToSave());
  EXPECT_NE(model_->Revision(), revision);
  Redo();
  EXPECT_EQ(Rows(), "3 1; 1 1");
  EXPECT_EQ(model_->TotalText(), u"2");
  EXPECT_TRUE(AsksToSave());
}

TEST_F(RowUndoTest, ChangesAreUndoneOneAfterTheOtherAndRedone) {
  Delete(0);
  Delete(0);
  Delete(0);
  EXPECT_EQ(Rows(), "");
  Undo();
  EXPECT_EQ(Rows(), "1 1");
  Undo();
  EXPECT_EQ(Rows(), "2 5; 1 1");
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  Redo();
  Redo();
  Redo();
  EXPECT_EQ(Rows(), "");
  EXPECT_FALSE(model_->CanRedoRows());
}

TEST_F(RowUndoTest, ClearingIsUndoneAndIsACleanStateAsBefore) {
  ASSERT_TRUE(AsksToSave());
  const std::u16string enabled = Enabled();
  Clear();
  EXPECT_FALSE(AsksToSave());
  EXPECT_FALSE(model_->QuestionBeforeEnd());
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  EXPECT_EQ(model_->TotalText(), u"7");
  EXPECT_EQ(Enabled(), enabled);
  EXPECT_TRUE(AsksToSave());
  Redo();
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_FALSE(AsksToSave());
}

TEST_F(RowUndoTest, LoadingIsUndone) {
  ASSERT_FALSE(Load("7\t2\r\n8\t2\r\n"));
  EXPECT_EQ(Rows(), "7 2; 8 2");
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  EXPECT_TRUE(AsksToSave());
  Redo();
  EXPECT_EQ(Rows(), "7 2; 8 2");
  EXPECT_FALSE(AsksToSave());
}

TEST_F(RowUndoTest, AddingEditingAndPastingAreUndoneToo) {
  model_->Select(2);
  Press(u"Edit");
  Type(u"9", u"2");
  Press(u"Ok");
  ASSERT_FALSE(model_->PasteRows(u"11\t1\n12\t1", {}));
  EXPECT_EQ(Rows(), "11 1; 12 1; 3 1; 2 5; 9 2");
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 9 2");
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  Undo();
  EXPECT_EQ(Rows(), "2 5; 1 1");
  Redo();
  Redo();
  Redo();
  EXPECT_EQ(Rows(), "11 1; 12 1; 3 1; 2 5; 9 2");
  EXPECT_EQ(model_->TotalText(), u"10");
}

TEST_F(RowUndoTest, ANumberDroppedOnACellIsUndone) {
  ASSERT_FALSE(model_->PasteAt(DataCell{1, 0}, u"8", {}));
  EXPECT_EQ(Rows(), "3 1; 8 5; 1 1");
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
}

TEST_F(RowUndoTest, ANewChangeEndsWhatCouldBeRedone) {
  Delete(0);
  Undo();
  ASSERT_TRUE(model_->CanRedoRows());
  Delete(2);
  EXPECT_FALSE(model_->CanRedoRows());
  Redo();
  EXPECT_EQ(Rows(), "3 1; 2 5");
}

TEST_F(RowUndoTest, NothingIsUndoneWhileARowIsEdited) {
  Delete(0);
  model_->Select(0);
  Press(u"Edit");
  EXPECT_FALSE(model_->CanUndoRows());
  Undo();
  EXPECT_EQ(Rows(), "2 5; 1 1");
  Press(u"Cancel");
  EXPECT_TRUE(model_->CanUndoRows());
}

TEST_F(RowUndoTest, RowsThatWereSavedInBetweenNeedSavingAfterUndo) {
  ASSERT_FALSE(model_->SaveTo(folder_.File("data.txt"), {}));
  Delete(0);
  ASSERT_FALSE(model_->SaveTo(folder_.File("data.txt"), {}));
  EXPECT_FALSE(AsksToSave());
  Undo();
  EXPECT_TRUE(AsksToSave());
}

TEST_F(RowUndoTest, ADeletedRowComesBackAfterSorting) {
  Delete(1);
  model_->SortBy(0);
  EXPECT_EQ(Rows(), "1 1; 3 1");
  Undo();
  EXPECT_EQ(Rows(), "1 1; 2 5; 3 1");
  EXPECT_FALSE(model_->Sorted());
  EXPECT_FALSE(model_->CanUndoRows());  // Where the others were added, other rows are now.
}

TEST_F(RowUndoTest, SortingLeavesWhatLeadsBackToAnotherList) {
  Clear();
  Add(u"5", u"1");
  Add(u"4", u"1");
  model_->SortBy(0);
  Undo();
  EXPECT_EQ(Rows(), "3 1; 2 5; 1 1");
  Undo();
  EXPECT_EQ(Rows(), "2 5; 1 1");
}

TEST_F(RowUndoTest, TheOrderThatWasInForceIsShownAgain) {
  model_->SortBy(0);
  ASSERT_TRUE(model_->Sorted());
  Delete(0);
  EXPECT_FALSE(model_->Sorted());
  Undo();
  ASSERT_TRUE(model_->Sorted());
  EXPECT_EQ(model_->Sorted()->direction, DataList::Direction::Ascending);
}

TEST_F(RowUndoTest, ARowWithoutACountComesBackWithoutOne) {
  ASSERT_FALSE(Load("5 "));
  ASSERT_EQ(Rows(), "5 -");
  Delete(0);
  Undo();
  EXPECT_EQ(Rows(), "5 -");
}

TEST_F(RowUndoTest, WhatWasTypedSinceAChangeIsTold) {
  Delete(0);
  EXPECT_FALSE(model_->IsTypedSince(model_->Fields()));
  EXPECT_TRUE(model_->IsTypedSince({u"123", u"", u"1"}));
}

TEST_F(RowUndoTest, TheLastHundredChangesAreKept) {
  for (int i = 0; i < 120; ++i) Add(u"4", u"1");
  int undone = 0;
  for (; model_->CanUndoRows(); ++undone) Undo();
  EXPECT_EQ(undone, 100);
  EXPECT_EQ(model_->List().RowCount(), 23U);
}

TEST_F(TwoVariableUndoTest, BothValuesComeBackAndTheCurveIsFittedAgain) {
  Fill({{u"1", u"2"}, {u"2", u"4"}, {u"3", u"9"}});
  EXPECT_EQ(Result(u"r"), u"0.970725343394");
  Delete(2);
  EXPECT_EQ(Result(u"r"), u"1");
  Undo();
  EXPECT_EQ(Rows(), "1 2 1; 2 4 1; 3 9 1");
  EXPECT_EQ(Result(u"r"), u"0.970725343394");
}

}  // namespace
}  // namespace kav::statistics_model_undo_test
