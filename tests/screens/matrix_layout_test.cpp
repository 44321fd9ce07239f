// How the matrix screen looks at every size of window, and as a screen reader finds it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QFontMetrics>
#include <QScrollBar>
#include <QToolButton>

#include "screens/dialog_layout.h"
#include "screens/matrix_driver.h"
#include "screens/screen_layout.h"
#include "settings/keys.h"

namespace kav::test::matrix_layout_test {
namespace {

class MatrixLayoutTest : public MatrixScreen {
 protected:
  void OpenLargest() {
    frame_.store.Set(kMatrixRows, 10);
    frame_.store.Set(kMatrixColumns, 10);
    Open();
  }
};

TEST_F(MatrixLayoutTest, NothingIsCutOrOverlapsAtAnySize) {
  OpenLargest();
  std::vector<QSize> sizes(std::begin(kScreenSizes), std::end(kScreenSizes));
  sizes.insert(sizes.end(), std::begin(kOddSizes), std::end(kOddSizes));
  sizes.insert(sizes.end(), {QSize(180, 280), QSize(800, 600), QSize(1280, 720)});
  for (const QSize size : sizes) {
    SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()));
    ResizeScreen(*dlg_, size);
    ExpectEveryCaptionFits(*dlg_);
    ExpectNothingOverlaps(*dlg_, {&Tabs(), &Grid()});
    const QFontMetrics text = Tabs().fontMetrics();
    for (int tab = 0; tab < Tabs().count(); ++tab) {
      EXPECT_GT(Tabs().tabRect(tab).width(), text.horizontalAdvance(Tabs().tabText(tab)));
      EXPECT_TRUE(Tabs().rect().contains(Tabs().tabRect(tab)));
    }
    EXPECT_GE(Tabs().height(), text.height());
    for (const auto* arrow : Tabs().findChildren<QToolButton*>()) EXPECT_FALSE(arrow->isVisible());
  }
}

TEST_F(MatrixLayoutTest, ThreeColumnsOfTheDefaultWidthAreSeenWhole) {
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    EXPECT_TRUE(Grid().viewport()->geometry().contains(Grid().CellArea({3, 3}))) << size.width();
  }
}

TEST_F(MatrixLayoutTest, TheLargestMatrixIsSeenWholeWhereTheWindowHasRoomForIt) {
  OpenLargest();
  for (const QSize size : {QSize(1080, 1440), QSize(1280, 720)}) {
    ResizeScreen(*dlg_, size);
    const QRect room = Grid().viewport()->geometry();
    EXPECT_TRUE(room.contains(Grid().CellArea({10, 10}))) << size.width();
    EXPECT_TRUE(room.contains(Grid().CellArea({1, 1}))) << size.width();
    EXPECT_GE(Grid().font().pixelSize(), 13) << size.width();
  }
  ResizeScreen(*dlg_, {1280, 720});
  EXPECT_LT(AreaOn(*dlg_, Grid()).right(), AreaOn(*dlg_, *FindKey(*dlg_, u"7")).left());
  EXPECT_GT(Grid().width(), 640);
  EXPECT_GT(Grid().height(), 400);
}

TEST_F(MatrixLayoutTest, TheLargestMatrixOfLongNumbersIsSeenWholeInAWideWindow) {
  OpenLargest();
  QString rows;
  for (int row = 0; row < 10; ++row) {
    for (int column = 0; column < 10; ++column) {
      rows += QString("-%1.23456789012e+%2").arg(1 + row % 9).arg(10 + column);
      rows += column < 9 ? '\t' : '\n';
    }
  }
  for (const QSize size : {QSize(1280, 720), QSize(1920, 1080), QSize(3840, 2160)}) {
    SCOPED_TRACE(size.width());
    ResizeScreen(*dlg_, size);
    ClickCell(1, 1);
    QGuiApplication::clipboard()->setText(rows);
    Key(Qt::Key_V, Qt::ControlModifier);
    const QRect room = Grid().viewport()->geometry();
    EXPECT_TRUE(room.contains(Grid().CellArea({1, 1})));
    EXPECT_TRUE(room.contains(Grid().CellArea({10, 10})));
    for (int column = 1; column <= 10; ++column) {
      EXPECT_GE(Grid().GetColumnWidth(column), Grid().FittingWidth(column)) << column;
    }
    EXPECT_GE(Grid().font().pixelSize(), 10);
    ExpectEveryCaptionFits(*dlg_);
    ExpectNothingOverlaps(*dlg_, {&Tabs(), &Grid()});
  }
  // An upright window has the widths that the user gave, as it was.
  ResizeScreen(*dlg_, {360, 560});
  for (int column = 1; column <= 10; ++column) EXPECT_EQ(Grid().GetColumnWidth(column), 60);
}

TEST_F(MatrixLayoutTest, NothingOfAWideWindowIsLeftAside) {
  for (const QSize size : {QSize(500, 560), QSize(900, 800), QSize(1280, 720), QSize(1920, 1080)}) {
    SCOPED_TRACE(size.width());
    ResizeScreen(*dlg_, size);
    const QRect line = AreaOn(*dlg_, Expression(*dlg_));
    EXPECT_LE(line.left(), size.width() / 40);
    EXPECT_GE(line.right(), size.width() - size.width() / 30);
    ExpectEveryCaptionFits(*dlg_);
    ExpectNothingOverlaps(*dlg_, {&Tabs(), &Grid()});
  }
}

TEST_F(MatrixLayoutTest, AFittedColumnIsFittedAtEverySize) {
  TypeCells(1, 2, "-1.23456789012E-10");
  const QRect header = Grid().CellArea({0, 2});
  QTest::mouseDClick(&Grid(), Qt::LeftButton, {}, QPoint(header.right(), header.center().y()));
  const int reset = Grid().GetColumnWidth(1);
  for (const QSize size : {QSize(240, 320), QSize(361, 561), QSize(480, 640), QSize(1080, 1440)}) {
    ResizeScreen(*dlg_, size);
    EXPECT_EQ(Grid().GetColumnWidth(2), Grid().FittingWidth(2)) << size.width();
    EXPECT_EQ(Grid().GetColumnWidth(1), reset) << size.width();
  }
}

TEST_F(MatrixLayoutTest, NothingIsDrawnBetweenTheScrollBars) {
  OpenLargest();
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    const QWidget* across = Grid().horizontalScrollBar();
    const QWidget* down = Grid().verticalScrollBar();
    if (!across->isVisible() || !down->isVisible()) continue;
    const QPoint from(across->mapTo(&Grid(), across->rect().topRight()).x(),
                      down->mapTo(&Grid(), down->rect().bottomLeft()).y());
    const QImage corner = Grid().grab(QRect(from, Grid().rect().bottomRight())).toImage();
    QImage plain = corner.copy();
    plain.fill(corner.pixelColor(corner.width() / 2, corner.height() / 2));
    EXPECT_EQ(corner, plain) << size.width();
  }
}

TEST_F(MatrixLayoutTest, KeysStandInTheirRows) {
  const std::vector<std::vector<const char16_t*>> rows{
      {u"DEG", u"F(X)", u"Tools", u"BS", u"DEL", u"CLR"},
      {u"M CLS"},
      {u"MPB", u"MOpers", u"MTools", u"MVar", u"MSize"},
      {u"7", u"8", u"9", u"(...)", u"Y^N"},
      {u"4", u"5", u"6", u"*", u"/"},
      {u"1", u"2", u"3", u"+", u"-"},
      {u"0", u"00", u".", u"Exp", u"="},
  };
  int above = AreaOn(*dlg_, Result(*dlg_)).bottom();
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
  EXPECT_EQ(VisibleKeys(*dlg_).size(), 32U);
}

TEST_F(MatrixLayoutTest, EveryPartHasAName) {
  const auto nameOf = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
  };
  EXPECT_EQ(nameOf(Expression(*dlg_)), "Expression");
  EXPECT_EQ(nameOf(Result(*dlg_)), "Result");
  EXPECT_EQ(nameOf(Tabs()), "Matrices");
  EXPECT_EQ(nameOf(Grid()), "Cells");
}

TEST_F(MatrixLayoutTest, TabReachesLineTabsGridAndKeys) {
  std::vector<QWidget*> reached;
  Click(Expression(*dlg_));
  for (int i = 0; i < 4; ++i) {
    QApplication::focusWidget()->setFocus();
    Key(Qt::Key_Tab);
    reached.push_back(QApplication::focusWidget());
  }
  EXPECT_EQ(reached[0], &Result(*dlg_));
  EXPECT_EQ(reached[1], &Tabs());
  EXPECT_EQ(reached[2], &Grid());
}

TEST_F(MatrixLayoutTest, TheSizeDialogHasRoomForAllAtAnySize) {
  for (const QSize size : kScreenSizes) {
    ResizeScreen(*dlg_, size);
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      ExpectRoomForAll(dialog);
      dialog.reject();
    });
    Tap(u"MSize");
  }
}

}  // namespace
}  // namespace kav::test::matrix_layout_test
