#include "screens/widgets/look.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionTab>
#include <QStyleOptionViewItem>
#include <QTableWidget>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "screens/test_fonts.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/line_view.h"

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

TEST(Look, AMenuHasOneColumnForShortcuts) {
  const auto widthOf = [](const QKeySequence& shortcut) {
    QMenu menu;
    menu.setStyle(ScreenStyle());
    menu.addAction("Copy Line and Result")->setShortcut(shortcut);
    // As when letters are chosen that fit: from the second time on, the menu knows its column.
    int width = 0;
    for (const int letters : {41, 40}) {
      menu.setFont(ScreenFont(letters));
      width = menu.sizeHint().width();
    }
    return width;
  };
  const QKeySequence shortcut("Ctrl+Shift+C");
  const int column = QFontMetrics(ScreenFont(40)).horizontalAdvance(shortcut.toString());
  const int added = widthOf(shortcut) - widthOf({});
  EXPECT_GE(added, column);
  EXPECT_LT(added, column * 3 / 2);
}

/// How many pixels of `picture` in `part` have the colour `what` now.
int Count(const QImage& picture, const QRect& part, Colour what) {
  const QRgb wanted = ColourNow(what).rgb();
  int count = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) count += picture.pixel(x, y) == wanted;
  }
  return count;
}

/// In the colours of each scheme that a user can choose; gives back those that all tests have.
class LookIn : public testing::TestWithParam<ColourChoice> {
 protected:
  LookIn() { UseColours(GetParam()); }
  ~LookIn() override { UseColours(ColourChoice::Light); }
};
INSTANTIATE_TEST_SUITE_P(Choices, LookIn,
                         testing::Values(ColourChoice::Light, ColourChoice::Dark,
                                         ColourChoice::HighContrast));

TEST_P(LookIn, AnEntryThatIsOfNoUseIsToldFromTheOthers) {
  QMenu menu;
  menu.setStyle(ScreenStyle());
  menu.setFont(ScreenFont(40));
  Wear(menu, Attire::Window);
  QAction* of = menu.addAction("Undo");
  QAction* no = menu.addAction("Redo");
  no->setEnabled(false);
  menu.resize(menu.sizeHint());
  const auto letters = [&](QAction* entry, Colour colour) {
    // Without the frame of the menu, which may be as black as letters.
    const QRect place = menu.actionGeometry(entry).adjusted(2, 2, -2, -2);
    return Count(menu.grab().toImage(), place, colour);
  };
  EXPECT_GT(letters(of, Colour::Text), 20);
  EXPECT_GT(letters(no, Colour::DisabledText), 20);
  EXPECT_EQ(letters(no, Colour::Text), 0);
}

TEST_P(LookIn, LinesBetweenTheRowsOfATableAreSeen) {
  QTableWidget table(2, 1);
  table.setStyle(ScreenStyle());
  Wear(table, Attire::Window);
  table.resize(200, 200);
  const QImage picture = table.viewport()->grab().toImage();
  const int line = table.rowViewportPosition(1) - 1;
  const QColor seen = picture.pixelColor(10, line);
  // As well as the lines of the matrix, which are 1.6 on white.
  EXPECT_GE(ContrastBetween(seen, ColourNow(Colour::Base)), 1.5);
}

TEST_P(LookIn, TheFrameOfAGroupStandsBelowItsTitle) {
  QGroupBox group("Title");
  group.setStyle(ScreenStyle());
  group.setFont(ScreenFont(20));
  Wear(group, Attire::Window);
  group.resize(200, 200);
  const QImage picture = group.grab().toImage();
  const int title = QFontMetrics(group.font()).height();
  EXPECT_EQ(Count(picture, QRect(100, 0, 100, title), Colour::Window), 100 * title);
}

TEST_P(LookIn, ATabShowsThatItHasTheKeyboard) {
  QStyleOptionTab tab;
  tab.rect = QRect(0, 0, 100, 40);
  tab.palette = ScreenPalette();
  tab.state = QStyle::State_Enabled | QStyle::State_Selected;
  const auto draw = [&tab] {
    QImage picture(100, 40, QImage::Format_RGB32);
    picture.fill(ColourNow(Colour::Window));
    QPainter painter(&picture);
    ScreenStyle()->drawControl(QStyle::CE_TabBarTabShape, &tab, &painter);
    return Count(picture, picture.rect(), Colour::Highlight);
  };
  EXPECT_EQ(draw(), 0);
  tab.state |= QStyle::State_HasFocus;
  // In light colours the desktop marks its text.
  if (GetParam() == ColourChoice::Light) return;
  EXPECT_GT(draw(), 100);
}

TEST(Look, ALineAsWideAsAWindowHasTheCornersOfAKey) {
  LineView line(nullptr);
  Wear(line, Attire::Window);
  const auto corner = [&line](int width) {
    line.resize(width, 40);
    return line.grab().toImage().pixelColor(6, 4);
  };
  EXPECT_EQ(corner(340), ColourNow(Colour::Base));
  EXPECT_EQ(corner(1280), ColourNow(Colour::Base));
}

TEST_P(LookIn, ALineHasOneOutline) {
  LineView line(nullptr);
  Wear(line, Attire::Window);
  line.resize(1000, 240);
  line.SetTextHeight(120);
  const QImage picture = line.grab().toImage();
  // Its thickness at the side, and along the corner, where another one would look out.
  const int side = Count(picture, QRect(0, 120, 40, 1), Colour::Mid);
  EXPECT_EQ(side, 4) << "a sixtieth of the height";
  int corner = 0;
  for (int at = 0; at < 40; ++at) {
    corner += picture.pixelColor(at, at) == ColourNow(Colour::Mid);
  }
  EXPECT_LE(corner, side);
  EXPECT_EQ(Count(picture, QRect(20, 20, 40, 40), Colour::Base), 1600);
}

TEST(Look, ALineBesideKeysHasCornersAsRound) {
  QWidget window;
  window.resize(1080, 1440);
  LineView line(&window);
  Wear(line, Attire::Window);
  for (const int width : {200, 430, 830}) {
    line.resize(width, 86);
    const QImage picture = line.grab().toImage();
    EXPECT_EQ(picture.pixelColor(2, 2), ColourNow(Colour::Window)) << width;
    EXPECT_EQ(picture.pixelColor(8, 8), ColourNow(Colour::Base)) << width;
  }
}

TEST_P(LookIn, TheFocusOfARowLeavesItsLettersAsTheyAre) {
  QListWidget list;
  list.setFont(ScreenFont(40));
  QStyleOptionViewItem row;
  row.rect = QRect(0, 0, 300, 1);
  row.widget = &list;
  row.font = list.font();
  row.fontMetrics = QFontMetrics(row.font);
  row.palette = ScreenPalette();
  row.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected;
  row.features = QStyleOptionViewItem::HasDisplay;
  row.showDecorationSelected = true;
  row.text = "MMM";
  const auto inkIn = [&](int beside) {
    QImage picture(row.rect.size(), QImage::Format_RGB32);
    QPainter painter(&picture);
    ScreenStyle()->drawControl(QStyle::CE_ItemViewItem, &row, &painter, &list);
    return Count(picture, row.rect.adjusted(beside, 0, -beside, 0), Colour::HighlightedText);
  };
  const int room = row.fontMetrics.height();
  for (const int height : {room, 2 * room}) {
    row.rect.setHeight(height);
    row.state.setFlag(QStyle::State_HasFocus, false);
    const int letters = inkIn(0);
    EXPECT_GT(letters, 20);
    EXPECT_EQ(inkIn(8), letters) << "they stand within";
    row.state.setFlag(QStyle::State_HasFocus);
    EXPECT_GT(inkIn(0), letters + height) << "a mark tells where the keys work";
    // Above and below the letters only where there is room.
    const int lines = inkIn(8) - letters;
    EXPECT_GE(lines, height == room ? 0 : 2 * (row.rect.width() - 16));
    EXPECT_LE(lines, height == room ? 0 : room * row.rect.width());
  }
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
