// What a screen reader or a script changes counts as what a hand changes.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeView>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screens/box_watch.h"
#include "screens/converter/converter_dlg.h"
#include "screens/display/display_settings_dlg.h"
#include "screens/macros/macro_list_dlg.h"
#include "screens/memory/constants_dlg.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/screen_driver.h"
#include "screens/widgets/formula_view.h"
#include "settings/keys.h"
#include "support/stored_macros.h"

namespace kav::test::access_input_test {
namespace {

QAccessibleInterface& Of(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

void WriteInto(QWidget& window, const char* name, const QString& text) {
  QAccessibleEditableTextInterface* field = Of(LineNamed(window, name)).editableTextInterface();
  ASSERT_NE(field, nullptr) << name;
  field->replaceText(0, Of(LineNamed(window, name)).textInterface()->characterCount(), text);
}

/// Chooses the next entry of the list called `name`.
void StepOn(QWidget& window, const char* name) {
  for (auto* box : window.findChildren<QComboBox*>()) {
    if (Of(*box).text(QAccessible::Name) != QLatin1String(name)) continue;
    return Of(*box).actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  }
  ADD_FAILURE() << "no list is called " << name;
}

template <class Button>
void Toggle(QWidget& window, const QString& caption) {
  for (auto* button : window.findChildren<Button*>()) {
    if (button->text() != caption) continue;
    return Of(*button).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  }
  ADD_FAILURE() << "nothing is called " << caption.toStdString();
}

/// Selects the entry at `index` among the children of the list.
void SelectChild(QWidget& list, int index) {
  QAccessibleInterface* entry = Of(list).child(index);
  ASSERT_NE(entry, nullptr);
  entry->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
}

class AccessInputTest : public testing::Test {
 protected:
  AccessInputTest() { Show(screen_); }

  /// Runs `open`, and `use` on the dialog that it opens, which is then closed with OK.
  static void Use(const std::function<void()>& open, const std::function<void(QDialog&)>& use,
                  std::u16string_view end = u"OK") {
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      use(dialog);
      Tap(dialog, end);
    });
    open();
  }

  MemorySettingsStore store_;
  QWidget screen_;
};

TEST_F(AccessInputTest, DisplaySettings) {
  Use([this] { RunDisplaySettings(&screen_, store_, DisplayPage::Matrix); },
      [](QDialog& dialog) {
        Toggle<QRadioButton>(dialog, "Fixed Point");
        EXPECT_TRUE(LineNamed(dialog, "Precision :").isEnabled());
        WriteInto(dialog, "Precision :", "3");
        WriteInto(dialog, "Default Column Width :", "75");
        StepOn(dialog, "Default Matrix Rows");
        StepOn(dialog, "Default Matrix Rows");
        StepOn(dialog, "Default Matrix Columns");
        StepOn(dialog, "Text Align :");
      });
  EXPECT_EQ(store_.Get(kMatrixDisplayType), 1);
  EXPECT_EQ(store_.Get(kMatrixPrecision), 3);
  EXPECT_EQ(store_.Get(kMatrixColumnWidth), 75);
  EXPECT_EQ(store_.Get(kMatrixRows), 5);
  EXPECT_EQ(store_.Get(kMatrixColumns), 4);
  EXPECT_EQ(store_.Get(kMatrixAlignment), 1);
  EXPECT_EQ(store_.Get(kDisplayType), 3);
}

TEST_F(AccessInputTest, Converter) {
  std::optional<std::u16string> result;
  Use(
      [&] {
        result = RunConverter(&screen_, store_, {u"1", {6, 17, 13}, 0}).result;
      },
      [](QDialog& dialog) {
        StepOn(dialog, "Output unit");
        StepOn(dialog, "Input unit");
        WriteInto(dialog, "Input value", "2");
        EXPECT_EQ(LineNamed(dialog, "Result").text(), "3.218688");
      });
  EXPECT_EQ(result, u"3.218688");
}

TEST_F(AccessInputTest, TheEmptyCategoryIsToldOnce) {
  Use(
      [this] {
        RunConverter(&screen_, store_, {u"1", {13, 0, 0}, 0});
      },
      [](QDialog& dialog) {
        BoxWatch::Instance().Expect(QMessageBox::Ok);
        BoxWatch::Instance().ExpectDialog([](QDialog& editor) { editor.reject(); });
        StepOn(dialog, "Category");
        QCoreApplication::processEvents();
        EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
        // Each later choice is told again.
        BoxWatch::Instance().Expect(QMessageBox::Ok);
        BoxWatch::Instance().ExpectDialog([](QDialog& editor) { editor.reject(); });
        for (int i = 0; i < 14; ++i) StepOn(dialog, "Category");
        QCoreApplication::processEvents();
        EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
      });
}

TEST_F(AccessInputTest, MemoryVariables) {
  Use([this] { RunStoreVariable(&screen_, store_, u"2.5"); },
      [](QDialog& dialog) {
        SelectChild(*dialog.findChild<QListWidget*>(), 2);
        Tap(dialog, u"Store");
      },
      u"Close");
  EXPECT_EQ(store_.Get(NumberedKey{"MemoryVar", "Var2", "0"}), "2.5");
}

TEST_F(AccessInputTest, Macros) {
  StoreMacros(store_, {{"f", "TYPE1 : F(X)", "x"}, {"g", "TYPE1 : F(X)", "x^2"}});
  std::optional<int> chosen;
  Use([&] { chosen = RunMacroList(&screen_, store_); },
      [](QDialog& dialog) { SelectChild(*dialog.findChild<QListWidget*>(), 1); });
  EXPECT_EQ(chosen, 1);
}

TEST_F(AccessInputTest, Constants) {
  std::optional<std::u16string> value;
  Use([&] { value = RunConstants(&screen_, {KAV_DATA_FOLDER}); },
      [](QDialog& dialog) {
        WriteInto(dialog, "Filter", "speed of light in vacuum");
        QCoreApplication::processEvents();  // the list is laid out anew
        QAccessibleInterface& list = Of(*dialog.findChild<QTreeView*>());
        ASSERT_NE(list.tableInterface(), nullptr);
        EXPECT_TRUE(list.tableInterface()->selectRow(0));
      });
  EXPECT_EQ(value, u"299792458");
}

TEST_F(AccessInputTest, Plotter) {
  FakeFrame frame;
  frame.store.Set(kEquationCount, 2);
  frame.store.Set(StoredEquation(0), "x");
  frame.store.Set(StoredEquation(1), "x^2");
  auto screen = MakePlotterScreen(frame);
  Show(*screen, {480, 640});
  WriteInto(*screen, "X min", "-7");
  const auto checks = [&screen] {
    std::vector<bool> all;
    for (const auto* box : screen->findChildren<QCheckBox*>()) all.push_back(box->isChecked());
    return all;
  };
  const auto before = checks();
  Toggle<QCheckBox>(*screen, "Grid");
  Toggle<QCheckBox>(*screen, "Line");
  // Each key shows what the model has.
  Tap(*screen, u"Shift");
  ASSERT_EQ(checks().size(), 2U);
  EXPECT_EQ(checks(), (std::vector<bool>{!before[0], !before[1]}));
  StepOn(*screen, "Equations");
  EXPECT_EQ(screen->findChild<FormulaView*>()->toPlainText(), "x^2");
  screen.reset();
  EXPECT_EQ(frame.store.Get(kPlotXMin), "-7");
}

}  // namespace
}  // namespace kav::test::access_input_test
