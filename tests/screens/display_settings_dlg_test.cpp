// The display settings: two pages over one set of boxes.
#include "screens/display/display_settings_dlg.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "screens/dialog_layout.h"
#include "screens/display_settings_driver.h"
#include "screens/offer_driver.h"

namespace kav::test::display_settings_dlg_test {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

const std::u16string kPrecisionMessage = u"The precision must be a whole number from 0 to 15.";
const std::u16string kWidthMessage = u"The column width must be a whole number from 10 to 400.";

const Numbers kNothing(8, -1);

using DisplaySettingsDlgTest = DisplaySettingsDriver;

TEST_F(DisplaySettingsDlgTest, AFirstStartShowsTheDefaults) {
  RunNormal([&] {
    EXPECT_EQ(Pages().count(), 2);
    EXPECT_EQ(Pages().tabText(0), "Normal");
    EXPECT_EQ(Pages().tabText(1), "Matrix");
    EXPECT_EQ(Pages().currentIndex(), 0);
    EXPECT_EQ(Group(), "Normal Display Formatting");
    EXPECT_EQ(Chosen(), "Currency-Punctuated at thousands");
    EXPECT_EQ(Precision().text(), "7");
    EXPECT_FALSE(Precision().isEnabled());
    TapPage(1);
    EXPECT_EQ(Group(), "Matrix Display Formatting");
    EXPECT_EQ(Chosen(), "Floating Point");
    EXPECT_EQ(Precision().text(), "12");
    EXPECT_FALSE(Precision().isEnabled());
    EXPECT_EQ(Rows().currentText(), "3");
    EXPECT_EQ(Columns().currentText(), "3");
    EXPECT_EQ(Alignment().currentText(), "Left");
    EXPECT_EQ(Width().text(), "60");
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TheChoicesAreComplete) {
  RunMatrix([&] {
    QStringList types;
    for (auto* button : dlg_->findChildren<QRadioButton*>()) types.push_back(button->text());
    EXPECT_EQ(types, (QStringList{"Floating Point", "Fixed Point", "Scientific Notation",
                                  "Currency-Punctuated at thousands", "Engineering Notation"}));
    for (QComboBox* sizes : {&Rows(), &Columns()}) {
      ASSERT_EQ(sizes->count(), 10);
      for (int i = 0; i < 10; ++i) EXPECT_EQ(sizes->itemText(i), QString::number(i + 1));
    }
    ASSERT_EQ(Alignment().count(), 2);
    EXPECT_EQ(Alignment().itemText(0), "Left");
    EXPECT_EQ(Alignment().itemText(1), "Right");
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TheMatrixPartsStandOnTheMatrixPageOnly) {
  const auto expectMatrixParts = [&](bool shown) {
    for (const char16_t* text : {u"(R)", u", (R) = Recommend", u"Default Column Width :",
                                 u"Default Matrix Size :", u"X", u"Text Align :"}) {
      EXPECT_EQ(Shows(text), shown) << ToQt(text).toStdString();
    }
    EXPECT_EQ(Width().isVisible(), shown);
    for (const QComboBox* combo : {&Rows(), &Columns(), &Alignment()}) {
      EXPECT_EQ(combo->isVisible(), shown);
    }
    EXPECT_TRUE(Shows(u"Precision :"));
  };
  RunMatrix([&] {
    EXPECT_EQ(Pages().currentIndex(), 1);
    expectMatrixParts(true);
    TapPage(0);
    expectMatrixParts(false);
    TapPage(1);
    expectMatrixParts(true);
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TheTypesStandOnLightGreen) {
  RunNormal([&] {
    for (auto* button : dlg_->findChildren<QRadioButton*>()) {
      const QPoint place = button->mapTo(dlg_, button->rect().topRight() - QPoint(1, -1));
      EXPECT_EQ(dlg_->grab().toImage().pixelColor(place), QColor(192, 255, 192));
    }
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, ThreeTypesEnableThePrecision) {
  RunNormal([&] {
    for (const char16_t* type : {u"Fixed Point", u"Scientific Notation", u"Engineering Notation"}) {
      ChooseType(u"Floating Point");
      EXPECT_FALSE(Precision().isEnabled());
      ChooseType(type);
      EXPECT_TRUE(Precision().isEnabled());
      ChooseType(u"Currency-Punctuated at thousands");
      EXPECT_FALSE(Precision().isEnabled());
      EXPECT_EQ(Precision().text(), "7");
    }
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, EachPageKeepsItsOwnValues) {
  RunNormal([&] {
    ChooseType(u"Fixed Point");
    Type(Precision(), "2");
    TapPage(1);
    ChooseType(u"Scientific Notation");
    Type(Precision(), "15");
    TapPage(0);
    EXPECT_EQ(Chosen(), "Fixed Point");
    EXPECT_EQ(Precision().text(), "2");
    EXPECT_TRUE(Precision().isEnabled());
    TapPage(1);
    EXPECT_EQ(Chosen(), "Scientific Notation");
    EXPECT_EQ(Precision().text(), "15");
    Tap(u"Cancel");
  });
  EXPECT_EQ(Stored(), kNothing);
}

TEST_F(DisplaySettingsDlgTest, OkStoresAllEight) {
  EXPECT_TRUE(RunNormal([&] {
    ChooseType(u"Engineering Notation");
    Type(Precision(), "3");
    TapPage(1);
    ChooseType(u"Fixed Point");
    Type(Precision(), "4");
    Type(Width(), "120");
    Pick(Rows(), 9);
    Pick(Columns(), 0);
    Pick(Alignment(), 1);
    Tap(u"OK");
  }));
  EXPECT_EQ(Stored(), (Numbers{4, 3, 1, 4, 10, 1, 1, 120}));
}

TEST_F(DisplaySettingsDlgTest, OkOnAFirstStartStoresTheDefaults) {
  EXPECT_TRUE(RunNormal([&] { Tap(u"OK"); }));
  EXPECT_EQ(Stored(), (Numbers{3, 7, 0, 12, 3, 3, 0, 60}));
}

TEST_F(DisplaySettingsDlgTest, CancelStoresNothing) {
  EXPECT_FALSE(RunNormal([&] {
    ChooseType(u"Fixed Point");
    Type(Precision(), "2");
    TapPage(1);
    Pick(Rows(), 5);
    Tap(u"Cancel");
  }));
  EXPECT_EQ(Stored(), kNothing);
}

TEST_F(DisplaySettingsDlgTest, AWrongPrecisionKeepsThePage) {
  RunNormal([&] {
    ChooseType(u"Fixed Point");
    for (const char* typed : {"", "16", "-1", "2.5", "many"}) {
      Type(Precision(), typed);
      ExpectRefused(kPrecisionMessage, [&] { TapPage(1); });
      EXPECT_EQ(Pages().currentIndex(), 0);
      EXPECT_EQ(Group(), "Normal Display Formatting");
      EXPECT_EQ(Precision().text(), "7");
      EXPECT_EQ(Chosen(), "Fixed Point");
      EXPECT_EQ(dlg_->focusWidget(), &Precision());
    }
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, AWrongPrecisionKeepsTheDialogOpen) {
  EXPECT_TRUE(RunNormal([&] {
    ChooseType(u"Fixed Point");
    Type(Precision(), "16");
    ExpectRefused(kPrecisionMessage, [&] { Tap(u"OK"); });
    EXPECT_TRUE(dlg_->isVisible());
    EXPECT_EQ(Precision().text(), "7");
    EXPECT_EQ(Stored(), kNothing);
    Type(Precision(), "15");
    Tap(u"OK");
  }));
  EXPECT_EQ(Stored()[1], 15);
}

TEST_F(DisplaySettingsDlgTest, AWrongPrecisionIsRefusedThoughItsBoxIsDisabled) {
  EXPECT_TRUE(RunNormal([&] {
    ChooseType(u"Fixed Point");
    Type(Precision(), "x");
    ChooseType(u"Floating Point");
    ExpectRefused(kPrecisionMessage, [&] { Tap(u"OK"); });
    EXPECT_EQ(Precision().text(), "7");
    Tap(u"OK");
  }));
  EXPECT_EQ(Stored()[0], 0);
  EXPECT_EQ(Stored()[1], 7);
}

TEST_F(DisplaySettingsDlgTest, AWrongWidthKeepsPageAndDialog) {
  RunMatrix([&] {
    ChooseType(u"Fixed Point");
    for (const char* typed : {"", "9", "401", "wide"}) {
      Type(Precision(), "3");
      Type(Width(), typed);
      ExpectRefused(kWidthMessage, [&] { TapPage(0); });
      EXPECT_EQ(Pages().currentIndex(), 1);
      EXPECT_EQ(Width().text(), "60");
      EXPECT_EQ(Precision().text(), "12");
      EXPECT_EQ(dlg_->focusWidget(), &Width());
      Type(Width(), typed);
      ExpectRefused(kWidthMessage, [&] { Tap(u"OK"); });
      EXPECT_EQ(Width().text(), "60");
    }
    Tap(u"Cancel");
  });
  EXPECT_EQ(Stored(), kNothing);
}

TEST_F(DisplaySettingsDlgTest, ATypeIsChosenAnywhereInItsRow) {
  RunNormal([&] {
    QWidget& row = *FindKey(*dlg_, u"Fixed Point");
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(row.width() - 2, row.height() / 2));
    EXPECT_EQ(Chosen(), "Fixed Point");
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TheExampleFollowsEveryKeyAndTap) {
  RunNormal([&] {
    EXPECT_EQ(Example(), u"1,234,567.891\n0.000123456789");
    ChooseType(u"Fixed Point");
    EXPECT_EQ(Example(), u"1234567.8910000\n0.0001235");
    Type(Precision(), "1");
    EXPECT_EQ(Example(), u"1234567.9\n0.0");
    QTest::keyClicks(&Precision(), "6");
    EXPECT_EQ(Example(), kPrecisionMessage);
    QTest::keyClick(&Precision(), Qt::Key_Backspace);
    EXPECT_EQ(Example(), u"1234567.9\n0.0");
    TapPage(1);
    EXPECT_EQ(Example(), u"1234567.891\n0.000123456789");
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TypingLeavesTheCaretWhereItIs) {
  RunNormal([&] {
    ChooseType(u"Fixed Point");
    Type(Precision(), "5");
    Press(Qt::Key_Home);
    QTest::keyClicks(&Precision(), "1");
    EXPECT_EQ(Precision().text(), "15");
    EXPECT_EQ(Precision().cursorPosition(), 1);
    Tap(u"Cancel");
  });
}

TEST_F(DisplaySettingsDlgTest, TheKeyboardAloneReachesEverything) {
  RunMatrix([&] {
    ChooseType(u"Fixed Point");
    std::vector<QWidget*> reached;
    for (int i = 0; i < 20; ++i) {
      reached.push_back(dlg_->focusWidget());
      Press(Qt::Key_Tab);
    }
    const std::vector<QWidget*> wanted{&Precision(),
                                       &Width(),
                                       &Rows(),
                                       &Columns(),
                                       &Alignment(),
                                       &Pages(),
                                       FindKey(*dlg_, u"OK"),
                                       FindKey(*dlg_, u"Cancel")};
    for (QWidget* widget : wanted) {
      EXPECT_NE(std::find(reached.begin(), reached.end(), widget), reached.end())
          << widget->accessibleName().toStdString();
    }
    Press(Qt::Key_Escape);
  });
}

TEST_F(DisplaySettingsDlgTest, TheKeyboardAloneChangesSettings) {
  EXPECT_TRUE(RunNormal([&] {
    for (auto* button : dlg_->findChildren<QRadioButton*>()) {
      EXPECT_EQ(dlg_->focusWidget() == button, button->isChecked());
    }
    Press(Qt::Key_Down);
    EXPECT_EQ(Chosen(), "Engineering Notation");
    Press(Qt::Key_Tab);
    ASSERT_EQ(dlg_->focusWidget(), &Precision());
    QTest::keyClicks(&Precision(), "3");
    Pages().setFocus();
    Press(Qt::Key_Right);
    EXPECT_EQ(Group(), "Matrix Display Formatting");
    Press(Qt::Key_Return);
  }));
  EXPECT_EQ(Stored(), (Numbers{4, 3, 0, 12, 3, 3, 0, 60}));
}

TEST_F(DisplaySettingsDlgTest, NumbersOutOfRangeOpenAsTheNearestOnes) {
  Put({kMost, kMost, kLeast, kMost, kMost, kMost, kMost, kMost});
  EXPECT_TRUE(RunMatrix([&] { Tap(u"OK"); }));
  EXPECT_EQ(Stored(), (Numbers{3, 15, 0, 15, 10, 10, 1, 400}));
  Put(Numbers(8, kLeast));
  EXPECT_TRUE(RunMatrix([&] { Tap(u"OK"); }));
  EXPECT_EQ(Stored(), (Numbers{3, 0, 0, 0, 1, 1, 0, 10}));
}

TEST_F(DisplaySettingsDlgTest, TextsInThePlaceOfNumbersOpenAsTheDefaults) {
  for (const char* name : kSettings) {
    store_.Set(NumberedKey{"Config", name, ""}, std::string(1 << 20, '1'));
  }
  EXPECT_TRUE(RunNormal([&] { Tap(u"OK"); }));
  EXPECT_EQ(Stored(), (Numbers{3, 7, 0, 12, 3, 3, 0, 60}));
}

TEST_F(DisplaySettingsDlgTest, AllHasRoomAtEverySizeOnBothPages) {
  Put({2, 15, 2, 15, 10, 10, 1, 400});
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440)}) {
    screen_.resize(size);
    RunMatrix([&] {
      EXPECT_EQ(dlg_->size(), size);
      ExpectRoomForAll(*dlg_);
      TapPage(0);
      ExpectRoomForAll(*dlg_);
      Tap(u"Cancel");
    });
  }
}

TEST_F(DisplaySettingsDlgTest, NumbersOfOtherSpellingAreTaken) {
  RunMatrix([&] {
    ChooseType(u"Fixed Point");
    Precision().setText("８");
    EXPECT_EQ(Precision().text(), "8");
    Width().setText("1,5");
    Tap(u"OK");
    EXPECT_EQ(Asked(*dlg_), "15 or 1.5?");
    Press(Qt::Key_1);
  });
  EXPECT_EQ(store_.Get(kMatrixPrecision), 8);
  EXPECT_EQ(store_.Get(kMatrixColumnWidth), 15);
}

TEST_F(DisplaySettingsDlgTest, ChangingThePageMovesNothing) {
  RunMatrix([&] {
    const auto placeOf = [&](QWidget& widget) { return widget.mapTo(dlg_, QPoint(0, 0)); };
    const QPoint precision = placeOf(Precision());
    const QPoint pages = placeOf(Pages());
    TapPage(0);
    QApplication::processEvents();
    EXPECT_EQ(placeOf(Precision()), precision);
    EXPECT_EQ(placeOf(Pages()), pages);
    Tap(u"Cancel");
  });
}

}  // namespace
}  // namespace kav::test::display_settings_dlg_test
