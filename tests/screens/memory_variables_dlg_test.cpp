// The list of memory variables, to store into and to recall from.
#include "screens/memory/memory_variables_dlg.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <functional>
#include <optional>
#include <string>

#include "screens/box_watch.h"
#include "screens/dialog_layout.h"
#include "screens/screen_driver.h"
#include "store/user_settings_store.h"
#include "support/effort.h"
#include "support/processor_time.h"
#include "support/temporary_folder.h"

namespace kav::test::memory_variables_dlg_test {
namespace {

using Recalled = std::optional<std::u16string>;

class MemoryVariablesDlgTest : public testing::Test {
 protected:
  MemoryVariablesDlgTest() { Show(screen_); }

  /// Opens the dialog and runs `use` in it.
  void Store(const std::u16string& value, const std::function<void()>& use) {
    Expect(use);
    RunStoreVariable(&screen_, store_, value);
  }
  Recalled Recall(const std::function<void()>& use) {
    Expect(use);
    return RunRecallVariable(&screen_, store_);
  }

  void Put(int number, std::string_view value) {
    store_.Set(NumberedKey{"MemoryVar", "Var" + std::to_string(number), ""}, value);
  }
  std::string Stored(int number) {
    return store_.Get(NumberedKey{"MemoryVar", "Var" + std::to_string(number), "nothing stored"});
  }

  QListWidget& List() { return *dlg_->findChild<QListWidget*>(); }
  std::u16string Line(int row) { return List().item(row)->text().toStdU16String(); }
  int Selected() {
    const auto selected = List().selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.front().row();
  }
  void Tap(std::u16string_view caption) { test::Tap(*dlg_, caption); }
  void TapClearAll() { Click(*FindKey(*dlg_, u"Clear All")); }
  QPoint PlaceOf(int row) {
    List().scrollToItem(List().item(row));
    return List().visualItemRect(List().item(row)).center();
  }
  void TapLine(int row) {
    const QPoint place = PlaceOf(row);
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  }
  void DoubleTapLine(int row) {
    TapLine(row);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(row));
  }
  void Press(Qt::Key key) { QTest::keyClick(dlg_->focusWidget(), key); }

  /// The one box that was shown.
  static void ExpectSaid(const std::u16string& text, QMessageBox::Icon icon) {
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, icon);
  }
  static void ExpectNothingSaid() { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }
  static void Answer(QMessageBox::StandardButton button) { BoxWatch::Instance().Expect(button); }

  MemorySettingsStore store_;
  QWidget screen_;
  QDialog* dlg_ = nullptr;

 private:
  void Expect(const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([this, use](QDialog& dialog) {
      dlg_ = &dialog;
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      use();
    });
  }
};

TEST_F(MemoryVariablesDlgTest, AFreshInstallationListsTwentyZeros) {
  Recall([&] {
    EXPECT_EQ(dlg_->windowTitle(), "Memory Variable");
    ASSERT_EQ(List().count(), 20);
    EXPECT_EQ(Line(0), u"Mem01 = 0");
    EXPECT_EQ(Line(8), u"Mem09 = 0");
    EXPECT_EQ(Line(19), u"Mem20 = 0");
    EXPECT_EQ(Selected(), -1);
    Tap(u"Close");
  });
  ExpectNothingSaid();
}

TEST_F(MemoryVariablesDlgTest, TheButtonsAreThoseOfTheMode) {
  const auto has = [this](std::u16string_view caption) {
    return FindKey(*dlg_, caption) != nullptr;
  };
  Store(u"5", [&] {
    for (const char16_t* caption : {u"Clear All", u"Clear", u"Store", u"Close"}) {
      EXPECT_TRUE(has(caption)) << ToQt(caption).toStdString();
    }
    EXPECT_FALSE(has(u"Recall"));
    Tap(u"Close");
  });
  Recall([&] {
    EXPECT_TRUE(has(u"Recall"));
    EXPECT_FALSE(has(u"Store"));
    Tap(u"Close");
  });
}

TEST_F(MemoryVariablesDlgTest, OneValueGoesIntoSeveralVariables) {
  Store(u"2.5", [&] {
    for (const int row : {1, 19}) {
      TapLine(row);
      Tap(u"Store");
      EXPECT_TRUE(dlg_->isVisible());
      EXPECT_EQ(Selected(), row);
      EXPECT_EQ(Stored(row), "2.5");
    }
    EXPECT_EQ(Line(1), u"Mem02 = 2.5");
    EXPECT_EQ(Line(19), u"Mem20 = 2.5");
    Tap(u"Close");
  });
  EXPECT_EQ(Stored(0), "nothing stored");
  ExpectNothingSaid();
}

TEST_F(MemoryVariablesDlgTest, RecallingEndsWithTheText) {
  Put(19, "-1.5e-20");
  EXPECT_EQ(Recall([&] {
              TapLine(19);
              Tap(u"Recall");
            }),
            u"-1.5e-20");
  EXPECT_EQ(Recall([&] {
              TapLine(0);
              Tap(u"Recall");
            }),
            u"0");
  ExpectNothingSaid();
}

TEST_F(MemoryVariablesDlgTest, ClosingRecallsNothing) {
  EXPECT_EQ(Recall([&] {
              TapLine(0);
              Tap(u"Close");
            }),
            std::nullopt);
}

TEST_F(MemoryVariablesDlgTest, ADoubleTapOnALineIsTheAction) {
  Put(3, "3.25");
  EXPECT_EQ(Recall([&] { DoubleTapLine(3); }), u"3.25");
  Store(u"9", [&] {
    DoubleTapLine(4);
    EXPECT_EQ(Line(4), u"Mem05 = 9");
    Tap(u"Close");
  });
  EXPECT_EQ(Stored(4), "9");
}

TEST_F(MemoryVariablesDlgTest, WithoutASelectionTheActionAsksForOne) {
  Recall([&] {
    Answer(QMessageBox::Ok);
    Tap(u"Recall");
    ExpectSaid(u"Please select a memory variable", QMessageBox::Critical);
    EXPECT_TRUE(dlg_->isVisible());
    Tap(u"Close");
  });
  Store(u"5", [&] {
    Answer(QMessageBox::Ok);
    Tap(u"Store");
    ExpectSaid(u"Please select a memory variable", QMessageBox::Critical);
    EXPECT_TRUE(dlg_->isVisible());
    Tap(u"Close");
  });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Stored(i), "nothing stored") << i;
}

TEST_F(MemoryVariablesDlgTest, ClearingAsksFirst) {
  Put(2, "3");
  Put(3, "4");
  Recall([&] {
    TapLine(2);
    Answer(QMessageBox::No);
    Tap(u"Clear");
    ExpectSaid(u"Are you sure you want to clear the selected variable?", QMessageBox::Question);
    EXPECT_EQ(Line(2), u"Mem03 = 3");
    Answer(QMessageBox::Yes);
    Tap(u"Clear");
    ExpectSaid(u"Are you sure you want to clear the selected variable?", QMessageBox::Question);
    EXPECT_EQ(Line(2), u"Mem03 = 0");
    EXPECT_EQ(Line(3), u"Mem04 = 4");
    Tap(u"Close");
  });
  EXPECT_EQ(Stored(2), "0");
  EXPECT_EQ(Stored(3), "4");
}

TEST_F(MemoryVariablesDlgTest, ClearingWithoutASelectionDoesNothing) {
  Put(0, "1");
  Recall([&] {
    Tap(u"Clear");
    EXPECT_EQ(Line(0), u"Mem01 = 1");
    Tap(u"Close");
  });
  ExpectNothingSaid();
}

TEST_F(MemoryVariablesDlgTest, ClearingAllAsksFirst) {
  Put(0, "1");
  Put(19, "20");
  Recall([&] {
    Answer(QMessageBox::No);
    TapClearAll();
    ExpectSaid(u"Are you sure you want to clear all variable?", QMessageBox::Question);
    EXPECT_EQ(Line(19), u"Mem20 = 20");
    Answer(QMessageBox::Yes);
    TapClearAll();
    ExpectSaid(u"Are you sure you want to clear all variable?", QMessageBox::Question);
    for (int i = 0; i < 20; ++i) EXPECT_TRUE(Line(i).ends_with(u" = 0")) << i;
    Tap(u"Close");
  });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(Stored(i), "0") << i;
}

TEST_F(MemoryVariablesDlgTest, TheKeyboardAloneReachesTheFirstLineAndAllOthers) {
  Put(0, "1");
  Put(2, "3");
  EXPECT_EQ(Recall([&] {
              EXPECT_EQ(dlg_->focusWidget(), &List());
              Press(Qt::Key_Down);
              EXPECT_EQ(Selected(), 0);
              Press(Qt::Key_Return);
            }),
            u"1");
  EXPECT_EQ(Recall([&] {
              for (int i = 0; i < 3; ++i) Press(Qt::Key_Down);
              Press(Qt::Key_Return);
            }),
            u"3");
  EXPECT_EQ(Recall([&] { Press(Qt::Key_Escape); }), std::nullopt);
  ExpectNothingSaid();
}

TEST_F(MemoryVariablesDlgTest, TheKeyboardAloneStoresAndClears) {
  Store(u"6", [&] {
    Press(Qt::Key_End);
    EXPECT_EQ(Selected(), 19);
    Press(Qt::Key_Return);
    EXPECT_EQ(Line(19), u"Mem20 = 6");
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    EXPECT_EQ(Line(18), u"Mem19 = 6");
    for (int i = 0; i < 10 && dlg_->focusWidget() != FindKey(*dlg_, u"Clear"); ++i) {
      Press(Qt::Key_Tab);
    }
    Answer(QMessageBox::Yes);
    Press(Qt::Key_Return);
    ExpectSaid(u"Are you sure you want to clear the selected variable?", QMessageBox::Question);
    EXPECT_EQ(Line(18), u"Mem19 = 0");
    Press(Qt::Key_Escape);
  });
  EXPECT_EQ(Stored(18), "0");
  EXPECT_EQ(Stored(19), "6");
}

TEST_F(MemoryVariablesDlgTest, AValueWithLineBreaksIsShownInOneLineAndRecalledWhole) {
  Put(0, "1\n2\t3\r\n");
  EXPECT_EQ(Recall([&] {
              EXPECT_EQ(Line(0), u"Mem01 = 1 2 3  ");
              TapLine(0);
              Tap(u"Recall");
            }),
            u"1\n2\t3\r\n");
}

TEST_F(MemoryVariablesDlgTest, TextsOfAMegabyteStayFluentAndAreRecalledWhole) {
  const std::size_t length = Sized(1U << 20U);
  const std::string value(length, '7');
  for (int i = 0; i < 20; ++i) Put(i, value);
  const ProcessorTime time;
  const Recalled recalled = Recall([&] {
    EXPECT_LT(Line(5).size(), 500U);
    TapLine(5);
    Tap(u"Recall");
  });
  EXPECT_LT(time.Milliseconds(), 5000);
  EXPECT_EQ(recalled, std::u16string(length, u'7'));
}

TEST_F(MemoryVariablesDlgTest, OpeningShowsWhatAnotherProgramStoredAndStoringIsOnTheDisk) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  const NumberedKey first{"MemoryVar", "Var0", "0"};
  const NumberedKey second{"MemoryVar", "Var1", "0"};
  UserSettingsStore window(path);
  EXPECT_EQ(window.Get(first), "0");
  UserSettingsStore terminal(path);
  terminal.Set(first, "7");
  ASSERT_TRUE(terminal.Save());
  BoxWatch::Instance().ExpectDialog([this, &path, &second](QDialog& dialog) {
    dlg_ = &dialog;
    EXPECT_EQ(Line(0), u"Mem01 = 7");
    TapLine(1);
    Tap(u"Store");
    EXPECT_EQ(UserSettingsStore(path).Get(second), "8");
    Tap(u"Close");
  });
  RunStoreVariable(&screen_, window, u"8");
  EXPECT_EQ(UserSettingsStore(path).Get(first), "7");
}

TEST_F(MemoryVariablesDlgTest, TheListHasAName) {
  Recall([&] {
    EXPECT_EQ(List().accessibleName(), "Variables");
    Tap(u"Close");
  });
}

TEST_F(MemoryVariablesDlgTest, AllHasRoomAtEverySize) {
  Put(0, "-1.23456789012345e-300");
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440)}) {
    screen_.resize(size);
    Recall([&] {
      EXPECT_EQ(dlg_->size(), size);
      ExpectRoomForAll(*dlg_);
      const QString line = List().item(0)->text();
      EXPECT_LT(List().fontMetrics().horizontalAdvance(line), List().viewport()->width());
      Tap(u"Close");
    });
  }
}

}  // namespace
}  // namespace kav::test::memory_variables_dlg_test
