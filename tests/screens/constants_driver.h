// Works the dialog of the constants as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QWidget>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "screens/box_watch.h"
#include "screens/memory/constants_dlg.h"
#include "support/temporary_folder.h"

namespace kav::test {

using Chosen = std::optional<std::u16string>;
using ShownTexts = std::vector<QString>;

/// The open dialog, and what its user does.
struct Constants {
  explicit Constants(QDialog& open) : dialog(open) {}

  QLineEdit& Filter() const { return Edit("Filter"); }
  QLineEdit& Value() const { return Edit("Constant Value"); }
  QLabel& Name() const {
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
      if (label->accessibleName() == "Constant Name") return *label;
    }
    throw std::logic_error("there is no text for the name");
  }
  QTreeView& List() const { return *dialog.findChild<QTreeView*>(); }
  QPushButton& Button(const QString& caption) const {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == caption) return *button;
    }
    throw std::logic_error("there is no button " + caption.toStdString());
  }

  void Press(const QString& caption) const { QTest::mouseClick(&Button(caption), Qt::LeftButton); }
  void Type(const QString& keys) const { QTest::keyClicks(dialog.focusWidget(), keys); }
  void Key(Qt::Key key) const { QTest::keyClick(dialog.focusWidget(), key); }
  QPoint PlaceOf(int row) const {
    return List().visualRect(List().model()->index(row, 0)).center();
  }
  void Tap(int row) const {
    List().scrollTo(List().model()->index(row, 0));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(row));
  }
  void DoubleTap(int row) const {
    Tap(row);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(row));
  }

  /// A column of the list.
  ShownTexts Column(int column) const {
    const QAbstractItemModel& model = *List().model();
    ShownTexts texts;
    for (int row = 0; row < model.rowCount(); ++row) {
      texts.push_back(model.index(row, column).data().toString());
    }
    return texts;
  }
  /// The name in the selected row.
  QString Marked() const {
    const auto rows = List().selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.front().data().toString();
  }

  QDialog& dialog;

 private:
  QLineEdit& Edit(const QString& name) const {
    for (QLineEdit* edit : dialog.findChildren<QLineEdit*>()) {
      if (edit->accessibleName() == name) return *edit;
    }
    throw std::logic_error("there is no line " + name.toStdString());
  }
};

class ConstantsDriver : public testing::Test {
 protected:
  ConstantsDriver() {
    Put("[length]inch=0.0254;[length]foot=0.3048;[mass]pound=0.45359237;[mass]ounce= 0.03 ;"
        "[force]pound force=4.4;");
    parent_.resize(240, 320);
    parent_.show();
  }
  ~ConstantsDriver() override { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }

  void Put(const std::string& content) { PutFile(folder_.File("constable.dat"), content); }

  /// Opens the dialog and runs `use`, which must close it. What was chosen.
  Chosen Run(const std::function<void(Constants)>& use) {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) { use(Constants(dialog)); });
    return RunConstants(&parent_, {folder_.Path()});
  }

  void Expect(QMessageBox::StandardButton answer) { BoxWatch::Instance().Expect(answer); }
  /// The one box that was answered.
  SeenBox Seen() {
    const auto seen = BoxWatch::Instance().TakeSeen();
    EXPECT_EQ(seen.size(), 1U);
    return seen.empty() ? SeenBox{} : seen.front();
  }

  TemporaryFolder folder_;
  QWidget parent_;
};

}  // namespace kav::test
