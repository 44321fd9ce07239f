// How the scientific screen looks: places, sizes, captions and colours at every size of window.
#include <gtest/gtest.h>

#include <set>

#include "screens/screen_layout.h"
#include "settings/keys.h"

namespace kav::test::screen_layout_test {
namespace {

class ScreenLayoutTest : public ScientificScreen {
 protected:
  void Resize(QSize size) { ResizeScreen(*dlg_, size); }
  QRect AreaOf(const QWidget& widget) { return AreaOn(*dlg_, widget); }
  std::vector<KeyView*> VisibleKeys() { return test::VisibleKeys(*dlg_); }
  void ExpectEveryCaptionFits() { test::ExpectEveryCaptionFits(*dlg_); }
  void ExpectNothingOverlaps() { test::ExpectNothingOverlaps(*dlg_); }
  void Choose(std::u16string_view now, std::u16string_view base) {
    Tap(now);
    test::Choose(base);
  }
};

TEST_F(ScreenLayoutTest, NoCaptionIsCutInAnyBaseWithShiftOnOrOffAtAnySize) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    Resize(size);
    ExpectEveryCaptionFits();
    Tap(u"Shift DEG");
    ExpectEveryCaptionFits();
    Tap(u"Shift RAD");
    Choose(u"DEC", u"Hexadecimal");
    ExpectEveryCaptionFits();
    Choose(u"HEX", u"Octal");
    ExpectEveryCaptionFits();
    Choose(u"OCT", u"Binary");
    ExpectEveryCaptionFits();
    Choose(u"BIN", u"Decimal");
  }
}

TEST_F(ScreenLayoutTest, NoCaptionIsCutInAnOddWindowEither) {
  for (const QSize size : kOddSizes) {
    SCOPED_TRACE(size.width());
    Resize(size);
    ExpectEveryCaptionFits();
    ExpectNothingOverlaps();
  }
}

TEST_F(ScreenLayoutTest, NothingOverlapsAtAnySize) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    Resize(size);
    ExpectNothingOverlaps();
    Choose(u"DEC", u"Hexadecimal");
    ExpectNothingOverlaps();
    Choose(u"HEX", u"Decimal");
  }
}

TEST_F(ScreenLayoutTest, AllCaptionsAreOfOneSizeThatGrowsWithTheWindow) {
  int before = 0;
  for (const QSize size : kScreenSizes) {
    Resize(size);
    std::set<int> sizes;
    for (const KeyView* key : VisibleKeys()) sizes.insert(key->TextFont().pixelSize());
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_GT(*sizes.begin(), before * 3 / 2);
    before = *sizes.begin();
  }
}

TEST_F(ScreenLayoutTest, KeysStandInTheRowsAndColumnsOfTheKeypad) {
  const std::vector<std::vector<const char16_t*>> rows{
      {u"DEG", u"DEC", u"BS", u"DEL", u"PB", u"CLR"},
      {u"Shift", u"Mac", u"Cnv", u"ABS()", u"M/C"},
      {u"SIN", u"COS", u"TAN", u"Pi", u"nCr"},
      {u"SINH", u"COSH", u"TANH", u"LOG", u"LN"},
      {u"SQRT", u"X^2", u"Y^X", u"%", u"(...)"},
      {u"7", u"8", u"9", u"(", u")"},
      {u"4", u"5", u"6", u"*", u"/"},
      {u"1", u"2", u"3", u"+", u"-"},
      {u"0", u"00", u".", u"Exp", u"="},
  };
  int above = AreaOf(Expression(*dlg_)).bottom();
  for (const auto& row : rows) {
    int left = -1;
    const int top = AreaOf(*FindKey(*dlg_, row.front())).top();
    EXPECT_GT(top, above);
    for (const char16_t* caption : row) {
      const QRect area = AreaOf(*FindKey(*dlg_, caption));
      EXPECT_GT(area.left(), left);
      EXPECT_EQ(area.top(), top);
      left = area.right();
      above = area.bottom();
    }
  }
  EXPECT_EQ(above, AreaOf(*FindKey(*dlg_, u"=")).bottom());
  EXPECT_GT(AreaOf(Result(*dlg_)).top(), AreaOf(*FindKey(*dlg_, u"CLR")).bottom());
  EXPECT_LT(AreaOf(Result(*dlg_)).bottom(), AreaOf(*FindKey(*dlg_, u"Shift")).top());
}

TEST_F(ScreenLayoutTest, TheMenuBarStandsAtTheBottom) {
  for (const QSize size : kScreenSizes) {
    Resize(size);
    const QRect bar = AreaOf(*dlg_->findChild<QMenuBar*>());
    EXPECT_EQ(bar.bottom(), dlg_->rect().bottom());
    EXPECT_GT(bar.top(), AreaOf(*FindKey(*dlg_, u"=")).bottom());
  }
}

TEST_F(ScreenLayoutTest, AWideWindowWithoutHistoryKeepsTheScreenUprightInItsMiddle) {
  frame_.store.Set(kHistoryShown, 0);
  Open();
  Resize({1200, 640});
  const QRect line = AreaOf(Expression(*dlg_));
  EXPECT_LE(line.width(), 480);
  EXPECT_NEAR(line.center().x(), 600, 8);
  const QRect bar = AreaOf(*dlg_->findChild<QMenuBar*>());
  EXPECT_EQ(bar.width(), 480);
  EXPECT_EQ(bar.left(), 360);
}

struct ColourRow {
  std::vector<const char16_t*> captions;
  QColor background;
  QColor text;
};

TEST_F(ScreenLayoutTest, KeysHaveTheirColours) {
  const QColor black(0, 0, 0);
  const std::vector<ColourRow> rows{
      {{u"0", u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"00", u".", u"Exp"},
       {255, 255, 255},
       {255, 0, 0}},
      {{u"M/C", u"Shift"}, {255, 192, 126}, black},
      {{u"DEG", u"DEC"}, {189, 192, 255}, black},
      {{u"CLR", u"BS", u"PB", u"DEL"}, {254, 192, 190}, black},
      {{u"="}, {0, 150, 222}, {255, 255, 0}},
      {{u"SIN", u"COS", u"TAN",  u"Pi",  u"nCr", u"SINH", u"COSH",  u"TANH",
        u"LOG", u"LN",  u"SQRT", u"X^2", u"Y^X", u"%",    u"(...)", u"ABS()",
        u"(",   u")",   u"+",    u"-",   u"*",   u"/"},
       {192, 255, 192},
       black},
  };
  Tap(u"1 =");  // with a history, "PB" is not disabled
  Resize({1080, 1440});
  for (const ColourRow& row : rows) {
    for (const char16_t* caption : row.captions) {
      const QImage picture = FindKey(*dlg_, caption)->grab().toImage();
      EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 10), row.background)
          << ToQt(caption).toStdString();
      bool hasText = false;
      for (int x = 0; x < picture.width(); ++x) {
        for (int y = picture.height() / 5; y < picture.height() * 4 / 5; ++y) {
          hasText = hasText || picture.pixelColor(x, y) == row.text;
        }
      }
      EXPECT_TRUE(hasText) << ToQt(caption).toStdString();
    }
  }
}

TEST_F(ScreenLayoutTest, TheActiveShiftKeyIsBlackWithOrangeText) {
  Resize({1080, 1440});
  Tap(u"Shift");
  const QImage picture = FindKey(*dlg_, u"Shift")->grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 10), QColor(0, 0, 0));
}

TEST_F(ScreenLayoutTest, TheDigitsAToFAreWhiteWithRedText) {
  Resize({1080, 1440});
  Choose(u"DEC", u"Hexadecimal");
  for (const char16_t* caption : {u"A", u"B", u"C", u"D", u"E", u"F"}) {
    const QImage picture = FindKey(*dlg_, caption)->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 10),
              QColor(255, 255, 255));
  }
}

TEST_F(ScreenLayoutTest, TheResultIsBlackOnYellowAndRightAligned) {
  Resize({480, 640});
  const QImage picture = Result(*dlg_).grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(255, 255, 192));
  EXPECT_TRUE(Result(*dlg_).alignment().testFlag(Qt::AlignRight));
  EXPECT_EQ(Result(*dlg_).palette().color(QPalette::Text), QColor(0, 0, 0));
}

TEST_F(ScreenLayoutTest, ADisabledKeyLooksUnlikeAnEnabledOne) {
  const QImage disabled = FindKey(*dlg_, u"PB")->grab().toImage();
  EXPECT_NE(disabled.pixelColor(disabled.width() / 2, disabled.height() / 10),
            QColor(254, 192, 190));
}

TEST_F(ScreenLayoutTest, AKeyShowsThatItIsPressedAndThatItHasTheFocus) {
  auto* key = FindKey(*dlg_, u"7");
  const QImage idle = key->grab().toImage();
  key->setFocus();
  EXPECT_NE(key->grab().toImage(), idle);
  Expression(*dlg_).setFocus();
  EXPECT_EQ(key->grab().toImage(), idle);
  QTest::mousePress(key, Qt::LeftButton);
  EXPECT_NE(key->grab().toImage(), idle);
  QTest::mouseRelease(key, Qt::LeftButton);
}

}  // namespace
}  // namespace kav::test::screen_layout_test
