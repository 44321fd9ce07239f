// How the plotter screen looks at every size of window, and as a screen reader finds it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionFrame>
#include <cmath>

#include "screens/plotter/range_fields_view.h"
#include "screens/plotter_driver.h"
#include "screens/screen_layout.h"

namespace kav::test::plotter_layout_test {
namespace {

class PlotterLayoutTest : public PlotterScreen {
 protected:
  /// All that stands on the screen, but for the second Shift key.
  std::vector<QWidget*> Parts() {
    std::vector<QWidget*> parts{&Input(), &List(), dlg_->findChild<QMenuBar*>()};
    for (auto* label : dlg_->findChildren<QLabel*>()) parts.push_back(label);
    for (const char* name : {"X min", "X max", "Y min", "Y max"}) parts.push_back(&Field(name));
    for (auto* box : dlg_->findChildren<QCheckBox*>()) parts.push_back(box);
    for (KeyView* key : VisibleKeys(*dlg_)) parts.push_back(key);
    return parts;
  }
  void ExpectPartsApart() {
    const std::vector<QWidget*> parts = Parts();
    EXPECT_EQ(parts.size(), 3U + 4 + 4 + 2 + 44);
    for (const QWidget* a : parts) {
      EXPECT_TRUE(a->isVisible());
      EXPECT_TRUE(dlg_->rect().contains(AreaOn(*dlg_, *a)));
      for (const QWidget* b : parts) {
        EXPECT_TRUE(a == b || !AreaOn(*dlg_, *a).intersects(AreaOn(*dlg_, *b)));
      }
    }
  }
  void ExpectTextsFit() {
    ExpectEveryCaptionFits(*dlg_);
    for (const auto* label : dlg_->findChildren<QLabel*>()) {
      EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
      EXPECT_LE(label->fontMetrics().height(), label->height());
    }
    for (auto* box : dlg_->findChildren<QCheckBox*>()) {
      EXPECT_LE(box->sizeHint().width(), box->width()) << box->text().toStdString();
      EXPECT_LE(box->fontMetrics().height(), box->height());
    }
    for (const char* name : {"X min", "Y max"}) {
      EXPECT_LE(Field(name).fontMetrics().height(), Field(name).height());
    }
    EXPECT_LE(List().fontMetrics().height(), List().height());
    ExpectTwoLinesFit();
  }
  void ExpectTwoLinesFit() {
    const double margins = 2 * (Input().document()->documentMargin() + Input().frameWidth());
    EXPECT_LE(2 * QFontMetricsF(Input().font()).lineSpacing() + margins, Input().height());
  }
};

TEST_F(PlotterLayoutTest, NothingIsCutOrOverlapsAtTheSizesOfScreens) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    ResizeScreen(*dlg_, size);
    ExpectPartsApart();
    ExpectTextsFit();
    Tap(u"Shift");
    ExpectPartsApart();
    ExpectTextsFit();
    Tap(u"Shift");
  }
}

TEST_F(PlotterLayoutTest, NothingOverlapsInOddWindows) {
  for (const QSize size : kOddSizes) {
    SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
    ResizeScreen(*dlg_, size);
    ExpectPartsApart();
    ExpectEveryCaptionFits(*dlg_);
  }
}

TEST_F(PlotterLayoutTest, ALongEquationChangesNoPlace) {
  ResizeScreen(*dlg_, kScreenSizes[0]);
  const QRect place = List().geometry();
  Add("x" + QString("+1").repeated(70));
  EXPECT_EQ(List().geometry(), place);
  ExpectPartsApart();
}

TEST_F(PlotterLayoutTest, AFieldShowsSixDigitsWithSignAndPoint) {
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    QLineEdit& field = Field("X min");
    QStyleOptionFrame option;
    option.initFrom(&field);
    constexpr int kMargins = 4;  // which every field keeps free itself
    const int room =
        field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).width() -
        kMargins;
    EXPECT_LE(field.fontMetrics().horizontalAdvance("-123.456"), room) << size.width();
  }
}

TEST_F(PlotterLayoutTest, ALongNumberShowsItsHeadAndItsExponent) {
  SetText("Grapher", "X Min", "-1.23456789012e-13");
  Open();
  QLineEdit& field = Field("X min");
  EXPECT_EQ(field.text(), "-1.23456789012e-13");
  EXPECT_EQ(field.toolTip(), field.text());
  const QFontMetrics letters = field.fontMetrics();
  const int room = letters.horizontalAdvance("-123.456");
  const QString seen = HeadAndExponent(field.text(), letters, room);
  EXPECT_TRUE(seen.startsWith("-1")) << seen.toStdString();
  EXPECT_TRUE(seen.endsWith("e-13")) << seen.toStdString();
  EXPECT_LE(letters.horizontalAdvance(seen), room);
  EXPECT_EQ(HeadAndExponent("-10", letters, room), "-10");
  EXPECT_TRUE(HeadAndExponent("12345678901234", letters, room).startsWith("12345"));
  // What is painted is not what is seen while the user types.
  const QImage atRest = field.grab().toImage();
  field.setFocus();
  field.end(false);
  EXPECT_NE(field.grab().toImage(), atRest);
}

TEST_F(PlotterLayoutTest, TheInputShowsWholeLinesOnly) {
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    const double line = QFontMetricsF(Input().font()).lineSpacing();
    const double seen = Input().viewport()->height() - 2 * Input().document()->documentMargin();
    EXPECT_LT(seen - std::floor((seen + 0.5) / line) * line, 1.5) << size.width();
  }
}

TEST_F(PlotterLayoutTest, KeysStandInTheirRows) {
  const std::vector<std::vector<const char16_t*>> rows{
      {u"DEG", u"Mac", u"BS", u"DEL", u"PB", u"CLR"},
      {u"Shift", u"X-Var", u"ABS()", u"X!", u"nCr"},
      {u"SIN", u"COS", u"TAN", u"LOG", u"LN"},
      {u"SINH", u"COSH", u"TANH", u"SQRT", u"X^2"},
      {u"7", u"8", u"9", u"(...)", u"Y^X"},
      {u"4", u"5", u"6", u"*", u"/"},
      {u"1", u"2", u"3", u"+", u"-"},
      {u"0", u".", u"Exp", u"Pi", u"%"},
  };
  int above = AreaOn(*dlg_, Field("Y min")).bottom();
  for (const auto& row : rows) {
    int left = -1;
    for (const char16_t* caption : row) {
      const QAbstractButton* key = FindKey(*dlg_, caption);
      ASSERT_NE(key, nullptr) << ToQt(caption).toStdString();
      const QRect area = AreaOn(*dlg_, *key);
      EXPECT_GT(area.top(), above);
      EXPECT_GT(area.left(), left);
      left = area.right();
    }
    above = AreaOn(*dlg_, *FindKey(*dlg_, row.front())).bottom();
  }
}

TEST_F(PlotterLayoutTest, EveryPartHasAName) {
  const auto nameOf = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
  };
  EXPECT_EQ(nameOf(Input()), "Equation");
  EXPECT_EQ(nameOf(List()), "Equations");
  EXPECT_EQ(nameOf(Field("X min")), "X min");
  EXPECT_EQ(nameOf(Box(u"Line")), "Line");
  const auto saidOf = [this](std::u16string_view key) {
    return QAccessible::queryAccessibleInterface(FindKey(*dlg_, key))
        ->text(QAccessible::Description)
        .toStdString();
  };
  EXPECT_EQ(saidOf(u"A"), "add the equation to the list");
  EXPECT_EQ(saidOf(u"D"), "delete the selected equation (Alt+R)");
}

TEST_F(PlotterLayoutTest, TabGoesFromTheInputThroughListAndRangeToTheKeys) {
  Add("x");
  std::vector<QWidget*> reached;
  for (int i = 0; i < 8; ++i) {
    Key(Qt::Key_Tab);
    reached.push_back(dlg_->focusWidget());
  }
  const std::vector<QWidget*> expected{&List(),       &Field("X min"),     &Field("X max"),
                                       &Box(u"Grid"), &Field("Y min"),     &Field("Y max"),
                                       &Box(u"Line"), FindKey(*dlg_, u"A")};
  EXPECT_EQ(reached, expected);
}

}  // namespace
}  // namespace kav::test::plotter_layout_test
