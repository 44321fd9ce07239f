// The graph has room for all its parts at every size, and the keyboard reaches them.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <string>
#include <vector>

#include "screens/dialog_layout.h"
#include "screens/graph_driver.h"
#include "screens/screen_layout.h"
#include "screens/widgets/look.h"

namespace kav::test::graph_layout_test {
namespace {

class GraphLayoutTest : public GraphScreen {
 protected:
  static GraphInput ThreeCurves() { return LabelledGraphOf({"sin(x)*10", "1/x", "x^2/5-3"}); }
};

TEST_F(GraphLayoutTest, EverythingHasRoomAtEverySize) {
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440), QSize(180, 240),
                           QSize(1600, 300), QSize(241, 333)}) {
    SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
    Open(
        ThreeCurves(),
        [&, this] {
          EXPECT_EQ(Dlg().size(), PortraitArea(size).size());
          Calculate("-1.2345678");
          // The selector may cut an equation.
          for (int i = 0; i < 3; ++i) Selector().setItemText(i, "R:F1");
          ExpectRoomForAll(Dlg());
        },
        size);
  }
}

TEST_F(GraphLayoutTest, ThreeLinesOfResultsAreSeenWhole) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    Open(
        ThreeCurves(),
        [this] {
          Calculate("1.2345678901");
          ASSERT_EQ(Lines().size(), 3U);
          for (int i = 0; i < 3; ++i) {
            const QRect line = Results().visualItemRect(Results().item(i));
            EXPECT_TRUE(Results().viewport()->rect().contains(line)) << i;
            EXPECT_GE(line.width(),
                      Results().fontMetrics().horizontalAdvance(Results().item(i)->text()));
          }
        },
        size);
  }
}

TEST_F(GraphLayoutTest, ThePlotIsAsWideAsTheWindowAndTakesMostOfIt) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    Open(
        ThreeCurves(),
        [&, this] {
          const int alone = Plot().height();
          EXPECT_TRUE(Results().isHidden());
          ShowResults();
          EXPECT_TRUE(Results().isVisible());
          // The plot had all of the room of the results.
          EXPECT_GE(alone, Plot().height() + Results().height());
          EXPECT_GE(Plot().width(), size.width() * 0.97);
          EXPECT_GE(Plot().height(), size.height() * 0.55);
          const double shape = double(Plot().height()) / Plot().width();
          EXPECT_GT(shape, 0.75);
          EXPECT_LE(shape, 1.0);
        },
        size);
  }
}

TEST_F(GraphLayoutTest, TheSmallestScreenHasASampleInEachColumn) {
  Open(ThreeCurves(), [this] { EXPECT_EQ(Area().width(), 230); });
}

TEST_F(GraphLayoutTest, TheMenuBarStandsAtTheBottom) {
  for (const QSize size : kScreenSizes) {
    Open(
        ThreeCurves(),
        [&, this] {
          const auto* bar = Dlg().findChild<QMenuBar*>();
          EXPECT_EQ(AreaOn(Dlg(), *bar).bottom(), size.height() - 1);
          EXPECT_EQ(bar->width(), size.width());
          EXPECT_GE(bar->height(), bar->fontMetrics().height());
        },
        size);
  }
}

TEST_F(GraphLayoutTest, ThePictureFollowsTheSizeOfTheWindow) {
  Open(ThreeCurves(), [this] {
    const QSize before = Picture().size();
    Dlg().resize(480, 640);
    QCoreApplication::processEvents();
    EXPECT_GT(Picture().width(), 2 * before.width() - 10);
    SaveTo(Path("a.bmp"));
    EXPECT_EQ(QImage(Path("a.bmp")).size(), Plot().size());
    // The frame is at the new border.
    EXPECT_EQ(Picture().pixelColor(Area().bottomRight()), QColor(Qt::black));
  });
}

TEST_F(GraphLayoutTest, LongEquationsDoNotWidenTheGraph) {
  GraphInput input = ThreeCurves();
  input.curves[0].label = u"R:F1(X)=" + std::u16string(5000, u'x');
  Open(input, [this] {
    EXPECT_EQ(Dlg().size(), QSize(240, 320));
    EXPECT_LT(Selector().itemText(0).size(), 500);
    EXPECT_GE(X().width(), 60);
    for (int i = 0; i < 3; ++i) Selector().setItemText(i, "R:F1");
    ExpectRoomForAll(Dlg());
  });
}

TEST_F(GraphLayoutTest, TheBeginningOfTheEquationIsSeenAtEverySize) {
  const QString label = "B:F3(X)=8*sin(60*x)+cos(30*x)";
  GraphInput input = ThreeCurves();
  input.curves[0].label = label.toStdU16String();
  for (const QSize size : {QSize(240, 320), QSize(360, 560), QSize(480, 640), QSize(1080, 1440)}) {
    SCOPED_TRACE(size.width());
    Open(
        input,
        [&, this] {
          QStyleOptionComboBox option;
          option.initFrom(&Selector());
          const int room = Selector()
                               .style()
                               ->subControlRect(QStyle::CC_ComboBox, &option,
                                                QStyle::SC_ComboBoxEditField, &Selector())
                               .width();
          const QString seen = Selector().fontMetrics().elidedText(label, Qt::ElideRight, room - 1);
          EXPECT_TRUE(seen.startsWith("B:F3(X)=8*")) << seen.toStdString();
          EXPECT_EQ(Selector().toolTip(), label);
          Selector().setCurrentIndex(1);
          EXPECT_EQ(Selector().toolTip(), "G:F2(x)=1/x");
        },
        size);
  }
}

TEST_F(GraphLayoutTest, EveryPartHasAName) {
  const auto nameOf = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
  };
  Open(ThreeCurves(), [&, this] {
    EXPECT_EQ(nameOf(Plot()), "Graph");
    EXPECT_EQ(Selector().accessibleName(), "Selected equation");
    EXPECT_EQ(nameOf(X()), "X");
    EXPECT_EQ(nameOf(Results()), "Results");
    EXPECT_EQ(nameOf(Trace()), "Trace");
    EXPECT_EQ(nameOf(*FindKey(Dlg(), u"Cal")), "Cal");
  });
}

TEST_F(GraphLayoutTest, TabReachesEveryControlInItsOrder) {
  Open(ThreeCurves(), [this] {
    ShowResults();
    const std::vector<QWidget*> order{&Plot(),
                                      &Selector(),
                                      &X(),
                                      FindKey(Dlg(), u"Cal"),
                                      &Results(),
                                      &Trace(),
                                      FindKey(Dlg(), u"Save Graph"),
                                      FindKey(Dlg(), u"Close")};
    EXPECT_TRUE(Plot().hasFocus());
    for (std::size_t i = 1; i < order.size(); ++i) {
      Key(Qt::Key_Tab);
      EXPECT_EQ(Dlg().focusWidget(), order[i]) << i;
    }
    Key(Qt::Key_Tab);
    EXPECT_EQ(Dlg().focusWidget(), order[0]);
  });
}

TEST_F(GraphLayoutTest, F10LeadsToTheMenu) {
  Open(ThreeCurves(), [this] {
    Key(Qt::Key_F10);
    auto* bar = Dlg().findChild<QMenuBar*>();
    ASSERT_NE(bar->activeAction(), nullptr);
    EXPECT_EQ(bar->activeAction()->text(), "&Graph");
  });
}

TEST_F(GraphLayoutTest, TheFocusIsSeenOnThePlot) {
  Open(ThreeCurves(), [this] {
    const QImage with = Plot().grab().toImage();
    Key(Qt::Key_Tab);
    EXPECT_NE(Plot().grab().toImage(), with);
  });
}

}  // namespace
}  // namespace kav::test::graph_layout_test
