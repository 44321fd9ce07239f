// Works the display settings as their user does.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/box_watch.h"
#include "screens/display/display_settings_dlg.h"
#include "screens/screen_driver.h"

namespace kav::test {

using Numbers = std::vector<std::int32_t>;

inline constexpr std::array kSettings{
    "Display Type",       "Precision",          "Matrix Display Type",  "Matrix Precision",
    "Matrix Default Row", "Matrix Default Col", "Matrix Default Value", "Matrix Colum Width"};

class DisplaySettingsDriver : public testing::Test {
 protected:
  DisplaySettingsDriver() { Show(screen_); }

  /// Opens the dialog and runs `use`, which closes it. Whether that was with OK.
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
      store_.Set(SettingKey<std::int32_t>{"Config", kSettings[i], 0}, numbers[i]);
    }
  }
  /// The eight settings; -1 for one that is not stored.
  Numbers Stored() {
    Numbers numbers;
    for (const char* name : kSettings) {
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

}  // namespace kav::test
