// The options dialog of a graph: its fields, boxes and buttons.
#include "screens/plotter/plotter_options_dlg.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <algorithm>
#include <functional>
#include <vector>

#include "screens/box_watch.h"
#include "screens/dialog_layout.h"
#include "screens/screen_driver.h"
#include "screens/screen_layout.h"

namespace kav::test::plotter_options_dlg_test {
namespace {

class PlotterOptionsDlgTest : public testing::Test {
 protected:
  PlotterOptionsDlgTest() { Show(screen_); }
  ~PlotterOptionsDlgTest() override { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }

  /// Opens the dialog and runs `use`, which closes it. Answers what the dialog does.
  std::optional<PlotterOptions> Run(const PlotterOptions& options,
                                    const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
    });
    return RunPlotterOptions(&screen_, options);
  }

  QLineEdit& Field(const char* name) { return LineNamed(*dlg_, name); }
  /// Replaces the text of a field by typing.
  void Type(const char* name, const QString& text) {
    Field(name).setFocus();
    Field(name).selectAll();
    QTest::keyClick(&Field(name), Qt::Key_Delete);
    QTest::keyClicks(&Field(name), text);
  }
  QString Fields() {
    return Field("X min").text() + '|' + Field("X max").text() + '|' + Field("Y min").text() + '|' +
           Field("Y max").text();
  }
  QCheckBox& Box(std::u16string_view caption) {
    auto* box = qobject_cast<QCheckBox*>(FindKey(*dlg_, caption));
    EXPECT_NE(box, nullptr);
    return *box;
  }
  void Tick(std::u16string_view caption) { QTest::keyClick(&Box(caption), Qt::Key_Space); }
  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  bool HasFocus(const char* name) { return dlg_->focusWidget() == &Field(name); }

  /// Taps "OK", and expects that it is refused with `text`.
  void ExpectRefusal(std::u16string_view text) {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    Tap(u"OK");
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
    EXPECT_TRUE(dlg_->isVisible());
  }

  QWidget screen_;
  QDialog* dlg_ = nullptr;
};

const PlotterOptions kOptions{{-10, 10.5, -2, 1000}, {true, false, true}};

TEST_F(PlotterOptionsDlgTest, BeginsWithWhatItWasOpenedWith) {
  Run(kOptions, [this] {
    EXPECT_EQ(dlg_->windowTitle(), "Plotter Options");
    EXPECT_EQ(Fields(), "-10|10.5|-2|1000");
    EXPECT_TRUE(Box(u"Grid").isChecked());
    EXPECT_FALSE(Box(u"Line").isChecked());
    EXPECT_TRUE(Box(u"Coordinates").isChecked());
    EXPECT_TRUE(HasFocus("X min"));
    Tap(u"Cancel");
  });
}

TEST_F(PlotterOptionsDlgTest, OkHandsTheRangeAndTheOptionsBack) {
  const auto made = Run(kOptions, [this] {
    Type("X min", "-1.5");
    Type("X max", "1e2");
    Type("Y min", "-1,000.0");
    Type("Y max", "0");
    Tick(u"Grid");
    Tick(u"Line");
    Tick(u"Coordinates");
    Tap(u"OK");
  });
  ASSERT_TRUE(made);
  EXPECT_EQ(*made, (PlotterOptions{{-1.5, 100, -1000, 0}, {false, true, false}}));
}

TEST_F(PlotterOptionsDlgTest, UntouchedItHandsTheSameBack) {
  const PlotterOptions options{{0.1 + 0.2, 1e-14 + 1, -1.0 / 3, 2e15 / 3}, {false, true, false}};
  const auto made = Run(options, [this] { Tap(u"OK"); });
  ASSERT_TRUE(made);
  EXPECT_EQ(*made, options);
}

TEST_F(PlotterOptionsDlgTest, EnterIsOk) {
  const auto made = Run(kOptions, [this] {
    Type("Y max", "7");
    QTest::keyClick(&Field("Y max"), Qt::Key_Return);
  });
  ASSERT_TRUE(made);
  EXPECT_EQ(made->range.yMax, 7);
}

TEST_F(PlotterOptionsDlgTest, CancelAndEscapeHandNothingBack) {
  EXPECT_FALSE(Run(kOptions, [this] {
    Type("X min", "1");
    Tap(u"Cancel");
  }));
  EXPECT_FALSE(Run(kOptions, [this] { QTest::keyClick(dlg_, Qt::Key_Escape); }));
}

TEST_F(PlotterOptionsDlgTest, EqualAndReversedBoundsAreRefused) {
  Run(kOptions, [this] {
    Type("X min", "10.5");
    ExpectRefusal(u"The maximum value of X should be bigger than the minimum value of X.");
    EXPECT_TRUE(HasFocus("X max"));
    Type("X min", "0");
    Type("Y min", "1001");
    ExpectRefusal(u"The maximum value of Y should be bigger than the minimum value of Y.");
    EXPECT_TRUE(HasFocus("Y max"));
    EXPECT_EQ(Fields(), "0|10.5|1001|1000");
    Tap(u"Cancel");
  });
}

TEST_F(PlotterOptionsDlgTest, WhatIsNoNumberIsRefusedAndCanBeMended) {
  const auto made = Run(kOptions, [this] {
    Type("Y min", "2*x");
    ExpectRefusal(
        u"Y min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size, not \"2*x\".");
    EXPECT_TRUE(HasFocus("Y min"));
    EXPECT_EQ(Field("Y min").selectedText(), "2*x");
    Type("Y min", "");
    ExpectRefusal(
        u"Y min takes a decimal number such as -2.5 or 1e3, up to 1.79e308 in size; it is empty.");
    Type("Y min", "2*3");
    Tap(u"OK");
  });
  ASSERT_TRUE(made);
  EXPECT_EQ(made->range.yMin, 6);
}

TEST_F(PlotterOptionsDlgTest, NoPartOfItIsEmpty) {
  for (const QSize size : kScreenSizes) {
    ResizeScreen(screen_, size);
    Run(kOptions, [this] {
      std::vector<QRect> parts;
      for (const QWidget* part : VisibleParts(*dlg_)) parts.push_back(part->geometry());
      std::sort(parts.begin(), parts.end(),
                [](const QRect& a, const QRect& b) { return a.top() < b.top(); });
      int bottom = 0;
      for (const QRect& part : parts) {
        EXPECT_LT(part.top() - bottom, dlg_->height() / 8) << part.top();
        bottom = std::max(bottom, part.bottom());
      }
      Tap(u"Cancel");
    });
  }
}

TEST_F(PlotterOptionsDlgTest, HasRoomForAllAtAnySize) {
  for (const QSize size : kScreenSizes) {
    SCOPED_TRACE(size.width());
    ResizeScreen(screen_, size);
    Run({{-1234567.25, 1.5e-13, -0.123456789, 1e300}, {}}, [this] {
      ExpectRoomForAll(*dlg_);
      Tap(u"Cancel");
    });
  }
}

}  // namespace
}  // namespace kav::test::plotter_options_dlg_test
