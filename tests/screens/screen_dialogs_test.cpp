// The scientific screen with the dialogs that the program gives it: from a key to what comes back.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "app/frame_window.h"
#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "settings/keys.h"
#include "store/user_settings_store.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"

namespace kav::test::screen_dialogs_test {
namespace {

/// A frame over a settings file, as the program's own is.
class FileFrame final : public Frame {
 public:
  SettingsStore& Store() override { return store; }
  const ScreenDialogs& Dialogs() const override { return dialogs; }
  std::vector<ScreenChoice> ScreensBeside(ScreenMode) const override { return {}; }
  void SaveStore() override { ++saves; }
  void ExportSettings(QWidget*) override {}
  void ImportSettings(QWidget*) override {}
  void ChangeMode(ScreenMode) override {}
  void Exit() override {}

  TemporaryFolder folder;
  std::string path = folder.File("settings.toml");
  UserSettingsStore store{path};
  ScreenDialogs dialogs = AllDialogs(store);
  int saves = 0;
};

void PressButton(QWidget& dialog, std::u16string_view caption) {
  QAbstractButton* button = FindKey(dialog, caption);
  ASSERT_NE(button, nullptr) << ToQt(caption).toStdString();
  Click(*button);
}

void ClickRow(QDialog& dialog, int row) {
  auto* view = dialog.findChild<QAbstractItemView*>();
  ASSERT_NE(view, nullptr);
  const QModelIndex index = view->model()->index(row, 0);
  ASSERT_TRUE(index.isValid()) << "row " << row;
  view->scrollTo(index);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

Texts Rows(const QDialog& dialog) {
  const auto* view = dialog.findChild<QAbstractItemView*>();
  Texts rows;
  for (int row = 0; row < view->model()->rowCount(); ++row) {
    rows.push_back(view->model()->index(row, 0).data().toString().toStdU16String());
  }
  return rows;
}

class ScreenDialogsTest : public testing::Test {
 protected:
  void SetUp() override {
    dlg_ = MakeScientificScreen(frame_);
    Show(*dlg_, {480, 640});
  }
  void TearDown() override { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }

  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  void Evaluate(const QString& line) {
    Expression(*dlg_).clear();
    QTest::keyClicks(&Expression(*dlg_), line + "=");
  }
  void ChooseMemory(std::u16string_view item) {
    Tap(u"M/C");
    Choose(item);
  }
  void ChooseBase(std::u16string_view now, std::u16string_view base) {
    Tap(now);
    Choose(base);
  }
  /// The next dialog that opens.
  static void InDialog(std::function<void(QDialog&)> use) {
    BoxWatch::Instance().ExpectDialog(std::move(use));
  }
  std::u16string Line() { return LineOf(*dlg_); }
  std::u16string Answer() { return ResultOf(*dlg_); }

  FileFrame frame_;
  std::unique_ptr<QWidget> dlg_;
};

TEST_F(ScreenDialogsTest, AnAnswerIsStoredWithoutItsSeparatorsAndIsOnTheDiskAtOnce) {
  Evaluate("1234567.25+0");
  ASSERT_EQ(Answer(), u"1,234,567.25");
  InDialog([&](QDialog& dialog) {
    ClickRow(dialog, 2);
    PressButton(dialog, u"Store");
    EXPECT_EQ(Rows(dialog)[2], u"Mem03 = 1234567.25");
    const UserSettingsStore another(frame_.path);
    EXPECT_EQ(another.Get(NumberedKey{"MemoryVar", "Var2", ""}), "1234567.25");
    PressButton(dialog, u"Close");
  });
  ChooseMemory(u"Store MemVar");
  EXPECT_EQ(frame_.saves, 2) << "one for the answer and one after the dialog";
}

TEST_F(ScreenDialogsTest, AnAnswerInHexadecimalIsStoredInDecimal) {
  ChooseBase(u"DEC", u"Hexadecimal");
  Evaluate("FF");
  ASSERT_EQ(Answer(), u"FF");
  InDialog([](QDialog& dialog) {
    ClickRow(dialog, 0);
    PressButton(dialog, u"Store");
    EXPECT_EQ(Rows(dialog)[0], u"Mem01 = 255");
    PressButton(dialog, u"Close");
  });
  ChooseMemory(u"Store MemVar");
}

TEST_F(ScreenDialogsTest, AVariableIsRecalledInTheBaseOfTheScreen) {
  frame_.store.Set(NumberedKey{"MemoryVar", "Var4", ""}, "255");
  const auto recall = [] {
    InDialog([](QDialog& dialog) {
      ClickRow(dialog, 4);
      PressButton(dialog, u"Recall");
    });
  };
  PutLine(*dlg_, u"1+[9]");
  recall();
  ChooseMemory(u"ReCall MemVar");
  EXPECT_EQ(Line(), u"1+255|");
  ChooseBase(u"DEC", u"Hexadecimal");
  PutLine(*dlg_, u"|");
  recall();
  ChooseMemory(u"ReCall MemVar");
  EXPECT_EQ(Line(), u"FF|");
}

TEST_F(ScreenDialogsTest, ClosingTheVariablesChangesNothing) {
  PutLine(*dlg_, u"1+[9]");
  InDialog([](QDialog& dialog) { PressButton(dialog, u"Close"); });
  ChooseMemory(u"ReCall MemVar");
  EXPECT_EQ(Line(), u"1+[9]");
}

TEST_F(ScreenDialogsTest, AConstantIsInsertedAsItStandsInTheTable) {
  PutLine(*dlg_, u"2*[9]");
  InDialog([](QDialog& dialog) {
    QTest::keyClicks(dialog.focusWidget(), "speed of light");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    PressButton(dialog, u"OK");
  });
  ChooseMemory(u"Constants");
  EXPECT_EQ(Line(), u"2*299792458|");
  ChooseBase(u"DEC", u"Hexadecimal");
  PutLine(*dlg_, u"|");
  InDialog([](QDialog& dialog) {
    QTest::keyClicks(dialog.focusWidget(), "speed of light");
    ClickRow(dialog, 0);
    PressButton(dialog, u"OK");
  });
  ChooseMemory(u"Constants");
  EXPECT_EQ(Line(), u"11DE784A|");
}

TEST_F(ScreenDialogsTest, AMacroIsMadeCalledAndEvaluated) {
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  InDialog([](QDialog& dialog) {
    PressButton(dialog, u"New");
    QTest::keyClicks(dialog.focusWidget(), "  sq  ");
    auto* type = dialog.findChild<QComboBox*>();
    ASSERT_NE(type, nullptr);
    type->setFocus();
    QTest::keyClicks(type, "TYPE1");
    auto* formula = dialog.findChild<QPlainTextEdit*>();
    ASSERT_NE(formula, nullptr);
    QTest::keyClicks(formula, "x^2");
    PressButton(dialog, u"Save");
    PressButton(dialog, u"Close");
  });
  Tap(u"Mac");
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U) << "that there is none yet";
  InDialog([](QDialog& dialog) {
    EXPECT_EQ(Rows(dialog), Texts{u"sq(X)"});
    PressButton(dialog, u"OK");
  });
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"M:sq(| )");
  QTest::keyClicks(&Expression(*dlg_), "7=");
  EXPECT_EQ(Answer(), u"49");
}

TEST_F(ScreenDialogsTest, AMacroOfAnotherProgramIsInTheListWhenItNextOpens) {
  StoreMacros(frame_.store, {{"mine", "TYPE1 : F(X)", "x+1"}});
  ASSERT_TRUE(frame_.store.Save());
  UserSettingsStore another(frame_.path);
  StoreMacros(another, {{"mine", "TYPE1 : F(X)", "x+1"}, {"theirs", "TYPE2 : F(X,Y)", "x*y"}});
  ASSERT_TRUE(another.Save());
  InDialog([](QDialog& dialog) {
    EXPECT_EQ(Rows(dialog), (Texts{u"mine(X)", u"theirs(X,Y)"}));
    ClickRow(dialog, 1);
    PressButton(dialog, u"OK");
  });
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"M:theirs(| , )");
}

TEST_F(ScreenDialogsTest, AMacroOfAnotherProgramCanBeCalledAtOnce) {
  Evaluate("1+1");
  UserSettingsStore another(frame_.path);
  StoreMacros(another, {{"theirs", "TYPE2 : F(X,Y)", "x*y"}});
  ASSERT_TRUE(another.Save());
  Evaluate("M:theirs(6,7)");
  EXPECT_EQ(Answer(), u"42");
}

TEST_F(ScreenDialogsTest, TheFirstMacroOfAnotherProgramOpensTheListAndNotTheEditor) {
  Evaluate("1+1");
  UserSettingsStore another(frame_.path);
  StoreMacros(another, {{"theirs", "TYPE1 : F(X)", "x"}});
  ASSERT_TRUE(another.Save());
  InDialog([](QDialog& dialog) {
    EXPECT_EQ(Rows(dialog), Texts{u"theirs(X)"});
    PressButton(dialog, u"Cancel");
  });
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"[1+1]") << "a cancelled list leaves the line alone";
}

TEST_F(ScreenDialogsTest, DisplaySettingsChangeTheAnswerThatIsShown) {
  Evaluate("1234.5+0");
  ASSERT_EQ(Answer(), u"1,234.5");
  const auto choose = [](const QString& caption, std::u16string_view end) {
    InDialog([=](QDialog& dialog) {
      for (auto* choice : dialog.findChildren<QRadioButton*>()) {
        if (choice->text() != caption) continue;
        QTest::mouseClick(choice, Qt::LeftButton, {}, QPoint(10, choice->height() / 2));
      }
      PressButton(dialog, end);
    });
  };
  choose("Scientific Notation", u"Cancel");
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"1,234.5");
  choose("Fixed Point", u"OK");
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"1234.5000000");
  ChooseBase(u"DEC", u"Hexadecimal");
  EXPECT_EQ(Answer(), u"4D2");
  choose("Scientific Notation", u"OK");
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"4D2") << "an integer base has no display type";
}

TEST_F(ScreenDialogsTest, EveryDialogOfTheProgramIsOffered) {
  EXPECT_EQ(Offered(MenuOf(*dlg_, u"&File")),
            (Texts{u"&About...", u"&Config...", u"Edit &Unit Convert", u"Edit &Macro",
                   u"Ex&port Settings...", u"&Import Settings...", u"E&xit"}));
  Tap(u"M/C");
  EXPECT_EQ(Offered(OpenMenu()),
            (Texts{u"Memory +", u"Memory -", u"Memory Recall", u"Memory Clear", u"-",
                   u"ReCall MemVar", u"Store MemVar", u"-", u"Constants"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  EXPECT_TRUE(FindKey(*dlg_, u"Mac")->isEnabled());
  EXPECT_TRUE(FindKey(*dlg_, u"Cnv")->isEnabled());
}

/// Chooses by the keyboard: the entry of the list that begins with `text`.
void ChooseIn(QComboBox& list, const QString& text) {
  list.setFocus();
  QTest::keyClicks(&list, text);
}

std::vector<QComboBox*> VisibleLists(const QDialog& dialog) {
  std::vector<QComboBox*> lists;
  for (auto* list : dialog.findChildren<QComboBox*>()) {
    if (list->isVisible()) lists.push_back(list);
  }
  return lists;
}

TEST_F(ScreenDialogsTest, AnAnswerIsConvertedAndComesBackIntoTheLine) {
  Evaluate("1500*2");
  ASSERT_EQ(Answer(), u"3,000");
  PutLine(*dlg_, u"1+[2]");
  InDialog([](QDialog& dialog) {
    ChooseIn(*VisibleLists(dialog).front(), "07");
    ASSERT_EQ(VisibleLists(dialog).size(), 3U);
    ChooseIn(*VisibleLists(dialog)[1], "Met");
    ChooseIn(*VisibleLists(dialog)[2], "Kilometers");
    PressButton(dialog, u"OK");
  });
  Tap(u"Cnv");
  EXPECT_EQ(Line(), u"1+3|");
  // The choice is there again, and after a restart as well.
  Evaluate("5000+0");
  PutLine(*dlg_, u"|");
  InDialog([](QDialog& dialog) { PressButton(dialog, u"OK"); });
  Tap(u"Cnv");
  EXPECT_EQ(Line(), u"5|");
  dlg_.reset();
  EXPECT_EQ(frame_.store.Get(IntegerKey{"Convert", "ClassPos", -1}), 6);
  EXPECT_EQ(frame_.store.Get(IntegerKey{"Convert", "InputTypePos", -1}), 16);
  EXPECT_EQ(frame_.store.Get(IntegerKey{"Convert", "OutputTypePos", -1}), 14);
}

TEST_F(ScreenDialogsTest, ACancelledConverterLeavesTheLineAndKeepsTheChoice) {
  PutLine(*dlg_, u"1+[2]");
  InDialog([](QDialog& dialog) {
    ChooseIn(*VisibleLists(dialog).front(), "12");
    PressButton(dialog, u"Cancel");
  });
  Tap(u"Cnv");
  EXPECT_EQ(Line(), u"1+[2]");
  dlg_.reset();
  EXPECT_EQ(frame_.store.Get(IntegerKey{"Convert", "ClassPos", -1}), 11);
}

TEST_F(ScreenDialogsTest, AUnitThatWasDefinedInTheEditorIsOfferedByTheConverter) {
  InDialog([](QDialog& dialog) {
    PressButton(dialog, u"New");
    QTest::keyClicks(dialog.focusWidget(), "inch");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), "cm");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(dialog.focusWidget(), "2.54");
    PressButton(dialog, u"Save");
    PressButton(dialog, u"Close");
  });
  ChooseFrom(*dlg_, u"&File", u"Edit &Unit Convert");
  Evaluate("10+0");
  PutLine(*dlg_, u"|");
  InDialog([](QDialog& dialog) {
    ChooseIn(*VisibleLists(dialog).front(), "15");
    PressButton(dialog, u"OK");
  });
  Tap(u"Cnv");
  EXPECT_EQ(Line(), u"25.4|");
}

}  // namespace
}  // namespace kav::test::screen_dialogs_test
