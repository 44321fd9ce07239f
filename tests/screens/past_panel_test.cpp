// The history of all sessions on the screens with a line: by mouse, by keys and by screen readers.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QListView>
#include <QScrollBar>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/matrix/matrix_dlg.h"
#include "screens/screen_driver.h"
#include "screens/widgets/past_rows_view.h"
#include "settings/keys.h"

namespace kav::test::past_panel_test {
namespace {

constexpr QSize kWide(1280, 720);

class PastPanelTest : public testing::Test {
 protected:
  PastPanelTest() { BoxWatch::Instance(); }
  ~PastPanelTest() override { EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 0U); }

  void Keep(std::string line, std::string answer, std::int32_t base = 1,
            PastOrigin origin = PastOrigin::Prompt) {
    frame_.Past().Add({0, origin, base, std::move(line), std::move(answer)});
  }
  void Open(QSize size) {
    dlg_.reset();
    dlg_ = MakeScientificScreen(frame_);
    Show(*dlg_, size);
    QTest::qWait(0);
  }
  void OpenMatrix(QSize size) {
    dlg_.reset();
    dlg_ = MakeMatrixScreen(frame_);
    Show(*dlg_, size);
    QTest::qWait(0);
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void ControlH() { Key(Qt::Key_H, Qt::ControlModifier); }

  QWidget* Panel() {
    for (auto* part : dlg_->findChildren<QWidget*>()) {
      if (part->accessibleName() == "History") return part;
    }
    return nullptr;
  }
  bool IsShown() { return Panel() != nullptr && Panel()->isVisible(); }
  QListView& List() { return *Panel()->findChild<QListView*>(); }
  QLineEdit& Search() { return *Panel()->findChild<QLineEdit*>(); }
  Texts Rows() {
    Texts rows;
    for (int row = 0; row < List().model()->rowCount(); ++row) {
      rows.push_back(List().model()->index(row, 0).data().toString().toStdU16String());
    }
    return rows;
  }
  void TapRow(int row, PastPart part) {
    const QRect place = List().visualRect(List().model()->index(row, 0));
    const int y = part == PastPart::Line ? place.top() + 3 : place.bottom() - 3;
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, QPoint(place.center().x(), y));
  }
  std::u16string Line() { return LineOf(*dlg_); }
  bool LineHasFocus() { return QApplication::focusWidget() == &Expression(*dlg_); }

  FakeFrame frame_;
  std::unique_ptr<QWidget> dlg_;
};

TEST_F(PastPanelTest, AWideWindowShowsItBesideTheScreen) {
  Keep("1+1", "2");
  Open(kWide);
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(Rows(), (Texts{u"1+1 = 2"}));
  EXPECT_TRUE(LineHasFocus()) << "who types calculates";
  EXPECT_GE(Panel()->x(), Expression(*dlg_).geometry().right());
  EXPECT_EQ(Panel()->geometry().right(), 1279) << "the whole window is used";
  for (const char16_t* caption : {u"=", u"DEG", u"CLR"}) {
    EXPECT_FALSE(FindKey(*dlg_, caption)->visibleRegion().isEmpty());
  }
}

TEST_F(PastPanelTest, ANarrowWindowShowsAndReadsNothingUnasked) {
  Keep("1+1", "2");
  for (const QSize size : {QSize(240, 320), QSize(360, 560), QSize(1080, 1440)}) {
    Open(size);
    EXPECT_EQ(Panel(), nullptr);
  }
}

TEST_F(PastPanelTest, ControlHHidesAndShowsItAndThatIsRemembered) {
  Open(kWide);
  ControlH();
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(LineHasFocus());
  EXPECT_EQ(frame_.store.Get(kHistoryShown), 0);
  EXPECT_EQ(Expression(*dlg_).geometry().center().x(), 639) << "the column is in the middle again";
  Open(kWide);
  EXPECT_FALSE(IsShown());
  ControlH();
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(Search().hasFocus());
  EXPECT_EQ(frame_.store.Get(kHistoryShown), 1);
  ControlH();
  EXPECT_FALSE(IsShown()) << "also while it has the keyboard";
}

TEST_F(PastPanelTest, InANarrowWindowItLiesOverTheKeysUntilEsc) {
  Keep("1+1", "2");
  Open({240, 320});
  ControlH();
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(FindKey(*dlg_, u"="), nullptr) << "no key is reached below it";
  EXPECT_TRUE(dlg_->rect().contains(Panel()->geometry()));
  EXPECT_GE(List().viewport()->height(), List().visualRect(List().model()->index(0, 0)).height())
      << "at least a row has room";
  Key(Qt::Key_Escape);
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(LineHasFocus());
  EXPECT_NE(FindKey(*dlg_, u"="), nullptr);
  EXPECT_EQ(frame_.store.Get(kHistoryShown), 1) << "that is about wide windows";
}

TEST_F(PastPanelTest, TheEditMenuAndTheCrossDoTheSame) {
  Open({360, 560});
  ChooseFrom(*dlg_, u"&Edit", u"&History");
  ASSERT_TRUE(IsShown());
  Click(*FindKey(*Panel(), u"×"));
  EXPECT_FALSE(IsShown());
}

TEST_F(PastPanelTest, WhatIsEvaluatedIsListedAtOnceAndFailedLinesToo) {
  Open(kWide);
  Type("1+1=");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Rows() == (Texts{u"1+1 = 2"}); }));
  Type("(1=");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Rows() == (Texts{u"(1", u"1+1 = 2"}); }));
  const auto kept = frame_.Past().Of(PastRoom::Calculator);
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0].answer, "2");
  EXPECT_EQ(kept[1].answer, "");
}

TEST_F(PastPanelTest, LinesOfOtherProgramsComeWithTheWindowsTurn) {
  Open(kWide);
  Keep("7*6", "42");
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(dlg_.get(), &activated);
  EXPECT_EQ(Rows(), (Texts{u"7*6 = 42"}));
}

TEST_F(PastPanelTest, ATapPutsTheLineOrTheAnswerIntoTheLine) {
  Keep("F+1", "10", 2);
  Keep("1+1", "2");
  Open(kWide);
  Type("3*");
  TapRow(0, PastPart::Line);
  EXPECT_EQ(Line(), u"3*1+1|");
  TapRow(1, PastPart::Answer);
  EXPECT_EQ(Line(), u"3*1+116|") << "10 in HEX is 16";
  EXPECT_TRUE(LineHasFocus());
  EXPECT_TRUE(IsShown());
}

TEST_F(PastPanelTest, ADoubleClickInsertsOnce) {
  Keep("1+1", "2");
  Open(kWide);
  TapRow(0, PastPart::Line);
  const QRect row = List().visualRect(List().model()->index(0, 0));
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, row.topLeft() + QPoint(9, 3));
  EXPECT_EQ(Line(), u"1+1|");
}

TEST_F(PastPanelTest, OverTheKeysATapClosesIt) {
  Keep("1+1", "2");
  Open({360, 560});
  ControlH();
  TapRow(0, PastPart::Line);
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(Line(), u"1+1|");
  EXPECT_TRUE(LineHasFocus());
}

TEST_F(PastPanelTest, KeysSearchMarkAndInsert) {
  for (const char* line : {"sin(30)", "1/2", "SIN(90)"}) Keep(line, "0.5");
  Open({360, 560});
  ControlH();
  Type("sin");
  EXPECT_EQ(Rows(), (Texts{u"SIN(90) = 0.5", u"sin(30) = 0.5"}));
  Key(Qt::Key_Down);
  EXPECT_TRUE(Search().hasFocus());
  Key(Qt::Key_Return);
  EXPECT_EQ(Line(), u"sin(30)|");
  ControlH();
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Line(), u"sin(30)0.5|");
  ControlH();
  Type("=");
  EXPECT_EQ(Search().text(), "=") << "what is typed there evaluates nothing";
  EXPECT_EQ(Line(), u"sin(30)0.5|");
}

TEST_F(PastPanelTest, KeysInTheListDeleteUndoAndInsert) {
  for (const char* line : {"1", "2", "3"}) Keep(line, line);
  Open(kWide);
  List().setFocus();
  Key(Qt::Key_Down);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Rows(), (Texts{u"3 = 3", u"1 = 1"}));
  EXPECT_EQ(frame_.Past().Of(PastRoom::Calculator).size(), 2U);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Rows(), (Texts{u"3 = 3", u"2 = 2", u"1 = 1"}));
  EXPECT_EQ(List().currentIndex().row(), 1);
  Key(Qt::Key_Right);
  EXPECT_EQ(Line(), u"2|");
  List().setFocus();
  Type("3");
  EXPECT_EQ(Search().text(), "3") << "typing in the list searches";
  Key(Qt::Key_Escape);
  EXPECT_TRUE(LineHasFocus());
  EXPECT_TRUE(IsShown()) << "beside the screen it stays";
}

TEST_F(PastPanelTest, TheButtonsDoWhatTheKeysDo) {
  Keep("1+1", "2");
  Keep("(1", "");
  Open(kWide);
  EXPECT_FALSE(FindKey(*Panel(), u"Answer")->isEnabled()) << "it has none";
  EXPECT_FALSE(FindKey(*Panel(), u"Undo")->isEnabled());
  Click(*FindKey(*Panel(), u"Delete"));
  EXPECT_EQ(Rows(), (Texts{u"1+1 = 2"}));
  Click(*FindKey(*Panel(), u"Answer"));
  EXPECT_EQ(Line(), u"2|");
  Click(*FindKey(*Panel(), u"Line"));
  EXPECT_EQ(Line(), u"21+1|");
  Click(*FindKey(*Panel(), u"Undo"));
  EXPECT_EQ(Rows(), (Texts{u"(1", u"1+1 = 2"}));
}

TEST_F(PastPanelTest, ClearingAsksAndNoIsTheEnterKey) {
  Keep("1+1", "2");
  Open(kWide);
  BoxWatch::Instance().Expect(QMessageBox::No);
  Click(*FindKey(*Panel(), u"Clear"));
  EXPECT_EQ(Rows().size(), 1U);
  BoxWatch::Instance().Expect(QMessageBox::Yes);
  Click(*FindKey(*Panel(), u"Clear"));
  EXPECT_EQ(Rows().size(), 0U);
  EXPECT_TRUE(frame_.Past().Of(PastRoom::Calculator).empty());
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].text, u"Delete the whole history, 1 line? This cannot be undone.");
}

TEST_F(PastPanelTest, TheSwitchKeepsNoneAndLeavesTheTwentyEntries) {
  Open(kWide);
  auto& keep = *Panel()->findChild<QCheckBox*>();
  EXPECT_TRUE(keep.isChecked());
  keep.setChecked(false);
  EXPECT_EQ(frame_.store.Get(kHistoryKept), 0);
  Expression(*dlg_).setFocus();
  Type("1+1=");
  QTest::qWait(0);
  EXPECT_EQ(Rows().size(), 0U);
  EXPECT_TRUE(frame_.Past().Of(PastRoom::Calculator).empty());
  Tap(*dlg_, u"PB");
  EXPECT_EQ(Offered(OpenMenu()), (Texts{u"1+1", u"=[D]2"}));
  Key(Qt::Key_Escape);
  keep.setChecked(true);
  Type("2+2=");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Rows() == (Texts{u"2+2 = 4"}); }));
  BoxWatch::Instance().Expect(QMessageBox::Yes);
  keep.setChecked(false);
  EXPECT_EQ(Rows().size(), 0U) << "deleted on Yes";
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
}

TEST_F(PastPanelTest, TheMatrixScreenHasItsOwnLines) {
  Keep("1+1", "2");
  Keep("[M1]*2", "Matrix 3 x 3", 1, PastOrigin::Matrix);
  OpenMatrix(kWide);
  EXPECT_FALSE(IsShown()) << "its matrices have the room until it is asked for";
  ControlH();
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(Rows(), (Texts{u"[M1]*2 = Matrix 3 x 3"}));
  EXPECT_NE(FindKey(*dlg_, u"MOpers"), nullptr) << "it stands beside them";
  Key(Qt::Key_Return);
  EXPECT_EQ(Line(), u"[M1]*2|");
  OpenMatrix({360, 560});
  ControlH();
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(FindKey(*dlg_, u"MOpers"), nullptr) << "it lies over them";
  Key(Qt::Key_Escape);
  EXPECT_NE(FindKey(*dlg_, u"MOpers"), nullptr);
  Type("2+2=");
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return frame_.Past().Of(PastRoom::Matrix).back().line == "2+2"; }));
}

TEST_F(PastPanelTest, UpLeadsThroughTheLinesOfAllSessions) {
  Keep("40+2", "42");
  Keep("[M1]", "", 1, PastOrigin::Matrix);
  Open({360, 560});
  Type("1+1=");
  Key(Qt::Key_Up);
  EXPECT_EQ(Line(), u"40+2|") << "what was just evaluated stands there already";
  EXPECT_EQ(frame_.Past().Of(PastRoom::Calculator).size(), 2U);
}

TEST_F(PastPanelTest, AWindowThatGetsWideTakesItOffTheKeys) {
  Keep("1+1", "2");
  Open({360, 560});
  ControlH();
  dlg_->resize(kWide);
  QTest::qWait(0);
  EXPECT_NE(FindKey(*dlg_, u"="), nullptr);
  EXPECT_TRUE(IsShown());
  dlg_->resize(360, 560);
  QTest::qWait(0);
  EXPECT_FALSE(IsShown());
  EXPECT_NE(FindKey(*dlg_, u"="), nullptr);
}

TEST_F(PastPanelTest, ScreenReadersFindRowsAndNames) {
  Keep("FF", "FF", 2);
  Open(kWide);
  auto* list = QAccessible::queryAccessibleInterface(&List());
  EXPECT_EQ(list->text(QAccessible::Name), "Past lines");
  EXPECT_EQ(list->role(), QAccessible::List);
  ASSERT_EQ(list->childCount(), 1);
  EXPECT_EQ(list->child(0)->text(QAccessible::Name), "FF = FF HEX");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Search())->text(QAccessible::Name),
            "Search the history");
  auto* line = QAccessible::queryAccessibleInterface(FindKey(*Panel(), u"Line"));
  EXPECT_EQ(line->text(QAccessible::Description), "Insert the line (Enter)");
  line->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Line() == u"FF|"; }));
}

TEST_F(PastPanelTest, TheScrollBarGrowsWithTheLetters) {
  Open(QSize(1080, 1440));
  ControlH();
  // A finger is as wide on a large screen: the bar takes 0.8 of a line there too.
  EXPECT_GE(List().verticalScrollBar()->sizeHint().width(), List().fontMetrics().height() * 8 / 10);
}

TEST_F(PastPanelTest, TipsShowLongTextsInFull) {
  const std::string expression = std::string(100, '1') + "<<2";
  Keep(expression, "4");
  Open(kWide);
  QString tip = List().model()->index(0, 0).data(Qt::ToolTipRole).toString();
  tip.remove("<br>");
  EXPECT_TRUE(tip.contains(QString(100, u'1') + "&lt;&lt;2")) << tip.toStdString();
  EXPECT_TRUE(tip.contains("= 4"));
  Type("1111111111+2222222222=");
  Tap(*dlg_, u"PB");
  const QAction* entry = OpenMenu()->actions().front();
  EXPECT_EQ(entry->text(), "1111111111+222222...");
  EXPECT_TRUE(OpenMenu()->toolTipsVisible());
  EXPECT_TRUE(entry->toolTip().contains("1111111111+2222222222"));
  EXPECT_EQ(entry->statusTip(), "1111111111+2222222222");
  Key(Qt::Key_Escape);
}

TEST_F(PastPanelTest, AWindowThatBecomesNarrowTakesTheKeyboardBackToTheLine) {
  Keep("1+1", "2");
  Open(kWide);
  Search().setFocus();
  dlg_->resize(360, 560);
  QTest::qWait(0);
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(LineHasFocus());
  EXPECT_EQ(dlg_->findChild<QMenuBar*>()->activeAction(), nullptr);
}

}  // namespace
}  // namespace kav::test::past_panel_test
