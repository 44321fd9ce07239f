// Works the macro editor as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <functional>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/macros/macro_editor_dlg.h"
#include "screens/screen_driver.h"
#include "support/marked_line.h"
#include "support/stored_macros.h"

namespace kav::test {

/// The editor on a screen of its own. What a test does in it stands in the function that it hands
/// to Open, since the editor is modal.
class MacroEditorDriver : public testing::Test {
 protected:
  MacroEditorDriver() { Show(screen_); }

  /// Opens the editor on `store`, runs `use` and closes what is still open.
  void Open(SettingsStore& store, const std::function<void()>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
      dialog.hide();
    });
    RunMacroEditor(&screen_, store);
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()) << "a box that no test looked at";
    dlg_ = nullptr;
  }
  void Open(const std::function<void()>& use) { Open(store_, use); }

  QDialog& Dlg() { return *dlg_; }
  QLineEdit& Name() { return LineNamed(*dlg_, "Macro Name"); }
  QComboBox& Type() { return *dlg_->findChild<QComboBox*>(); }
  QPlainTextEdit& Formula() { return *dlg_->findChild<QPlainTextEdit*>(); }
  QListWidget& List() { return *dlg_->findChild<QListWidget*>(); }

  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void SelectInList(int row) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(row));
  }
  QPoint PlaceOf(int row) { return List().visualItemRect(List().item(row)).center(); }

  /// Replaces all three fields; the formula is written as "si|n" or "s[i]n".
  void Fill(const QString& name, int type, std::u16string_view markedFormula) {
    Name().setText(name);
    Type().setCurrentIndex(type);
    PutFormula(markedFormula);
  }
  void PutFormula(std::u16string_view marked) {
    const ExpressionLine line = MarkedLine(marked);
    Formula().setPlainText(QString::fromStdU16String(line.Text()));
    QTextCursor cursor = Formula().textCursor();
    cursor.setPosition(static_cast<int>(line.Selected().start));
    cursor.setPosition(static_cast<int>(line.Selected().end), QTextCursor::KeepAnchor);
    Formula().setTextCursor(cursor);
  }
  std::u16string MarkedFormula() {
    const QTextCursor cursor = Formula().textCursor();
    ExpressionLine line;
    line.Set(
        Formula().toPlainText().toStdU16String(),
        {static_cast<std::size_t>(cursor.anchor()), static_cast<std::size_t>(cursor.position())});
    return Marked(line);
  }

  /// The three fields: "sq|TYPE1 : F(X)|x^2".
  std::string Fields() {
    return (Name().text() + '|' + Type().currentText() + '|' + Formula().toPlainText())
        .toStdString();
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
  bool IsEditing() { return Name().isEnabled(); }

  /// Taps "Save", which is to be refused with a stop icon; the message.
  std::u16string RefusedSave() {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    Tap(u"Save");
    const auto seen = BoxWatch::Instance().TakeSeen();
    if (seen.size() != 1) return u"no message";
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
    return seen[0].text;
  }

  MemorySettingsStore store_;
  QWidget screen_;

 private:
  QDialog* dlg_ = nullptr;
};

}  // namespace kav::test
