// The screen of two-variable statistics, used as a user does: what one-variable statistics lacks.
#include <gtest/gtest.h>

#include <cmath>

#include "screens/offer_driver.h"
#include "screens/statistics_driver.h"

namespace kav::test::two_variable_dlg_test {
namespace {

class TwoVariableDlgTest : public TwoVariableScreen {
 protected:
  /// What the keys of coefficients and estimates show.
  std::u16string A() { return ResultOf(u"A"); }
  std::u16string B() { return ResultOf(u"B"); }
  std::u16string C() { return ResultOf(u"C"); }
};

TEST_F(TwoVariableDlgTest, AFreshScreenIsEmpty) {
  EXPECT_EQ(TextIn("X"), "");
  EXPECT_EQ(TextIn("Y"), "");
  EXPECT_EQ(TextIn("Count"), "1");
  EXPECT_EQ(Total(), "0");
  EXPECT_EQ(Answer(), u"0");
  EXPECT_EQ(OnesOn("Edit;Delete;Clear;Save;Load"), "Load");
  EXPECT_EQ(OnesOn(kResultKeys), "");
  EXPECT_EQ(OnesOn("Lin;r;X';MEM"), "MEM");
  for (const char16_t* hidden : {u"C", u"X1'", u"X2'", u"Ok", u"Cancel"}) {
    EXPECT_FALSE(IsShown(hidden));
  }
}

TEST_F(TwoVariableDlgTest, TheLabelsAndHeadingsAreThoseOfTwoVariables) {
  QStringList labels;
  for (const auto* label : dlg_->findChildren<QLabel*>()) labels.append(label->text());
  labels.sort();
  EXPECT_EQ(labels, (QStringList{"0", "Count :", "Total : ", "X :", "Y :"}));
  QStringList headings;
  for (int column = 0; column < Table().model()->columnCount(); ++column) {
    headings.append(Table().model()->headerData(column, Qt::Horizontal).toString());
  }
  EXPECT_EQ(headings, (QStringList{"X", "Y", "Cnt"}));
}

TEST_F(TwoVariableDlgTest, KeysAreEnabledWithTheSecondRow) {
  AddRows("1 2 5");
  EXPECT_EQ(Rows(), "1 2 5");
  EXPECT_EQ(OnesOn("Clear;Save"), "Clear;Save");
  EXPECT_EQ(OnesOn(kResultKeys), "");
  AddRows("2 4");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
  EXPECT_EQ(OnesOn("Lin;r;X'"), "Lin;r;X'");
  EXPECT_EQ(Total(), "6");
  EXPECT_TRUE(IsAllSelected("X"));
}

TEST_F(TwoVariableDlgTest, EachFieldIsCheckedFromTheLeft) {
  Put("X", "x");
  Put("Y", "y");
  Put("Count", "0");
  ExpectRefusal(u"Add", u"X must be a number such as -12.5 or 1.5e-3.");
  EXPECT_TRUE(IsAllSelected("X"));
  Put("X", "1");
  ExpectRefusal(u"Add", u"Y must be a number such as -12.5 or 1.5e-3.");
  EXPECT_TRUE(IsAllSelected("Y"));
  Put("Y", "1");
  ExpectRefusal(u"Add", u"Count must be a whole number from 1 to 10000.");
  EXPECT_TRUE(IsAllSelected("Count"));
  EXPECT_EQ(Rows(), "");
}

TEST_F(TwoVariableDlgTest, SumsAndMeansAreWeighted) {
  AddRows("1 10 2;3 20 1");
  EXPECT_EQ(ResultOf(u"ΣX"), u"5");
  EXPECT_EQ(ResultOf(u"ΣX^2"), u"11");
  EXPECT_EQ(ResultOf(u"ΣY"), u"40");
  EXPECT_EQ(ResultOf(u"ΣY^2"), u"600");
  EXPECT_EQ(ResultOf(u"ΣXY"), u"80");
  AddRows("1 0 1");
  EXPECT_EQ(ResultOf(u"Mean of X"), u"1.5");
  EXPECT_EQ(ResultOf(u"Mean of Y"), u"10");
}

TEST_F(TwoVariableDlgTest, DeviationsAreThoseOfEachVariable) {
  AddRows("1 10;3 20");
  EXPECT_EQ(ResultOf(u"σ(n) of X"), u"1");
  EXPECT_EQ(ResultOf(u"σ(n-1) of X"), u"1.414213562373");  // the root of 2
  EXPECT_EQ(ResultOf(u"σ(n) of Y"), u"5");
  EXPECT_EQ(ResultOf(u"σ(n-1) of Y"), u"7.071067811865");  // the root of 50
}

TEST_F(TwoVariableDlgTest, ALineIsFitted) {
  AddRows("1 2;2 4;3 6");
  EXPECT_EQ(A(), u"2");
  EXPECT_EQ(B(), u"0");
  EXPECT_EQ(ResultOf(u"r"), u"1");
  Put("X", "4");
  EXPECT_EQ(ResultOf(u"Y'"), u"8");
  Put("Y", "5");
  EXPECT_EQ(ResultOf(u"X'"), u"2.5");
}

TEST_F(TwoVariableDlgTest, TheModelMenuOffersSixModels) {
  AddRows("1 1;2 4");
  Tap(u"Lin");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"Linear : A*X+B", u"Power : A*X^B", u"Inverse : A/X+B",
                                        u"Logarithmic : A*ln(X)+B", u"Exponential : A*exp(B*X)",
                                        u"Quadratic : A*X^2+B*X+C"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  EXPECT_TRUE(IsShown(u"Lin"));
}

TEST_F(TwoVariableDlgTest, AModelShowsItsOwnKeys) {
  struct Row {
    const char16_t* item;
    const char16_t* button;
  };
  AddRows("1 1;2 4");
  std::u16string shown = u"Lin";
  for (const Row& row :
       {Row{u"Power : A*X^B", u"Pow"}, Row{u"Inverse : A/X+B", u"Inv"},
        Row{u"Logarithmic : A*ln(X)+B", u"Log"}, Row{u"Exponential : A*exp(B*X)", u"Exp"}}) {
    ChooseModel(shown, row.item);
    shown = row.button;
    EXPECT_TRUE(IsOn(shown));
    EXPECT_TRUE(IsShown(u"r") && !IsOn(u"r"));
    EXPECT_TRUE(IsOn(u"X'"));
    EXPECT_FALSE(IsShown(u"C") || IsShown(u"X1'") || IsShown(u"X2'"));
  }
  ChooseModel(shown, u"Quadratic : A*X^2+B*X+C");
  EXPECT_TRUE(IsOn(u"Quad"));
  EXPECT_TRUE(IsOn(u"C") && IsOn(u"X1'") && IsOn(u"X2'"));
  EXPECT_FALSE(IsShown(u"r") || IsShown(u"X'"));
  ChooseModel(u"Quad", u"Linear : A*X+B");
  EXPECT_TRUE(IsOn(u"r") && IsOn(u"X'"));
  EXPECT_FALSE(IsShown(u"C") || IsShown(u"X1'") || IsShown(u"X2'"));
}

TEST_F(TwoVariableDlgTest, AParabolaIsFitted) {
  AddRows("1 1;2 4;3 9");
  ChooseModel(u"Lin", u"Quadratic : A*X^2+B*X+C");
  EXPECT_EQ(A(), u"1");
  EXPECT_NEAR(std::stod(ToQt(B()).toStdString()), 0, 1e-12);
  EXPECT_NEAR(std::stod(ToQt(C()).toStdString()), 0, 1e-12);
  Put("Y", "4");
  EXPECT_EQ(ResultOf(u"X1'"), u"2");
  EXPECT_EQ(ResultOf(u"X2'"), u"-2");
  Put("X", "5");
  EXPECT_EQ(ResultOf(u"Y'"), u"25");
}

TEST_F(TwoVariableDlgTest, AnExponentialIsFitted) {
  AddRows("1 2.718281828459045;2 7.38905609893065");
  ChooseModel(u"Lin", u"Exponential : A*exp(B*X)");
  // Cells hold only 12 decimals of e.
  EXPECT_NEAR(std::stod(ToQt(A()).toStdString()), 1, 1e-12);
  EXPECT_NEAR(std::stod(ToQt(B()).toStdString()), 1, 1e-12);
}

TEST_F(TwoVariableDlgTest, TheInverseIsFittedOnLogarithms) {
  AddRows("1 3;2 2");
  ChooseModel(u"Lin", u"Inverse : A/X+B");
  // ln y = ln 3 + ln(2/3)/ln 2 * ln x, B = exp(-slope), A = 3 - B.
  const double b = std::exp(-std::log(2.0 / 3) / std::log(2.0));
  EXPECT_NEAR(std::stod(ToQt(B()).toStdString()), b, 1e-10);
  EXPECT_NEAR(std::stod(ToQt(A()).toStdString()), 3 - b, 1e-10);
}

TEST_F(TwoVariableDlgTest, AnotherModelOrOtherDataFitAnew) {
  AddRows("1 2;2 4");
  EXPECT_EQ(A(), u"2");
  AddRows("4 4;5 2");  // now symmetrical about x = 3
  EXPECT_EQ(A(), u"0");
  ChooseModel(u"Lin", u"Quadratic : A*X^2+B*X+C");
  EXPECT_NE(A(), u"0");
}

TEST_F(TwoVariableDlgTest, WhatTheDataDoNotAllowShowsTheMessage) {
  AddRows("-1 2;2 4");
  ChooseModel(u"Lin", u"Power : A*X^B");
  EXPECT_EQ(A(), u"Out of range(overflow or underflow)");
}

TEST_F(TwoVariableDlgTest, EstimatesCheckAllFields) {
  AddRows("1 2;2 4");
  for (const char16_t* key : {u"Y'", u"X'"}) {
    Put("X", "x");
    ExpectRefusal(key, u"X must be a number such as -12.5 or 1.5e-3.");
    Put("X", "1");
    Put("Y", "");
    ExpectRefusal(key, u"Y must be a number such as -12.5 or 1.5e-3.");
    Put("Y", "1");
    Put("Count", "0");
    ExpectRefusal(key, u"Count must be a whole number from 1 to 10000.");
    Put("Count", "1");
  }
}

TEST_F(TwoVariableDlgTest, APlotNeedsTwoValuesOfEachVariable) {
  AddRows("1 2;1 4");
  ExpectRefusal(u"Plot", u"The maximum value of X should be bigger than the minimum value of X.");
  Answer(u"Clear", u"Are you sure you want to delete all data?", QMessageBox::Yes);
  AddRows("1 2;3 2");
  ExpectRefusal(u"Plot", u"The maximum value of Y should be bigger than the minimum value of Y.");
}

TEST_F(TwoVariableDlgTest, WithAllXAndAllYEqualXIsNamed) {
  AddRows("1 2;1 2");
  ExpectRefusal(u"Plot", u"The maximum value of X should be bigger than the minimum value of X.");
}

TEST_F(TwoVariableDlgTest, AModelThatHasNoCurveForTheDataIsTold) {
  AddRows("-1 2;2 4");
  ChooseModel(u"Lin", u"Power : A*X^B");
  ExpectRefusal(u"Plot", u"The model \"Power : A*X^B\" has no curve for these data.");
}

TEST_F(TwoVariableDlgTest, PlotOpensTheGraph) {
  AddRows("1 2;2 4;3 5");
  bool wasOpen = false;
  BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
    wasOpen = true;
    dialog.reject();
  });
  Tap(u"Plot");
  EXPECT_TRUE(wasOpen);
  Focused();
  EXPECT_EQ(Rows(), "3 5 1;2 4 1;1 2 1");
}

TEST_F(TwoVariableDlgTest, ARowIsEditedInItsThreeFields) {
  AddRows("1 2 3;4 5 6");
  ClickRow(1);
  Tap(u"Edit");
  EXPECT_EQ(TextIn("X"), "1");
  EXPECT_EQ(TextIn("Y"), "2");
  EXPECT_EQ(TextIn("Count"), "3");
  EXPECT_FALSE(Table().isEnabled());
  Put("Y", "20");
  Put("Count", "4");
  Tap(u"Ok");
  EXPECT_EQ(Rows(), "4 5 6;1 20 4");
  EXPECT_EQ(Total(), "10");
}

TEST_F(TwoVariableDlgTest, EachColumnSorts) {
  AddRows("1 30 2;2 20 3;3 10 1");
  ClickHeading(1);
  EXPECT_EQ(Rows(), "3 10 1;2 20 3;1 30 2");
  ClickHeading(2);
  EXPECT_EQ(Rows(), "2 20 3;1 30 2;3 10 1");
  ClickHeading(0);
  EXPECT_EQ(Rows(), "1 30 2;2 20 3;3 10 1");
}

TEST_F(TwoVariableDlgTest, DeletingDisablesTheResultsButNotTheModel) {
  AddRows("1 2;2 4");
  ClickRow(0);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  EXPECT_EQ(OnesOn(kResultKeys), "");
}

TEST_F(TwoVariableDlgTest, ARecalledValueGoesIntoY) {
  frame_.dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(u"-2.50"); };
  Open();
  Click(Field("Y"));
  Tap(u"MEM");
  Choose(u"ReCall MemVar");
  EXPECT_EQ(TextIn("Y"), "-2.5");
  EXPECT_TRUE(IsAllSelected("Y"));
}

TEST_F(TwoVariableDlgTest, FilesHoldThreeFieldsALine) {
  AddRows("1 2 3;4.5 -6 7");
  SaveAs("a.txt");
  EXPECT_EQ(Content("a.txt"), "4.5\t-6\t7\r\n1\t2\t3\r\n");
  Load("1 2 3 4 5 6 7 8\r\n");
  EXPECT_EQ(Rows(), "1 2 3;4 5 6");
  EXPECT_EQ(Total(), "9");
  Load("1 2\r\n");
  EXPECT_EQ(Rows(), "1 2 ");
  EXPECT_EQ(Total(), "0");
}

TEST_F(TwoVariableDlgTest, PastedRowsNeedAnXAndAY) {
  PasteIntoList("1\t2\n3;4;5\n6,7\n8 9\n");
  TapOffer(*dlg_, "6 | 7");
  EXPECT_EQ(Rows(), "1 2 1;3 4 5;6 7 1;8 9 1");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
}

}  // namespace
}  // namespace kav::test::two_variable_dlg_test
