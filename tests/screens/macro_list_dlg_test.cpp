// The list to choose a macro from.
#include "screens/macros/macro_list_dlg.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "macros/macro_saving.h"
#include "screens/box_watch.h"
#include "screens/dialog_layout.h"
#include "screens/screen_driver.h"
#include "store/user_settings_store.h"
#include "support/processor_time.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::test::macro_list_dlg_test {
namespace {

class MacroListDlgTest : public testing::Test {
 protected:
  MacroListDlgTest() {
    Show(screen_);
    StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"},
                         {"add", "TYPE2 : F(X,Y)", "x+y"},
                         {"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}});
  }

  /// What the user chose once `use` has closed the list.
  std::optional<int> Run(SettingsStore& store, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
    });
    const auto answer = RunMacroList(&screen_, store);
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty());
    return answer;
  }
  std::optional<int> Run(const std::function<void()>& use) { return Run(store_, use); }

  QListWidget& List() { return *dlg_->findChild<QListWidget*>(); }
  std::string Formula() { return dlg_->findChild<QPlainTextEdit*>()->toPlainText().toStdString(); }
  Texts Labels() {
    Texts labels;
    for (int i = 0; i < List().count(); ++i) {
      labels.push_back(List().item(i)->text().toStdU16String());
    }
    return labels;
  }
  void Tap(std::u16string_view caption) { test::Tap(*dlg_, caption); }
  static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  QPoint PlaceOf(int row) { return List().visualItemRect(List().item(row)).center(); }

  MemorySettingsStore store_;
  QWidget screen_;
  QDialog* dlg_ = nullptr;
};

TEST_F(MacroListDlgTest, BeginsWithTheFirstMacroAndItsFormula) {
  const auto answer = Run([this] {
    EXPECT_EQ(dlg_->windowTitle(), "Macro List");
    EXPECT_EQ(Labels(), (Texts{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(Formula(), "x^2");
    Tap(u"OK");
  });
  EXPECT_EQ(answer, 0);
}

TEST_F(MacroListDlgTest, EachSelectionShowsItsFormulaAndIsTheAnswer) {
  const auto byMouse = Run([this] {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(2));
    EXPECT_EQ(Formula(), "x*y*z");
    Tap(u"OK");
  });
  EXPECT_EQ(byMouse, 2);
  const auto byKeys = Run([this] {
    Press(Qt::Key_Down);
    EXPECT_EQ(Formula(), "x+y");
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(byKeys, 1);
}

TEST_F(MacroListDlgTest, ADoubleClickTakesTheMacro) {
  const auto answer = Run([this] {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(1));
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(1));
    EXPECT_FALSE(dlg_->isVisible());
  });
  EXPECT_EQ(answer, 1);
}

TEST_F(MacroListDlgTest, CancelAndEscAnswerNone) {
  EXPECT_EQ(Run([this] {
              Press(Qt::Key_Down);
              Tap(u"Cancel");
            }),
            std::nullopt);
  EXPECT_EQ(Run([] { Press(Qt::Key_Escape); }), std::nullopt);
}

TEST_F(MacroListDlgTest, WithoutASelectionThereIsNothingToTake) {
  Run([this] {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(0));
    EXPECT_EQ(Formula(), "");
    EXPECT_FALSE(FindKey(*dlg_, u"OK")->isEnabled());
    Tap(u"Cancel");
  });
  MemorySettingsStore empty;
  EXPECT_EQ(Run(empty,
                [this] {
                  EXPECT_EQ(Labels(), Texts{});
                  EXPECT_FALSE(FindKey(*dlg_, u"OK")->isEnabled());
                  Tap(u"Cancel");
                }),
            std::nullopt);
}

TEST_F(MacroListDlgTest, TheFormulaIsOnlyRead) {
  Run([this] {
    auto& formula = *dlg_->findChild<QPlainTextEdit*>();
    EXPECT_TRUE(formula.isReadOnly());
    Press(Qt::Key_Tab);
    EXPECT_EQ(CaptionOf(*QApplication::focusWidget()), "OK");
    Press(Qt::Key_Tab);
    EXPECT_EQ(CaptionOf(*QApplication::focusWidget()), "Cancel");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(List().hasFocus());
    Tap(u"Cancel");
  });
}

TEST_F(MacroListDlgTest, WhatAnotherProgramAddedIsInTheListWhenItOpensNext) {
  const TemporaryFolder folder;
  UserSettingsStore own(folder.File("settings.toml"));
  UserSettingsStore other(folder.File("settings.toml"));
  ASSERT_TRUE(SaveMacro({u"mine", VariableType::X, u"x"}, std::nullopt, own));
  Run(own, [this] { Tap(u"Cancel"); });
  ASSERT_TRUE(SaveMacro({u"theirs", VariableType::X, u"2*x"}, std::nullopt, other));
  Run(own, [this] {
    EXPECT_EQ(Labels(), (Texts{u"mine(X)", u"theirs(X)"}));
    Tap(u"Cancel");
  });
}

TEST_F(MacroListDlgTest, TextsOfAMegabyteOpenFluently) {
  const std::string huge = "a\n" + std::string(1 << 20, 'n');
  StoreMacros(store_, {{huge, "TYPE1 : F(X)", huge}, {"sq", "TYPE1 : F(X)", "x^2"}});
  const ProcessorTime time;
  const auto answer = Run([this] {
    EXPECT_TRUE(List().item(0)->text().startsWith("a nnn"));
    EXPECT_LT(List().item(0)->text().size(), 500);
    EXPECT_LT(Formula().size(), 500U);
    Press(Qt::Key_Down);
    EXPECT_EQ(Formula(), "x^2");
    Press(Qt::Key_Up);
    Tap(u"OK");
  });
  EXPECT_EQ(answer, 0);
  EXPECT_LT(time.Milliseconds(), 2000);
}

TEST_F(MacroListDlgTest, EverythingHasRoomAtEverySize) {
  const std::string longest = "x" + std::string(149, '+');
  StoreMacros(store_, {{std::string(300, 'W'), "TYPE1 : F(X)", longest}});
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440), QSize(180, 240)}) {
    SCOPED_TRACE(size.width());
    Show(screen_, size);
    Run([&, this] {
      EXPECT_EQ(dlg_->size(), size);
      ExpectRoomForAll(*dlg_);
      EXPECT_GE(List().viewport()->height(), 4 * List().sizeHintForRow(0));
      Tap(u"Cancel");
    });
  }
}

TEST_F(MacroListDlgTest, TheLongestFormulaIsSeenWhole) {
  // A text of ordinary width: digits and operators.
  std::string formula = "x";
  while (formula.size() < 148) formula += "+1.5";
  StoreMacros(store_, {{"f", "TYPE1 : F(X)", formula}});
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440)}) {
    Show(screen_, size);
    Run([&, this] {
      EXPECT_EQ(dlg_->findChild<QPlainTextEdit*>()->verticalScrollBar()->maximum(), 0);
      Tap(u"Cancel");
    });
  }
}

}  // namespace
}  // namespace kav::test::macro_list_dlg_test
