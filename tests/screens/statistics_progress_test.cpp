// Long work on the data shows its progress and can be cancelled.
#include <gtest/gtest.h>

#include "screens/dialog_layout.h"
#include "screens/screen_layout.h"
#include "screens/statistics_driver.h"

namespace kav::test::statistics_progress_test {
namespace {

using std::chrono_literals::operator""ms;

/// A screen without patience: it shows the progress of all work.
class StatisticsProgressTest : public StatisticsDriver {
 protected:
  StatisticsProgressTest() { Open(std::make_unique<COneVariableDlg>(frame_, 0ms)); }

  /// Expects the box that shows progress; `use` leaves it open or closes it.
  void ExpectProgress(const QString& title, const std::function<void(QDialog&)>& use) {
    BoxWatch::Instance().ExpectDialog([title, use](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), title);
      EXPECT_TRUE(dialog.isModal());
      ASSERT_NE(dialog.findChild<QProgressBar*>(), nullptr);
      use(dialog);
    });
  }
  void ExpectCancelled(const QString& title) {
    ExpectProgress(title, [](QDialog& dialog) { Click(*FindKey(dialog, u"Cancel")); });
  }
};

TEST_F(StatisticsProgressTest, ALoadThatIsGivenUpLeavesTheOldList) {
  AddRows("1 1");
  Write("a.txt", "5\t5\r\n6\t6\r\n");
  ExpectFile(Path("a.txt"));
  ExpectCancelled("Loading Data...");
  Tap(u"Load");
  EXPECT_EQ(Rows(), "1 1");
  EXPECT_EQ(Total(), "1");
  EXPECT_EQ(OnesOn("Clear;Save;Load"), "Clear;Save;Load");
}

TEST_F(StatisticsProgressTest, EscGivesUpToo) {
  AddRows("1 1");
  Write("a.txt", "5\t5\r\n");
  ExpectFile(Path("a.txt"));
  ExpectProgress("Loading Data...",
                 [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Tap(u"Load");
  EXPECT_EQ(Rows(), "1 1");
}

TEST_F(StatisticsProgressTest, ASaveThatIsGivenUpLeavesTheOldFile) {
  Write("a.txt", "old");
  AddRows("1 2");
  ExpectFile(Path("a.txt"));
  ExpectBox(QMessageBox::Yes);  // the file exists
  ExpectCancelled("Saving Data...");
  Tap(u"Save");
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  EXPECT_EQ(Content("a.txt"), "old");
  ExpectBox(QMessageBox::No);
  ExpectNoFileChosen();
  Focused();
  Tap(u"Load");
  ExpectSeen(u"Do you want to save changes to Data?", QMessageBox::Question);
}

TEST_F(StatisticsProgressTest, APasteThatIsGivenUpLeavesTheOldList) {
  AddRows("1 1");
  ExpectCancelled("Pasting Data...");
  PasteIntoList("2\n3\n4\n");
  EXPECT_EQ(Rows(), "1 1");
}

TEST_F(StatisticsProgressTest, TheScreenTakesNothingMeanwhile) {
  AddRows("1 1");
  Write("a.txt", "5\t5\r\n");
  ExpectFile(Path("a.txt"));
  ExpectProgress("Loading Data...", [this](QDialog& dialog) {
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    dlg_->close();
    Click(*FindKey(dialog, u"Cancel"));
  });
  const QWindow* window = dlg_->windowHandle();
  Tap(u"Load");
  EXPECT_EQ(Rows(), "1 1");
  EXPECT_NE(window, nullptr);
}

TEST_F(StatisticsProgressTest, AWorkThatIsDoneSoonShowsNothing) {
  Open(MakeOneVariableScreen(frame_));
  Load("5\t5\r\n6\t6\r\n");
  EXPECT_EQ(Rows(), "5 5;6 6");
}

TEST_F(StatisticsProgressTest, TheBoxHasRoomForAllAtAnySize) {
  Write("a.txt", "5\t5\r\n");
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    ExpectFile(Path("a.txt"));
    ExpectProgress("Loading Data...", [this](QDialog& dialog) {
      ExpectRoomForAll(dialog);
      EXPECT_LT(dialog.width(), dlg_->width());
      Click(*FindKey(dialog, u"Cancel"));
    });
    Tap(u"Load");
    Focused();
  }
}

TEST(WorkProgressViewTest, ShowsTheDonePartAndGoesWithItsWork) {
  BoxWatch::Instance();
  QWidget window;
  Show(window);
  int shown = -1;
  BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
    shown = dialog.findChild<QProgressBar*>()->value();
    // The box stays open until the work is done.
    QTimer::singleShot(0, &dialog, &QDialog::reject);
    dialog.setVisible(false);
  });
  WorkProgressView progress(&window, u"Working...", 0ms);
  EXPECT_TRUE(progress.Update(0.25));
  EXPECT_EQ(shown, 25);
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 0U);
}

TEST(WorkProgressViewTest, WaitsForItsPatienceToEnd) {
  QWidget window;
  Show(window);
  WorkProgressView progress(&window, u"Working...", std::chrono::hours(1));
  for (const double done : {0.0, 0.5, 1.0}) EXPECT_TRUE(progress.Update(done));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(kProgressPatience, 300ms);
}

}  // namespace
}  // namespace kav::test::statistics_progress_test
