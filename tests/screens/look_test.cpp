#include "screens/widgets/look.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "screens/test_fonts.h"
#include "screens/widgets/colour_scheme.h"

namespace kav::look_test {
namespace {

TEST(Look, AScreenStandsUprightInItsWindow) {
  struct Row {
    QSize window;
    QRect area;
  };
  const std::vector<Row> rows{
      {{240, 320}, {0, 0, 240, 320}},     {{480, 640}, {0, 0, 480, 640}},
      {{1080, 1440}, {0, 0, 1080, 1440}}, {{360, 560}, {0, 0, 360, 560}},
      {{1000, 400}, {350, 0, 300, 400}},  {{640, 640}, {80, 0, 480, 640}},
      {{200, 1000}, {0, 300, 200, 400}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PortraitArea(row.window), row.area)
        << row.window.width() << 'x' << row.window.height();
  }
}

TEST(Look, UnitsFillTheAreaWithoutGapsAndOverlaps) {
  const QRect area(7, 11, 241, 333);
  const DialogUnits units(area, {136, 153});
  EXPECT_EQ(units.Pixels({0, 0, 136, 153}), area);
  int end = area.x();
  for (int x = 0; x < 136; ++x) {
    const QRect column = units.Pixels({x, 0, 1, 153});
    EXPECT_EQ(column.x(), end);
    end = column.x() + column.width();
  }
  EXPECT_EQ(end, area.x() + area.width());
}

TEST(Look, UnitsScaleByTheirSize) {
  const DialogUnits units({0, 0, 272, 459}, {136, 153});
  EXPECT_EQ(units.Pixels({3, 34, 20, 10}), QRect(6, 102, 40, 30));
}

TEST(Look, TheLargestFittingSizeIsFound) {
  const std::vector<SpacedText> texts{{"SIN", 40}, {"COSH", 50}, {"W", 60}};
  const auto fits = [&](int pixels) {
    const QFontMetricsF metrics(ScreenFont(pixels));
    for (const SpacedText& text : texts) {
      if (metrics.horizontalAdvance(text.text) > text.width) return false;
    }
    return true;
  };
  const int found = FittingPixels(texts, 100, 1);
  EXPECT_TRUE(fits(found));
  EXPECT_FALSE(fits(found + 2));
}

TEST(Look, ASizeIsNeverOutsideItsBounds) {
  EXPECT_EQ(FittingPixels({{"SIN", 10000}}, 20, 5), 20);
  EXPECT_EQ(FittingPixels({{"a text much too long", 10}}, 20, 5), 5);
  EXPECT_EQ(FittingPixels({{"SIN", 0}}, 20, 5), 5);
  EXPECT_EQ(FittingPixels({}, 20, 5), 20);
  EXPECT_EQ(FittingPixels({{"SIN", 10}}, 3, 5), 5);
}

TEST(Look, TheFaceIsTheBestOfThoseThatAreInstalled) {
  // Of the first set all but Tahoma, which few machines have.
  EXPECT_EQ(QFontInfo(ScreenFont(20)).family().toStdString(), test::ChosenFontSet().face);
  EXPECT_EQ(ScreenFont(20).pixelSize(), 20);
  EXPECT_EQ(ScreenFont(0).pixelSize(), 1);
}

TEST(Look, TheWidestTextIsAmongTheLongOnes) {
  EXPECT_EQ(LongOnes({"Miles", "Kilometers", "Nautical Miles", "m", "Centimeters"}),
            QStringList({"Kilometers", "Nautical Miles", "Centimeters"}));
  EXPECT_EQ(LongOnes({"", ""}), QStringList({"", ""}));
  EXPECT_EQ(LongOnes({}), QStringList());
}

TEST(Look, ALineIsNoHigherThanItsRoom) {
  for (const int pixels : {1, 10, 40}) {
    for (const double room : {1000., 48.5, 20., 7., 0.}) {
      const int found = PixelsForLine(pixels, room);
      EXPECT_GE(found, 1);
      EXPECT_LE(found, pixels);
      const auto lineOf = [](int size) { return QFontMetricsF(ScreenFont(size)).lineSpacing(); };
      EXPECT_TRUE(found == 1 || lineOf(found) <= room) << pixels << ' ' << room;
      EXPECT_TRUE(found >= pixels - 1 || lineOf(found + 2) > room) << pixels << ' ' << room;
    }
  }
}

TEST(Look, AMenuWithoutTicksKeepsNoRoomForThem) {
  const auto widthOf = [](const auto& change) {
    QMenu menu;
    menu.setStyle(ScreenStyle());
    menu.setFont(ScreenFont(40));
    QAction* entry = menu.addAction("Memory Recall");
    change(*entry);
    return menu.sizeHint().width();
  };
  const int plain = widthOf([](QAction&) {});
  EXPECT_LE(plain + 20, widthOf([](QAction& entry) { entry.setCheckable(true); }));
  EXPECT_GE(plain, QFontMetricsF(ScreenFont(40)).horizontalAdvance("Memory Recall") + 20);
}

TEST(Look, TheArrowsOfAScrollBarGrowWithTheLetters) {
  // How many pixels from the middle to a side the arrow at the top reaches.
  const auto reach = [](int letters) {
    QScrollBar bar(Qt::Vertical);
    bar.setStyle(ScreenStyle());
    bar.setFont(ScreenFont(letters));
    bar.setPalette(ScreenPalette());
    bar.resize(bar.sizeHint().width(), 400);
    const QImage picture = bar.grab(QRect(0, 0, bar.width(), bar.width())).toImage();
    int reached = 0;
    for (int y = 2; y < picture.height() - 2; ++y) {
      for (int x = 2; x < picture.width() - 2; ++x) {
        if (qGray(picture.pixel(x, y)) > 100) continue;
        reached = std::max(reached, std::abs(x - picture.width() / 2));
      }
    }
    return reached;
  };
  const int small = reach(20);
  EXPECT_GE(small, 3);
  EXPECT_GE(reach(60), 2 * small);
}

}  // namespace
}  // namespace kav::look_test
