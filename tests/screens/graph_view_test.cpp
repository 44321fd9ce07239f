// The graph on the screen: its controls, menu, keys, boxes and options.
#include "screens/plotter/graph_view.h"

#include <gtest/gtest.h>

#include <QWheelEvent>
#include <cmath>
#include <limits>

#include "screens/graph_driver.h"

namespace kav::test::graph_view_test {
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
                     u"Zoom &Out", u"Re&set", u"U&ndo", u"-", u"&Graph Options", u"-", u"Roo&ts",
                     u"&Extrema", u"Interse&ctions", u"Slo&pe", u"&Area", u"-", u"Cop&y Picture"}));
    for (const QAction* action : menu->actions()) {
      EXPECT_NE(action->isSeparator(), !action->shortcut().isEmpty());
    }
  });
}

TEST_F(GraphViewTest, AFindingThatIsChosenPutsItsXIntoTheField) {
  Open(LabelledGraphOf({"x^2-4"}), [this] {
    ChooseFromMenu(u"Roo&ts");
    EXPECT_EQ(Lines(), Texts({u"Root: x = -2", u"Root: x = 2"}));
    Results().setCurrentRow(1);
    EXPECT_EQ(X().text(), "2");
    EXPECT_EQ(Lines().size(), 2U) << "the findings stay while not tracing";
    Trace().setChecked(true);
    Results().setCurrentRow(0);
    EXPECT_EQ(X().text(), "-2");
    EXPECT_EQ(Lines(), Texts({u"R:F1(X) = 0"}));
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
  PlotRange range;  ///< what it makes of -10 to 10
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
    ShowResults();
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

TEST_F(GraphViewTest, TenPixelsAreABoxAtAnySize) {
  for (const QSize size : {QSize(360, 560), QSize(1080, 1440)}) {
    Open(
        LabelledGraphOf({"x"}),
        [this] {
          const QPoint from = Area().center();
          Drag(from, from + QPoint(9, 50));
          Drag(from, from + QPoint(50, -9));
          EXPECT_FALSE(CanUndo());
          Drag(from, from + QPoint(-10, 10));
          EXPECT_TRUE(CanUndo());
          EXPECT_EQ(Lines(), Texts{});
        },
        size);
  }
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
  // There is no double between its bounds: every place reads as one of the two.
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
}  // namespace kav::test::graph_view_test
