// Results that are copied and dragged, words that are selected, keys that are held, the small M,
// and texts of another size.
#include "screens/widgets/result_uses.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDrag>
#include <QMimeData>
#include <QTimer>

#include "screens/matrix_driver.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/screen_driver.h"
#include "screens/statistics/one_variable_dlg.h"
#include "screens/statistics/two_variable_dlg.h"
#include "screens/widgets/app_events.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/formula_view.h"
#include "screens/widgets/line_marks.h"
#include "screens/widgets/look.h"
#include "settings/keys.h"

namespace kav::test::result_uses_test {
namespace {

std::u16string Clipboard() {
  return QGuiApplication::clipboard()->text().toStdU16String();
}

class ResultUsesTest : public ScientificScreen {
 protected:
  ResultUsesTest() { QGuiApplication::clipboard()->setText("old"); }

  void Copy(Qt::KeyboardModifiers more = {}) { Key(Qt::Key_C, Qt::ControlModifier | more); }

  QLabel* Mark() {
    for (auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->accessibleName() == "Memory") return label;
    }
    return nullptr;
  }

  /// What is dragged from `from` on when the mouse leaves the result by way of `by`.
  std::u16string Dragged(QPoint from, QPoint by) {
    QLineEdit& result = Result(*dlg_);
    std::u16string dragged = u"nothing";
    const auto look = [&] {
      const auto* drag = result.findChild<QDrag*>();
      if (drag != nullptr) dragged = drag->mimeData()->text().toStdU16String();
      QDrag::cancel();
    };
    QTest::mousePress(&result, Qt::LeftButton, {}, from);
    QTimer::singleShot(0, &result, look);
    QMouseEvent move(QEvent::MouseMove, from + by, result.mapToGlobal(from + by), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(&result, &move);
    QCoreApplication::processEvents();
    QTest::mouseRelease(&result, Qt::LeftButton, {}, from + by);
    return dragged;
  }

  AppEvents events_;
};

TEST_F(ResultUsesTest, CtrlCWithoutASelectionCopiesTheResultInPlainDigits) {
  Type("1234*1000=");
  EXPECT_EQ(Answer(), u"1,234,000");
  Key(Qt::Key_End);
  Copy();
  EXPECT_EQ(Clipboard(), u"1234000");
  // From the result and from a key, too.
  for (QWidget* from :
       {static_cast<QWidget*>(&Result(*dlg_)), static_cast<QWidget*>(FindKey(*dlg_, u"SIN"))}) {
    QGuiApplication::clipboard()->setText("old");
    from->setFocus();
    Copy();
    EXPECT_EQ(Clipboard(), u"1234000");
  }
}

TEST_F(ResultUsesTest, ASelectionIsCopiedAsItStands) {
  Type("1234*1000=");
  Copy();
  EXPECT_EQ(Clipboard(), u"1234*1000");
  Expression(*dlg_).setSelection(0, 4);
  Copy();
  EXPECT_EQ(Clipboard(), u"1234");
}

TEST_F(ResultUsesTest, CtrlShiftCCopiesTheLineWithItsResult) {
  Copy(Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), u"old") << "nothing was answered";
  Type("2*sin(30)+3!=");
  Copy(Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), u"2*sin(30)+3! = 7");
  FindKey(*dlg_, u"SIN")->setFocus();
  QGuiApplication::clipboard()->setText("old");
  Copy(Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), u"2*sin(30)+3! = 7");
}

TEST_F(ResultUsesTest, TheEditMenuCopiesThemAndAMessageIsNotCopied) {
  Type("1500*2=");
  ChooseFrom(*dlg_, u"&Edit", u"Copy R&esult");
  EXPECT_EQ(Clipboard(), u"3000");
  ChooseFrom(*dlg_, u"&Edit", u"Copy &Line and Result");
  EXPECT_EQ(Clipboard(), u"1500*2 = 3000");
  Type("1/0=");
  Key(Qt::Key_End);
  Copy();
  Copy(Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), u"1500*2 = 3000");
}

TEST_F(ResultUsesTest, ADoubleClickSelectsTheWholeNumber) {
  Type("-12.5E-3+sin(30)");
  QLineEdit& line = Expression(*dlg_);
  const QFontMetrics metrics = line.fontMetrics();
  const auto clickOn = [&](int character) {
    const QString before = line.text().left(character);
    const int x = line.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x() -
                  metrics.horizontalAdvance(line.text().mid(character)) +
                  metrics.horizontalAdvance(line.text()[character]) / 2;
    line.end(false);
    QTest::mouseDClick(&line, Qt::LeftButton, {}, QPoint(x, line.height() / 2));
    const std::u16string selected = line.selectedText().toStdU16String();
    line.end(false);
    return selected;
  };
  line.end(false);
  for (int i = 1; i < 8; ++i) EXPECT_EQ(clickOn(i), u"12.5E-3") << i;
  EXPECT_EQ(clickOn(10), u"sin");
  EXPECT_EQ(clickOn(13), u"30");
}

TEST_F(ResultUsesTest, ADoubleClickInTheResultTakesTheGroupsOfDigitsToo) {
  Type("1234567.5*2=");
  QLineEdit& result = Result(*dlg_);
  QTest::mouseDClick(&result, Qt::LeftButton, {},
                     QPoint(result.width() - result.height(), result.height() / 2));
  EXPECT_EQ(result.selectedText(), "2,469,135");
}

TEST_F(ResultUsesTest, AResultIsDraggedOutOfItsLineInPlainDigits) {
  Type("1234*1000=");
  const QLineEdit& result = Result(*dlg_);
  const QPoint text(result.width() - result.height(), result.height() / 2);
  EXPECT_EQ(Dragged(text, {0, 4 * result.height()}), u"1234000");
  EXPECT_EQ(Dragged(text, {0, -4 * result.height()}), u"1234000");
  // Within it, the mouse selects.
  EXPECT_EQ(Dragged(text, {-2 * result.height(), 0}), u"nothing");
  EXPECT_TRUE(result.hasSelectedText());
}

TEST_F(ResultUsesTest, WhatIsSelectedOfAResultIsDragged) {
  Type("1234*1000=");
  QLineEdit& result = Result(*dlg_);
  result.selectAll();
  const QPoint text(result.width() - result.height(), result.height() / 2);
  EXPECT_EQ(Dragged(text, {-2 * result.height(), 0}), u"1234000");
  result.selectAll();
  // A tap on it gives the selection up.
  Click(result);
  QTest::mouseClick(&result, Qt::LeftButton, {}, text);
  EXPECT_FALSE(result.hasSelectedText());
}

TEST_F(ResultUsesTest, HeldKeysThatDeleteGoOnUntilTheyAreLetGo) {
  for (const char16_t* caption : {u"BS", u"DEL"}) {
    Put(caption == std::u16string_view(u"BS") ? u"1234567890|" : u"|1234567890");
    auto& key = *FindKey(*dlg_, caption);
    EXPECT_EQ(key.autoRepeatDelay(), 500);
    EXPECT_EQ(key.autoRepeatInterval(), 50);
    key.setAutoRepeatDelay(1);
    key.setAutoRepeatInterval(1);
    QTest::mousePress(&key, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Expression(*dlg_).text().size() < 7; }));
    const auto left = Expression(*dlg_).text().size();
    QTest::mouseRelease(&key, Qt::LeftButton);
    EXPECT_EQ(Expression(*dlg_).text().size(), left) << "letting go deletes nothing more";
    Click(key);
    EXPECT_EQ(Expression(*dlg_).text().size(), left - 1) << "a tap still does";
  }
  EXPECT_FALSE(FindKey(*dlg_, u"7")->autoRepeat());
}

TEST_F(ResultUsesTest, AHeldKeyStopsWhereTheMouseLeavesIt) {
  Put(u"1234567890|");
  auto& key = *FindKey(*dlg_, u"BS");
  key.setAutoRepeatDelay(1);
  key.setAutoRepeatInterval(1);
  QTest::mousePress(&key, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Expression(*dlg_).text().size() < 9; }));
  QMouseEvent away(QEvent::MouseMove, QPoint(-50, -50), key.mapToGlobal(QPoint(-50, -50)),
                   Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&key, &away);
  const auto left = Expression(*dlg_).text().size();
  QTest::qWait(20);
  EXPECT_EQ(Expression(*dlg_).text().size(), left);
  QTest::mouseRelease(&key, Qt::LeftButton, {}, QPoint(-50, -50));
  EXPECT_EQ(Expression(*dlg_).text().size(), left);
}

TEST_F(ResultUsesTest, ASmallMTellsOfTheMemoryWhileItIsNotZero) {
  EXPECT_EQ(Mark(), nullptr) << "not made before it is needed";
  Type("1234=");
  Tap(u"M/C");
  Choose(u"Memory +");
  const QLabel* mark = Mark();
  ASSERT_NE(mark, nullptr);
  EXPECT_TRUE(mark->isVisible());
  EXPECT_EQ(mark->text(), "M");
  EXPECT_EQ(mark->toolTip(), "Memory: 1,234");
  EXPECT_EQ(mark->accessibleName(), "Memory");
  EXPECT_EQ(mark->accessibleDescription(), "Memory: 1,234");
  EXPECT_TRUE(Result(*dlg_).rect().contains(mark->geometry()));
  EXPECT_GE(mark->width(), mark->fontMetrics().horizontalAdvance("M"));
  EXPECT_GE(mark->height(), mark->fontMetrics().ascent());
  for (const QSize size : {QSize(240, 320), QSize(1080, 1440)}) {
    dlg_->resize(size);
    EXPECT_TRUE(Result(*dlg_).rect().contains(mark->geometry())) << size.width();
  }
  Tap(u"M/C");
  Choose(u"Memory Clear");
  EXPECT_FALSE(mark->isVisible());
}

TEST_F(ResultUsesTest, ALongResultKeepsClearOfTheM) {
  Show(*dlg_, {240, 320});
  Type("-1/3E9=");
  Tap(u"M/C");
  Choose(u"Memory +");
  const QLineEdit& result = Result(*dlg_);
  const QLabel* mark = Mark();
  const int text = result.fontMetrics().horizontalAdvance(result.text());
  EXPECT_LE(text + 2 * result.textMargins().left(), result.width() - mark->geometry().right());
}

TEST_F(ResultUsesTest, KeysAndMenusFollowTheSizeOfTexts) {
  const auto menuPixels = [this] { return dlg_->findChild<QMenuBar*>()->font().pixelSize(); };
  const QImage usual = dlg_->grab().toImage();
  const int menu = menuPixels();
  EXPECT_EQ(menu, 20);  // 0.036 of 560
  frame_.store.Set(kTextScale, 150);
  auto& screen = dynamic_cast<Screen&>(*dlg_);
  screen.LayOutAll();
  EXPECT_EQ(menuPixels(), 30);
  frame_.store.Set(kTextScale, 50);
  screen.LayOutAll();
  EXPECT_EQ(menuPixels(), 10);
  EXPECT_DOUBLE_EQ(TextShare(), 0.5);
  // A window that grew with the texts needs no larger ones of its own.
  frame_.store.Set(kWindowScale, 50);
  screen.LayOutAll();
  EXPECT_EQ(menuPixels(), menu);
  frame_.store.Set(kTextScale, 100);
  frame_.store.Set(kWindowScale, 100);
  screen.LayOutAll();
  EXPECT_EQ(dlg_->grab().toImage(), usual);
}

TEST(TextSize, EveryScreenIsAsBeforeOnceTextsHaveTheirUsualSizeAgain) {
  FakeFrame frame;
  for (const auto make : {MakeScientificScreen, MakeMatrixScreen, MakeOneVariableScreen,
                          MakeTwoVariableScreen, MakePlotterScreen}) {
    const auto dlg = make(frame);
    Show(*dlg, {360, 560});
    const QImage usual = dlg->grab().toImage();
    const auto lookAt = [&](int percent) {
      frame.store.Set(kTextScale, percent);
      dynamic_cast<Screen&>(*dlg).LayOutAll();
      return dlg->grab().toImage();
    };
    EXPECT_NE(lookAt(200), usual);
    EXPECT_EQ(lookAt(100), usual);
  }
}

class ScalingFrame final : public Frame {
 public:
  SettingsStore& Store() override { return store; }
  const ScreenDialogs& Dialogs() const override { return dialogs; }
  std::vector<ScreenChoice> ScreensBeside(ScreenMode) const override { return {}; }
  void SaveStore() override {}
  void ExportSettings(QWidget*) override {}
  void ImportSettings(QWidget*) override {}
  void ChangeMode(ScreenMode) override {}
  void Exit() override {}
  void ScaleText(TextStep step) override { steps.push_back(step); }

  MemorySettingsStore store;
  ScreenDialogs dialogs = FakeDialogs();
  std::vector<TextStep> steps;
};

TEST(TextSize, IsChangedByKeysAndByTheWheel) {
  ScalingFrame frame;
  const auto dlg = MakeScientificScreen(frame);
  Show(*dlg);
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers more = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier | more);
  };
  press(Qt::Key_Plus);
  press(Qt::Key_Equal);
  press(Qt::Key_Plus, Qt::KeypadModifier);
  press(Qt::Key_Minus);
  press(Qt::Key_Minus, Qt::KeypadModifier);
  press(Qt::Key_0);
  using enum TextStep;
  EXPECT_EQ(frame.steps, (std::vector{Larger, Larger, Larger, Smaller, Smaller, Usual}));
  EXPECT_EQ(Expression(*dlg).text(), "");
  frame.steps.clear();
  const auto turn = [&](int by, Qt::KeyboardModifiers modifiers) {
    QWheelEvent wheel(QPointF(5, 5), dlg->mapToGlobal(QPointF(5, 5)), {}, {0, by}, {}, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(dlg.get(), &wheel);
  };
  turn(120, Qt::ControlModifier);
  turn(-60, Qt::ControlModifier);
  turn(-60, Qt::ControlModifier);
  turn(120, Qt::NoModifier);
  EXPECT_EQ(frame.steps, (std::vector{Larger, Smaller}));
}

class MatrixResult : public MatrixScreen {};

TEST_F(MatrixResult, IsCopiedAsThatOfTheScientificScreen) {
  QGuiApplication::clipboard()->setText("old");
  Evaluate(u"1000*2");
  Key(Qt::Key_End);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), u"2000");
  Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), u"1000*2 = 2000");
  EXPECT_TRUE(FindKey(*dlg_, u"BS")->autoRepeat());
  EXPECT_TRUE(FindKey(*dlg_, u"DEL")->autoRepeat());
}

TEST_F(ResultUsesTest, AThirdClickTakesAll) {
  Type("1234567.5*2=");
  Key(Qt::Key_End);
  for (QLineEdit* line : {&Result(*dlg_), &Expression(*dlg_)}) {
    line->setFocus();
    const QPoint place(line->alignment().testFlag(Qt::AlignRight) ? line->width() - line->height()
                                                                  : line->height(),
                       line->height() / 2);
    QTest::mouseClick(line, Qt::LeftButton, {}, place);
    QTest::mouseDClick(line, Qt::LeftButton, {}, place);
    EXPECT_TRUE(line->hasSelectedText());
    QTest::mouseClick(line, Qt::LeftButton, {}, place);
    EXPECT_EQ(line->selectedText(), line->text());
  }
}

TEST_F(ResultUsesTest, AThirdClickTakesAllOfAFormula) {
  const AppEvents events;
  QWidget screen;
  auto* formula = new FormulaView(2);
  formula->setParent(&screen);
  formula->setGeometry(0, 0, 300, 60);
  Show(screen);
  formula->setPlainText("sin(30)+x");
  const QPoint place(formula->fontMetrics().horizontalAdvance("si") + 6, 12);
  QTest::mouseClick(formula->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(formula->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(formula->textCursor().selectedText(), "sin");
  QTest::mouseClick(formula->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(formula->textCursor().selectedText(), "sin(30)+x");
}

TEST_F(ResultUsesTest, MarksOfAFormulaTakeOtherColours) {
  FormulaView formula(2);
  formula.setPlainText("(x)");
  Wear(formula, Attire::Window);
  formula.moveCursor(QTextCursor::End);
  ASSERT_EQ(formula.extraSelections().size(), 2);
  UseColours(ColourChoice::Dark);
  EXPECT_EQ(formula.extraSelections().front().format.background().color(),
            FormatOf(LineMark::Pair, formula.palette()).background().color());
  UseColours(ColourChoice::Light);
}

}  // namespace
}  // namespace kav::test::result_uses_test
