// Works a dialog that edits a stored list as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <functional>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "settings/settings_store.h"

namespace kav::test {

/// The dialog on a screen of its own. What a test does in it stands in the function that it hands
/// to Open, since the dialog is modal.
class StoredListDriver : public testing::Test {
 protected:
  /// `run` opens the dialog and returns once it is closed.
  explicit StoredListDriver(void (*run)(QWidget* parent, SettingsStore& store)) : run_(run) {
    Show(screen_);
  }

  /// Opens the dialog on `store`, runs `use` and closes what is still open.
  void Open(SettingsStore& store, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
      dialog.hide();
    });
    run_(&screen_, store);
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()) << "a box that no test looked at";
    dlg_ = nullptr;
  }
  void Open(const std::function<void()>& use) { Open(store_, use); }

  QDialog& Dlg() { return *dlg_; }
  QListWidget& List() { return *dlg_->findChild<QListWidget*>(); }

  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void SelectInList(int row) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(row));
  }
  QPoint PlaceOf(int row) { return List().visualItemRect(List().item(row)).center(); }

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
  /// Whether `widget` has the focus, or gets it once the dialog's window has it again.
  bool HasFocus(const QWidget& widget) { return dlg_->focusWidget() == &widget; }

  /// Taps "Save", which is to be refused with a stop icon; the message.
  std::u16string RefusedSave() {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    Tap(u"Save");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no message";
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
    return seen[0].text;
  }
  /// Taps "Delete" and answers `question`; what stood below that.
  std::u16string Delete(std::u16string_view question, QMessageBox::StandardButton answer) {
    BoxWatch::Instance().Expect(answer);
    Tap(u"Delete");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no question";
    EXPECT_EQ(seen[0].text, question);
    EXPECT_EQ(seen[0].icon, QMessageBox::Question);
    return seen[0].more;
  }

  MemorySettingsStore store_;
  QWidget screen_;

 private:
  void (*run_)(QWidget* parent, SettingsStore& store);
  QDialog* dlg_ = nullptr;
};

}  // namespace kav::test
