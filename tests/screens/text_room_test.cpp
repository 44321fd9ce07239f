// Every text of every screen and dialog has room, in windows of all shapes and in any fonts.
#include "screens/text_room.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "app/frame_window.h"
#include "converter/unit_tables.h"
#include "line/key_state.h"
#include "screens/box_watch.h"
#include "screens/dialog_layout.h"
#include "screens/graph_driver.h"
#include "screens/help/guide_dlg.h"
#include "screens/matrix/matrix_dlg.h"
#include "screens/matrix/matrix_size_dlg.h"
#include "screens/memory/constants_dlg.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/plotter/plotter_options_dlg.h"
#include "screens/screen_driver.h"
#include "screens/screen_layout.h"
#include "screens/statistics/one_variable_dlg.h"
#include "screens/statistics/two_variable_dlg.h"
#include "screens/statistics/work_progress_view.h"
#include "screens/text_room_windows.h"
#include "screens/widgets/message_box.h"
#include "settings/keys.h"
#include "support/stored_conversions.h"
#include "support/stored_macros.h"

namespace kav::test::text_room_test {
namespace {

/// How high a dialog is to be.
enum class Height { OfTheArea, AsNeeded };

class TextRoomTest : public testing::Test {
 protected:
  TextRoomTest() {
    StoreMacros(frame_.store,
                {{"hyp", "TYPE2 : F(X,Y)", "sqrt(x^2+y^2)"}, {"box", "TYPE3 : F(X,Y,Z)", "x*y*z"}});
    frame_.store.Set(kMatrixRows, 10);
    frame_.store.Set(kMatrixColumns, 10);
    frame_.dialogs = AllDialogs(frame_.store);
    frame_.others = {{ScreenMode::Matrix, u"Matrix Calculator"}};
    frame_.store.Set(kTextScale, ScaleOfTexts());
    SetTextShare(WantedShare());
  }
  ~TextRoomTest() override {
    BoxWatch::Instance().TakeSeen();
    SetTextShare(1);
  }

  /// Measures a screen in each window, after `change` was done to it.
  void MeasureScreen(
      QWidget& screen, const std::function<void()>& change = [] {}) {
    // To paint what nobody sees takes most of the time.
    screen.setUpdatesEnabled(false);
    Show(screen, kWindows[0]);
    change();
    for (const QSize size : Windows()) {
      ResizeScreen(screen, size);
      const TextRoom room(screen);
      ExpectReadable(screen.findChild<QMenuBar*>()->font(), PortraitArea(size));
    }
  }

  /// Measures the dialog that `open` opens over each window, after each of `changes`.
  void MeasureDialog(const std::function<void(QWidget*)>& open,
                     const std::vector<std::function<void(QDialog&)>>& changes = {[](QDialog&) {}},
                     Height height = Height::OfTheArea) {
    for (const QSize size : windows_) {
      QWidget window;
      window.setUpdatesEnabled(false);
      Show(window, size);
      const int usual = AreTextsLarge() ? UsualLettersOf(open, window, changes) : 0;
      BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
        dialog.setUpdatesEnabled(false);
        ExpectPlace(dialog, window, height);
        for (const auto& change : changes) {
          change(dialog);
          QCoreApplication::processEvents();
          ExpectPartsApart(dialog);
          const TextRoom room(dialog);
        }
        ExpectReadable(dialog.font(), PortraitArea(size));
        if (AreTextsLarge()) ExpectLarger(dialog, usual, window);
        dialog.hide();
      });
      open(&window);
      if (!AreTextsLarge() || size != windows_.front()) continue;
      EXPECT_EQ(UsualLettersOf(open, window, changes), usual) << "before and after larger ones";
    }
  }

  /// The height in pixels of the letters that a dialog has in the usual size.
  static int UsualLettersOf(const std::function<void(QWidget*)>& open, QWidget& window,
                            const std::vector<std::function<void(QDialog&)>>& changes) {
    int letters = 0;
    SetTextShare(1);
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dialog.setUpdatesEnabled(false);
      for (const auto& change : changes) change(dialog);
      QCoreApplication::processEvents();
      letters = dialog.font().pixelSize();
      dialog.hide();
    });
    open(&window);
    SetTextShare(WantedShare());
    return letters;
  }

  static void ExpectLarger(const QDialog& dialog, int usual, const QWidget& window) {
    const std::string name = dialog.windowTitle().toStdString() + " over a window " +
                             std::to_string(window.width()) + " wide";
    EXPECT_GE(dialog.font().pixelSize(), usual) << name;
    // Where neither the smallest display nor the edge of the desktop ends the room.
    const bool hasRoom = window.height() > 320 && window.width() < dialog.width();
    EXPECT_TRUE(!hasRoom || dialog.font().pixelSize() > usual) << name << ": " << usual;
  }

  static void ExpectPlace(const QDialog& dialog, const QWidget& window, Height height) {
    const QRect area = PortraitArea(window.size()).translated(window.mapToGlobal(QPoint()));
    // For larger texts it is wider, as far as the desktop is.
    const int frame = window.frameGeometry().width() - window.width();
    const int most = std::max(window.screen()->availableSize().width() - frame, area.width());
    const int width = std::min(qRound(area.width() * WantedShare()), most);
    if (height == Height::OfTheArea) {
      EXPECT_EQ(dialog.size(), QSize(width, area.height())) << dialog.windowTitle().toStdString();
      return;
    }
    EXPECT_EQ(dialog.width(), width);
    EXPECT_LT(dialog.height(), qRound(area.height() / 2 * WantedShare())) << area.height();
    if (AreTextsLarge()) return;
    EXPECT_LE((dialog.geometry().center() - area.center()).manhattanLength(), 2);
  }

  /// What is made smaller so that it fits stays at least half as large as on a screen that is wide
  /// enough for its height.
  static void ExpectReadable(const QFont& font, const QRect& area) {
    EXPECT_GT(font.pixelSize(), std::min(area.height(), area.width() * 4 / 3) * 0.018)
        << area.width() << 'x' << area.height();
  }

  FakeFrame frame_;
  std::span<const QSize> windows_ = Windows();  ///< over which dialogs are measured
};

TEST_F(TextRoomTest, TheScientificScreen) {
  const auto screen = MakeScientificScreen(frame_);
  MeasureScreen(*screen);
  MeasureScreen(*screen, [&] { Tap(*screen, u"Shift"); });
  for (const auto& change : {std::pair(u"DEC", u"Hexadecimal"), std::pair(u"HEX", u"Octal"),
                             std::pair(u"OCT", u"Binary")}) {
    MeasureScreen(*screen, [&] {
      Tap(*screen, change.first);
      Choose(change.second);
    });
  }
}

TEST_F(TextRoomTest, TheMatrixScreen) {
  MeasureScreen(*MakeMatrixScreen(frame_));
}

TEST_F(TextRoomTest, TheStatisticsScreens) {
  for (const auto make : {MakeOneVariableScreen, MakeTwoVariableScreen}) {
    const auto screen = make(frame_);
    MeasureScreen(*screen, [&] {
      for (int row = 0; row < 3; ++row) {
        for (const char* name : {"X", "Y"}) {
          if (make == MakeTwoVariableScreen || *name == 'X')
            LineNamed(*screen, name).setText("-12.34");
        }
        Tap(*screen, u"Add");
      }
    });
    MeasureScreen(*screen, [&] {
      screen->findChild<QTableView*>()->selectRow(0);
      Tap(*screen, u"Edit");
    });
  }
}

TEST_F(TextRoomTest, ThePlotterScreen) {
  const auto screen = MakePlotterScreen(frame_);
  MeasureScreen(*screen);
  MeasureScreen(*screen, [&] { Tap(*screen, u"Shift"); });
}

TEST_F(TextRoomTest, TheDisplaySettings) {
  for (int type = 0; type < 5; ++type) {
    frame_.store.Set(kDisplayType, type);
    frame_.store.Set(kPrecision, 15);
    for (const DisplayPage page : {DisplayPage::Normal, DisplayPage::Matrix}) {
      MeasureDialog([&](QWidget* window) { frame_.dialogs.displaySettings(window, page); });
    }
  }
}

void TapButton(QDialog& dialog, std::u16string_view caption) {
  QAbstractButton* button = FindKey(dialog, caption);
  ASSERT_NE(button, nullptr) << ToQt(caption).toStdString();
  Click(*button);
}

TEST_F(TextRoomTest, TheMacros) {
  MeasureDialog(frame_.dialogs.macroEditor,
                {[](QDialog& dialog) { dialog.findChild<QListView*>()->setFocus(); },
                 [](QDialog& dialog) { TapButton(dialog, u"New"); }});
  MeasureDialog([&](QWidget* window) { frame_.dialogs.macroList(window); });
}

TEST_F(TextRoomTest, TheKeysAndTheGuide) {
  std::vector<ListedKey> keys;
  for (const KeyPlace& place : KeyPlaces()) {
    if (!place.shortcut.empty()) keys.push_back({CaptionsOf(place), place.shortcut});
  }
  MeasureDialog([&](QWidget* window) { frame_.dialogs.keys(window, keys); });
  // To lay all its pages out takes long, and in the other windows there is more room around them.
  windows_ = windows_.first(3);
  MeasureDialog([](QWidget* window) { RunGuide(window, GuidePage::TwoVariable); });
}

TEST_F(TextRoomTest, TheConverter) {
  for (int category = 0; category < 14; ++category) {
    MeasureDialog([&](QWidget* window) {
      frame_.dialogs.converter(window, {u"1234.5678", {category, 0, category == 13 ? -1 : 1}, 0});
    });
  }
}

TEST_F(TextRoomTest, TheUnitEditor) {
  StoreConversions(frame_.store, {{"inch -> cm", "2.54"}, {"knot -> km/h", "1.852"}});
  MeasureDialog(frame_.dialogs.unitEditor,
                {[](QDialog& dialog) { dialog.findChild<QListView*>()->setFocus(); },
                 [](QDialog& dialog) { TapButton(dialog, u"New"); }});
}

TEST_F(TextRoomTest, TheMemoryVariables) {
  frame_.store.Set(NumberedKey{"MemoryVar", "Var19", "0"}, "-1.23456789012345e-300");
  MeasureDialog([&](QWidget* window) { frame_.dialogs.storeVariable(window, u"1"); });
  MeasureDialog([&](QWidget* window) { frame_.dialogs.recallVariable(window); });
}

TEST_F(TextRoomTest, TheConstants) {
  MeasureDialog([](QWidget* window) { RunConstants(window, {KAV_DATA_FOLDER}); },
                {[](QDialog& dialog) {
                  auto* list = dialog.findChild<QTreeView*>();
                  for (int row = 0; row < list->model()->rowCount(); ++row) {
                    list->setCurrentIndex(list->model()->index(row, 0));
                    const TextRoom room(dialog);
                  }
                }});
}

TEST_F(TextRoomTest, TheSizeOfAMatrix) {
  MeasureDialog(
      [](QWidget* window) {
        RunMatrixSize(window, {10, 10});
      },
      {[](QDialog&) {}}, Height::AsNeeded);
}

TEST_F(TextRoomTest, TheGraph) {
  const GraphInput input = LabelledGraphOf({"x", "1/x", "x^2"});
  MeasureDialog([&](QWidget* window) { RunGraphView(window, input); }, {[](QDialog& dialog) {
                  LineNamed(dialog, "X").setText("1.2345678");
                  TapButton(dialog, u"Cal");
                  // As much of an equation is seen as there is room for.
                  auto* curves = dialog.findChild<QComboBox*>();
                  for (int i = 0; i < curves->count(); ++i) curves->setItemText(i, "R:F1");
                }});
  MeasureDialog([](QWidget* window) { RunPlotterOptions(window, {}); });
}

TEST_F(TextRoomTest, ThePassingOfTime) {
  for (const QSize size : Windows()) {
    QWidget window;
    Show(window, size);
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      const TextRoom room(dialog);
      dialog.hide();
    });
    WorkProgressView progress(&window, u"Loading...", std::chrono::milliseconds(0));
    progress.Update(1);
    QCoreApplication::processEvents();
  }
}

/// Measures each message box that opens, before anybody answers it.
class BoxMeasure final : public QObject {
 public:
  BoxMeasure() { qApp->installEventFilter(this); }
  int Count() const { return count_; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box == nullptr || event->type() != QEvent::Show) return false;
    QTimer::singleShot(0, box, [this, box] {
      ++count_;
      const TextRoom room(*box);
      // As large as what it says, but not larger than the window that it speaks for; for larger
      // texts it may be wider.
      const QWidget* window = box->parentWidget()->window();
      const QSize most = AreaOver(*window).size().expandedTo(window->size());
      EXPECT_LE(box->width(), most.width()) << box->text().toStdString();
      EXPECT_LE(box->height(), most.height()) << box->text().toStdString();
    });
    return false;
  }

  int count_ = 0;
};

TEST_F(TextRoomTest, TheMessages) {
  const BoxMeasure measure;
  for (const QSize size : Windows()) {
    QWidget window;
    Show(window, size);
    BoxWatch::Instance().Expect(QMessageBox::Yes);
    AskYesNo(&window, u"Are you sure you want to delete the selected unit convert?",
             u"All rates will be stored with six decimals. These will lose digits:\nknot -> km/h");
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    ShowAbout(&window);
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    ShowStop(&window, u"The maximum value of X should be bigger than the minimum value of X.");
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    ShowNotice(&window,
               u"The settings cannot be saved: this user has no home folder. Set HOME or "
               u"XDG_CONFIG_HOME to a folder that this user may write to.");
  }
  EXPECT_EQ(measure.Count(), 4 * static_cast<int>(Windows().size()));
}

TEST_F(TextRoomTest, LettersOfAMessageAreMadeSmallerForALongWord) {
  std::vector<int> sizes;
  for (const std::size_t letters : {1U, 35U, 500U}) {
    QWidget window;
    Show(window, {360, 480});
    BoxWatch::Instance().Expect(QMessageBox::NoButton);
    QTimer::singleShot(50, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      sizes.push_back(box->font().pixelSize());
      box->reject();
    });
    ShowStop(&window, std::u16string(letters, u'o') + u" is no name.");
  }
  ASSERT_EQ(sizes.size(), 3U);
  EXPECT_LT(sizes[1], sizes[0]);
  // But not without end: half of what is usual is left.
  EXPECT_EQ(sizes[2], qRound(sizes[0] / 2 / WantedShare()));
}

TEST_F(TextRoomTest, TheMenusOfAScreen) {
  for (const auto make : {MakeScientificScreen, MakeMatrixScreen, MakeOneVariableScreen,
                          MakeTwoVariableScreen, MakePlotterScreen}) {
    const auto screen = make(frame_);
    for (const QSize size : Windows()) {
      // A menu stays within the desktop, which has to have room for it.
      if (size.height() > screen->screen()->size().height() || size.width() < 240) continue;
      Show(*screen, size);
      auto* bar = screen->findChild<QMenuBar*>();
      for (QAction* action : bar->actions()) {
        QMenu& menu = *action->menu();
        menu.popup(screen->mapToGlobal(QPoint(0, 0)));
        const int most = AreTextsLarge() ? AreaOver(*screen).width() : PortraitArea(size).width();
        EXPECT_LE(menu.width(), most) << action->text().toStdString();
        for (const QAction* entry : menu.actions()) {
          if (entry->isSeparator()) continue;
          const QRect area = menu.actionGeometry(const_cast<QAction*>(entry));
          const QFontMetrics text = menu.fontMetrics();
          const int needed = text.horizontalAdvance(WithoutMark(entry->text())) +
                             text.horizontalAdvance(entry->shortcut().toString());
          EXPECT_LE(needed, area.width()) << entry->text().toStdString();
          EXPECT_TRUE(menu.rect().contains(area)) << entry->text().toStdString();
        }
        menu.hide();
      }
    }
  }
}

}  // namespace
}  // namespace kav::test::text_room_test
