// The graph on the screen: what its controls, its menu, its keys and taps do.
#include "screens/plotter/graph_view.h"

#include <gtest/gtest.h>

#include <QWheelEvent>
#include <cmath>
#include <limits>

#include "screens/graph_driver.h"

namespace kav::test {
namespace {

using GraphViewTest = GraphScreen;

constexpr PlotRange kWhole{-10, 10, -10, 10};

TEST_F(GraphViewTest, BeginsWithAllCurvesAndNothingTraced) {
  Open(LabelledGraphOf({"x", "1/x", "x^2"}), [this] {
    EXPECT_EQ(Dlg().windowTitle(), "Graph");
    EXPECT_EQ(Dlg().size(), QSize(240, 320));
    ASSERT_EQ(Selector().count(), 3);
    EXPECT_EQ(Selector().itemText(0), "R:F1(X)=x");
    EXPECT_EQ(Selector().itemText(1), "G:F2(x)=1/x");
    EXPECT_EQ(Selector().itemText(2), "B:F3(X)=x^2");
    EXPECT_EQ(X().text(), "");
    EXPECT_EQ(Lines(), Texts{});
    EXPECT_FALSE(Trace().isChecked());
    EXPECT_TRUE(Plot().hasFocus());
  });
}

TEST_F(GraphViewTest, TheMenuOffersEveryChangeWithItsKey) {
  Open(LabelledGraphOf({"x"}), [this] {
    const QMenu* menu = MenuOf(Dlg(), u"&Graph");
    EXPECT_EQ(Offered(menu),
              (Texts{u"Move &Left", u"Move &Right", u"Move &Up", u"Move &Down", u"Zoom &In",
                     u"Zoom &Out", u"Re&set", u"U&ndo", u"-", u"&Graph Options"}));
    for (const QAction* action : menu->actions()) {
      EXPECT_NE(action->isSeparator(), !action->shortcut().isEmpty());
    }
  });
}

TEST_F(GraphViewTest, TheGraphIsClosedByItsButtonAndByEsc) {
  Open(LabelledGraphOf({"x"}), [this] {
    TapKey(u"Close");
    EXPECT_FALSE(Dlg().isVisible());
  });
  Open(LabelledGraphOf({"x"}), [this] {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Dlg().isVisible());
  });
}

// Range changes.

struct ChangeRow {
  const char16_t* entry;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  PlotRange range;  ///< of -10 to 10
};

const ChangeRow kChanges[] = {
    {u"Zoom &In", Qt::Key_Plus, {}, {-6, 6, -6, 6}},
    {u"Zoom &Out", Qt::Key_Minus, {}, {-14, 14, -14, 14}},
    {u"Move &Left", Qt::Key_Left, Qt::ControlModifier, {-14, 6, -10, 10}},
    {u"Move &Right", Qt::Key_Right, Qt::ControlModifier, {-6, 14, -10, 10}},
    {u"Move &Up", Qt::Key_Up, Qt::ControlModifier, {-10, 10, -6, 14}},
    {u"Move &Down", Qt::Key_Down, Qt::ControlModifier, {-10, 10, -14, 6}},
};

TEST_F(GraphViewTest, EachChangeOfTheMenuIsMadeAndUndone) {
  for (const ChangeRow& row : kChanges) {
    Open(LabelledGraphOf({"x"}), [&, this] {
      SCOPED_TRACE(ToQt(row.entry).toStdString());
      ExpectRange(kWhole);
      ChooseFromMenu(row.entry);
      ExpectRange(row.range);
      ChooseFromMenu(u"U&ndo");
      ExpectRange(kWhole);
    });
  }
}

TEST_F(GraphViewTest, EachChangeHasAKeyThatWorksWhereverTheFocusIs) {
  for (const ChangeRow& row : kChanges) {
    Open(LabelledGraphOf({"x", "x"}), [&, this] {
      SCOPED_TRACE(ToQt(row.entry).toStdString());
      for (QWidget* focus : {&Plot(), static_cast<QWidget*>(&Selector()),
                             static_cast<QWidget*>(&Results()), static_cast<QWidget*>(&Trace())}) {
        focus->setFocus();
        Key(row.key, row.modifiers);
        ExpectRange(row.range);
        focus->setFocus();
        Key(Qt::Key_Z, Qt::ControlModifier);
        ExpectRange(kWhole);
      }
    });
  }
}

TEST_F(GraphViewTest, SignsTypedIntoTheFieldAreText) {
  Open(LabelledGraphOf({"x"}), [this] {
    X().setFocus();
    Key(Qt::Key_Minus);
    Key(Qt::Key_Plus);
    EXPECT_EQ(X().text(), "-+");
    EXPECT_FALSE(CanUndo());
  });
}

TEST_F(GraphViewTest, ZoomInAndOutDoesNotRestoreTheRange) {
  Open(LabelledGraphOf({"x"}), [this] {
    ChooseFromMenu(u"Zoom &In");
    ChooseFromMenu(u"Zoom &Out");
    ExpectRange({-8.4, 8.4, -8.4, 8.4});
    ChooseFromMenu(u"U&ndo");
    ExpectRange({-6, 6, -6, 6});
  });
}

TEST_F(GraphViewTest, ResetGoesBackToTheBeginningAndUndoReturns) {
  Open(LabelledGraphOf({"x"}), [this] {
    ChooseFromMenu(u"Zoom &In");
    ChooseFromMenu(u"Move &Up");
    const PlotRange moved{-6, 6, -3.6, 8.4};
    ExpectRange(moved);
    ChooseFromMenu(u"Re&set");
    ExpectRange(kWhole);
    ChooseFromMenu(u"U&ndo");
    ExpectRange(moved);
    ChooseFromMenu(u"U&ndo");
    ExpectRange(kWhole);
    ChooseFromMenu(u"U&ndo");
    ExpectRange(moved);
    Key(Qt::Key_0, Qt::ControlModifier);
    ExpectRange(kWhole);
  });
}

TEST_F(GraphViewTest, UndoIsOfferedOnceThereIsAChange) {
  Open(LabelledGraphOf({"x"}), [this] {
    EXPECT_FALSE(CanUndo());
    Key(Qt::Key_Z, Qt::ControlModifier);
    ExpectRange(kWhole);
    ChooseFromMenu(u"Zoom &In");
    EXPECT_TRUE(CanUndo());
  });
}

TEST_F(GraphViewTest, ArrowKeysOnThePlotMoveTheRange) {
  Open(LabelledGraphOf({"x"}), [this] {
    Key(Qt::Key_Left);
    ExpectRange({-14, 6, -10, 10});
    Plot().setFocus();
    Key(Qt::Key_Up);
    ExpectRange({-14, 6, -6, 14});
    Plot().setFocus();
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    ExpectRange(kWhole);
    Plot().setFocus();
    Key(Qt::Key_Right);
    Key(Qt::Key_Home);
    ExpectRange(kWhole);
  });
}

TEST_F(GraphViewTest, TheWheelZooms) {
  Open(LabelledGraphOf({"x"}), [this] {
    const QPointF middle = Plot().rect().center();
    const auto turn = [&](int angle) {
      QWheelEvent event(middle, Plot().mapToGlobal(middle), {}, {0, angle}, {}, {},
                        Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(&Plot(), &event);
    };
    turn(60);
    ExpectRange(kWhole);
    turn(60);
    ExpectRange({-6, 6, -6, 6});
    turn(-120);
    ExpectRange({-8.4, 8.4, -8.4, 8.4});
  });
}

TEST_F(GraphViewTest, AnOverflowingRangeIsRefusedAndKept) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {-kLargest / 2.1, kLargest / 2.1, -10, 10};
  Open(input, [this] {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    ChooseFromMenu(u"Zoom &Out");
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
    EXPECT_FALSE(CanUndo());
  });
}

// Boxes.

TEST_F(GraphViewTest, ADragZoomsToItsBoxInAnyDirection) {
  // A column of pixels for each unit.
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229, 0, 1};
  Open(input, [this] {
    const QRect area = Area();
    const QPoint a = area.topLeft() + QPoint(50, 20);
    const QPoint b = area.topLeft() + QPoint(150, 60);
    const double rows = area.height() - 1;
    const PlotRange box{50, 150, 1 - 60 / rows, 1 - 20 / rows};
    for (const auto& [from, to] : {std::pair(a, b), std::pair(b, a),
                                   std::pair(QPoint(a.x(), b.y()), QPoint(b.x(), a.y()))}) {
      Drag(from, to);
      ExpectRange(box);
      ChooseFromMenu(u"U&ndo");
      ExpectRange({0, 229, 0, 1});
    }
  });
}

TEST_F(GraphViewTest, ADragOfLessThanTenPixelsEitherWayChangesNothing) {
  Open(LabelledGraphOf({"x"}), [this] {
    const QPoint from = Area().center();
    for (const QPoint way : {QPoint(9, 50), QPoint(50, 9), QPoint(-9, -50), QPoint(9, 9)}) {
      Drag(from, from + way);
      EXPECT_EQ(Lines(), Texts{});
    }
    ExpectRange(kWhole);
    EXPECT_FALSE(CanUndo());
    Drag(from, from + QPoint(10, 10));
    EXPECT_TRUE(CanUndo());
  });
}

TEST_F(GraphViewTest, ADragThatBeginsBesideThePlotChangesNothing) {
  Open(LabelledGraphOf({"x"}), [this] {
    Drag({0, 0}, Area().center());
    Drag({Area().center().x(), Plot().height() - 1}, Area().topLeft() + QPoint(5, 5));
    ExpectRange(kWhole);
  });
}

TEST_F(GraphViewTest, TheBoxIsSeenWhileItIsDrawn) {
  Open(LabelledGraphOf({"x"}), [this] {
    const QPoint from = Area().topLeft() + QPoint(30, 30);
    const QImage before = Picture();
    QTest::mousePress(&Plot(), Qt::LeftButton, {}, from);
    EXPECT_EQ(Picture(), before);
    QTest::mouseMove(&Plot(), from + QPoint(60, 40));
    const QImage during = Picture();
    EXPECT_NE(during.pixel(from), before.pixel(from));
    EXPECT_NE(during.pixel(from + QPoint(60, 40)), before.pixel(from + QPoint(60, 40)));
    EXPECT_EQ(during.pixel(from - QPoint(5, 5)), before.pixel(from - QPoint(5, 5)));
    QTest::mouseMove(&Plot(), from + QPoint(5, 5));
    QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, from + QPoint(5, 5));
    EXPECT_EQ(Picture(), before);
  });
}

TEST_F(GraphViewTest, ABoxWithoutAWidthOrAHeightInNumbersIsRefused) {
  // Between its bounds there is no other double: every place reads as one of the two.
  constexpr double kNext = 1 + std::numeric_limits<double>::epsilon();
  struct Row {
    PlotRange range;
    const char16_t* message;
  };
  const Row rows[] = {{{1, kNext, -10, 10}, u"Can not draw graph(X min = X max)"},
                      {{-10, 10, 1, kNext}, u"Can not draw graph(Y min = Y max)"},
                      {{1, kNext, 1, kNext}, u"Can not draw graph(X min = X max)"}};
  for (const Row& row : rows) {
    GraphInput input = LabelledGraphOf({"x"});
    input.range = row.range;
    Open(input, [&, this] {
      const QPoint corner = Area().bottomLeft();
      ExpectStop(row.message, [&] { Drag(corner + QPoint(20, -20), corner + QPoint(5, -5)); });
      EXPECT_FALSE(CanUndo());
    });
  }
}

// Taps and "Cal".

TEST_F(GraphViewTest, ATapShowsThePlaceThatWasTouched) {
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

TEST_F(GraphViewTest, ATapBesideThePlotShowsNothing) {
  Open(LabelledGraphOf({"x"}), [this] {
    for (const QPoint place : {QPoint(0, 50), QPoint(50, 1), QPoint(Plot().width() - 1, 50)}) {
      TapPlot(place);
    }
    EXPECT_EQ(X().text(), "");
    EXPECT_EQ(Lines(), Texts{});
  });
}

TEST_F(GraphViewTest, NumbersAreShownInTheChosenFormat) {
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

TEST_F(GraphViewTest, CalShowsTheValueOfEachCurve) {
  Open(LabelledGraphOf({"2*x", "1/x", "x^2"}), [this] {
    Calculate("1.5");
    EXPECT_EQ(X().text(), "1.5");
    EXPECT_EQ(Lines(), (Texts{u"R:F1(X) = 3", u"G:F2(X) = 0.666666666667", u"B:F3(X) = 2.25"}));
    EXPECT_EQ(SelectedLine(), 0);
  });
}

TEST_F(GraphViewTest, CalTakesAnEmptyFieldForZeroAndTellsWhereACurveHasNoValue) {
  Open(LabelledGraphOf({"x+1", "1/x", "log(x)"}), [this] {
    TapKey(u"Cal");
    EXPECT_EQ(X().text(), "0");
    EXPECT_EQ(Lines(),
              (Texts{u"R:F1(X) = 1", u"G:F2(X) = Out of range", u"B:F3(X) = Out of range"}));
  });
}

TEST_F(GraphViewTest, CalRefusesWhatIsNoNumberAndGoesBackToTheField) {
  Open(LabelledGraphOf({"x"}), [this] {
    Calculate("2");
    for (const char* text : {"abc", "1,5", "inf", "1e999", "--1"}) {
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

TEST_F(GraphViewTest, EnterInTheFieldCalculates) {
  Open(LabelledGraphOf({"x^2"}), [this] {
    X().setFocus();
    QTest::keyClicks(&X(), "-3");
    Key(Qt::Key_Return);
    EXPECT_EQ(Lines(), Texts{u"R:F1(X) = 9"});
    EXPECT_TRUE(Dlg().isVisible());
  });
}

TEST_F(GraphViewTest, TheLineOfTheChosenCurveIsSelected) {
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

TEST_F(GraphViewTest, AnotherCurveLeavesWhatIsBeingTyped) {
  Open(LabelledGraphOf({"x", "2*x"}), [this] {
    Calculate("1");
    X().setText("12");
    Selector().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(X().text(), "12");
  });
}

// Trace.

TEST_F(GraphViewTest, ATapWhileTracingCalculatesAtItsColumn) {
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

TEST_F(GraphViewTest, ADragWhileTracingMovesTheMarkerAndDoesNotZoom) {
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

TEST_F(GraphViewTest, TheMarkerIsSeenWhileTracing) {
  GraphInput input = LabelledGraphOf({"x"});
  input.range = {0, 229, 0, 229};
  Open(input, [this] {
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

TEST_F(GraphViewTest, ArrowKeysStepTheMarkerWhileTracing) {
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

TEST_F(GraphViewTest, TheKeyboardAloneBeginsATrace) {
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

TEST_F(GraphViewTest, UpAndDownGoFromCurveToCurveWhileTracing) {
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

// Options.

TEST_F(GraphViewTest, TheOptionsDialogChangesRangeAndLook) {
  GraphInput input = LabelledGraphOf({"x"});
  input.options = {true, true, false};
  Open(input, [this] {
    const QImage before = Picture();
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Plotter Options");
      EXPECT_EQ(LineNamed(dialog, "X min").text(), "-10");
      LineNamed(dialog, "X min").setText("0");
      LineNamed(dialog, "Y max").setText("30");
      Click(*FindKey(dialog, u"OK"));
    });
    ChooseFromMenu(u"&Graph Options");
    ExpectRange({0, 10, -10, 30});
    EXPECT_NE(Picture(), before);
    ChooseFromMenu(u"U&ndo");
    ExpectRange(kWhole);
  });
}

TEST_F(GraphViewTest, CancelledOptionsChangeNothing) {
  Open(LabelledGraphOf({"x"}), [this] {
    const QImage before = Picture();
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      LineNamed(dialog, "X min").setText("0");
      Click(*FindKey(dialog, u"Cancel"));
    });
    ChooseFromMenu(u"&Graph Options");
    EXPECT_EQ(Picture(), before);
    EXPECT_FALSE(CanUndo());
  });
}

TEST_F(GraphViewTest, ACurveThatFailsEverywhereIsDrawnAsNothing) {
  Open(LabelledGraphOf({"sqrt(-1-x^2)"}), [this] {
    ChooseFromMenu(u"Zoom &In");
    Calculate("3");
    EXPECT_EQ(Lines(), Texts{u"R:F1(X) = Out of range"});
  });
}

}  // namespace
}  // namespace kav::test
