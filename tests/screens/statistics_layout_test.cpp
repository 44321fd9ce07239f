// The statistics screens at every size of window, and what screen readers find.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontMetrics>
#include <QMenuBar>
#include <set>

#include "screens/screen_layout.h"
#include "screens/statistics_driver.h"

namespace kav::test::statistics_layout_test {
namespace {

class StatisticsLayoutTest : public StatisticsDriver {
 protected:
  std::vector<const QWidget*> Parts() {
    std::vector<const QWidget*> parts{&Table(), &Result(*dlg_), dlg_->findChild<QMenuBar*>()};
    for (const char* name : {"X", "Y", "Count"}) {
      for (const auto* line : dlg_->findChildren<QLineEdit*>()) {
        if (line->accessibleName() == name) parts.push_back(line);
      }
    }
    for (const auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->isVisible()) parts.push_back(label);
    }
    for (const KeyView* key : VisibleKeys(*dlg_)) parts.push_back(key);
    return parts;
  }

  void ExpectNoneOverlaps() {
    for (const QWidget* a : Parts()) {
      EXPECT_TRUE(dlg_->rect().contains(AreaOn(*dlg_, *a))) << a->accessibleName().toStdString();
      for (const QWidget* b : Parts()) {
        EXPECT_TRUE(a == b || !AreaOn(*dlg_, *a).intersects(AreaOn(*dlg_, *b)));
      }
    }
  }
  void ExpectTextsFit() {
    for (const auto* label : dlg_->findChildren<QLabel*>()) {
      const QFontMetricsF text(label->font());
      EXPECT_LE(text.horizontalAdvance(label->text()), label->width())
          << label->text().toStdString();
      EXPECT_LE(text.tightBoundingRect(label->text()).height(), label->height());
    }
    const QFontMetricsF heading(Table().horizontalHeader()->font());
    EXPECT_GE(Table().horizontalHeader()->height(), heading.height());
    EXPECT_GE(Table().RowHeight(), QFontMetrics(Table().font()).height());
    for (int column = 0; column < Table().model()->columnCount(); ++column) {
      const QString text = Table().model()->headerData(column, Qt::Horizontal).toString();
      EXPECT_LT(heading.horizontalAdvance(text), Table().columnWidth(column));
    }
  }
  /// Expects that a screen has room for all its parts at every size.
  void ExpectRoomAtAnySize() {
    std::vector<QSize> sizes(std::begin(kScreenSizes), std::end(kScreenSizes));
    sizes.insert(sizes.end(), std::begin(kOddSizes), std::end(kOddSizes));
    for (const QSize size : sizes) {
      SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
      ResizeScreen(*dlg_, size);
      ExpectEveryCaptionFits(*dlg_);
      ExpectNoneOverlaps();
      ExpectTextsFit();
      EXPECT_GE(Table().viewport()->height(), 4 * Table().RowHeight()) << "four rows are seen";
    }
  }
  void OpenOne() { Open(MakeOneVariableScreen(frame_)); }
  void OpenTwo() { Open(MakeTwoVariableScreen(frame_)); }

  static std::string NameOf(const QWidget& widget) {
    return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget))
        ->text(QAccessible::Name)
        .toStdString();
  }
};

TEST_F(StatisticsLayoutTest, OneVariableHasRoomForAll) {
  OpenOne();
  Load("1\t2147483640\r\n-1.2345678901234567e-300\t7\r\n");
  ASSERT_EQ(Total(), "2147483647");
  ExpectRoomAtAnySize();
  ClickRow(0);
  Tap(u"Edit");
  ExpectRoomAtAnySize();
}

TEST_F(StatisticsLayoutTest, TwoVariablesHaveRoomForAll) {
  OpenTwo();
  Load("1\t2\t2147483640\r\n-1.2345678901234567e-300\t1\t7\r\n");
  ExpectRoomAtAnySize();
  ClickRow(0);
  Tap(u"Edit");
  ExpectRoomAtAnySize();
  Tap(u"Cancel Lin");
  Choose(u"Quadratic : A*X^2+B*X+C");
  ExpectRoomAtAnySize();
}

TEST_F(StatisticsLayoutTest, ALargeTotalThatComesLaterHasRoomToo) {
  OpenOne();
  ResizeScreen(*dlg_, {240, 320});
  Load("1\t-2147483648\r\n");
  EXPECT_EQ(Total(), "-2147483648");
  ExpectTextsFit();
}

TEST_F(StatisticsLayoutTest, OkAndCancelTakeThePlacesOfAddAndTheTotal) {
  for (const auto make : {MakeOneVariableScreen, MakeTwoVariableScreen}) {
    Open(make(frame_));
    PasteIntoList("1 2\n3 4\n");
    const QRect add = AreaOn(*dlg_, *FindKey(*dlg_, u"Add"));
    QRect total;
    for (const auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->text().startsWith("Total")) total = AreaOn(*dlg_, *label);
    }
    ClickRow(0);
    Tap(u"Edit");
    EXPECT_EQ(AreaOn(*dlg_, *FindKey(*dlg_, u"Ok")), add);
    EXPECT_TRUE(AreaOn(*dlg_, *FindKey(*dlg_, u"Cancel")).contains(total));
  }
}

TEST_F(StatisticsLayoutTest, EveryPartHasAName) {
  OpenTwo();
  EXPECT_EQ(NameOf(Field("X")), "X");
  EXPECT_EQ(NameOf(Field("Y")), "Y");
  EXPECT_EQ(NameOf(Field("Count")), "Count");
  EXPECT_EQ(NameOf(Result(*dlg_)), "Result");
  EXPECT_EQ(NameOf(Table()), "Data");
  std::set<std::string> names;
  for (const KeyView* key : VisibleKeys(*dlg_)) names.insert(NameOf(*key));
  EXPECT_EQ(names.size(), VisibleKeys(*dlg_).size());
  EXPECT_TRUE(names.contains("Plot"));
}

TEST_F(StatisticsLayoutTest, TheTotalIsReadWithItsName) {
  OpenOne();
  AddRows("1 25");
  for (auto* label : dlg_->findChildren<QLabel*>()) {
    if (label->accessibleName() != "Total") continue;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Description), "25");
  }
  EXPECT_EQ(Total(), "25");
}

TEST_F(StatisticsLayoutTest, KeysThatAreNoWordsAreDescribed) {
  OpenTwo();
  for (const char16_t* caption : {u"ΣX", u"ΣX^2", u"ΣXY", u"Y'", u"X'", u"A", u"r"}) {
    QAbstractButton* key = FindKey(*dlg_, caption);
    ASSERT_NE(key, nullptr);
    EXPECT_FALSE(key->accessibleDescription().isEmpty());
  }
}

TEST_F(StatisticsLayoutTest, TabReachesFieldsListResultAndKeys) {
  OpenTwo();
  Click(Field("X"));
  std::vector<const QWidget*> reached;
  for (int i = 0; i < 5; ++i) {
    Key(Qt::Key_Tab);
    reached.push_back(QApplication::focusWidget());
  }
  EXPECT_EQ(reached, (std::vector<const QWidget*>{&Field("Y"), &Field("Count"), &Table(),
                                                  &Result(*dlg_), FindKey(*dlg_, u"Add")}));
}

TEST_F(StatisticsLayoutTest, ATapLeavesTheFocusInTheField) {
  OpenOne();
  AddRows("1;2");
  Click(Field("Count"));
  TapKey(u"ΣX");
  EXPECT_TRUE(HasFocus("Count"));
  FindKey(*dlg_, u"ΣX^2")->setFocus(Qt::TabFocusReason);
  Key(Qt::Key_Space);
  EXPECT_TRUE(HasFocus("Count"));
  EXPECT_EQ(Answer(), u"5");
}

}  // namespace
}  // namespace kav::test::statistics_layout_test
