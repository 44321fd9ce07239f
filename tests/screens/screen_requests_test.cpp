// What the screen asks of its frame: other dialogs, and what they bring back.
#include <gtest/gtest.h>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "settings/keys.h"
#include "support/stored_macros.h"
#include "support/unit_places.h"

namespace kav::test::screen_requests_test {
namespace {

class ScreenRequestsTest : public ScientificScreen {
 protected:
  /// Opens the screen again, after the frame was changed.
  void OpenAnew() {
    Open();
    dlg_->activateWindow();
  }
  void Evaluate(const QString& line) {
    Expression(*dlg_).clear();
    Type(line + "=");
  }
};

TEST_F(ScreenRequestsTest, EverythingIsOffered) {
  frame_.others = {{ScreenMode::Plotter, u"Function Plotter"},
                   {ScreenMode::Matrix, u"Matrix Calculator"}};
  OpenAnew();
  EXPECT_EQ(Offered(MenuOf(*dlg_, u"&File")),
            (Texts{u"&About...", u"&Config...", u"Edit &Unit Convert", u"Edit &Macro",
                   u"Ex&port Settings...", u"&Import Settings...", u"E&xit"}));
  EXPECT_EQ(Offered(MenuOf(*dlg_, u"&Mode")), (Texts{u"Function Plotter", u"Matrix Calculator"}));
  EXPECT_TRUE(FindKey(*dlg_, u"Mac")->isEnabled());
  EXPECT_TRUE(FindKey(*dlg_, u"Cnv")->isEnabled());
  Tap(u"M/C");
  EXPECT_EQ(Offered(OpenMenu()),
            (Texts{u"Memory +", u"Memory -", u"Memory Recall", u"Memory Clear", u"-",
                   u"ReCall MemVar", u"Store MemVar", u"-", u"Constants"}));
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(ScreenRequestsTest, TheEditMenuSaysWhatItsEntriesDo) {
  Texts tips;
  for (const QAction* action : MenuOf(*dlg_, u"&Edit")->actions()) {
    if (!action->statusTip().isEmpty()) tips.push_back(action->statusTip().toStdU16String());
  }
  EXPECT_EQ(tips,
            (Texts{u"Cut the selection and put it on the Clipboard",
                   u"Copy the selection and put it on the Clipboard", u"Insert Clipboard contents",
                   u"Show or hide the lines of all sessions, with their answers"}));
}

TEST_F(ScreenRequestsTest, AMenuHasItsPlaceOnTheScreenAtAnySize) {
  Tap(u"1 =");
  struct Row {
    QSize window;
    QRect screen;
  };
  // Of the wide windows, a column is the screen: beside the history, or in the middle without it.
  for (const Row& row : {Row{{240, 320}, {0, 0, 240, 320}}, Row{{400, 300}, {0, 0, 225, 300}},
                         Row{{310, 300}, {42, 0, 225, 300}}}) {
    dlg_->resize(row.window);
    const auto at = [&](int x, int y) {
      return dlg_->mapToGlobal(row.screen.topLeft()) +
             QPoint(x * row.screen.width() / 240, y * row.screen.height() / 320);
    };
    Tap(u"DEC");
    EXPECT_EQ(OpenMenu()->pos(), at(80, 90));
    QTest::keyClick(OpenMenu(), Qt::Key_Escape);
    Tap(u"PB");
    EXPECT_EQ(OpenMenu()->geometry().topRight() + QPoint(1, 0), at(195, 95));
    QTest::keyClick(OpenMenu(), Qt::Key_Escape);
    Tap(u"M/C");
    EXPECT_EQ(OpenMenu()->geometry().topRight() + QPoint(1, 0), at(189, 138));
    QTest::keyClick(OpenMenu(), Qt::Key_Escape);
  }
}

TEST_F(ScreenRequestsTest, TheBaseInForceIsMarked) {
  Tap(u"DEC");
  Choose(u"Octal");
  Tap(u"OCT");
  for (const QAction* action : OpenMenu()->actions()) {
    EXPECT_TRUE(action->isCheckable());
    EXPECT_EQ(action->isChecked(), action->text() == "Octal");
  }
  QTest::keyClick(OpenMenu(), Qt::Key_Escape);
}

TEST_F(ScreenRequestsTest, TheMouseHasLeftAKeyWhoseMenuIsClosed) {
  for (const char16_t* caption : {u"DEC", u"M/C"}) {
    QAbstractButton* key = FindKey(*dlg_, caption);
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), key->mapToGlobal(QPointF(1, 1)));
    QApplication::sendEvent(key, &enter);
    Click(*key);
    EXPECT_TRUE(key->underMouse());
    QTest::keyClick(OpenMenu(), Qt::Key_Escape);
    EXPECT_FALSE(key->underMouse());
  }
}

TEST_F(ScreenRequestsTest, AHistoryWithoutTextsOpensNoMenu) {
  frame_.store.Set(kCalHistoryCount, 500);
  Open();
  Tap(u"PB");
  EXPECT_EQ(OpenMenu(), nullptr);
}

TEST_F(ScreenRequestsTest, TheModeMenuAsksTheFrameForAnotherScreen) {
  frame_.others = {{ScreenMode::Plotter, u"Function Plotter"}};
  OpenAnew();
  ChooseFrom(*dlg_, u"&Mode", u"Function Plotter");
  EXPECT_EQ(frame_.modes, std::vector<ScreenMode>{ScreenMode::Plotter});
}

TEST_F(ScreenRequestsTest, MacWithoutMacrosSaysSoAndOpensTheEditor) {
  int opened = 0;
  frame_.dialogs.macroEditor = [&](QWidget*) { ++opened; };
  OpenAnew();
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  Tap(u"Mac");
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"Not exist saved macro");
  EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(dlg_->focusWidget(), &Expression(*dlg_));
}

TEST_F(ScreenRequestsTest, MacWritesTheCallOfTheMacroThatWasChosen) {
  StoreMacros(frame_.store, {{"F1", "TYPE1 : F(X)", "x^2"}, {"G", "TYPE2 : F(X,Y)", "x+y"}});
  std::optional<int> chosen = 0;
  frame_.dialogs.macroList = [&](QWidget*) { return chosen; };
  OpenAnew();
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"M:F1(| )");
  Type("3");
  Tap(u"=");
  EXPECT_EQ(Answer(), u"9");
  Put(u"[2]");
  chosen = 1;
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"M:G(2 , )|");
  chosen.reset();
  Tap(u"CLR Mac");
  EXPECT_EQ(Line(), u"|");
}

TEST_F(ScreenRequestsTest, AMacroMadeInTheEditorIsThereAtOnce) {
  frame_.dialogs.macroEditor = [this](QWidget*) {
    StoreMacros(frame_.store, {{"F1", "TYPE1 : F(X)", "x^2"}});
  };
  frame_.dialogs.macroList = [](QWidget*) { return std::optional<int>(0); };
  OpenAnew();
  ChooseFrom(*dlg_, u"&File", u"Edit &Macro");
  Tap(u"Mac");
  EXPECT_EQ(Line(), u"M:F1(| )");
}

TEST_F(ScreenRequestsTest, TheConverterGetsTheAnswerAndItsResultReplacesTheSelection) {
  ConverterInput given;
  frame_.dialogs.converter = [&](QWidget*, const ConverterInput& input) {
    given = input;
    return ConverterOutcome{u"25.4", {1, 2, 3}, 7};
  };
  OpenAnew();
  Tap(u"Cnv");
  EXPECT_EQ(given.value, u"1") << "an answer of 0 is handed over as 1";
  EXPECT_EQ(PlacesOf(given.positions), (Places{-1, -1, -1}));
  EXPECT_EQ(Line(), u"25.4|");
  Evaluate("1000*2");
  Tap(u"Cnv");
  EXPECT_EQ(given.value, u"2000") << "no thousands separators";
  EXPECT_EQ(PlacesOf(given.positions), (Places{1, 2, 3}));
  EXPECT_EQ(given.memory, 7);
  EXPECT_EQ(Line(), u"25.4|");
}

TEST_F(ScreenRequestsTest, AConverterThatIsCancelledStillLeavesItsPositionsAndTheMemory) {
  frame_.dialogs.converter = [&](QWidget*, const ConverterInput&) {
    return ConverterOutcome{std::nullopt, {4, 5, 6}, 8};
  };
  OpenAnew();
  Tap(u"1 Cnv");
  EXPECT_EQ(Line(), u"1|");
  Tap(u"CLR M/C");
  Choose(u"Memory Recall");
  EXPECT_EQ(Line(), u"8|");
  dlg_.reset();
  EXPECT_EQ(frame_.store.Get(kConverterClass), 4);
  EXPECT_EQ(frame_.store.Get(kConverterInput), 5);
  EXPECT_EQ(frame_.store.Get(kConverterOutput), 6);
}

TEST_F(ScreenRequestsTest, MemoryVariablesAreStoredAndRecalledInFloatingPoint) {
  std::u16string stored;
  frame_.dialogs.storeVariable = [&](QWidget*, const std::u16string& value) { stored = value; };
  frame_.dialogs.recallVariable = [&](QWidget*) {
    return std::optional<std::u16string>(u"1234.5");
  };
  OpenAnew();
  Evaluate("1000*2");
  EXPECT_EQ(Answer(), u"2,000");
  Tap(u"M/C");
  Choose(u"Store MemVar");
  EXPECT_EQ(stored, u"2000");
  Tap(u"CLR M/C");
  Choose(u"ReCall MemVar");
  EXPECT_EQ(Line(), u"1234.5|");
}

TEST_F(ScreenRequestsTest, ConstantsAreInsertedAsTheyStand) {
  frame_.dialogs.constants = [](QWidget*) {
    return std::optional<std::u16string>(u"6.6260755E-34");
  };
  OpenAnew();
  Tap(u"M/C");
  Choose(u"Constants");
  EXPECT_EQ(Line(), u"6.6260755E-34|");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(ScreenRequestsTest, ConfigClosedWithOkShowsTheAnswerInTheNewFormat) {
  bool isOk = false;
  frame_.dialogs.displaySettings = [&](QWidget*, DisplayPage) {
    frame_.store.Set(kDisplayType, 1);
    frame_.store.Set(kPrecision, 2);
    return isOk;
  };
  OpenAnew();
  Evaluate("3/8");
  Type("77");
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"0.375");
  isOk = true;
  ChooseFrom(*dlg_, u"&File", u"&Config...");
  EXPECT_EQ(Answer(), u"0.38");
  EXPECT_EQ(Line(), u"77|") << "what was typed meanwhile stays";
}

TEST_F(ScreenRequestsTest, AboutTellsNameAndVersion) {
  BoxWatch::Instance().Expect(QMessageBox::Ok);
  ChooseFrom(*dlg_, u"&File", u"&About...");
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(ToQt(seen[0].text).startsWith("Kav Calculator 2.5"));
}

TEST_F(ScreenRequestsTest, ExitAsksTheFrameToEnd) {
  ChooseFrom(*dlg_, u"&File", u"E&xit");
  EXPECT_EQ(frame_.exits, 1);
}

}  // namespace
}  // namespace kav::test::screen_requests_test
