// Operates a screen as the user does, and reads from it what the user sees.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QtTest/QTest>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screens/scientific/scientific_dlg.h"
#include "screens/widgets/frame.h"
#include "screens/widgets/line_view.h"
#include "settings/settings_store.h"
#include "support/marked_line.h"

namespace kav::test {

using Texts = std::vector<std::u16string>;

inline QString ToQt(std::u16string_view text) {
  return QStringView(text).toString();
}

/// Dialogs that the user closes at once.
inline ScreenDialogs FakeDialogs() {
  ScreenDialogs dialogs;
  dialogs.displaySettings = [](QWidget*, DisplayPage) { return false; };
  dialogs.unitEditor = [](QWidget*) {};
  dialogs.macroEditor = [](QWidget*) {};
  dialogs.macroList = [](QWidget*) { return std::optional<int>(); };
  dialogs.converter = [](QWidget*, const ConverterInput& input) {
    return ConverterOutcome{std::nullopt, input.positions, input.memory};
  };
  dialogs.storeVariable = [](QWidget*, const std::u16string&) {};
  dialogs.recallVariable = [](QWidget*) { return std::optional<std::u16string>(); };
  dialogs.constants = [](QWidget*) { return std::optional<std::u16string>(); };
  dialogs.keys = [](QWidget*, const std::vector<ListedKey>&) {};
  dialogs.guide = [](QWidget*, GuidePage) {};
  return dialogs;
}

/// A frame of which everything can be seen and set.
class FakeFrame final : public Frame {
 public:
  SettingsStore& Store() override { return store; }
  const ScreenDialogs& Dialogs() const override { return dialogs; }
  std::vector<ScreenChoice> ScreensBeside(ScreenMode) const override { return others; }
  void SaveStore() override { ++saves; }
  void ExportSettings(QWidget*) override { ++exports; }
  void ImportSettings(QWidget*) override { ++imports; }
  void ChangeMode(ScreenMode mode) override { modes.push_back(mode); }
  void Exit() override { ++exits; }

  MemorySettingsStore store;
  ScreenDialogs dialogs = FakeDialogs();
  std::vector<ScreenChoice> others;
  int saves = 0;
  int exits = 0;
  int exports = 0;
  int imports = 0;
  std::vector<ScreenMode> modes;
};

inline void Show(QWidget& window, QSize size = {360, 560}) {
  window.resize(size);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

inline QLineEdit& LineNamed(QWidget& screen, const char* name) {
  QLineEdit* found = nullptr;
  for (auto* line : screen.findChildren<QLineEdit*>()) {
    if (line->accessibleName() == QLatin1String(name)) found = line;
  }
  EXPECT_NE(found, nullptr) << name;
  return *found;
}
inline QLineEdit& Expression(QWidget& screen) {
  return LineNamed(screen, "Expression");
}
inline QLineEdit& Result(QWidget& screen) {
  return LineNamed(screen, "Result");
}

/// The visible key that shows `caption`; null if none does.
inline QAbstractButton* FindKey(QWidget& screen, std::u16string_view caption) {
  for (auto* key : screen.findChildren<QAbstractButton*>()) {
    if (key->isVisible() && key->text() == ToQt(caption)) return key;
  }
  return nullptr;
}

inline void Click(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton);
}

/// Taps keys by the captions that they show at that moment, separated by blanks.
inline void Tap(QWidget& screen, std::u16string_view captions) {
  for (const QString& caption : ToQt(captions).split(' ', Qt::SkipEmptyParts)) {
    QAbstractButton* key = FindKey(screen, caption.toStdU16String());
    ASSERT_NE(key, nullptr) << "no key shows " << caption.toStdString();
    Click(*key);
  }
}

/// Replaces the line by one written as "si|n" or "s[i]n".
inline void PutLine(QWidget& screen, std::u16string_view marked) {
  WriteLine(Expression(screen), MarkedLine(marked));
}

inline std::u16string LineOf(QWidget& screen) {
  ExpressionLine line;
  line.Set(TextOf(Expression(screen)), SelectionOf(Expression(screen)));
  return Marked(line);
}

inline std::u16string ResultOf(QWidget& screen) {
  return Result(screen).text().toStdU16String();
}

/// The open menu; null if there is none.
inline QMenu* OpenMenu() {
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// What a menu offers, a separator as "-".
inline Texts Offered(const QMenu* menu) {
  Texts texts;
  if (menu == nullptr) return texts;
  for (const QAction* action : menu->actions()) {
    texts.push_back(action->isSeparator() ? u"-" : action->text().toStdU16String());
  }
  return texts;
}

/// Clicks the item `text` of the open menu.
inline void Choose(std::u16string_view text) {
  QMenu* menu = OpenMenu();
  ASSERT_NE(menu, nullptr) << "no menu is open";
  for (QAction* action : menu->actions()) {
    if (action->text() != ToQt(text)) continue;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    return;
  }
  FAIL() << "the menu does not offer " << ToQt(text).toStdString();
}

/// The menu of the menu bar with this title, its '&' included; null if there is none.
inline QMenu* MenuOf(QWidget& screen, std::u16string_view title) {
  for (const QAction* action : screen.findChild<QMenuBar*>()->actions()) {
    if (action->text() == ToQt(title)) return action->menu();
  }
  return nullptr;
}

/// Chooses an entry of a menu of the menu bar with the mouse.
inline void ChooseFrom(QWidget& screen, std::u16string_view title, std::u16string_view entry) {
  auto* bar = screen.findChild<QMenuBar*>();
  QMenu* menu = MenuOf(screen, title);
  ASSERT_NE(menu, nullptr);
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
  Choose(entry);
}

/// A scientific screen in a frame of its own.
class ScientificScreen : public testing::Test {
 protected:
  ScientificScreen() { Open(); }

  void Open() {
    dlg_.reset();
    dlg_ = MakeScientificScreen(frame_);
    Show(*dlg_);
  }
  void Tap(std::u16string_view captions) { test::Tap(*dlg_, captions); }
  void Put(std::u16string_view marked) { PutLine(*dlg_, marked); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  std::u16string Line() { return LineOf(*dlg_); }
  std::u16string Answer() { return ResultOf(*dlg_); }
  bool LineHasFocus() { return QApplication::focusWidget() == &Expression(*dlg_); }

  FakeFrame frame_;
  std::unique_ptr<QWidget> dlg_;
};

}  // namespace kav::test
