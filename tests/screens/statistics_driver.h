// A statistics screen in a frame of its own, used as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>
#include <QTemporaryDir>
#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "screens/statistics/data_table_view.h"
#include "screens/statistics/one_variable_dlg.h"
#include "screens/statistics/two_variable_dlg.h"

namespace kav::test {

class StatisticsDriver : public testing::Test {
 protected:
  ~StatisticsDriver() override { EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 0U); }

  void Open(std::unique_ptr<QWidget> dlg) {
    BoxWatch::Instance();
    dlg_ = std::move(dlg);
    test::Show(*dlg_);
  }

  // The keys.
  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  /// For captions with a blank in them.
  void TapKey(std::u16string_view caption) {
    QAbstractButton* key = FindKey(*dlg_, caption);
    ASSERT_NE(key, nullptr) << test::ToQt(caption).toStdString();
    Click(*key);
  }
  bool IsShown(std::u16string_view caption) { return FindKey(*dlg_, caption) != nullptr; }
  bool IsOn(std::u16string_view caption) {
    QAbstractButton* key = FindKey(*dlg_, caption);
    return key != nullptr && key->isEnabled();
  }
  /// The enabled ones of `captions`, separated by ';'.
  std::string OnesOn(const char* captions) {
    QStringList on;
    for (const QString& caption : QString(captions).split(';')) {
      if (IsOn(caption.toStdU16String())) on.append(caption);
    }
    return on.join(';').toStdString();
  }
  std::u16string ResultOf(std::u16string_view caption) {
    TapKey(caption);
    return Answer();
  }
  std::u16string Answer() { return test::ResultOf(*dlg_); }

  // The fields.
  QLineEdit& Field(const char* name) { return LineNamed(*dlg_, name); }
  std::string TextIn(const char* name) { return Field(name).text().toStdString(); }
  void Put(const char* name, const QString& text) { Field(name).setText(text); }
  bool HasFocus(const char* name) { return QApplication::focusWidget() == &Field(name); }
  bool IsAllSelected(const char* name) {
    return HasFocus(name) && Field(name).selectedText() == Field(name).text();
  }
  /// Adds the rows "x y count", separated by ';'; without a count it is 1.
  void AddRows(const QString& rows) {
    for (const QString& row : rows.split(';')) {
      const QStringList cells = row.split(' ');
      const auto variables = Table().model()->columnCount() - 1;
      Put("X", cells[0]);
      if (variables == 2) Put("Y", cells[1]);
      Put("Count", cells.size() > variables ? cells[variables] : "1");
      Tap(u"Add");
    }
  }
  /// The visible label that begins with "Total", and the number beside it.
  std::string Total() {
    for (const auto* label : dlg_->findChildren<QLabel*>()) {
      if (label->accessibleName() != "Total") continue;
      return label->isVisible() ? label->text().toStdString() : "hidden";
    }
    return "not there";
  }

  // The list. Rows and columns are numbered from 0.
  DataTableView& Table() { return dynamic_cast<DataTableView&>(*dlg_->findChild<QTableView*>()); }
  std::string Rows() {
    QStringList rows;
    for (int row = 0; row < Table().model()->rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < Table().model()->columnCount(); ++column) {
        cells.append(Table().model()->index(row, column).data().toString());
      }
      rows.append(cells.join(' '));
    }
    return rows.join(';').toStdString();
  }
  QPoint PlaceOf(int row) { return Table().visualRect(Table().model()->index(row, 0)).center(); }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers, PlaceOf(row));
  }
  void ClickHeading(int column) {
    const QHeaderView& headings = *Table().horizontalHeader();
    const QPoint place(headings.sectionPosition(column) + headings.sectionSize(column) / 2,
                       headings.height() / 2);
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, place);
  }
  std::string SelectedRows() {
    QStringList rows;
    for (const QModelIndex& index : Table().selectionModel()->selectedRows()) {
      rows.append(QString::number(index.row()));
    }
    rows.sort();
    return rows.join(' ').toStdString();
  }
  bool ListHasFocus() { return QApplication::focusWidget() == &Table(); }

  // The keyboard. After a dialog, the window has to become active first.
  QWidget& Focused() {
    if (QWidget* menu = QApplication::activePopupWidget()) return *menu;
    dlg_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dlg_.get()));
    return QApplication::focusWidget() != nullptr ? *QApplication::focusWidget() : *dlg_;
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Focused(), key, modifiers);
  }
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClicks(&Focused(), QString(c));
  }

  // Boxes and files.
  void ExpectBox(QMessageBox::StandardButton answer = QMessageBox::Ok) {
    BoxWatch::Instance().Expect(answer);
  }
  void ExpectSeen(std::u16string_view text, QMessageBox::Icon icon) {
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, icon);
  }
  /// Presses a key, which is refused with `text`.
  void ExpectRefusal(std::u16string_view caption, std::u16string_view text) {
    SCOPED_TRACE(test::ToQt(text).toStdString());
    ExpectBox();
    TapKey(caption);
    ExpectSeen(text, QMessageBox::Critical);
    Focused();
  }
  /// Presses a key and answers its question.
  void Answer(std::u16string_view caption, std::u16string_view question,
              QMessageBox::StandardButton answer) {
    ExpectBox(answer);
    TapKey(caption);
    ExpectSeen(question, QMessageBox::Question);
    Focused();
  }
  void ExpectFile(const QString& path) {
    BoxWatch::Instance().ExpectDialog([path](QDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>();
      ASSERT_NE(name, nullptr);
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
  }
  void ExpectNoFileChosen() {
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) { dialog.reject(); });
  }
  void SaveAs(const QString& name) {
    ExpectFile(Path(name));
    Tap(u"Save");
    Focused();
  }
  void LoadFrom(const QString& name) {
    ExpectFile(Path(name));
    Tap(u"Load");
    Focused();
  }
  QString Path(const QString& name) { return folder_.filePath(name); }
  std::string Content(const QString& name) {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "not there";
  }
  void Write(const QString& name, const QByteArray& content) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  void Load(const QByteArray& content) {
    Write("loaded.txt", content);
    LoadFrom("loaded.txt");
  }

  /// Pastes `text` with the keyboard while the list has the focus.
  void PasteIntoList(const QString& text) {
    QApplication::clipboard()->setText(text);
    Table().setFocus();
    Key(Qt::Key_V, Qt::ControlModifier);
  }

  FakeFrame frame_;
  std::unique_ptr<QWidget> dlg_;
  QTemporaryDir folder_;
};

class OneVariableScreen : public StatisticsDriver {
 protected:
  static constexpr const char* kResultKeys = "ΣX;ΣX^2;Arithmetic Mean of X;σ(n-1) of X;σ(n) of X";
  static constexpr const char* kRowKeys = "Edit;Delete;Clear;Save;Load";

  OneVariableScreen() { Open(); }
  void Open() { StatisticsDriver::Open(MakeOneVariableScreen(frame_)); }
};

class TwoVariableScreen : public StatisticsDriver {
 protected:
  static constexpr const char* kResultKeys =
      "ΣX;ΣX^2;Mean of X;σ(n-1) of X;σ(n) of X;ΣY;ΣY^2;Mean of Y;σ(n-1) of Y;σ(n) of Y;ΣXY;A;B;Y';"
      "Plot";

  TwoVariableScreen() { Open(); }
  void Open() { StatisticsDriver::Open(MakeTwoVariableScreen(frame_)); }

  void ChooseModel(std::u16string_view button, std::u16string_view item) {
    TapKey(button);
    Choose(item);
  }
};

}  // namespace kav::test
