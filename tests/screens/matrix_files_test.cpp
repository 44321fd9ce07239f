// The matrix screen and its files, through the dialogs that ask for them.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "screens/matrix_driver.h"

namespace kav::test::matrix_files_test {
namespace {

class MatrixFilesTest : public MatrixScreen {
 protected:
  QString Path(const QString& name) { return folder_.filePath(name); }
  std::string Content(const QString& name) {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "not there";
  }
  void Write(const QString& name, const QByteArray& content) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  /// Chooses `item` and types `path` into the dialog that asks for a file.
  void ChooseFile(std::u16string_view item, const QString& path) {
    ExpectFile(path);
    ChooseItem(item);
  }
  /// The same, followed by a box that says `message`.
  void ExpectRefusal(std::u16string_view item, const QString& path, std::u16string_view message) {
    SCOPED_TRACE(path.toStdString());
    ExpectFile(path);
    ExpectBox();
    ChooseItem(item);
    ExpectSeen(message, QMessageBox::Critical);
  }
  void ChooseItem(std::u16string_view item) {
    Tap(u"MTools");
    Choose(item);
  }
  void ExpectFile(const QString& path) {
    BoxWatch::Instance().ExpectDialog([path](QDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>();
      ASSERT_NE(name, nullptr);
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
  }

  QTemporaryDir folder_;
};

TEST_F(MatrixFilesTest, AMatrixIsSavedAndLoaded) {
  Resize(2, 3);
  TypeMatrix("1 2 3;4 5 6.5");
  ChooseFile(u"M Save", Path("a.txt"));
  EXPECT_EQ(Content("a.txt"), "[2*3]\r\n1\t2\t3\r\n4\t5\t6.5\r\n");
  ChooseTab(1);
  ChooseFile(u"M Load", Path("a.txt"));
  EXPECT_EQ(Tab(), u"[M2]");
  EXPECT_EQ(Cells(), "1 2 3;4 5 6.5");
}

TEST_F(MatrixFilesTest, ANameWithoutASuffixGetsOne) {
  Resize(1, 1);
  TypeCells(1, 1, "1");
  ChooseFile(u"M Save", Path("b"));
  EXPECT_EQ(Content("b.txt"), "[1*1]\r\n1\r\n");
}

TEST_F(MatrixFilesTest, AnInvalidMatrixIsNotSaved) {
  ExpectBox();
  Tap(u"MTools");
  Choose(u"M Save");
  ExpectSeen(u"Matrix [M1] is invalid", QMessageBox::Critical);
}

TEST_F(MatrixFilesTest, CommasAreTakenOutOfLoadedCells) {
  Write("c.txt", "[1*2]\r\n1,234,567.5\t-1,000\r\n");
  ChooseFile(u"M Load", Path("c.txt"));
  EXPECT_EQ(Cells(), "1234567.5 -1000");
}

TEST_F(MatrixFilesTest, WhatIsNoMatrixIsToldAndChangesNothing) {
  Resize(1, 1);
  TypeCells(1, 1, "9");
  Write("d.txt", "[2*2]\r\n1\t2\r\n3\r\n");
  ExpectRefusal(u"M Load", Path("d.txt"), Path("d.txt").toStdU16String() + u" is invalid.");
  EXPECT_EQ(Cells(), "9");
}

TEST_F(MatrixFilesTest, AFileThatCannotBeWrittenIsTold) {
  Resize(1, 1);
  TypeCells(1, 1, "9");
  const QString path = "/proc/self/matrix.txt";
  ExpectFile(path);
  ExpectBox();
  ChooseItem(u"M Save");
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
  EXPECT_NE(seen.front().text.find(path.toStdU16String()), std::u16string::npos);
}

TEST_F(MatrixFilesTest, WhenNoFileIsChosenNothingHappens) {
  BoxWatch::Instance().ExpectDialog([](QDialog& dialog) { dialog.reject(); });
  ChooseItem(u"M Load");
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _");
}

// Leaving.

class MatrixLeavingTest : public MatrixFilesTest {
 protected:
  MatrixLeavingTest() {
    frame_.others = {{ScreenMode::Scientific, u"Scientific Calculator"}};
    Open();
  }
  void Exit() { ChooseFrom(*dlg_, u"&File", u"E&xit"); }
  void Switch() { ChooseFrom(*dlg_, u"&Mode", u"Scientific Calculator"); }
};

TEST_F(MatrixLeavingTest, ASwitchKeepsTheMatricesAndAsksNothing) {
  Resize(1, 2);
  TypeCells(1, 1, "1 2");
  ChooseTab(2);
  TypeCells(2, 2, "7");
  Switch();
  EXPECT_EQ(frame_.modes, std::vector{ScreenMode::Scientific});
  Open();
  EXPECT_EQ(Tab(), u"[M3]");
  EXPECT_EQ(Cells(), "_ _ _;_ 7 _;_ _ _");
  ChooseTab(0);
  EXPECT_EQ(Cells(), "1 2");
  Open();
  EXPECT_EQ(Cells(), "_ _ _;_ _ _;_ _ _") << "they are kept for one time";
}

TEST_F(MatrixLeavingTest, TheEndAsksForMatricesThatAreInNoFile) {
  Exit();
  EXPECT_EQ(frame_.exits, 1) << "nothing to lose";
  Resize(1, 1);
  TypeCells(1, 1, "1");
  ExpectBox(QMessageBox::Cancel);
  Exit();
  ExpectSeen(u"Do you want to save changes to [M1]?", QMessageBox::Question);
  EXPECT_EQ(frame_.exits, 1);
  ExpectBox(QMessageBox::No);
  Exit();
  BoxWatch::Instance().TakeSeen();
  EXPECT_EQ(frame_.exits, 2);
  ChooseTab(1);
  Resize(1, 1);
  TypeCells(1, 1, "2");
  ExpectBox(QMessageBox::Yes);
  ExpectFile(Path("one.txt"));
  ExpectFile(Path("two.txt"));
  Exit();
  ExpectSeen(u"Do you want to save changes to [M1], [M2]?", QMessageBox::Question);
  EXPECT_EQ(frame_.exits, 3);
  EXPECT_EQ(Content("one.txt"), "[1*1]\r\n1\r\n");
  EXPECT_EQ(Content("two.txt"), "[1*1]\r\n2\r\n");
  Exit();
  EXPECT_EQ(frame_.exits, 4) << "all is saved";
}

TEST_F(MatrixLeavingTest, NothingEndsAfterASaveThatWasGivenUpOrFailed) {
  TypeCells(1, 1, "1");
  ExpectBox(QMessageBox::Yes);
  ExpectBox();
  Exit();
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().back().text, u"Matrix [M1] is invalid");
  Resize(1, 1);
  ExpectBox(QMessageBox::Yes);
  BoxWatch::Instance().ExpectDialog([](QDialog& dialog) { dialog.reject(); });
  Exit();
  BoxWatch::Instance().TakeSeen();
  EXPECT_EQ(frame_.exits, 0);
  EXPECT_EQ(Cells(), "1");
}

TEST_F(MatrixLeavingTest, TheEndOfAnotherScreenAsksForWhatWasKept) {
  TypeCells(1, 1, "1");
  Switch();
  ExpectBox(QMessageBox::Cancel);
  EXPECT_FALSE(frame_.MayEnd(dlg_.get()));
  ExpectSeen(u"Do you want to save changes to [M1]?", QMessageBox::Question);
}

}  // namespace
}  // namespace kav::test::matrix_files_test
