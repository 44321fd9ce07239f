// All screens and dialogs of the program, one after another.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/frame_window.h"
#include "screens/box_watch.h"
#include "screens/graph_driver.h"
#include "screens/help/guide_dlg.h"
#include "screens/matrix/matrix_dlg.h"
#include "screens/matrix/matrix_size_dlg.h"
#include "screens/memory/constants_dlg.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/plotter/plotter_options_dlg.h"
#include "screens/screen_driver.h"
#include "screens/statistics/one_variable_dlg.h"
#include "screens/statistics/two_variable_dlg.h"
#include "screens/statistics/work_progress_view.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "support/stored_conversions.h"
#include "support/stored_macros.h"

namespace kav::test {

class EveryWindow : public testing::Test {
 protected:
  using Visit = std::function<void(QWidget& window)>;
  using Open = std::function<void(QWidget* over)>;
  struct Window {
    const char* name;
    // Show it, let it be visited and close it: filled, or with what an earlier visit left.
    std::function<void(const Visit&)> show;
    std::function<void(const Visit&)> showAgain;
  };

  EveryWindow() { Renew(); }
  ~EveryWindow() override { BoxWatch::Instance().TakeSeen(); }

  /// Begins with the same settings each time.
  void Renew() {
    frame_ = std::make_unique<FakeFrame>();
    StoreMacros(frame_->store,
                {{"hyp", "TYPE2 : F(X,Y)", "sqrt(x^2+y^2)"}, {"box", "TYPE3 : F(X,Y,Z)", "x*y*z"}});
    StoreConversions(frame_->store, {{"inch -> cm", "2.54"}, {"knot -> km/h", "1.852"}});
    frame_->dialogs = AllDialogs(frame_->store);
    frame_->others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
  }

  /// Visits each window once, with the same settings.
  void VisitAll(const Visit& visit) {
    for (const auto& windows : {Screens(), Dialogs(), Boxes(), FileDialogs()}) {
      for (const Window& window : windows) {
        SCOPED_TRACE(window.name);
        Renew();
        window.show(visit);
      }
    }
  }

  std::vector<Window> Screens() {
    return {
        ScreenOf("scientific", MakeScientificScreen, [](QWidget&) {}),
        ScreenOf("scientific, Shift", MakeScientificScreen,
                 [](QWidget& screen) { Tap(screen, u"Shift"); }),
        ScreenOf("hexadecimal", MakeScientificScreen, [](QWidget& s) { Base(s, u"Hexadecimal"); }),
        ScreenOf("octal", MakeScientificScreen, [](QWidget& s) { Base(s, u"Octal"); }),
        ScreenOf("binary", MakeScientificScreen, [](QWidget& s) { Base(s, u"Binary"); }),
        ScreenOf("matrix", MakeMatrixScreen, [](QWidget&) {}),
        ScreenOf("one variable", MakeOneVariableScreen, [](QWidget& s) { AddRows(s, {"X"}); }),
        ScreenOf("two variables", MakeTwoVariableScreen,
                 [](QWidget& s) {
                   AddRows(s, {"X", "Y"});
                 }),
        ScreenOf("plotter", MakePlotterScreen, [](QWidget& s) { AddEquations(s); }),
        ScreenOf("plotter, Shift", MakePlotterScreen,
                 [](QWidget& screen) { Tap(screen, u"Shift"); }),
    };
  }

  std::vector<Window> Dialogs() {
    return {
        DialogOf("display settings", [&](QWidget* w) { ShowPage(w, DisplayPage::Normal); }),
        DialogOf("display settings of matrices",
                 [&](QWidget* w) { ShowPage(w, DisplayPage::Matrix); }),
        DialogOf("unit editor", [&](QWidget* w) { frame_->dialogs.unitEditor(w); }),
        DialogOf(
            "unit editor, New", [&](QWidget* w) { frame_->dialogs.unitEditor(w); },
            [](QWidget& dialog) { Tap(dialog, u"New"); }),
        DialogOf("macro editor", [&](QWidget* w) { frame_->dialogs.macroEditor(w); }),
        DialogOf(
            "macro editor, New", [&](QWidget* w) { frame_->dialogs.macroEditor(w); },
            [](QWidget& dialog) { Tap(dialog, u"New"); }),
        DialogOf("macro list",
                 [&](QWidget* w) { given_ = frame_->dialogs.macroList(w).value_or(-1); }),
        DialogOf("converter",
                 [&](QWidget* w) {
                   Convert(w, {0, 0, 1});
                 }),
        DialogOf("converter of the user's units",
                 [&](QWidget* w) {
                   Convert(w, {13, 0, -1});
                 }),
        DialogOf("store in a variable",
                 [&](QWidget* w) { frame_->dialogs.storeVariable(w, u"1"); }),
        DialogOf("recall a variable", [&](QWidget* w) { Give(frame_->dialogs.recallVariable(w)); }),
        DialogOf("constants", [&](QWidget* w) { Give(RunConstants(w, {KAV_DATA_FOLDER})); }),
        DialogOf("keys",
                 [&](QWidget* w) {
                   frame_->dialogs.keys(w, {{{{u"A", u"add"}}, "Alt+A"}});
                 }),
        DialogOf("guide", [](QWidget* w) { RunGuide(w, GuidePage::Macros); }),
        DialogOf("size of a matrix",
                 [](QWidget* w) {
                   RunMatrixSize(w, {3, 3});
                 }),
        DialogOf("graph",
                 [](QWidget* w) {
                   RunGraphView(w, LabelledGraphOf({"x", "1/x", "x^2"}));
                 }),
        DialogOf("plotter options", [&](QWidget* w) { ChooseOptions(w); }),
    };
  }

  /// Boxes, which hold texts and buttons only.
  std::vector<Window> Boxes() {
    return {
        BoxOf("about", [](QWidget* w) { ShowAbout(w); }),
        BoxOf("stop", [](QWidget* w) { ShowStop(w, u"Division by zero."); }),
        BoxOf("notice", [](QWidget* w) { ShowNotice(w, u"The settings cannot be saved."); }),
        BoxOf("question", [](QWidget* w) { AskYesNo(w, u"Are you sure?", u"It will be gone."); }),
        DialogOf("progress",
                 [](QWidget* w) {
                   WorkProgressView progress(w, u"Loading...", std::chrono::milliseconds(0));
                   progress.Update(0.5);
                   QCoreApplication::processEvents();
                 }),
    };
  }

  /// The toolkit's own.
  std::vector<Window> FileDialogs() {
    return {
        DialogOf("file to open",
                 [](QWidget* w) {
                   AskFileToOpen(w, {u"Text (*.txt)", u"txt"});
                 }),
        DialogOf("file to save",
                 [](QWidget* w) {
                   AskFileToSave(w, {u"Text (*.txt)", u"txt"});
                 }),
    };
  }

  std::unique_ptr<FakeFrame> frame_;
  // What the dialog that was closed last gave back.
  double given_ = 0;
  std::u16string givenText_;

 private:
  template <class Make>
  Window ScreenOf(const char* name, Make make, const Visit& prepare) {
    const auto show = [this, make](const Visit& visit) {
      const auto screen = make(*frame_);
      Show(*screen);
      visit(*screen);
    };
    return {name, After(prepare, show), show};
  }
  static Window DialogOf(
      const char* name, const Open& open, const Visit& prepare = [](QWidget&) {}) {
    const auto show = [open](const Visit& visit) {
      QWidget window;
      Show(window);
      // As for one who opens it by the keyboard.
      window.setAttribute(Qt::WA_KeyboardFocusChange);
      BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
        visit(dialog);
        dialog.hide();
      });
      open(&window);
    };
    return {name, After(prepare, show), show};
  }
  static std::function<void(const Visit&)> After(const Visit& prepare,
                                                 const std::function<void(const Visit&)>& show) {
    return [prepare, show](const Visit& visit) {
      show([&](QWidget& window) {
        prepare(window);
        visit(window);
      });
    };
  }
  static Window BoxOf(const char* name, const Open& open) {
    const auto show = [open](const Visit& visit) {
      QWidget window;
      Show(window);
      // As for one who opens it by the keyboard.
      window.setAttribute(Qt::WA_KeyboardFocusChange);
      BoxWatch::Instance().Expect(QMessageBox::NoButton);
      QTimer::singleShot(0, [&visit] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        visit(*box);
        box->hide();
      });
      open(&window);
    };
    return {name, show, show};
  }

  static void Base(QWidget& screen, std::u16string_view base) {
    Tap(screen, u"DEC");
    Choose(base);
  }
  static void AddRows(QWidget& screen, std::initializer_list<const char*> names) {
    for (const char* value : {"12", "-3.5", "7"}) {
      for (const char* name : names) LineNamed(screen, name).setText(value);
      Tap(screen, u"Add");
    }
  }
  static void AddEquations(QWidget& screen) {
    for (const QString text : {"x^2", "sin(x)"}) {
      QTest::keyClicks(QApplication::focusWidget(), text);
      Tap(screen, u"A");
    }
  }
  void ShowPage(QWidget* over, DisplayPage page) { frame_->dialogs.displaySettings(over, page); }
  void Convert(QWidget* over, const UnitPositions& positions) {
    Give(frame_->dialogs.converter(over, {u"1234.5678", positions, 0}).result);
  }
  void Size(QWidget* over) {
    const auto size = RunMatrixSize(over, {3, 3});
    if (size) given_ = 100 * size->rows + size->columns;
  }
  void ChooseOptions(QWidget* over) {
    const auto chosen = RunPlotterOptions(over, {});
    if (!chosen) return;
    const PlotRange& range = chosen->range;
    given_ = range.xMin + 10 * range.xMax + 100 * range.yMin + 1000 * range.yMax;
    Give(std::u16string{chosen->options.hasGrid ? u'1' : u'0'});
  }
  void Give(const std::optional<std::u16string>& text) { givenText_ = text.value_or(u"none"); }
};

}  // namespace kav::test
