// A plotter screen in a frame of its own, worked as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "screens/box_watch.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/screen_driver.h"
#include "screens/widgets/formula_view.h"
#include "support/marked_line.h"

namespace kav::test {

class PlotterScreen : public testing::Test {
 protected:
  PlotterScreen() { Open(); }
  ~PlotterScreen() override { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }

  void Open() {
    dlg_.reset();
    BoxWatch::Instance();
    dlg_ = MakePlotterScreen(frame_);
    Show(*dlg_);
  }

  // The settings; the open screen would write its own over them when it is closed.
  void Set(const char* section, const char* name, std::int32_t value) {
    dlg_.reset();
    frame_.store.Set(SettingKey<std::int32_t>{section, name, 0}, value);
  }
  void SetText(const char* section, const char* name, std::string_view value) {
    dlg_.reset();
    frame_.store.Set(SettingKey<std::string_view>{section, name, ""}, value);
  }
  std::int32_t Stored(const char* section, const char* name) {
    return frame_.store.Get(SettingKey<std::int32_t>{section, name, -12345});
  }
  std::string StoredText(const char* section, const char* name) {
    return frame_.store.Get(SettingKey<std::string_view>{section, name, "nothing"});
  }

  // The input.
  FormulaView& Input() { return *dlg_->findChild<FormulaView*>(); }
  std::u16string Text() { return Input().toPlainText().toStdU16String(); }
  std::u16string Marked() { return test::Marked(Input().Line()); }
  void Put(std::u16string_view marked) { Input().Write(MarkedLine(marked)); }
  bool InputHasFocus() { return dlg_->focusWidget() == &Input(); }

  // Keys: those of the screen and those of the keyboard.
  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  bool IsOn(std::u16string_view caption) { return FindKey(*dlg_, caption)->isEnabled(); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Focused(), key, modifiers);
  }
  /// The first character may move the focus to where the others go.
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClicks(&Focused(), QString(c));
  }
  /// What the keyboard works on: after a dialog, the window has to become the active one first.
  QWidget& Focused() {
    if (QWidget* menu = QApplication::activePopupWidget()) return *menu;
    dlg_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dlg_.get()));
    return QApplication::focusWidget() != nullptr ? *QApplication::focusWidget() : *dlg_;
  }

  // The equations.
  QComboBox& List() { return *dlg_->findChild<QComboBox*>(); }
  Texts Equations() {
    Texts texts;
    for (int i = 0; i < List().count(); ++i) texts.push_back(List().itemText(i).toStdU16String());
    return texts;
  }
  int Selected() { return List().currentIndex(); }
  /// Clicks the equation of that place in the open list.
  void ChooseEquation(int place) {
    // A click that opens it would also be taken for the beginning of a double click.
    List().showPopup();
    QAbstractItemView& items = *List().view();
    const QModelIndex index = List().model()->index(place, 0);
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(index).center());
  }
  /// Replaces the input by typing and adds it.
  void Add(const QString& equation) {
    Input().clear();
    Input().setFocus();
    Type(equation);
    Tap(u"A");
  }

  // The range and the options.
  QLineEdit& Field(const char* name) { return LineNamed(*dlg_, name); }
  void TypeInto(const char* name, const QString& text) {
    Click(Field(name));
    Field(name).selectAll();
    Key(Qt::Key_Delete);
    Type(text);
  }
  std::string Range() {
    QStringList texts;
    for (const char* name : {"X min", "X max", "Y min", "Y max"}) texts << Field(name).text();
    return texts.join(' ').toStdString();
  }
  QCheckBox& Box(std::u16string_view caption) {
    return *qobject_cast<QCheckBox*>(FindKey(*dlg_, caption));
  }

  // Boxes and dialogs.
  void ExpectBox(QMessageBox::StandardButton answer = QMessageBox::Ok) {
    BoxWatch::Instance().Expect(answer);
  }
  void ExpectSeen(std::u16string_view text, QMessageBox::Icon icon = QMessageBox::Critical) {
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, icon);
  }
  /// Taps a key, which is to be refused with `message`.
  void ExpectRefusal(std::u16string_view key, std::u16string_view message) {
    ExpectBox();
    Tap(key);
    ExpectSeen(message);
  }
  /// Deletes the selected equation, answering the question.
  void Delete(QMessageBox::StandardButton answer = QMessageBox::Yes) {
    ExpectBox(answer);
    Tap(u"D");
    ExpectSeen(u"Are you sure you want to delete the selected graph equation?",
               QMessageBox::Question);
  }
  /// Runs `plot`, which is to open the graph view; the labels of its curves.
  Texts CurvesOf(const std::function<void()>& plot) {
    Texts labels;
    BoxWatch::Instance().ExpectDialog([&](QDialog& graph) {
      const auto* selector = graph.findChild<QComboBox*>();
      for (int i = 0; selector != nullptr && i < selector->count(); ++i) {
        labels.push_back(selector->itemText(i).toStdU16String());
      }
      graph.reject();
    });
    plot();
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty());
    return labels;
  }
  Texts Plotted() {
    return CurvesOf([this] { Tap(u"Plot"); });
  }

  FakeFrame frame_;
  std::unique_ptr<QWidget> dlg_;
};

}  // namespace kav::test
