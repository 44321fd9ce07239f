// The display settings: two pages over one set of boxes.
#include "screens/display/display_settings_dlg.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "screens/box_watch.h"
#include "screens/dialog_layout.h"
#include "screens/screen_driver.h"

namespace kav::test {
namespace {

using Numbers = std::vector<std::int32_t>;

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

const std::u16string kPrecisionMessage = u"The precision must be a whole number from 0 to 15.";
const std::u16string kWidthMessage = u"The column width must be a whole number from 10 to 400.";

constexpr std::array kNames{"Display Type",         "Precision",          "Matrix Display Type",
                            "Matrix Precision",     "Matrix Default Row", "Matrix Default Col",
                            "Matrix Default Value", "Matrix Colum Width"};
const Numbers kNothing(8, -1);

class DisplaySettingsDlgTest : public testing::Test {
 protected:
  DisplaySettingsDlgTest() { Show(screen_); }

  /// Opens the dialog, in which `use` is run; whether it ended with OK.
  bool Run(DisplayPage first, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([this, use](QDialog& dialog) {
      dlg_ = &dialog;
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      use();
    });
    return RunDisplaySettings(&screen_, store_, first);
  }
  bool RunNormal(const std::function<void()>& use) { return Run(DisplayPage::Normal, use); }
  bool RunMatrix(const std::function<void()>& use) { return Run(DisplayPage::Matrix, use); }

  void Put(const Numbers& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      store_.Set(SettingKey<std::int32_t>{"Config", kNames[i], 0}, numbers[i]);
    }
  }
  /// The eight settings; -1 where none is stored.
  Numbers Stored() {
    Numbers numbers;
    for (const char* name : kNames) {
      numbers.push_back(store_.Get(SettingKey<std::int32_t>{"Config", name, -1}));
    }
    return numbers;
  }

  QLineEdit& Precision() { return LineNamed(*dlg_, "Precision :"); }
  QLineEdit& Width() { return LineNamed(*dlg_, "Default Column Width :"); }
  QComboBox& Combo(const char* name) {
    for (auto* combo : dlg_->findChildren<QComboBox*>()) {
      if (combo->accessibleName() == QLatin1String(name)) return *combo;
    }
    ADD_FAILURE() << "no choice is named " << name;
    return *dlg_->findChild<QComboBox*>();
  }
  QComboBox& Rows() { return Combo("Default Matrix Rows"); }
  QComboBox& Columns() { return Combo("Default Matrix Columns"); }
  QComboBox& Alignment() { return Combo("Text Align :"); }
  QTabBar& Pages() { return *dlg_->findChild<QTabBar*>(); }
  QString Group() { return dlg_->findChild<QGroupBox*>()->title(); }
  QString Chosen() {
    QString chosen;
    for (auto* button : dlg_->findChildren<QRadioButton*>()) {
      if (button->isChecked()) chosen += button->text();
    }
    return chosen;
  }
  std::u16string Example() {
    for (auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->accessibleName() == "Example :") return label->text().toStdU16String();
    }
    return u"no example";
  }
  bool Shows(std::u16string_view text) {
    for (auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->text() == ToQt(text)) return label->isVisible();
    }
    ADD_FAILURE() << "there is no " << ToQt(text).toStdString();
    return false;
  }

  void ChooseType(std::u16string_view caption) { Click(*FindKey(*dlg_, caption)); }
  void Type(QLineEdit& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, text);
  }
  void TapPage(int page) {
    QTest::mouseClick(&Pages(), Qt::LeftButton, {}, Pages().tabRect(page).center());
  }
  /// Chooses the entry as the keyboard does.
  void Pick(QComboBox& combo, int index) {
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(combo.currentIndex(), index);
  }
  void Tap(std::u16string_view caption) { test::Tap(*dlg_, caption); }
  void Press(Qt::Key key) { QTest::keyClick(dlg_->focusWidget(), key); }

  /// Runs `act`, which is answered by one message.
  static void ExpectRefused(const std::u16string& text, const std::function<void()>& act) {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    act();
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
  }

  MemorySettingsStore store_;
  QWidget screen_;
  QDialog* dlg_ = nullptr;
};

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
  for (const char* name : kNames) {
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
}  // namespace kav::test
