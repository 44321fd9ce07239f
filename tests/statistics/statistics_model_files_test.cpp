// The files of a statistics screen, its clipboard, and the question before data are lost.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "statistics/statistics_model.h"
#include "statistics/two_variable_model.h"
#include "support/statistics_fixture.h"

namespace kav::statistics_model_files_test {
namespace {

constexpr std::u16string_view kQuestion = u"Do you want to save changes to Data?";
constexpr std::u16string_view kFresh = u"Add|Load|MEM";
constexpr std::u16string_view kOneRow = u"Add|Clear|Save|Load|MEM";
constexpr std::u16string_view kTwoRows =
    u"Add|Clear|Save|Load|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|\u03C3(n) of X|"
    u"MEM";

bool GiveUp(double) {
  return false;
}

template <class Model>
class Files : public test::StatisticsFixture<Model> {
 protected:
  std::string Saved() {
    EXPECT_FALSE(this->model_->SaveTo(this->folder_.File("save.txt"), {}));
    return FileContent(this->folder_.File("save.txt"));
  }
  std::u16string_view QuestionOfLoad() {
    const auto request = this->Press(u"Load");
    const auto* load = std::get_if<AskLoadFile>(&request);
    EXPECT_NE(load, nullptr);
    return load == nullptr ? u"none" : load->question;
  }
};

using OneVariableFiles = Files<StatisticsModel>;
using TwoVariableFiles = Files<TwoVariableModel>;

// Save.

TEST_F(OneVariableFiles, RowsAreSavedFromTheTop) {
  Add(u"2", u"3");
  Add(u"-4.5", u"1");
  EXPECT_TRUE(std::holds_alternative<AskSaveFile>(Press(u"Save")));
  EXPECT_EQ(Saved(), "-4.5\t1\r\n2\t3\r\n");
  EXPECT_FALSE(AsksToSave());
}

TEST_F(TwoVariableFiles, RowsAreSavedInThreeColumns) {
  Add(u"1", u"2", u"3");
  Add(u"4", u"5", u"6");
  EXPECT_EQ(Saved(), "4\t5\t6\r\n1\t2\t3\r\n");
}

TEST_F(OneVariableFiles, FailedSaveIsToldAndTheListStaysModified) {
  Add(u"2", u"3");
  const auto told = model_->SaveTo(folder_.File("missing/save.txt"), {});
  ASSERT_TRUE(told);
  EXPECT_NE(told->find(Widen(folder_.File("missing/save.txt"))), std::u16string::npos);
  EXPECT_TRUE(AsksToSave());
}

TEST_F(OneVariableFiles, CancelledSaveTellsNothingAndTheListStaysModified) {
  PutFile(folder_.File("save.txt"), "kept");
  Add(u"2", u"3");
  EXPECT_FALSE(model_->SaveTo(folder_.File("save.txt"), GiveUp));
  EXPECT_EQ(FileContent(folder_.File("save.txt")), "kept");
  EXPECT_TRUE(AsksToSave());
}

TEST_F(OneVariableFiles, WhatIsSavedLoadsAgain) {
  Add(u"0.1", u"3");
  Add(u"-1e300", u"10000");
  Add(u"123456789.123", u"1");
  const std::string rows = Rows();
  const std::string saved = Saved();
  Open();
  ASSERT_FALSE(Load(saved));
  EXPECT_EQ(Rows(), rows);
  EXPECT_EQ(model_->TotalText(), u"10004");
  EXPECT_EQ(Saved(), saved);
}

TEST_F(OneVariableFiles, EditedRowCanBeSavedOnLeaving) {
  Add(u"2", u"3");
  model_->Select(0);
  Press(u"Edit");
  EXPECT_EQ(model_->QuestionBeforeLeaving(), kQuestion);
  EXPECT_EQ(Saved(), "2\t3\r\n");
  EXPECT_TRUE(model_->IsEditing());
}

TEST_F(OneVariableFiles, ASingleRowIsAskedForBeforeTheEndOnly) {
  EXPECT_EQ(model_->QuestionBeforeEnd(), std::nullopt);
  Add(u"2", u"1");
  EXPECT_EQ(model_->QuestionBeforeLeaving(), std::nullopt);
  EXPECT_EQ(model_->QuestionBeforeEnd(), kQuestion);
  Saved();
  EXPECT_EQ(model_->QuestionBeforeEnd(), std::nullopt);
}

// Load.

TEST_F(OneVariableFiles, LoadedRowsReplaceTheListInTheirOrder) {
  Add(u"9", u"9");
  ASSERT_FALSE(Load("1\t2\r\n3\t4\r\n"));
  EXPECT_EQ(Rows(), "1 2; 3 4");
  EXPECT_EQ(model_->TotalText(), u"6");
  EXPECT_FALSE(AsksToSave());
}

TEST_F(TwoVariableFiles, LoadedRowsHaveThreeColumns) {
  ASSERT_FALSE(Load("1\t2\t3\r\n4\t5\t6\r\n7\t8\r\n"));
  EXPECT_EQ(Rows(), "1 2 3; 4 5 6");
  EXPECT_EQ(model_->TotalText(), u"9");
}

TEST_F(OneVariableFiles, ValuesStayAsTheFileHasThem) {
  ASSERT_FALSE(Load("1.5e+3\t2\r\n007.50\t2.9\r\n"));
  EXPECT_EQ(Rows(), "1.5e+3 2; 007.50 2");
  EXPECT_EQ(Result(u"\u03A3X"), u"3,015");
  EXPECT_EQ(Saved(), "1.5e+3\t2\r\n007.50\t2\r\n");
}

TEST_F(OneVariableFiles, UpperCaseExponentSeparates) {
  ASSERT_FALSE(Load("1.5E3\r\n"));
  EXPECT_EQ(Rows(), "1.5 3");
}

TEST_F(OneVariableFiles, LastRowWithoutACountOrALineEndIsDropped) {
  ASSERT_FALSE(Load("1\t2\r\n3\r\n"));
  EXPECT_EQ(Rows(), "1 2");
  ASSERT_FALSE(Load("1\t2\r\n3\t4"));
  EXPECT_EQ(Rows(), "1 2");
}

TEST_F(OneVariableFiles, CompleteRowsSayWhichButtonsAreEnabled) {
  struct Row {
    const char* content;
    std::u16string_view enabled;
  };
  for (const Row& row : {Row{"", kFresh}, Row{"1\r\n", kFresh}, Row{"1\t2\r\n", kOneRow},
                         Row{"1\t2\r\n3\r\n", kOneRow}, Row{"1\t2\r\n3\t4\r\n", kTwoRows},
                         Row{"1\t0\r\n3\t0\r\n", kTwoRows}, Row{"1 1 2 2 3 3 ", kTwoRows}}) {
    Open();
    ASSERT_FALSE(Load(row.content));
    EXPECT_EQ(Enabled(), row.enabled) << row.content;
    // The same after a list that enabled everything.
    ASSERT_FALSE(Load("1\t1\r\n2\t2\r\n"));
    model_->Select(0);
    ASSERT_FALSE(Load(row.content));
    EXPECT_EQ(Enabled(), row.enabled) << row.content;
    EXPECT_FALSE(model_->Selected());
  }
}

TEST_F(OneVariableFiles, LoneValueStaysAsARowWithoutACount) {
  ASSERT_FALSE(Load("5\r\n"));
  EXPECT_EQ(Rows(), "5 -");
  EXPECT_EQ(model_->TotalText(), u"0");
  EXPECT_EQ(Enabled(), kFresh);
}

// The second row enables the results, however the first was added.
TEST_F(OneVariableFiles, RowAddedToALoneValueEnablesResultsAlone) {
  ASSERT_FALSE(Load("5\r\n"));
  Add(u"7", u"2");
  EXPECT_EQ(Rows(), "7 2; 5 -");
  EXPECT_EQ(Enabled(),
            u"Add|Load|\u03A3X|\u03A3X^2|Arithmetic Mean of X|\u03C3(n-1) of X|\u03C3(n) of X|MEM");
  EXPECT_EQ(Result(u"\u03A3X"), u"14");
  EXPECT_EQ(Result(u"Arithmetic Mean of X"), u"7");
}

TEST_F(OneVariableFiles, LoneValueIsEditedWithTheCountZero) {
  ASSERT_FALSE(Load("5\r\n"));
  model_->Select(0);
  Press(u"Edit");
  EXPECT_EQ(model_->Fields(), (TypedRow{u"5", u"", u"0"}));
  EXPECT_EQ(Told(Press(u"Ok")), u"Count must be a whole number from 1 to 10000.");
  Type(u"5", u"4");
  Press(u"Ok");
  EXPECT_EQ(Rows(), "5 4");
  EXPECT_EQ(model_->TotalText(), u"4");
  EXPECT_EQ(Enabled(), u"Add|Edit|Delete|Clear|Save|Load|MEM");
}

TEST_F(OneVariableFiles, CancelledEditOfALoneValueEnablesClearAndSave) {
  ASSERT_FALSE(Load("5\r\n"));
  model_->Select(0);
  Press(u"Edit");
  Press(u"Cancel");
  EXPECT_EQ(Rows(), "5 -");
  EXPECT_EQ(Enabled(), u"Add|Edit|Delete|Clear|Save|Load|MEM");
}

TEST_F(OneVariableFiles, CountBeyondTheFieldsRangeHasToBeMendedWhenItsRowIsEdited) {
  ASSERT_FALSE(Load("5\t20000\r\n6\t1\r\n"));
  model_->Select(0);
  Press(u"Edit");
  EXPECT_EQ(model_->Fields().count, u"20000");
  EXPECT_EQ(Told(Press(u"Ok")), u"Count must be a whole number from 1 to 10000.");
  EXPECT_TRUE(model_->IsEditing());
}

TEST_F(OneVariableFiles, ResultLineStaysWhenAFileIsLoaded) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  EXPECT_EQ(Result(u"\u03A3X"), u"10");
  ASSERT_FALSE(Load("1\t1\r\n2\t2\r\n"));
  EXPECT_EQ(model_->ResultText(), u"10");
}

TEST_F(OneVariableFiles, FailedLoadIsToldAndTheOldListStays) {
  Add(u"2", u"3");
  Add(u"4", u"1");
  model_->Select(1);
  const unsigned revision = model_->Revision();
  const std::u16string enabled = Enabled();
  const std::string folder = folder_.Path();
  const std::string bad = "1\t2147483647\r\n2\t1\r\n";
  PutFile(folder_.File("bad.txt"), bad);
  for (const std::string& path : {folder_.File("missing.txt"), folder, folder_.File("bad.txt")}) {
    const auto told = model_->LoadFrom(path, {});
    ASSERT_TRUE(told) << path;
    EXPECT_NE(told->find(Widen(path)), std::u16string::npos);
    EXPECT_EQ(Rows(), "4 1; 2 3");
    EXPECT_EQ(model_->TotalText(), u"4");
    EXPECT_EQ(model_->Selected(), 1U);
    EXPECT_TRUE(AsksToSave());
    EXPECT_EQ(model_->Revision(), revision);
    EXPECT_EQ(Enabled(), enabled);
  }
}

TEST_F(OneVariableFiles, CancelledLoadTellsNothingAndTheOldListStays) {
  Add(u"2", u"3");
  PutFile(folder_.File("load.txt"), "1\t1\r\n2\t2\r\n");
  EXPECT_FALSE(model_->LoadFrom(folder_.File("load.txt"), GiveUp));
  EXPECT_EQ(Rows(), "2 3");
  EXPECT_EQ(model_->TotalText(), u"3");
  EXPECT_TRUE(AsksToSave());
  EXPECT_EQ(Enabled(), kOneRow);
}

// The question before data are lost.

TEST_F(OneVariableFiles, ChangesOfMoreThanOneAreAskedAbout) {
  EXPECT_EQ(QuestionOfLoad(), u"");
  Add(u"2", u"1");
  EXPECT_EQ(QuestionOfLoad(), u"");
  EXPECT_FALSE(model_->QuestionBeforeLeaving());
  Add(u"3", u"1");
  EXPECT_EQ(QuestionOfLoad(), kQuestion);
  EXPECT_EQ(model_->QuestionBeforeLeaving(), kQuestion);
}

TEST_F(OneVariableFiles, OneRowWithALargerCountIsAskedAbout) {
  Add(u"2", u"2");
  EXPECT_EQ(QuestionOfLoad(), kQuestion);
}

TEST_F(OneVariableFiles, SavedDataAreNotAskedAbout) {
  Add(u"2", u"2");
  Saved();
  EXPECT_EQ(QuestionOfLoad(), u"");
  Add(u"3", u"1");
  EXPECT_EQ(QuestionOfLoad(), kQuestion);
}

TEST_F(OneVariableFiles, LoadedDataAreNotAskedAbout) {
  Add(u"2", u"2");
  ASSERT_FALSE(Load("1\t1\r\n2\t2\r\n"));
  EXPECT_EQ(QuestionOfLoad(), u"");
  EXPECT_FALSE(model_->QuestionBeforeLeaving());
  Delete(0);
  EXPECT_EQ(QuestionOfLoad(), kQuestion);
}

TEST_F(OneVariableFiles, ClearedDataAreNotAskedAbout) {
  Add(u"2", u"2");
  Add(u"3", u"2");
  Clear();
  EXPECT_EQ(QuestionOfLoad(), u"");
  EXPECT_FALSE(model_->QuestionBeforeLeaving());
}

TEST_F(OneVariableFiles, DeletedDataThatLeaveATotalOfOneAreNotAskedAbout) {
  Add(u"2", u"1");
  Add(u"3", u"2");
  Delete(0);
  EXPECT_EQ(QuestionOfLoad(), u"");
}

// Rows of spreadsheets.

TEST_F(OneVariableFiles, PastedRowsStandOnTopInTheirOrder) {
  Add(u"9", u"1");
  EXPECT_FALSE(model_->PasteRows(u"1\t2\r\n3\t4\r\n5\n", {}));
  EXPECT_EQ(Rows(), "1 2; 3 4; 5 1; 9 1");
  EXPECT_EQ(model_->TotalText(), u"8");
}

TEST_F(TwoVariableFiles, PastedRowsHaveBothValues) {
  EXPECT_FALSE(model_->PasteRows(u"1;2\n3;4;5\n", {}));
  EXPECT_EQ(Rows(), "1 2 1; 3 4 5");
}

TEST_F(OneVariableFiles, PastedRowsEnableWhatAddingThemWould) {
  EXPECT_FALSE(model_->PasteRows(u"1", {}));
  EXPECT_EQ(Enabled(), kOneRow);
  EXPECT_FALSE(model_->PasteRows(u"2", {}));
  EXPECT_EQ(Enabled(), kTwoRows);
  EXPECT_TRUE(AsksToSave());
  Clear();
  EXPECT_FALSE(model_->PasteRows(u"1\n2\n3", {}));
  EXPECT_EQ(Enabled(), kTwoRows);
}

TEST_F(OneVariableFiles, SelectedRowStaysSelectedUnderPastedRows) {
  Add(u"9", u"1");
  model_->Select(0);
  EXPECT_FALSE(model_->PasteRows(u"1\n2\n3", {}));
  EXPECT_EQ(model_->Selected(), 3U);
}

TEST_F(OneVariableFiles, LinesThatAreNoRowsAreToldAndTheOthersTaken) {
  const auto told = model_->PasteRows(u"1\t2\nabc\t1\n3\t4\n", {});
  ASSERT_TRUE(told);
  EXPECT_NE(told->find(u"1 of 3 lines was not taken"), std::u16string::npos);
  EXPECT_EQ(Rows(), "1 2; 3 4");
}

TEST_F(OneVariableFiles, PastingNoRowsIsNoModification) {
  EXPECT_TRUE(model_->PasteRows(u"abc", {}));
  EXPECT_FALSE(model_->PasteRows(u"", {}));
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Enabled(), kFresh);
  EXPECT_FALSE(AsksToSave());
  EXPECT_EQ(model_->Revision(), 0U);
}

TEST_F(OneVariableFiles, CancelledPasteTellsNothingAndTheListStays) {
  Add(u"9", u"1");
  const unsigned revision = model_->Revision();
  EXPECT_FALSE(model_->PasteRows(u"1\n2\n", GiveUp));
  EXPECT_EQ(Rows(), "9 1");
  EXPECT_EQ(model_->Revision(), revision);
}

TEST_F(OneVariableFiles, PastedTotalBeyondThirtyTwoBitsIsRefused) {
  ASSERT_FALSE(Load("1\t2147483647\r\n"));
  EXPECT_EQ(model_->PasteRows(u"2", {}),
            u"The total of all counts must be from -2147483648 to 2147483647. The list was not "
            u"changed.");
  EXPECT_EQ(Rows(), "1 2147483647");
  EXPECT_FALSE(AsksToSave());
  EXPECT_EQ(Enabled(), kOneRow);
}

TEST_F(OneVariableFiles, CopiedRowsPasteAgain) {
  Add(u"1", u"2");
  Add(u"3", u"4");
  Add(u"5", u"6");
  const std::array<std::size_t, 2> rows{0, 2};
  const std::u16string copied = model_->CopyRows(rows);
  EXPECT_EQ(copied.find(u"3\t4"), std::u16string::npos);
  Clear();
  EXPECT_FALSE(model_->PasteRows(copied, {}));
  EXPECT_EQ(Rows(), "5 6; 1 2");
}

}  // namespace
}  // namespace kav::statistics_model_files_test
