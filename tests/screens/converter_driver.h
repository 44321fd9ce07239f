// Works the unit converter as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <functional>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/converter/converter_dlg.h"
#include "screens/screen_driver.h"

namespace kav::test {

inline constexpr UnitPositions kMilesToKilometers{6, 18, 14};

/// The converter on a screen of its own. What a test does in it stands in the function that it
/// hands to Run, since the converter is modal.
class ConverterDriver : public testing::Test {
 protected:
  ConverterDriver() {
    Show(screen_);
    // For that long, a tap on an open list counts as the end of the tap that opened it.
    QApplication::setDoubleClickInterval(1);
  }

  /// What the converter leaves once `use` has closed it.
  ConverterOutcome Run(const ConverterInput& input, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
    });
    const ConverterOutcome outcome = RunConverter(&screen_, store_, input);
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()) << "a box that no test looked at";
    return outcome;
  }
  ConverterOutcome RunMiles(const std::function<void()>& use) {
    return Run({u"1", kMilesToKilometers, 0}, use);
  }
  /// The same, closed with "Cancel".
  void UseMiles(const std::function<void()>& use) {
    RunMiles([&, this] {
      use();
      Tap(u"Cancel");
    });
  }

  QComboBox& Choice(const char* name) {
    for (auto* choice : dlg_->findChildren<QComboBox*>()) {
      if (choice->accessibleName() == QLatin1String(name)) return *choice;
    }
    ADD_FAILURE() << "no list is called " << name;
    return *dlg_->findChild<QComboBox*>();
  }
  QComboBox& Category() { return Choice("Category"); }
  QComboBox& InputUnit() { return Choice("Input unit"); }
  QComboBox& OutputUnit() { return Choice("Output unit"); }
  QLineEdit& Value() { return LineNamed(*dlg_, "Input value"); }
  QLineEdit& Result() { return LineNamed(*dlg_, "Result"); }
  std::u16string ResultText() { return Result().text().toStdU16String(); }
  QAbstractButton& SwapButton() {
    for (auto* button : dlg_->findChildren<QAbstractButton*>()) {
      if (button->accessibleName() == "Swap units") return *button;
    }
    ADD_FAILURE() << "no button swaps";
    return *dlg_->findChild<QAbstractButton*>();
  }

  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  // Not to the application's focus: a list that was just closed may not have given it back yet.
  void Press(Qt::Key key) { QTest::keyClick(dlg_->focusWidget(), key); }
  void Type(const QString& text) { QTest::keyClicks(dlg_->focusWidget(), text); }
  void Replace(const QString& text) {
    Value().setFocus();
    Value().selectAll();
    if (text.isEmpty()) return Press(Qt::Key_Delete);
    Type(text);
  }
  /// Opens the list and taps the entry `text`.
  static void Choose(QComboBox& choice, const QString& text) {
    Click(choice);
    QAbstractItemView& list = *choice.view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    const QModelIndex entry = choice.model()->index(choice.findText(text), 0);
    ASSERT_TRUE(entry.isValid()) << text.toStdString();
    list.scrollTo(entry);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(entry).center());
      return !list.isVisible();
    }));
  }

  std::u16string RefusedOk() {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    Tap(u"OK");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no message";
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
    EXPECT_TRUE(dlg_->isVisible());
    EXPECT_EQ(dlg_->focusWidget(), &Value());
    return seen[0].text;
  }

  MemorySettingsStore store_;
  QWidget screen_;
  QDialog* dlg_ = nullptr;
};

}  // namespace kav::test
