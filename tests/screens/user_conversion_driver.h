// Works the editor of the user's own conversions as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <functional>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/converter/user_conversion_dlg.h"
#include "screens/screen_driver.h"
#include "support/stored_conversions.h"

namespace kav::test {

/// The editor on a screen of its own. What a test does in it stands in the function that it hands
/// to Open, since the editor is modal.
class UserConversionDriver : public testing::Test {
 protected:
  UserConversionDriver() { Show(screen_); }

  /// Opens the editor on `store`, runs `use` and closes what is still open.
  void Open(SettingsStore& store, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
      dialog.hide();
    });
    RunUserConversions(&screen_, store);
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()) << "a box that no test looked at";
    dlg_ = nullptr;
  }
  void Open(const std::function<void()>& use) { Open(store_, use); }

  QDialog& Dlg() { return *dlg_; }
  QLineEdit& Source() { return LineNamed(*dlg_, "Source unit"); }
  QLineEdit& Target() { return LineNamed(*dlg_, "Target unit"); }
  QLineEdit& Rate() { return LineNamed(*dlg_, "Rate"); }
  QListWidget& List() { return *dlg_->findChild<QListWidget*>(); }

  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void SelectInList(int row) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(row));
  }
  QPoint PlaceOf(int row) { return List().visualItemRect(List().item(row)).center(); }

  void Fill(const QString& source, const QString& target, const QString& rate) {
    Source().setText(source);
    Target().setText(target);
    Rate().setText(rate);
  }
  /// The three fields: "inch|cm|2.54".
  std::string Fields() {
    return (Source().text() + '|' + Target().text() + '|' + Rate().text()).toStdString();
  }
  Texts Labels() {
    Texts labels;
    for (int i = 0; i < List().count(); ++i) {
      labels.push_back(List().item(i)->text().toStdU16String());
    }
    return labels;
  }
  /// The captions of the buttons that are shown; those that are disabled in parentheses.
  Texts Buttons() {
    Texts captions;
    for (const auto* button : dlg_->findChildren<QPushButton*>()) {
      if (!button->isVisible()) continue;
      const std::u16string caption = button->text().toStdU16String();
      captions.push_back(button->isEnabled() ? caption : u"(" + caption + u")");
    }
    return captions;
  }
  bool Shows(std::u16string_view label) {
    for (const auto* shown : dlg_->findChildren<QLabel*>()) {
      if (shown->isVisible() && shown->text() == ToQt(label)) return true;
    }
    return false;
  }
  /// Whether `widget` has the focus, or gets it once the editor's window has it again.
  bool HasFocus(const QWidget& widget) { return dlg_->focusWidget() == &widget; }
  bool IsEditing() { return Source().isEnabled(); }

  /// Taps "Save", which is to be refused with a stop icon; the message.
  std::u16string RefusedSave() {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    Tap(u"Save");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no message";
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
    return seen[0].text;
  }
  /// Taps "Delete" and answers its question; what stood below that.
  std::u16string Delete(QMessageBox::StandardButton answer) {
    BoxWatch::Instance().Expect(answer);
    Tap(u"Delete");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no question";
    EXPECT_EQ(seen[0].text, u"Are you sure you want to delete the selected unit convert?");
    EXPECT_EQ(seen[0].icon, QMessageBox::Question);
    return seen[0].more;
  }

  MemorySettingsStore store_;
  QWidget screen_;

 private:
  QDialog* dlg_ = nullptr;
};

}  // namespace kav::test
