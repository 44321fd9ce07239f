// The look of all windows among the display settings.
#include "screens/display/look_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <cstdint>

#include "screens/display_settings_driver.h"
#include "screens/widgets/colour_scheme.h"

namespace kav::test::look_view_test {
namespace {

class LookViewTest : public DisplaySettingsDriver {
 protected:
  LookViewTest() { Wear(screen_, Attire::Window); }
  ~LookViewTest() override { UseColours(ColourChoice::Light); }

  QComboBox& Colours() { return Combo("Colours :"); }
  QCheckBox& LiveResult() { return *dlg_->findChild<QCheckBox*>(); }
  std::int32_t StoredAt(const char* name) {
    return store_.Get(SettingKey<std::int32_t>{"Config", name, -1});
  }
  QColor Paper() { return screen_.grab().toImage().pixelColor(0, 0); }
};

TEST_F(LookViewTest, TheLookStandsOnTheNormalPageOnly) {
  RunMatrix([&] {
    EXPECT_FALSE(Colours().isVisible());
    EXPECT_FALSE(LiveResult().isVisible());
    TapPage(0);
    EXPECT_TRUE(Colours().isVisible());
    EXPECT_TRUE(LiveResult().isVisible());
    EXPECT_EQ(LiveResult().text(), "Live result");
    EXPECT_TRUE(LiveResult().isChecked());
    ASSERT_EQ(Colours().count(), 4);
    EXPECT_EQ(Colours().currentText(), "System");
    EXPECT_EQ(Colours().itemText(1), "Light");
    EXPECT_EQ(Colours().itemText(2), "Dark");
    EXPECT_EQ(Colours().itemText(3), "High Contrast");
    Tap(u"Cancel");
  });
  EXPECT_EQ(StoredAt("Colour Scheme"), -1);
  EXPECT_EQ(StoredAt("Live Result"), -1);
}

TEST_F(LookViewTest, OpenWindowsHaveOtherColoursAsSoonAsTheyAreAccepted) {
  EXPECT_EQ(Paper(), QColor(241, 243, 246));
  EXPECT_TRUE(RunNormal([&] {
    Pick(Colours(), 2);
    EXPECT_EQ(SchemeNow(), ColourScheme::Light) << "nothing is changed before OK";
    Tap(u"OK");
  }));
  EXPECT_EQ(StoredAt("Colour Scheme"), 2);
  EXPECT_LT(Paper().lightness(), 60);
  EXPECT_FALSE(RunNormal([&] {
    EXPECT_EQ(Colours().currentText(), "Dark");
    EXPECT_LT(dlg_->grab().toImage().pixelColor(0, 0).lightness(), 60);
    Pick(Colours(), 1);
    Tap(u"Cancel");
  }));
  EXPECT_EQ(SchemeNow(), ColourScheme::Dark);
  EXPECT_TRUE(RunNormal([&] {
    Pick(Colours(), 3);
    Press(Qt::Key_Return);
  }));
  EXPECT_EQ(Paper(), QColor(Qt::white)) << "strong colours on a desktop that is light";
}

TEST_F(LookViewTest, KeysAndTheMouseSwitchLiveResults) {
  EXPECT_TRUE(RunNormal([&] {
    LiveResult().setFocus();
    Press(Qt::Key_Space);
    Tap(u"OK");
  }));
  EXPECT_EQ(StoredAt("Live Result"), 0);
  EXPECT_TRUE(RunNormal([&] {
    EXPECT_FALSE(LiveResult().isChecked());
    QTest::mouseClick(&LiveResult(), Qt::LeftButton, {}, QPoint(10, LiveResult().height() / 2));
    Tap(u"OK");
  }));
  EXPECT_EQ(StoredAt("Live Result"), 1);
}

TEST_F(LookViewTest, AScreenReaderChoosesAndSwitches) {
  EXPECT_TRUE(RunNormal([&] {
    auto* colours = QAccessible::queryAccessibleInterface(&Colours());
    auto* live = QAccessible::queryAccessibleInterface(&LiveResult());
    EXPECT_EQ(colours->text(QAccessible::Name), "Colours :");
    EXPECT_EQ(live->text(QAccessible::Name), "Live result");
    EXPECT_EQ(live->role(), QAccessible::CheckBox);
    EXPECT_FALSE(live->text(QAccessible::Description).isEmpty());
    colours->setText(QAccessible::Value, "Dark");
    EXPECT_EQ(colours->text(QAccessible::Name), "Colours :");
    EXPECT_EQ(colours->text(QAccessible::Value), "Dark");
    live->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(live->state().checked);
    Tap(u"OK");
  }));
  EXPECT_EQ(StoredAt("Colour Scheme"), 2);
  EXPECT_EQ(StoredAt("Live Result"), 0);
}

}  // namespace
}  // namespace kav::test::look_view_test
