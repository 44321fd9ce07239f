// The statistics screens and their files, the clipboard, and the question before data is lost.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QToolButton>

#include "screens/offer_driver.h"
#include "screens/statistics_driver.h"

namespace kav::test::statistics_files_test {
namespace {

constexpr const char16_t* kSaveQuestion = u"Do you want to save changes to Data?";

class StatisticsFilesTest : public OneVariableScreen {
 protected:
  /// Loads `name`, which is refused with a text that begins with `beginning` and names the file.
  void ExpectLoadRefused(const QString& name, std::u16string_view beginning) {
    SCOPED_TRACE(name.toStdString());
    ExpectFile(Path(name));
    ExpectBox();
    Tap(u"Load");
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
    EXPECT_TRUE(seen.front().text.starts_with(beginning)) << ToQt(seen.front().text).toStdString();
    EXPECT_NE(seen.front().text.find(Path(name).toStdU16String()), std::u16string::npos);
    Focused();
  }
};

TEST_F(StatisticsFilesTest, AListIsSavedFromTheTop) {
  AddRows("2 3;4.5 1");
  SaveAs("a.txt");
  EXPECT_EQ(Content("a.txt"), "4.5\t1\r\n2\t3\r\n");
}

TEST_F(StatisticsFilesTest, ANameWithoutASuffixGetsOne) {
  AddRows("1");
  SaveAs("b");
  EXPECT_EQ(Content("b.txt"), "1\t1\r\n");
}

TEST_F(StatisticsFilesTest, TheDialogsOfferTextFilesFirst) {
  QStringList filters;
  const auto look = [&](QDialog& dialog) {
    filters += dynamic_cast<QFileDialog&>(dialog).nameFilters();
    dialog.reject();
  };
  BoxWatch::Instance().ExpectDialog(look);
  Tap(u"Load");
  Focused();
  AddRows("1");
  BoxWatch::Instance().ExpectDialog(look);
  Tap(u"Save");
  const QStringList offered{"TXT(*.txt)", "Data files (*.txt *.csv *.tsv *.dat)", "All files (*)"};
  EXPECT_EQ(filters, offered + offered);
}

TEST_F(StatisticsFilesTest, TheDialogsLieOverTheScreenAndShowAllTheyHave) {
  dlg_->resize(240, 320);
  const auto look = [this](QDialog& dialog) {
    EXPECT_EQ(dialog.geometry().size(), QSize(240, 320));
    EXPECT_TRUE(QRect(dlg_->mapToGlobal(QPoint()), dlg_->size()).contains(dialog.geometry()));
    for (auto* part : dialog.findChildren<QWidget*>()) {
      if (!part->isVisible() || part->window() != &dialog) continue;
      const QRect place(part->mapTo(&dialog, QPoint()), part->size());
      if (qobject_cast<QAbstractButton*>(part) != nullptr ||
          qobject_cast<QLineEdit*>(part) != nullptr) {
        EXPECT_TRUE(dialog.rect().contains(place)) << part->objectName().toStdString();
      }
      if (qobject_cast<QPushButton*>(part) != nullptr) {
        EXPECT_GE(part->width(), part->minimumSizeHint().width());
      }
    }
    EXPECT_NE(FindKey(dialog, u"Cancel"), nullptr);
    const auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ(name->text(), "");
    // It ends where the list above it does, and takes what its label leaves.
    const auto* files = dialog.findChild<QWidget*>("treeView");
    const auto rightOf = [&dialog](const QWidget& part) {
      return part.mapTo(&dialog, part.rect().topRight()).x();
    };
    EXPECT_NEAR(rightOf(*name), rightOf(*files), 1);
    EXPECT_GT(name->width(), dialog.width() / 2);
    for (const auto* tool : dialog.findChildren<QToolButton*>()) {
      if (!tool->isVisible() || tool->icon().isNull()) continue;
      EXPECT_GE(tool->icon().actualSize(QSize(500, 500)).height(), dialog.font().pixelSize());
      EXPECT_GE(tool->height(), dialog.font().pixelSize());
    }
    EXPECT_TRUE(dynamic_cast<QFileDialog&>(dialog).directory().exists());
    dialog.reject();
  };
  BoxWatch::Instance().ExpectDialog(look);
  Tap(u"Load");
  Focused();
  AddRows("1");
  BoxWatch::Instance().ExpectDialog(look);
  Tap(u"Save");
}

TEST_F(StatisticsFilesTest, LoadingReplacesTheList) {
  AddRows("1 1");
  Load("1.5e+3\t2\r\n-7\t3\r\n");
  EXPECT_EQ(Rows(), "1.5e+3 2;-7 3") << "values stay as they are in the file";
  EXPECT_EQ(Total(), "5");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
  EXPECT_EQ(OnesOn(kRowKeys), "Clear;Save;Load");
  EXPECT_EQ(ResultOf(u"ΣX"), u"2,979");
}

TEST_F(StatisticsFilesTest, EveryByteThatIsOfNoNumberSeparates) {
  struct File {
    const char* content;
    const char* rows;
    const char* total;
  };
  for (const File& file : {
           File{"1.5E3 ", "1.5 3", "3"},
           File{"1 2.9 ", "1 2", "2"},
           File{"1\t2\r\n3\t4", "1 2", "2"},
           File{"1\t2\r\n3\r\n", "1 2", "2"},
           File{"7\r\n", "7 ", "0"},
           File{"7", "", "0"},
           File{"", "", "0"},
           File{"a1b2c", "1 2", "2"},
       }) {
    SCOPED_TRACE(file.content);
    Load(file.content);
    EXPECT_EQ(Rows(), file.rows);
    EXPECT_EQ(Total(), file.total);
  }
}

TEST_F(StatisticsFilesTest, KeysFollowTheNumberOfCompleteRows) {
  Load("7\r\n");
  EXPECT_EQ(OnesOn(kRowKeys), "Load");
  Load("7 1\r\n");
  EXPECT_EQ(OnesOn(kRowKeys), "Clear;Save;Load");
  EXPECT_EQ(OnesOn(kResultKeys), "");
  Load("7 1 8 1\r\n");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
  Load("");
  EXPECT_EQ(OnesOn(kRowKeys), "Load");
  EXPECT_EQ(OnesOn(kResultKeys), "");
}

TEST_F(StatisticsFilesTest, LoadingTakesTheSelectionAway) {
  AddRows("1 1");
  ClickRow(0);
  Load("7 1 8 1\r\n");
  EXPECT_EQ(SelectedRows(), "");
  EXPECT_EQ(OnesOn("Edit;Delete"), "");
}

TEST_F(StatisticsFilesTest, LoadingIntoChangedDataAsksToSaveFirst) {
  Write("b.txt", "9\t9\r\n");
  AddRows("1 2");
  ExpectBox(QMessageBox::Yes);
  ExpectFile(Path("a.txt"));
  ExpectFile(Path("b.txt"));
  Tap(u"Load");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(Content("a.txt"), "1\t2\r\n");
  EXPECT_EQ(Rows(), "9 9");
}

TEST_F(StatisticsFilesTest, GivingUpToSaveDoesNotStopTheLoad) {
  Write("b.txt", "9\t9\r\n");
  AddRows("1 2");
  ExpectBox(QMessageBox::Yes);
  ExpectNoFileChosen();
  ExpectFile(Path("b.txt"));
  Tap(u"Load");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(Rows(), "9 9");
}

TEST_F(StatisticsFilesTest, ANoLoadsAtOnce) {
  Write("b.txt", "9\t9\r\n");
  AddRows("1 2");
  ExpectBox(QMessageBox::No);
  ExpectFile(Path("b.txt"));
  Tap(u"Load");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(Rows(), "9 9");
}

TEST_F(StatisticsFilesTest, WhatIsCleanIsNotAskedFor) {
  AddRows("1 2;3 4");
  Answer(u"Clear", u"Are you sure you want to delete all data?", QMessageBox::Yes);
  Load("5\t5\r\n");
  Load("6\t6\r\n");
  EXPECT_EQ(Rows(), "6 6");
  AddRows("1 2");
  SaveAs("c.txt");
  Load("7\t7\r\n");
  EXPECT_EQ(Rows(), "7 7");
}

TEST_F(StatisticsFilesTest, EditingAndDeletingMakeTheDataChanged) {
  Load("5\t5\r\n6\t6\r\n");
  ClickRow(0);
  Tap(u"Edit Ok");
  ExpectBox(QMessageBox::No);
  Load("5\t5\r\n6\t6\r\n");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  ClickRow(0);
  Answer(u"Delete", u"Are you sure you want to delete the selected data?", QMessageBox::Yes);
  ExpectBox(QMessageBox::No);
  Load("5\t5\r\n");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
}

TEST_F(StatisticsFilesTest, WhenNoFileIsChosenNothingHappens) {
  AddRows("1");
  ExpectNoFileChosen();
  Tap(u"Save");
  Focused();
  ExpectNoFileChosen();
  Tap(u"Load");
  EXPECT_EQ(Rows(), "1 1");
}

TEST_F(StatisticsFilesTest, WhatCannotBeLoadedLeavesTheList) {
  AddRows("1");
  Put("X", "77");
  Write("big.txt", "1\t2147483647\r\n2\t1\r\n");
  ExpectLoadRefused("big.txt", u"The data cannot be loaded from ");
  EXPECT_EQ(Rows(), "1 1");
  EXPECT_EQ(Total(), "1");
  EXPECT_EQ(TextIn("X"), "77");
}

TEST_F(StatisticsFilesTest, AFileThatCannotBeWrittenIsTold) {
  AddRows("1");
  ExpectFile("/proc/self/data.txt");
  ExpectBox();
  Tap(u"Save");
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
  EXPECT_TRUE(seen.front().text.starts_with(u"The data cannot be saved in /proc/self/data.txt"));
}

TEST_F(StatisticsFilesTest, ATotalBeyond32BitsIsRefused) {
  Load("1\t2147483647\r\n");
  Put("X", "2");
  ExpectRefusal(u"Add",
                u"The total of all counts must be from -2147483648 to 2147483647. The list "
                u"was not changed.");
  EXPECT_EQ(Rows(), "1 2147483647");
  EXPECT_EQ(Total(), "2147483647");
  EXPECT_TRUE(IsAllSelected("Count"));
}

TEST_F(StatisticsFilesTest, TheKeyboardSavesAndLoads) {
  Write("b.txt", "9\t9\r\n");
  ExpectFile(Path("b.txt"));
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Rows() == "9 9"; }));
  ExpectFile(Path("c.txt"));
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Content("c.txt") == "9\t9\r\n"; }));
}

TEST_F(StatisticsFilesTest, WhatIsDisabledHasNoShortcut) {
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(FindKey(*dlg_, u"Save")->isDown());
  AddRows("1;2;3");
  ClickRow(0);
  Tap(u"Edit");
  Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_FALSE(FindKey(*dlg_, u"Load")->isDown());
  Key(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Rows(), "3 1;2 1;1 1");
}

TEST_F(StatisticsFilesTest, LeavingAsksToSave) {
  frame_.others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
  Open();
  AddRows("1 2");
  ExpectBox(QMessageBox::Yes);
  ExpectFile(Path("a.txt"));
  ChooseFrom(*dlg_, u"&Mode", u"Matrix Calculator");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(Content("a.txt"), "1\t2\r\n");
  EXPECT_EQ(frame_.modes, std::vector<ScreenMode>{ScreenMode::Matrix});
}

TEST_F(StatisticsFilesTest, CancelKeepsTheScreenThatWasToEnd) {
  AddRows("1 2");
  ExpectBox(QMessageBox::Cancel);
  ChooseFrom(*dlg_, u"&File", u"E&xit");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(frame_.exits, 0);
  EXPECT_EQ(Rows(), "1 2");
}

TEST_F(StatisticsFilesTest, GivingUpToSaveStopsTheEndButNoOtherScreen) {
  frame_.others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
  Open();
  AddRows("1 2");
  ExpectBox(QMessageBox::Yes);
  ExpectNoFileChosen();
  ChooseFrom(*dlg_, u"&File", u"E&xit");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(frame_.exits, 0);
  ExpectBox(QMessageBox::Yes);
  ExpectNoFileChosen();
  ChooseFrom(*dlg_, u"&Mode", u"Matrix Calculator");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(frame_.modes, std::vector<ScreenMode>{ScreenMode::Matrix});
}

TEST_F(StatisticsFilesTest, NothingGoesOnAfterASaveThatFailed) {
  frame_.others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
  Open();
  AddRows("1 2");
  const auto fail = [this](const std::function<void()>& leave) {
    ExpectBox(QMessageBox::Yes);
    ExpectFile("/proc/self/data.txt");
    ExpectBox();
    leave();
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 2U);
    Focused();
  };
  fail([this] { ChooseFrom(*dlg_, u"&File", u"E&xit"); });
  fail([this] { ChooseFrom(*dlg_, u"&Mode", u"Matrix Calculator"); });
  fail([this] { Tap(u"Load"); });
  EXPECT_EQ(frame_.exits, 0);
  EXPECT_EQ(frame_.modes.size(), 0U);
  EXPECT_EQ(Rows(), "1 2");
}

TEST_F(StatisticsFilesTest, LeavingWithoutSavingIsTheUsersChoice) {
  AddRows("1 2");
  ExpectBox(QMessageBox::No);
  ChooseFrom(*dlg_, u"&File", u"E&xit");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
  EXPECT_EQ(frame_.exits, 1);
}

TEST_F(StatisticsFilesTest, LeavingWhatIsSavedAsksNothing) {
  AddRows("1 2");
  SaveAs("a.txt");
  ChooseFrom(*dlg_, u"&File", u"E&xit");
  EXPECT_EQ(frame_.exits, 1);
}

TEST_F(StatisticsFilesTest, SelectedRowsAreCopiedFromTheTop) {
  AddRows("1;2 5;3");
  ClickRow(2);
  ClickRow(1, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "2\t5\n1\t1\n");
}

TEST_F(StatisticsFilesTest, PastedRowsComeOnTop) {
  AddRows("1 1");
  PasteIntoList("10\t2\r\n20;3\n30,4\n40 5\n50\n");
  TapOffer(*dlg_, "30 | 4");
  EXPECT_EQ(Rows(), "10 2;20 3;30 4;40 5;50 1;1 1");
  EXPECT_EQ(Total(), "16");
  EXPECT_EQ(OnesOn(kResultKeys), kResultKeys);
  ExpectBox(QMessageBox::No);
  Load("5\t5\r\n");
  ExpectSeen(kSaveQuestion, QMessageBox::Question);
}

TEST_F(StatisticsFilesTest, BadLinesAreCountedAndTold) {
  ExpectBox();
  PasteIntoList("1\nabc\n3\t20000\n4\t1\n5\t1\t1\n");
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(seen.front().text.starts_with(u"3 of 5 lines were not taken: line 2 "))
      << ToQt(seen.front().text).toStdString();
  EXPECT_EQ(Rows(), "1 1;4 1");
}

TEST_F(StatisticsFilesTest, WhatWasCopiedCanBePasted) {
  AddRows("1.5 2;-7 3");
  Table().setFocus();
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Rows(), "-7 3;1.5 2;-7 3;1.5 2");
}

TEST_F(StatisticsFilesTest, NothingIsPastedFromAnEmptyClipboard) {
  AddRows("1");
  PasteIntoList("");
  EXPECT_EQ(Rows(), "1 1");
}

}  // namespace
}  // namespace kav::test::statistics_files_test
