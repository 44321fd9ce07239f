// The graph beside the plotter's keys in a wide window, and what else is done with its curves.
#include "screens/plotter/graph_side_view.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>

#include "screens/plotter/graph_area_view.h"
#include "screens/plotter_driver.h"

namespace kav::test::graph_side_test {
namespace {

constexpr QSize kWide(1280, 720);

class GraphSideTest : public PlotterScreen {
 protected:
  void Widen() {
    dlg_->resize(kWide);
    ASSERT_TRUE(QTest::qWaitFor([this] { return SideOrNone() != nullptr; }));
    Follow();
  }
  void Follow() { QCoreApplication::sendPostedEvents(); }
  /// These classes have no meta-objects of their own.
  template <class Part>
  static Part* PartOf(const QWidget& whole) {
    for (auto* part : whole.findChildren<QWidget*>()) {
      if (auto* found = dynamic_cast<Part*>(part)) return found;
    }
    return nullptr;
  }
  GraphSideView* SideOrNone() { return PartOf<GraphSideView>(*dlg_); }
  GraphSideView& Side() { return *SideOrNone(); }
  GraphAreaView& Area() { return *PartOf<GraphAreaView>(Side()); }
  /// The curves and the bounds that are drawn, as a screen reader says them.
  std::string Drawn() {
    Follow();
    return Area().accessibleDescription().toStdString();
  }
  Texts Lines() {
    Follow();
    Texts lines;
    auto* list = Side().findChild<QListWidget*>();
    for (int i = 0; i < list->count(); ++i) lines.push_back(list->item(i)->text().toStdU16String());
    return lines;
  }
  /// Plots, answering the question about what is typed.
  Texts PlottedAfter(QMessageBox::StandardButton answer) {
    ExpectBox(answer);
    Texts labels;
    BoxWatch::Instance().ExpectDialog([&labels](QDialog& graph) {
      const auto* curves = graph.findChild<QComboBox*>();
      for (int i = 0; i < curves->count(); ++i) {
        labels.push_back(curves->itemText(i).toStdU16String());
      }
      graph.reject();
    });
    Tap(u"Plot");
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
    return labels;
  }
  QCheckBox& CurveBox(const QString& name) {
    for (auto* box : Side().findChildren<QCheckBox*>()) {
      if (box->accessibleName() == name || box->text() == name) return *box;
    }
    ADD_FAILURE() << "no box " << name.toStdString();
    return *Side().findChild<QCheckBox*>();
  }
};

TEST_F(GraphSideTest, OnlyAWideWindowHasIt) {
  Follow();
  EXPECT_EQ(SideOrNone(), nullptr);
  Widen();
  EXPECT_TRUE(Side().isVisible());
  EXPECT_TRUE(InputHasFocus());
  dlg_->resize(360, 560);
  EXPECT_FALSE(Side().isVisible());
  dlg_->resize(kWide);
  EXPECT_TRUE(Side().isVisible());
}

TEST_F(GraphSideTest, ItFollowsWhatIsTyped) {
  Widen();
  EXPECT_EQ(Drawn(), "x min=-10; x max=10; y min=-10; y max=10");
  EXPECT_EQ(Lines(), Texts{u"Type an equation in x, such as sin(x)."});
  Type("x^2");
  EXPECT_EQ(Drawn(), "R:F1(X)=x^2; x min=-10; x max=10; y min=-10; y max=10");
  EXPECT_EQ(Lines(), Texts{});
  Tap(u"A");
  Type("2x");
  EXPECT_EQ(Drawn(), "R:F1(X)=x^2; G:F2(x)=2x; x min=-10; x max=10; y min=-10; y max=10");
  EXPECT_EQ(Lines(), Texts{u"G:F2(X): Expression error. (at every point)"});
  TypeInto("X max", "2+3");
  EXPECT_EQ(Drawn(), "R:F1(X)=x^2; G:F2(x)=2x; x min=-10; x max=5; y min=-10; y max=10");
  TypeInto("X max", "-20");
  EXPECT_EQ(Drawn(), "R:F1(X)=x^2; G:F2(x)=2x; x min=-10; x max=5; y min=-10; y max=10");
  EXPECT_EQ(Lines(),
            Texts{u"The maximum value of X should be bigger than the minimum value of X."});
}

TEST_F(GraphSideTest, CurvesAreSwitchedByTheirBoxesAndByTheMenu) {
  Add("x");
  Add("x^2");
  Widen();
  EXPECT_TRUE(CurveBox("Curve 1").isVisible());
  EXPECT_FALSE(CurveBox("Curve 3").isVisible());
  Click(CurveBox("Curve 1"));
  EXPECT_EQ(Drawn(), "G:F2(x)=x^2; x min=-10; x max=10; y min=-10; y max=10");
  EXPECT_EQ(Equations(), (Texts{u"(off) x", u"x^2"}));
  EXPECT_EQ(Stored("Grapher", "Curves Off"), 1);
  EXPECT_EQ(Plotted(), Texts{u"G:F2(x)=x^2"});
  ChooseFrom(*dlg_, u"&Edit", u"Curve &On/Off");
  EXPECT_EQ(Equations(), (Texts{u"(off) x", u"(off) x^2"}));
  ExpectRefusal(u"Plot",
                u"All curves are switched off. Switch one on in the menu Edit, or press F8.");
  Key(Qt::Key_F8);
  Follow();
  EXPECT_TRUE(CurveBox("Curve 2").isChecked());
  EXPECT_FALSE(CurveBox("Curve 1").isChecked());
}

TEST_F(GraphSideTest, TheSelectedEquationIsReplaced) {
  Add("x");
  Add("x^2");
  ChooseEquation(0);
  Type("+1");
  Key(Qt::Key_F2);
  EXPECT_EQ(Equations(), (Texts{u"x+1", u"x^2"}));
  EXPECT_EQ(StoredText("Grapher", "Fun0"), "x+1");
  EXPECT_EQ(Text(), u"");
  Type("x^2");
  ExpectBox();
  ChooseFrom(*dlg_, u"&Edit", u"Replace &Equation");
  ExpectSeen(u"x^2 is added already.");
}

TEST_F(GraphSideTest, AZoomedRangeStaysWhileAnEquationIsTypedAndCanBeTaken) {
  Add("x");
  Widen();
  Area().setFocus();
  Key(Qt::Key_Plus);
  EXPECT_EQ(Drawn(), "R:F1(X)=x; x min=-6; x max=6; y min=-6; y max=6");
  Type("x^2");
  EXPECT_TRUE(InputHasFocus());
  EXPECT_EQ(Drawn(), "R:F1(X)=x; G:F2(x)=x^2; x min=-6; x max=6; y min=-6; y max=6");
  EXPECT_EQ(Range(), "-10 10 -10 10");
  Click(*Side().findChild<QPushButton*>());
  EXPECT_EQ(Range(), "-6 6 -6 6");
  TypeInto("X max", "8");
  EXPECT_EQ(Drawn(), "R:F1(X)=x; G:F2(x)=x^2; x min=-6; x max=8; y min=-6; y max=6");
}

TEST_F(GraphSideTest, ATapShowsThePointAndTracingTheValues) {
  Add("2*x");
  Widen();
  const QPoint middle = Area().rect().center();
  QTest::mouseClick(&Area(), Qt::LeftButton, {}, middle);
  ASSERT_EQ(Lines().size(), 2U);
  EXPECT_TRUE(Lines()[0].starts_with(u"x = "));
  EXPECT_TRUE(Lines()[1].starts_with(u"y = "));
  CurveBox("Trace").setChecked(true);
  QTest::mouseClick(&Area(), Qt::LeftButton, {}, middle);
  ASSERT_EQ(Lines().size(), 2U);
  EXPECT_TRUE(Lines()[1].starts_with(u"R:F1(X) = "));
}

TEST_F(GraphSideTest, ATypedEquationIsNeverPlottedWithoutInSilence) {
  Add("x");
  Type("x^2");
  ExpectBox(QMessageBox::Cancel);
  Tap(u"Plot");
  ExpectSeen(u"Add the typed equation x^2 to the list first?", QMessageBox::Question);
  EXPECT_TRUE(InputHasFocus());
  const Texts without = PlottedAfter(QMessageBox::No);
  EXPECT_EQ(without, Texts{u"R:F1(X)=x"});
  Key(Qt::Key_Home);
  Type("3+");
  EXPECT_EQ(PlottedAfter(QMessageBox::Yes), (Texts{u"R:F1(X)=x", u"G:F2(x)=3+x^2"}));
  EXPECT_EQ(Equations(), (Texts{u"x", u"3+x^2"}));
}

TEST_F(GraphSideTest, TheGraphSaysWhyACurveIsEmpty) {
  Add("2x");
  Texts lines;
  BoxWatch::Instance().ExpectDialog([&lines](QDialog& graph) {
    const auto* list = graph.findChild<QListWidget*>();
    for (int i = 0; i < list->count(); ++i) lines.push_back(list->item(i)->text().toStdU16String());
    EXPECT_TRUE(list->isVisible());
    graph.reject();
  });
  Tap(u"Plot");
  EXPECT_EQ(lines, Texts{u"R:F1(X): Expression error. (at every point)"});
}

}  // namespace
}  // namespace kav::test::graph_side_test
