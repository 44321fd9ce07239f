// What the graph on the screen tells of its curves: taps, "Cal" and the trace.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>

#include "screens/graph_driver.h"

namespace kav::test::graph_reading_test {
namespace {

class GraphReadingTest : public GraphScreen {
 protected:
  GraphReadingTest() { QGuiApplication::clipboard()->setText("old"); }

  /// What Ctrl+C copies while `from` has the focus.
  std::u16string CopiedFrom(QWidget& from) {
    QGuiApplication::clipboard()->setText("old");
    from.setFocus();
    Key(Qt::Key_C, Qt::ControlModifier);
    return QGuiApplication::clipboard()->text().toStdU16String();
  }
  /// What the entry of the menu that `open` opens copies.
  std::u16string Chosen(const std::function<void()>& open, std::u16string_view entry) {
    QGuiApplication::clipboard()->setText("old");
    open();
    Choose(entry);
    return QGuiApplication::clipboard()->text().toStdU16String();
  }
};

// Taps and "Cal".

TEST_F(GraphReadingTest, ATapShowsThePlaceThatWasTouched) {
  GraphInput input = LabelledGraphOf({"x", "x^2"});
  input.range = {0, 229, -10, 10};
  Open(input, [this] {
    TapPlot(Area().topLeft());
    EXPECT_EQ(X().text(), "0");
    EXPECT_EQ(Lines(), Texts{u"y = 10"});
    EXPECT_EQ(SelectedLine(), std::nullopt);
    TapPlot(Area().bottomLeft() + QPoint(100, 0));
    EXPECT_EQ(X().text(), "100");
    ASSERT_EQ(Lines().size(), 1U);
    EXPECT_NEAR(TappedY(), -10 + 20. / Area().height(), 1e-9);
  });
}

TEST_F(GraphReadingTest, ATapBesideThePlotShowsNothing) {
  Open(LabelledGraphOf({"x"}), [this] {
    for (const QPoint place : {QPoint(0, 50), QPoint(50, 1), QPoint(Plot().width() - 1, 50)}) {
      TapPlot(place);
    }
    EXPECT_EQ(X().text(), "");
    EXPECT_EQ(Lines(), Texts{});
  });
}

TEST_F(GraphReadingTest, NumbersAreShownInTheChosenFormat) {
  GraphInput input = LabelledGraphOf({"1000*x"});
  input.format = {DisplayType::FixedPoint, 2};
  input.range = {0, 229, 0, 1};
  Open(input, [this] {
    TapPlot(Area().topLeft() + QPoint(2, 0));
    EXPECT_EQ(X().text(), "2.00");
    EXPECT_EQ(Lines(), Texts{u"y = 1.00"});
    Calculate("2");
    EXPECT_EQ(Lines(), Texts{u"R:F1(X) = 2000.00"});
  });
}

TEST_F(GraphReadingTest, CalShowsTheValueOfEachCurve) {
  Open(LabelledGraphOf({"2*x", "1/x", "x^2"}), [this] {
    Calculate("1.5");
    EXPECT_EQ(X().text(), "1.5");
    EXPECT_EQ(Lines(), (Texts{u"R:F1(X) = 3", u"G:F2(X) = 0.666666666667", u"B:F3(X) = 2.25"}));
    EXPECT_EQ(SelectedLine(), 0);
  });
}

TEST_F(GraphReadingTest, CalTakesAnEmptyFieldForZeroAndTellsWhereACurveHasNoValue) {
  Open(LabelledGraphOf({"x+1", "1/x", "log(x)"}), [this] {
    TapKey(u"Cal");
    EXPECT_EQ(X().text(), "0");
    EXPECT_EQ(Lines(),
              (Texts{u"R:F1(X) = 1", u"G:F2(X) = Out of range", u"B:F3(X) = Out of range"}));
  });
}

TEST_F(GraphReadingTest, CalRefusesWhatIsNoNumberAndGoesBackToTheField) {
  Open(LabelledGraphOf({"x"}), [this] {
    Calculate("2");
    for (const char* text : {"abc", "1,5.2", "inf", "1e999", "--1"}) {
      SCOPED_TRACE(text);
      BoxWatch::Instance().Expect(QMessageBox::Ok);
      Calculate(text);
      const auto seen = BoxWatch::Instance().TakeSeen();
      ASSERT_EQ(seen.size(), 1U);
      EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
      EXPECT_NE(seen.front().text.find(u"\"X =\" takes a decimal number"), std::u16string::npos);
      EXPECT_EQ(X().text(), text);
      EXPECT_EQ(Dlg().focusWidget(), &X());
      EXPECT_EQ(X().selectedText(), text);
      EXPECT_EQ(Lines(), Texts{u"R:F1(X) = 2"});
    }
  });
}

TEST_F(GraphReadingTest, EnterInTheFieldCalculates) {
  Open(LabelledGraphOf({"x^2"}), [this] {
    X().setFocus();
    QTest::keyClicks(&X(), "-3");
    Key(Qt::Key_Return);
    EXPECT_EQ(Lines(), Texts{u"R:F1(X) = 9"});
    EXPECT_TRUE(Dlg().isVisible());
  });
}

TEST_F(GraphReadingTest, TheLineOfTheChosenCurveIsSelected) {
  Open(LabelledGraphOf({"x", "2*x", "3*x"}), [this] {
    Selector().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(SelectedLine(), std::nullopt);
    Calculate("1");
    EXPECT_EQ(SelectedLine(), 1);
    Selector().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(SelectedLine(), 2);
  });
}

TEST_F(GraphReadingTest, AnotherCurveLeavesWhatIsBeingTyped) {
  Open(LabelledGraphOf({"x", "2*x"}), [this] {
    Calculate("1");
    X().setText("12");
    Selector().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(X().text(), "12");
  });
}

// Trace.

TEST_F(GraphReadingTest, ATapWhileTracingCalculatesAtItsColumn) {
  GraphInput input = LabelledGraphOf({"x", "2*x"});
  input.range = {0, 229, -10, 10};
  Open(input, [this] {
    TapKey(u"Trace");
    TapPlot(Area().topLeft() + QPoint(100, 30));
    EXPECT_EQ(X().text(), "100");
    EXPECT_EQ(Lines(), (Texts{u"R:F1(X) = 100", u"G:F2(X) = 200"}));
    EXPECT_EQ(SelectedLine(), 0);
  });
}

TEST_F(GraphReadingTest, ADragWhileTracingMovesTheMarkerAndDoesNotZoom) {
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229, 0, 229};
  Open(input, [this] {
    TapKey(u"Trace");
    const QPoint from = Area().topLeft() + QPoint(20, 20);
    QTest::mousePress(&Plot(), Qt::LeftButton, {}, from);
    EXPECT_EQ(X().text(), "20");
    QTest::mouseMove(&Plot(), from + QPoint(60, 50));
    EXPECT_EQ(X().text(), "80");
    QTest::mouseMove(&Plot(), {1000, 50});
    EXPECT_EQ(X().text(), "229");
    QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, {1000, 50});
    EXPECT_EQ(Lines(), Texts{u"R:F1(X) = 229"});
    EXPECT_FALSE(CanUndo());
  });
}

TEST_F(GraphReadingTest, TheMarkerIsSeenWhileTracing) {
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229, 0, 229};
  Open(input, [this] {
    ShowResults();
    const QImage plain = Picture();
    TapKey(u"Trace");
    EXPECT_EQ(Picture(), plain);
    const QPoint place = Area().topLeft() + QPoint(100, 5);
    TapPlot(place);
    const QImage traced = Picture();
    EXPECT_NE(traced.pixel(place), plain.pixel(place));
    EXPECT_NE(traced.pixel(place + QPoint(0, 60)), plain.pixel(place + QPoint(0, 60)));
    EXPECT_EQ(traced.pixel(place + QPoint(20, 0)), plain.pixel(place + QPoint(20, 0)));
    TapKey(u"Trace");
    EXPECT_EQ(Picture(), plain);
  });
}

TEST_F(GraphReadingTest, ArrowKeysStepTheMarkerWhileTracing) {
  GraphInput input = LabelledGraphOf({"x", "2*x"});
  input.range = {0, 229, -10, 10};
  Open(input, [this] {
    TapKey(u"Trace");
    TapPlot(Area().topLeft() + QPoint(100, 30));
    Plot().setFocus();
    Key(Qt::Key_Right);
    EXPECT_EQ(X().text(), "101");
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_EQ(Lines(), (Texts{u"R:F1(X) = 99", u"G:F2(X) = 198"}));
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(X().text(), "109");
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(X().text(), "229");
    EXPECT_FALSE(CanUndo());
  });
}

TEST_F(GraphReadingTest, TheKeyboardAloneBeginsATrace) {
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229, -10, 10};
  Open(input, [this] {
    Trace().setFocus();
    Key(Qt::Key_Space);
    Plot().setFocus();
    Key(Qt::Key_Right);
    EXPECT_EQ(X().text(), "115");
  });
}

TEST_F(GraphReadingTest, UpAndDownGoFromCurveToCurveWhileTracing) {
  Open(LabelledGraphOf({"x", "2*x", "3*x"}), [this] {
    TapKey(u"Trace");
    TapPlot(Area().center());
    Plot().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(Selector().currentIndex(), 1);
    EXPECT_EQ(SelectedLine(), 1);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Selector().currentIndex(), 2);
    for (int i = 0; i < 5; ++i) Key(Qt::Key_Up);
    EXPECT_EQ(SelectedLine(), 0);
  });
}

// Copies.

TEST_F(GraphReadingTest, CtrlCCopiesWhatIsShownFromWhereverTheKeyboardIs) {
  Open(LabelledGraphOf({"1000*x", "x^2"}), [this] {
    EXPECT_EQ(CopiedFrom(Plot()), u"old") << "nothing is shown yet";
    Calculate("1234");
    for (QWidget* from : {static_cast<QWidget*>(&Plot()), static_cast<QWidget*>(&Results()),
                          static_cast<QWidget*>(&Selector()), static_cast<QWidget*>(&Trace()),
                          static_cast<QWidget*>(FindKey(Dlg(), u"Close"))}) {
      EXPECT_EQ(CopiedFrom(*from), u"1234\t1234000");
    }
    Results().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(CopiedFrom(Results()), u"1234\t1522756") << "of the other curve";
  });
}

TEST_F(GraphReadingTest, TheFieldCopiesWhatIsSelectedInIt) {
  Open(LabelledGraphOf({"2*x"}), [this] {
    Calculate("15");
    X().deselect();
    EXPECT_EQ(CopiedFrom(X()), u"15\t30");
    X().setSelection(0, 1);
    EXPECT_EQ(CopiedFrom(X()), u"1");
  });
}

TEST_F(GraphReadingTest, ATapIsCopiedAsItIsShown) {
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229000, -10000, 10000};
  Open(input, [this] {
    TapPlot(Area().topLeft() + QPoint(100, 0));
    EXPECT_EQ(X().text(), "100,000");
    EXPECT_EQ(CopiedFrom(Plot()), u"100000\t10000");
  });
}

TEST_F(GraphReadingTest, TheMenusOfPlotAndResultsCopyBothNumbersOrOne) {
  Open(LabelledGraphOf({"1000*x", "1/x"}), [this] {
    Calculate("2");
    for (QWidget* shown : {&Plot(), static_cast<QWidget*>(&Results())}) {
      const auto open = [shown] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5},
                                shown->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(shown, &event);
      };
      EXPECT_EQ(Chosen(open, u"&Copy x and y"), u"2\t2000");
      EXPECT_EQ(Chosen(open, u"Copy &x"), u"2");
      EXPECT_EQ(Chosen(open, u"Copy &y"), u"2000");
    }
  });
}

TEST_F(GraphReadingTest, ScreenReadersOfferTheCopiesToo) {
  Open(LabelledGraphOf({"1000*x", "1/x"}), [this] {
    Calculate("0");
    auto* actions = QAccessible::queryAccessibleInterface(&Plot())->actionInterface();
    ASSERT_NE(actions, nullptr);
    const QString menu = QAccessibleActionInterface::showMenuAction();
    EXPECT_EQ(actions->actionNames().count(menu), 1);
    EXPECT_EQ(Chosen([&] { actions->doAction(menu); }, u"Copy &y"), u"0");
    EXPECT_EQ(Results().accessibleDescription(), "Ctrl+C copies x and the selected value");
    Selector().setCurrentIndex(1);
    EXPECT_EQ(CopiedFrom(Plot()), u"old") << "the other curve has no value there";
  });
}

}  // namespace
}  // namespace kav::test::graph_reading_test
