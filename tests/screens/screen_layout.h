// Whether the keys and the other parts of a screen have the room that they need.
#pragma once

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QMenuBar>
#include <algorithm>
#include <vector>

#include "screens/screen_driver.h"
#include "screens/test_fonts.h"
#include "screens/widgets/key_view.h"

namespace kav::test {

/// The sizes of the smallest screen there was, of twice that, and of a large one of today.
constexpr QSize kScreenSizes[] = {{240, 320}, {480, 640}, {1080, 1440}};
/// And windows that no screen has the shape of.
constexpr QSize kOddSizes[] = {{180, 240}, {180, 700}, {1600, 300}, {241, 333}};

inline void ResizeScreen(QWidget& screen, QSize size) {
  screen.resize(size);
  QCoreApplication::processEvents();
  ASSERT_EQ(screen.size(), size);
}

/// The place of a widget on its screen.
inline QRect AreaOn(const QWidget& screen, const QWidget& widget) {
  return {widget.mapTo(&screen, QPoint(0, 0)), widget.size()};
}

inline std::vector<KeyView*> VisibleKeys(QWidget& screen) {
  std::vector<KeyView*> keys;
  for (auto* button : screen.findChildren<QAbstractButton*>()) {
    auto* key = dynamic_cast<KeyView*>(button);
    if (key != nullptr && key->isVisible()) keys.push_back(key);
  }
  return keys;
}

inline void ExpectEveryCaptionFits(QWidget& screen) {
  const std::vector<KeyView*> keys = VisibleKeys(screen);
  const auto narrower = [](const KeyView* a, const KeyView* b) { return a->width() < b->width(); };
  const int narrowest = (*std::min_element(keys.begin(), keys.end(), narrower))->width();
  for (const KeyView* key : keys) {
    const QFontMetricsF metrics(key->TextFont());
    const std::string name = key->text().toStdString();
    EXPECT_LT(metrics.horizontalAdvance(key->text()), key->width() - 2) << name;
    EXPECT_LT(metrics.tightBoundingRect(key->text()).height(), key->height() - 2) << name;
    // All captions have the size of the one with the least room, which in a wide face may have
    // little.
    const bool isUsual = ChosenFontSet().name == FontSets().front().name;
    const int least = isUsual ? key->height() / 3 : std::min(key->height() / 3, narrowest / 4);
    EXPECT_GE(key->TextFont().pixelSize(), least) << name << " is too small to read";
  }
}

/// Neither lines, keys, menu bar nor `others` lie over one another or beside the screen.
inline void ExpectNothingOverlaps(QWidget& screen, const std::vector<const QWidget*>& others = {}) {
  std::vector<const QWidget*> widgets{&Expression(screen), &Result(screen),
                                      screen.findChild<QMenuBar*>()};
  widgets.insert(widgets.end(), others.begin(), others.end());
  for (const KeyView* key : VisibleKeys(screen)) widgets.push_back(key);
  for (const QWidget* a : widgets) {
    EXPECT_TRUE(screen.rect().contains(AreaOn(screen, *a)));
    for (const QWidget* b : widgets) {
      EXPECT_TRUE(a == b || !AreaOn(screen, *a).intersects(AreaOn(screen, *b)));
    }
  }
}

}  // namespace kav::test
