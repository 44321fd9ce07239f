#include "matrix/matrix_edits.h"

#include <gtest/gtest.h>

#include <string>

#include "common/number_text.h"
#include "support/matrix_table.h"

namespace kav::matrix_edits_test {
namespace {

using test::MatrixOf;
using test::TableOf;

MatrixEdits OnesOnly() {
  return {MatrixOf(u"1"), UniformWidths(60)};
}

std::u16string Numbered(int number) {
  return Widen(std::to_string(number));
}

TEST(UniformWidths, HeaderColumnHasAWidthOfItsOwn) {
  const ColumnWidths widths = UniformWidths(75);
  EXPECT_EQ(widths.size(), 11U);
  EXPECT_EQ(widths[0], 20);
  for (std::size_t column = 1; column < widths.size(); ++column) EXPECT_EQ(widths[column], 75);
}

TEST(MatrixEdits, ChangesAreTakenBackAndDoneAgain) {
  MatrixEdits edits = OnesOnly();
  EXPECT_FALSE(edits.CanUndo());
  edits.Change(0, MatrixOf(u"2 2"));
  edits.Change(2, MatrixOf(u"3"));
  EXPECT_TRUE(edits.CanUndo());
  EXPECT_FALSE(edits.CanRedo());
  EXPECT_EQ(edits.Undo(), 2);
  EXPECT_EQ(TableOf(edits.Matrix(2)), u"1");
  EXPECT_EQ(TableOf(edits.Matrix(0)), u"2 2");
  EXPECT_EQ(edits.Undo(), 0);
  EXPECT_EQ(TableOf(edits.Matrix(0)), u"1");
  EXPECT_FALSE(edits.CanUndo());
  EXPECT_EQ(edits.Redo(), 0);
  EXPECT_EQ(edits.Redo(), 2);
  EXPECT_EQ(TableOf(edits.Matrix(0)), u"2 2");
  EXPECT_EQ(TableOf(edits.Matrix(2)), u"3");
  EXPECT_FALSE(edits.CanRedo());
}

TEST(MatrixEdits, NothingToUndoChangesNothing) {
  MatrixEdits edits = OnesOnly();
  EXPECT_EQ(edits.Undo(), std::nullopt);
  EXPECT_EQ(edits.Redo(), std::nullopt);
  EXPECT_EQ(TableOf(edits.Matrix(0)), u"1");
}

TEST(MatrixEdits, ChangeIntoTheSameIsNoStep) {
  MatrixEdits edits = OnesOnly();
  edits.Change(0, MatrixOf(u"1"));
  edits.Change(0, MatrixOf(u"1"), UniformWidths(60));
  EXPECT_FALSE(edits.CanUndo());
}

TEST(MatrixEdits, NewChangeForgetsWhatCouldBeDoneAgain) {
  MatrixEdits edits = OnesOnly();
  edits.Change(0, MatrixOf(u"2"));
  edits.Undo();
  ASSERT_TRUE(edits.CanRedo());
  edits.Change(1, MatrixOf(u"3"));
  EXPECT_FALSE(edits.CanRedo());
}

TEST(MatrixEdits, WidthsComeBackOnlyWithTheStepThatChangedThem) {
  MatrixEdits edits = OnesOnly();
  edits.Change(0, MatrixOf(u"2"));
  edits.SetWidths(0, UniformWidths(99));
  edits.Undo();
  EXPECT_EQ(edits.Widths(0), UniformWidths(99));
  edits.Change(0, MatrixOf(u"1"), UniformWidths(30));
  EXPECT_EQ(edits.Widths(0), UniformWidths(30));
  edits.Undo();
  EXPECT_EQ(edits.Widths(0), UniformWidths(99));
  edits.Redo();
  EXPECT_EQ(edits.Widths(0), UniformWidths(30));
}

TEST(MatrixEdits, HundredStepsAreKept) {
  MatrixEdits edits = OnesOnly();
  for (int number = 2; number <= 103; ++number) edits.Change(0, MatrixOf(Numbered(number)));
  int steps = 0;
  while (edits.Undo()) ++steps;
  EXPECT_EQ(steps, 100);
  EXPECT_EQ(TableOf(edits.Matrix(0)), u"3");
}

TEST(MatrixEdits, LongCellsLeaveFewerSteps) {
  MatrixEdits edits = OnesOnly();
  MatrixValue matrix = MatrixOf(u"1");
  for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
    matrix.At(0, 0) = std::u16string(4'000'000, digit);
    edits.Change(0, matrix);
  }
  int steps = 0;
  while (edits.Undo()) ++steps;
  // 2^24 characters hold four such cells.
  EXPECT_EQ(steps, 4);
  EXPECT_EQ(edits.Matrix(0).At(0, 0).front(), u'5');
}

TEST(MatrixEdits, LastStepIsKeptHoweverLong) {
  MatrixEdits edits = OnesOnly();
  MatrixValue matrix = MatrixOf(u"1");
  matrix.At(0, 0) = std::u16string(20'000'000, u'1');
  edits.Change(0, matrix);
  edits.Change(0, MatrixOf(u"2"));
  EXPECT_EQ(edits.Undo(), 0);
  EXPECT_EQ(edits.Matrix(0).At(0, 0).size(), 20'000'000U);
  EXPECT_FALSE(edits.CanUndo());
}

}  // namespace
}  // namespace kav::matrix_edits_test
