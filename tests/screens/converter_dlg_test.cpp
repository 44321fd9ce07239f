// The unit converter as its user meets it.
#include "screens/converter/converter_dlg.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <algorithm>
#include <climits>

#include "screens/box_watch.h"
#include "screens/converter_driver.h"
#include "screens/dialog_layout.h"
#include "screens/offer_driver.h"
#include "settings/keys.h"
#include "support/processor_time.h"
#include "support/stored_conversions.h"
#include "support/unit_places.h"

namespace kav::test::converter_dlg_test {
namespace {

constexpr UnitPositions kCelsiusToFahrenheit{11, 0, -1};

using ConverterDlgTest = ConverterDriver;

TEST_F(ConverterDlgTest, OpensWithWhatItIsHanded) {
  UseMiles([this] {
    EXPECT_EQ(dlg_->windowTitle(), "Unit Converter");
    EXPECT_EQ(Category().currentText(), "07. Length");
    EXPECT_EQ(Category().count(), 15);
    EXPECT_EQ(Category().itemText(14), "15. User Define");
    EXPECT_EQ(InputUnit().currentText(), "Miles");
    EXPECT_EQ(OutputUnit().currentText(), "Kilometers");
    EXPECT_EQ(Value().text(), "1");
    EXPECT_EQ(Value().selectedText(), "1");
    EXPECT_TRUE(Value().hasFocus());
    EXPECT_EQ(ResultText(), u"1.609344");
  });
}

TEST_F(ConverterDlgTest, TheResultIsYellowAndOnlyRead) {
  UseMiles([this] {
    EXPECT_TRUE(Result().isReadOnly());
    EXPECT_EQ(Result().palette().color(QPalette::Base), QColor(255, 255, 192));
    Result().setFocus();
    Result().selectAll();
    Result().copy();
    EXPECT_EQ(QApplication::clipboard()->text(), "1.609344");
  });
}

TEST_F(ConverterDlgTest, EachKeystrokeIsConverted) {
  UseMiles([this] {
    Type("2");
    EXPECT_EQ(ResultText(), u"3.218688");
    Type("0");
    EXPECT_EQ(ResultText(), u"32.18688");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(ResultText(), u"3.218688");
    Press(Qt::Key_Home);
    Type("1");
    EXPECT_EQ(ResultText(), u"19.312128");
    EXPECT_EQ(Value().cursorPosition(), 1);
  });
}

TEST_F(ConverterDlgTest, EachSelectionIsConverted) {
  UseMiles([this] {
    Choose(InputUnit(), "Meters");
    EXPECT_EQ(ResultText(), u"0.001");
    Choose(OutputUnit(), "Centimeters");
    EXPECT_EQ(ResultText(), u"100");
    InputUnit().setFocus();
    Press(Qt::Key_Up);  // Light years
    EXPECT_EQ(ResultText(), u"9.4605000e+17");
  });
}

TEST_F(ConverterDlgTest, ACategoryBringsItsUnitsAndSelectsTheFirst) {
  const auto outcome = RunMiles([this] {
    Choose(Category(), "06. Force");
    EXPECT_EQ(InputUnit().count(), 11);
    EXPECT_EQ(OutputUnit().count(), 11);
    EXPECT_EQ(InputUnit().currentText(), "Dynes");
    EXPECT_EQ(OutputUnit().currentText(), "Dynes");
    EXPECT_EQ(InputUnit().itemText(10), "Tons Force (US)");
    EXPECT_EQ(ResultText(), u"1");
    Tap(u"Cancel");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{5, 0, 0}));
}

TEST_F(ConverterDlgTest, SwapsTheUnits) {
  const auto outcome = RunMiles([this] {
    Replace("1.609344");
    Click(SwapButton());
    EXPECT_EQ(InputUnit().currentText(), "Kilometers");
    EXPECT_EQ(OutputUnit().currentText(), "Miles");
    EXPECT_EQ(ResultText(), u"1");
    Tap(u"OK");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{6, 14, 18}));
  EXPECT_EQ(outcome.result, u"1");
}

TEST_F(ConverterDlgTest, TemperaturesAreOneListOfConversions) {
  const auto outcome = Run({u"100", kMilesToKilometers, 0}, [this] {
    QComboBox& units = OutputUnit();
    Choose(Category(), "12. Temperature");
    EXPECT_FALSE(units.isVisible());
    EXPECT_EQ(Choice("Conversion").count(), 6);
    EXPECT_EQ(Choice("Conversion").currentText(), "Celsius -> Fahrenheit");
    EXPECT_EQ(ResultText(), u"212");
    Click(SwapButton());
    EXPECT_EQ(Choice("Conversion").currentText(), "Fahrenheit -> Celsius");
    Replace("-40");
    EXPECT_EQ(ResultText(), u"-40");
    Tap(u"OK");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{11, 2, -1}));
  EXPECT_EQ(outcome.result, u"-40");
}

TEST_F(ConverterDlgTest, TheSecondListComesBackWithACategoryOfUnits) {
  Run({u"1", kCelsiusToFahrenheit, 0}, [this] {
    Choose(Category(), "01. Area");
    EXPECT_TRUE(OutputUnit().isVisible());
    EXPECT_EQ(InputUnit().currentText(), "Acres");
    Tap(u"Cancel");
  });
}

TEST_F(ConverterDlgTest, AListWithNothingSelectedShowsItsName) {
  Run({u"1", {}, 0}, [this] {
    for (QComboBox* list : {&Category(), &InputUnit(), &OutputUnit()}) {
      EXPECT_EQ(list->currentIndex(), -1);
      EXPECT_EQ(list->placeholderText(), list->accessibleName());
    }
    Tap(u"Cancel");
  });
}

TEST_F(ConverterDlgTest, BeginsWithNothingSelectedAndThenHasNothingToGive) {
  const auto outcome = Run({u"5", {}, 7}, [this] {
    EXPECT_EQ(Category().currentIndex(), -1);
    EXPECT_EQ(InputUnit().count(), 0);
    EXPECT_EQ(OutputUnit().count(), 0);
    EXPECT_FALSE(SwapButton().isEnabled());
    EXPECT_FALSE(FindKey(*dlg_, u"MEM")->isEnabled());
    EXPECT_EQ(ResultText(), u"");
    Tap(u"OK");
    EXPECT_FALSE(dlg_->isVisible());
  });
  EXPECT_EQ(outcome.result, std::nullopt);
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{-1, -1, -1}));
  EXPECT_EQ(outcome.memory, 7);
}

TEST_F(ConverterDlgTest, PositionsThatThereAreNotSelectNothing) {
  const auto outcome = Run({u"5", {6, INT_MIN, 99}, 0}, [this] {
    EXPECT_EQ(Category().currentText(), "07. Length");
    EXPECT_EQ(InputUnit().currentIndex(), -1);
    EXPECT_EQ(OutputUnit().currentIndex(), -1);
    EXPECT_EQ(ResultText(), u"");
    Tap(u"Cancel");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{6, -1, -1}));
}

TEST_F(ConverterDlgTest, OkHandsOverTheResultAndCancelOnlyThePositions) {
  const auto taken = Run({u"1000", kMilesToKilometers, -1.5}, [this] {
    Choose(OutputUnit(), "Meters");
    EXPECT_EQ(ResultText(), u"1,609,344");
    Tap(u"OK");
  });
  EXPECT_EQ(taken.result, u"1609344");
  EXPECT_EQ(PlacesOf(taken.positions), (Places{6, 18, 16}));
  EXPECT_EQ(taken.memory, -1.5);
  for (const bool byKey : {false, true}) {
    const auto left = Run({u"1000", kMilesToKilometers, 2.5}, [&, this] {
      Choose(OutputUnit(), "Meters");
      if (byKey) {
        Press(Qt::Key_Escape);
      } else {
        Tap(u"Cancel");
      }
    });
    EXPECT_EQ(left.result, std::nullopt);
    EXPECT_EQ(PlacesOf(left.positions), (Places{6, 18, 16}));
    EXPECT_EQ(left.memory, 2.5);
  }
}

TEST_F(ConverterDlgTest, TheUsersFormatIsShownAndNotHandedOver) {
  store_.Set(kDisplayType, 1);
  store_.Set(kPrecision, 2);
  const auto outcome = RunMiles([this] {
    EXPECT_EQ(ResultText(), u"1.61");
    Tap(u"OK");
  });
  EXPECT_EQ(outcome.result, u"1.609344");
}

TEST_F(ConverterDlgTest, SeparatorsAreTakenOffWhatIsTyped) {
  UseMiles([this] {
    Replace(" 1,000.0 ");
    EXPECT_EQ(ResultText(), u"1,609.344");
    EXPECT_EQ(Value().text(), " 1,000.0 ");
  });
}

TEST_F(ConverterDlgTest, ATextThatIsNoNumberIsMarkedAndRefused) {
  UseMiles([this] {
    for (const char* text : {"", "abc", "inf", "nan", "0x10", "1,5.2", "-"}) {
      SCOPED_TRACE(text);
      Replace(text);
      EXPECT_EQ(ResultText(), u"");
      EXPECT_EQ(Value().accessibleDescription(), "Not a number");
      const QColor base = Value().palette().color(QPalette::Base);
      EXPECT_GT(base.red(), base.green() + 30);
      EXPECT_FALSE(FindKey(*dlg_, u"MEM")->isEnabled());
      EXPECT_EQ(RefusedOk(), u"Converting value is error");
      EXPECT_EQ(Value().text(), text);
    }
    Replace("1");
    EXPECT_EQ(ResultText(), u"1.609344");
    EXPECT_EQ(Value().accessibleDescription(), "");
    EXPECT_EQ(Value().palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_TRUE(FindKey(*dlg_, u"MEM")->isEnabled());
  });
}

TEST_F(ConverterDlgTest, ACommaIsAskedAboutBeforeTheResultIsTaken) {
  const auto outcome = RunMiles([this] {
    Replace("1 000");
    Tap(u"OK");
  });
  EXPECT_EQ(outcome.result, u"1609.344");
  const auto asked = RunMiles([this] {
    Replace("1,5");
    EXPECT_EQ(ResultText(), u"");
    Tap(u"OK");
    EXPECT_EQ(Asked(*dlg_), "15 or 1.5?");
    Press(Qt::Key_2);
  });
  EXPECT_EQ(asked.result, u"2.414016");
}

TEST_F(ConverterDlgTest, AValueThatCannotBeShownIsRefusedAndTheSelectionsStay) {
  const auto outcome = RunMiles([this] {
    Choose(OutputUnit(), "Nanometers");
    Replace("1e300");
    EXPECT_EQ(ResultText(), u"Out of range(overflow or underflow)");
    EXPECT_EQ(Value().accessibleDescription(), "");
    EXPECT_FALSE(FindKey(*dlg_, u"MEM")->isEnabled());
    EXPECT_EQ(RefusedOk(), u"Converting value is error");
    EXPECT_EQ(InputUnit().currentText(), "Miles");
    EXPECT_EQ(OutputUnit().currentText(), "Nanometers");
    EXPECT_EQ(Value().text(), "1e300");
    Choose(OutputUnit(), "Miles");
    EXPECT_EQ(ResultText(), u"1.0000000e+300");
    Tap(u"OK");
  });
  EXPECT_EQ(outcome.result, u"1.0000000e+300");
}

TEST_F(ConverterDlgTest, MemStoresTheResultInAVariable) {
  Run({u"1000", {6, 18, 16}, 0}, [this] {
    EXPECT_EQ(ResultText(), u"1,609,344");
    BoxWatch::Instance().ExpectDialog([](QDialog& variables) {
      EXPECT_EQ(variables.windowTitle(), "Memory Variable");
      variables.findChild<QListWidget*>()->setCurrentRow(2);
      test::Tap(variables, u"Store Close");
    });
    Tap(u"MEM");
    EXPECT_TRUE(dlg_->isVisible());
    Tap(u"Cancel");
  });
  EXPECT_EQ(store_.Get(MemoryVariable(2)), "1609344");
}

TEST_F(ConverterDlgTest, TheKeyboardAloneConverts) {
  const auto outcome = Run({u"1", {}, 0}, [this] {
    Type("5");
    Press(Qt::Key_Backtab);
    EXPECT_TRUE(Category().hasFocus());
    Type("07");
    EXPECT_EQ(Category().currentText(), "07. Length");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(InputUnit().hasFocus());
    Type("mil");
    EXPECT_EQ(InputUnit().currentText(), "Miles");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(SwapButton().hasFocus());
    Press(Qt::Key_Space);
    EXPECT_EQ(OutputUnit().currentText(), "Miles");
    Press(Qt::Key_Space);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Result().hasFocus());
    Press(Qt::Key_Tab);
    EXPECT_TRUE(OutputUnit().hasFocus());
    Type("kilo");
    EXPECT_EQ(OutputUnit().currentText(), "Kilometers");
    EXPECT_EQ(ResultText(), u"8.04672");
    for (const char16_t* caption : {u"MEM", u"OK", u"Cancel"}) {
      Press(Qt::Key_Tab);
      EXPECT_TRUE(FindKey(*dlg_, caption)->hasFocus());
    }
    Value().setFocus();
    Press(Qt::Key_Return);
  });
  EXPECT_EQ(outcome.result, u"8.04672");
}

TEST_F(ConverterDlgTest, TypingJumpsToTheUnitAlsoInTheOpenList) {
  UseMiles([this] {
    Click(InputUnit());
    QAbstractItemView& list = *InputUnit().view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    QTest::keyClicks(&list, "yar");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(InputUnit().currentText(), "Yards");
    EXPECT_EQ(ResultText(), u"0.0009144");
  });
}

TEST_F(ConverterDlgTest, TypingFindsACategoryByItsNameAlsoInTheOpenList) {
  UseMiles([this] {
    Category().setFocus();
    Type("temp");
    EXPECT_EQ(Category().currentText(), "12. Temperature");
  });
  UseMiles([this] {
    Click(Category());
    QAbstractItemView& list = *Category().view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    QTest::keyClicks(&list, "vol");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(Category().currentText(), "14. Volume");
    InputUnit().setFocus();
    Type("yar");
    EXPECT_EQ(InputUnit().currentText(), "Cubic Yards");
  });
}

TEST_F(ConverterDlgTest, AnExpressionIsConverted) {
  const auto outcome = RunMiles([this] {
    Replace("1/2");
    Tap(u"OK");
  });
  EXPECT_EQ(outcome.result, u"0.804672");
}

TEST_F(ConverterDlgTest, OpensWithin50MillisecondsAndAnswersAKeyWithin5) {
  StoreConversions(store_, NumberedConversions(60));
  double opening = 0;
  double keystroke = 0;
  for (int i = 0; i < 5; ++i) {
    const ProcessorTime time;
    Run({u"1", {14, 59, -1}, 0}, [&, this] {
      dlg_->repaint();
      opening = std::max(opening, time.Milliseconds());
      for (int key = 0; key < 10; ++key) {
        const ProcessorTime answering;
        Type("2");
        dlg_->repaint();
        keystroke = std::max(keystroke, answering.Milliseconds());
      }
      Tap(u"Cancel");
    });
  }
  EXPECT_LT(opening, 50);
  EXPECT_LT(keystroke, 5);
}

TEST_F(ConverterDlgTest, EverythingHasRoomAtEverySize) {
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440), QSize(180, 240)}) {
    SCOPED_TRACE(size.width());
    Show(screen_, size);
    // The widest unit names, and the longest result.
    for (const UnitPositions& chosen :
         {UnitPositions{9, 8, 17}, UnitPositions{4, 5, 7}, kCelsiusToFahrenheit}) {
      Run({u"1e308", chosen, 0}, [&, this] {
        EXPECT_EQ(dlg_->size(), size);
        ExpectRoomForAll(*dlg_);
        Replace("1e999");
        const QFontMetrics text = Result().fontMetrics();
        EXPECT_GT(Result().width(), text.horizontalAdvance(Result().text()) + text.height() / 2);
        Tap(u"Cancel");
      });
    }
  }
}

}  // namespace
}  // namespace kav::test::converter_dlg_test
