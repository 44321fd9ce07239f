// A matrix screen in a frame of its own, worked as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTabBar>
#include <memory>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/matrix/matrix_dlg.h"
#include "screens/screen_driver.h"

namespace kav::test {

class MatrixScreen : public testing::Test {
 protected:
  MatrixScreen() { Open(); }
  ~MatrixScreen() override { EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 0U); }

  void Open() {
    dlg_.reset();
    BoxWatch::Instance();
    dlg_ = MakeMatrixScreen(frame_);
    Show(*dlg_);
  }

  // The line, the result and the keys.
  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  /// The key alone: for captions with a blank in them.
  void TapKey(std::u16string_view caption) { Click(*FindKey(*dlg_, caption)); }
  void Put(std::u16string_view line) { Expression(*dlg_).setText(ToQt(line)); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Focused(), key, modifiers);
  }
  /// The first character may open a box that takes the others.
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClicks(&Focused(), QString(c));
  }
  void Evaluate(std::u16string_view line) {
    Put(line);
    Tap(u"=");
  }
  std::u16string Line() { return Expression(*dlg_).text().toStdU16String(); }
  std::u16string SelectedText() { return Expression(*dlg_).selectedText().toStdU16String(); }
  std::u16string Answer() { return ResultOf(*dlg_); }
  bool LineHasFocus() { return QApplication::focusWidget() == &Expression(*dlg_); }
  bool IsOn(std::u16string_view caption) { return FindKey(*dlg_, caption)->isEnabled(); }

  // The tabs.
  QTabBar& Tabs() { return *dlg_->findChild<QTabBar*>(); }
  std::u16string Tab() { return Tabs().tabText(Tabs().currentIndex()).toStdU16String(); }
  void ChooseTab(int index) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(index).center());
  }

  // The grid; rows and columns as its headers count them, from 1.
  CGridCtrl& Grid() { return *dlg_->findChild<CGridCtrl*>(); }
  void ClickCell(int row, int column, Qt::KeyboardModifiers modifiers = {}) {
    Focused();
    QWidget& cells = *Grid().viewport();
    QTest::mouseClick(&cells, Qt::LeftButton, modifiers,
                      cells.mapFrom(&Grid(), Grid().CellArea({row, column}).center()));
  }
  /// Types texts, separated by blanks, into cells from left to right from the cell on.
  void TypeCells(int row, int column, const QString& texts) {
    ClickCell(row, column);
    for (const QString& text : texts.split(' ')) {
      Type(text);
      Key(Qt::Key_Tab);
    }
  }
  /// Types a whole matrix, its rows separated by ';'.
  void TypeMatrix(const QString& rows) {
    int row = 1;
    for (const QString& cells : rows.split(';')) TypeCells(row++, 1, cells);
  }
  /// The matrix shown, as it would be typed, an empty cell as "_".
  std::string Cells() {
    std::string all;
    for (int row = 1; row < Grid().Model().RowCount(); ++row) {
      if (row > 1) all += ';';
      for (int column = 1; column < Grid().Model().ColumnCount(); ++column) {
        if (column > 1) all += ' ';
        const auto text = Grid().GetItemText(row, column);
        all += text.empty() ? "_" : ToQt(text).toStdString();
      }
    }
    return all;
  }
  void Resize(int rows, int columns);

  /// What the keyboard works on: after a dialog, the window has to become the active one first.
  QWidget& Focused() {
    if (QWidget* menu = QApplication::activePopupWidget()) return *menu;
    dlg_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dlg_.get()));
    return QApplication::focusWidget() != nullptr ? *QApplication::focusWidget() : *dlg_;
  }

  /// The next box is expected to say `text`.
  void ExpectBox(QMessageBox::StandardButton answer = QMessageBox::Ok) {
    BoxWatch::Instance().Expect(answer);
  }
  void ExpectSeen(std::u16string_view text, QMessageBox::Icon icon) {
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, icon);
  }
  /// Evaluates a line that fails with `message` in a box.
  void ExpectFailure(std::u16string_view line, std::u16string_view message) {
    SCOPED_TRACE(ToQt(line).toStdString());
    ExpectBox();
    Evaluate(line);
    ExpectSeen(message, QMessageBox::Critical);
  }

  FakeFrame frame_;
  std::unique_ptr<QWidget> dlg_;
};

/// Gives the matrix shown another size by the dialog of the "MSize" key.
inline void MatrixScreen::Resize(int rows, int columns) {
  BoxWatch::Instance().ExpectDialog([=](QDialog& dialog) {
    const auto lists = dialog.findChildren<QComboBox*>();
    ASSERT_EQ(lists.size(), 2);
    lists[0]->setCurrentText(QString::number(rows));
    lists[1]->setCurrentText(QString::number(columns));
    Click(*FindKey(dialog, u"OK"));
  });
  Tap(u"MSize");
}

}  // namespace kav::test
