// Works the macro editor as its user does.
#pragma once

#include <QComboBox>
#include <QPlainTextEdit>
#include <string>
#include <string_view>

#include "screens/macros/macro_editor_dlg.h"
#include "screens/stored_list_driver.h"
#include "support/marked_line.h"
#include "support/stored_macros.h"

namespace kav::test {

class MacroEditorDriver : public StoredListDriver {
 protected:
  MacroEditorDriver() : StoredListDriver(RunMacroEditor) {}

  QLineEdit& Name() { return LineNamed(Dlg(), "Macro Name"); }
  QComboBox& Type() { return *Dlg().findChild<QComboBox*>(); }
  QPlainTextEdit& Formula() { return *Dlg().findChild<QPlainTextEdit*>(); }

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
  bool IsEditing() { return Name().isEnabled(); }

  /// Taps "Delete" and answers its question.
  void Delete(QMessageBox::StandardButton answer) {
    EXPECT_EQ(
        StoredListDriver::Delete(u"Are you sure you want to delete the selected macro?", answer),
        u"");
  }
};

}  // namespace kav::test
